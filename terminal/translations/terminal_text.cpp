// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/translations/terminal_text.h"

#include <QCoreApplication>

#include <array>

namespace wirepane {

namespace {

// In the order of TextId.
constexpr std::array keys{
    "TERMINAL_APP_TITLE",
    "TERMINAL_MENU_FILE",
    "TERMINAL_MENU_VIEW",
    "TERMINAL_MENU_LANGUAGE",
    "TERMINAL_MENU_SCHEME",
    "TERMINAL_READ_AS_OF",
    "TERMINAL_QUIT",
    "TERMINAL_SCHEME_LIGHT",
    "TERMINAL_SCHEME_DARK",
    "TERMINAL_FONT_LARGER",
    "TERMINAL_FONT_SMALLER",
    "TERMINAL_LANGUAGE_EN",
    "TERMINAL_LANGUAGE_ZH_TW",
    "TERMINAL_LANGUAGE_ZH_CN",
    "TERMINAL_READ_AS_OF_TITLE",
    "TERMINAL_READ_AS_OF_EXPLANATION",
    "TERMINAL_READ_AS_OF_NOW",
    "TERMINAL_FEED_CONNECTED",
    "TERMINAL_FEED_DISCONNECTED",
    "TERMINAL_SERVICES_COUNT",
    "TERMINAL_AS_OF",
};
static_assert(keys.size() == static_cast<std::size_t>(TextId::AsOf) + 1);

}  // namespace

QString terminalText(TextId id) {
    return qtTrId(keys[static_cast<std::size_t>(id)]);
}

std::span<const char* const> terminalTextKeys() {
    return keys;
}

}  // namespace wirepane
