// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/controls/my_rich_edit.h"
#include "story/story_head.h"

#include <QFont>
#include <QString>

#include <optional>

namespace wirepane {
class StoryReader;
struct StorySetting;
struct StoryTexts;
enum class StoryState;

// The headline, and under it source, topic, time and symbols; a symbol is a link to itself. What became of
// the news stands below.
TextLead leadOf(const StoryHead& head);
// Whether a link is the one to the changes of a story.
bool isLinkToChanges(const QString& link);
// The symbol of such a link; nothing for another text.
std::optional<CSymbolInfo> symbolOfLink(const QString& link);

// The font of a story's text where views have this one.
QFont storyFont(QFont viewFont, const StorySetting& setting);
// In the colours of the host at this moment. `withLargeHeadline`: there is room for it.
Typography storyTypography(bool withLargeHeadline, const QPalette& palette);

// Puts texts into a control: the story, and the lead where it is typeset.
void putStory(MyRichEdit& edit, const StoryTexts& texts, StoryState state);
// What the story was found by: marked, with the first of it in sight, or its last match selected.
void markFound(MyRichEdit& edit, StoryReader& reader);

}  // namespace wirepane
