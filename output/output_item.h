// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QString>

#include <vector>

class BKQuoteInterface;

namespace wirepane {

// One headline that is to be printed or saved.
struct OutputItem {
    CHeadlineTable entry;
    QString title;
    QString story;  // in lines, as it is to be put out
    bool hasTitle = false;
    bool hasStory = false;
    bool leftOut = false;     // there is no story, or no headline any more, that could be put out
    bool wholeTitle = false;  // a title of several lines keeps its tail, but in a file of code page 950

    bool isComplete() const { return hasTitle && hasStory; }
    // Nothing of it is waited for.
    bool isSettled() const { return isComplete() || leftOut; }
};
using OutputItems = std::vector<OutputItem>;

bool isSettled(const OutputItems& items);
// The complete ones.
OutputItems completeItems(const OutputItems& items);

std::vector<HeadlineKey> keysOf(const OutputItems& items);

// How a story that is at hand is written.
using StoryForm = QString (*)(const CStory&);

// One item per entry, in their order, with what is at hand: stories, and titles with any of `services`.
OutputItems gatherNews(BKQuoteInterface& backEnd, const std::vector<CHeadlineTable>& entries,
                       const std::vector<unsigned char>& services, StoryForm form);

// Asks the back end once for what the items lack; titles that are at hand after all are taken at once. The
// rest comes as answers.
void requestMissing(BKQuoteInterface& backEnd, OutputItems& items);

// Headlines of these entries can be had: their titles are filled in where they are missing, and with them
// the stories that were waiting for the title. One that cannot be had all the same will not come.
void takeTitles(BKQuoteInterface& backEnd, OutputItems& items, const std::vector<CHeadlineTable>& entries,
                const std::vector<unsigned char>& services);
// A story can be had: it is filled in where it is missing and the title is there. One without text says that
// there is none; what comes after that counts all the same.
void takeStory(BKQuoteInterface& backEnd, OutputItems& items, const CHeadlineTable& entry);

}  // namespace wirepane
