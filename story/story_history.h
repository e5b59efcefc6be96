// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"
#include "story/text_changes.h"

#include <QString>

#include <optional>
#include <vector>

class BKQuoteInterface;

namespace wirepane {
class NewsOrigins;
class NewsRecord;

// A stretch of a text, in characters as texts are shown: a break of lines is one.
struct ChangeMark {
    int from = 0;
    int length = 0;
    bool isRemoved = false;  // else it was added

    bool operator==(const ChangeMark&) const = default;
};

// A story as it is and as it was, in one text.
struct ComparedStory {
    QString text;
    std::vector<ChangeMark> marks;

    bool operator==(const ComparedStory&) const = default;
};

// What a story display tells of news that was corrected or withdrawn, and shows of what has changed. Texts
// are in the form that is shown; what is compared is the last version that the user has read, or, where he
// has read none, the one before the present one. Interface thread.
class StoryHistory {
public:
    // `backEnd` outlives it. One that is neither NewsRecord nor NewsOrigins has nothing to tell.
    explicit StoryHistory(BKQuoteInterface& backEnd);

    // A sentence or more; empty: it is as first sent, by one source. Of a correction the numbers that have
    // changed are told.
    QString remark(const CHeadline& headline) const;
    // Whether there is a version before this one.
    bool hasEarlier(const HeadlineKey& key) const;
    // Of title and story; nothing where there is no earlier version. The story in lines.
    std::optional<ComparedStory> compared(const CHeadline& headline, const QString& story) const;

private:
    struct Texts {
        QString title;
        QString story;
    };
    std::optional<Texts> earlier(const CHeadline& headline) const;
    QString changedNumbers(const CHeadline& headline) const;
    // How long after he had read it the user's version was corrected; empty: he had not.
    QString timeSinceReading(const HeadlineKey& key) const;

    BKQuoteInterface& backEnd;
    NewsRecord* record;
    NewsOrigins* origins;
};

}  // namespace wirepane
