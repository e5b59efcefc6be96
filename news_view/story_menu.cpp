// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/story_menu.h"

#include "headline_list/language_keys.h"
#include "host/contract/lang_text.h"
#include "host/controls/plain_caption.h"

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

std::vector<MenuEntry> storyMenuEntries(const QString& selected, bool canSearch) {
    std::vector<MenuEntry> lines;
    if (!selected.isEmpty())
        lines.push_back(entryOf(StoryCommand::Copy, withKey(langText(keys::storyCopy), QKeySequence::Copy)));
    lines.push_back(
        entryOf(StoryCommand::SelectAll, withKey(langText(keys::storySelectAll), QKeySequence::SelectAll)));
    lines.push_back({});
    lines.push_back(entryOf(StoryCommand::OpenInWindow, langText(keys::storyInWindow)));
    const bool isOneLine = !selected.contains(QChar::ParagraphSeparator) && selected.size() <= longestSearch;
    const QString words = selected.simplified();
    if (canSearch && isOneLine && !words.isEmpty())
        lines.push_back(entryOf(StoryCommand::Search, captionOfName(langText(keys::storySearch).arg(words))));
    return lines;
}

}  // namespace wirepane
