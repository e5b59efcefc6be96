// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>

namespace wirepane {

// The terminal's own texts. Their keys stand in one table, so that each can be checked against the
// catalogues.
enum class TextId {
    AppTitle,
    FileMenu,
    ViewMenu,
    LanguageMenu,
    SchemeMenu,
    ReadAsOf,
    Quit,
    SchemeLight,
    SchemeDark,
    FontLarger,
    FontSmaller,
    LanguageEnglish,
    LanguageTraditionalChinese,
    LanguageSimplifiedChinese,
    ReadAsOfTitle,
    ReadAsOfExplanation,
    ReadAsOfNow,
    FeedConnected,
    FeedDisconnected,
    ServicesCount,
    AsOf,
};

// The text in the language in force.
QString terminalText(TextId id);

// The keys of all of them.
std::span<const char* const> terminalTextKeys();

}  // namespace wirepane
