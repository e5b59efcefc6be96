// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"
#include "host/controls/my_rich_edit.h"

#include <QFont>
#include <QString>

#include <optional>
#include <vector>

namespace wirepane {
struct StoryTexts;
enum class StoryState;

// A symbol that a story is about, with the name that is shown of it.
struct RelatedSymbol {
    CSymbolInfo symbol;
    QString name;

    bool operator==(const RelatedSymbol&) const = default;
};

// What is known of a story besides its text, as it is shown.
struct StoryHead {
    QString headline;
    QString source;
    QString topic;
    QString time;  // to the second
    std::vector<RelatedSymbol> symbols;

    bool operator==(const StoryHead&) const = default;
};

// How large stories are, in hundredths of the size that follows from the font of views.
inline constexpr int plainStorySize = 100;
inline constexpr int smallestStorySize = 60;
inline constexpr int largestStorySize = 300;
// One step larger (1), smaller (-1), or the plain size again (0).
int steppedStorySize(int size, int step);

// How story displays set stories, beyond their plain texts. A value.
struct StorySetting {
    bool typeset = false;
    int size = plainStorySize;

    bool operator==(const StorySetting&) const = default;
};

// The headline, and under it source, topic, time and symbols; a symbol is a link to itself.
TextLead leadOf(const StoryHead& head);
// The symbol of such a link; nothing for another text.
std::optional<CSymbolInfo> symbolOfLink(const QString& link);

// The font of a story's text where views have this one.
QFont storyFont(QFont viewFont, const StorySetting& setting);
// In the colours of the host at this moment. `withLargeHeadline`: there is room for it.
Typography storyTypography(bool withLargeHeadline, const QPalette& palette);

// Puts texts into a control: the story, and the lead where it is typeset.
void putStory(MyRichEdit& edit, const StoryTexts& texts, StoryState state);

}  // namespace wirepane
