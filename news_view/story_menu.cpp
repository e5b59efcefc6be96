// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/story_menu.h"

#include "headline_list/language_keys.h"
#include "host/contract/lang_text.h"
#include "host/controls/plain_caption.h"
#include "news_view/command_keys.h"

#include <QKeySequence>

namespace wirepane {

namespace {

constexpr qsizetype longestSearch = 60;  // characters that are offered to be searched for

MenuEntry entryOf(StoryCommand command, const QString& caption) {
    return {static_cast<int>(command), caption, {}};
}

QString withKey(const QString& caption, QKeySequence::StandardKey key) {
    return caption + u'\t' + QKeySequence(key).toString(QKeySequence::NativeText);
}

}  // namespace

std::vector<MenuEntry> storyMenuEntries(const StoryMenuState& state) {
    std::vector<MenuEntry> lines;
    if (!state.selected.isEmpty())
        lines.push_back(entryOf(StoryCommand::Copy, withKey(langText(keys::storyCopy), QKeySequence::Copy)));
    lines.push_back(
        entryOf(StoryCommand::SelectAll, withKey(langText(keys::storySelectAll), QKeySequence::SelectAll)));
    lines.push_back({});
    lines.push_back(entryOf(StoryCommand::OpenInWindow, langText(keys::storyInWindow)));
    if (state.hasChanges)
        lines.push_back(entryOf(StoryCommand::TurnChanges,
                                langText(keys::turnChanges) + u'\t' +
                                    keyOfCommand(ids::turnChanges).toString(QKeySequence::NativeText)));
    const bool isOneLine =
        !state.selected.contains(QChar::ParagraphSeparator) && state.selected.size() <= longestSearch;
    const QString words = state.selected.simplified();
    if (state.canSearch && isOneLine && !words.isEmpty())
        lines.push_back(entryOf(StoryCommand::Search, captionOfName(langText(keys::storySearch).arg(words))));
    return lines;
}

}  // namespace wirepane
