// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/news_control_ids.h"

#include <QKeySequence>
#include <QLatin1StringView>

#include <algorithm>
#include <array>

namespace wirepane {

// Commands by their shortcut; controls of the same number tell of it. Printing and saving have theirs in the
// menus of the host.
struct CommandKey {
    QLatin1StringView key;
    int id;
};

inline constexpr std::array commandKeys{
    CommandKey{QLatin1StringView("F5"), ids::recoverHeadlineTable},
    CommandKey{QLatin1StringView("Shift+F5"), ids::recoverStory},
    CommandKey{QLatin1StringView("Ctrl+F5"), ids::recoverHeadline},
    CommandKey{QLatin1StringView("F7"), ids::serviceButton},
    CommandKey{QLatin1StringView("F9"), ids::showTypeButton},
    CommandKey{QLatin1StringView("Ctrl+E"), ids::changeCategoryState},
    CommandKey{QLatin1StringView("Alt+Left"), ids::earlierDay},
    CommandKey{QLatin1StringView("Alt+Right"), ids::laterDay},
    CommandKey{QLatin1StringView("Alt+Home"), ids::presentDay},
    CommandKey{QLatin1StringView("Alt+PgDown"), ids::pageDownButton},
    CommandKey{QLatin1StringView("Alt+PgUp"), ids::pageUpButton},
    CommandKey{QLatin1StringView("Ctrl+Return"), ids::openInWindow},
    CommandKey{QLatin1StringView("Ctrl+Shift+D"), ids::turnChanges},
    CommandKey{QLatin1StringView("Ctrl+R"), ids::markRead},
    CommandKey{QLatin1StringView("Ctrl+U"), ids::markUnread},
    CommandKey{QLatin1StringView("Ctrl+J"), ids::turnStar},
    CommandKey{QLatin1StringView("Ctrl+Shift+A"), ids::markAllRead},
    CommandKey{QLatin1StringView("Ctrl+T"), ids::showNewest},
    CommandKey{QLatin1StringView("Ctrl+Shift+L"), ids::turnFold},
    CommandKey{QLatin1StringView("Ctrl+H"), ids::holdList},
};

// The key that does what the command does; empty: none.
inline QKeySequence keyOfCommand(int command) {
    const auto* row = std::find_if(commandKeys.begin(), commandKeys.end(),
                                   [command](const CommandKey& key) { return key.id == command; });
    return row != commandKeys.end() ? QKeySequence(QString(row->key)) : QKeySequence();
}

}  // namespace wirepane
