// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/bk_quote_interface.h"
#include "host/contract/records.h"

#include <QString>

#include <vector>

// One headline that is to be printed or saved.
struct NewsItem {
    CHeadlineTable entry;
    QString title;
    QString story;  // in lines, as it is to be put out
    bool hasTitle = false;
    bool hasStory = false;
    bool leftOut = false;     // there is no story, or no headline any more, that could be put out
    bool wholeTitle = false;  // a title of several lines keeps its tail, but in a file of code page 950

    bool bIsComplete() const { return hasTitle && hasStory; }
    // Nothing of it is waited for.
    bool bIsSettled() const { return bIsComplete() || leftOut; }
};
using NewsItems = std::vector<NewsItem>;

bool bIsSettled(const NewsItems& items);
// The complete ones.
NewsItems Complete(const NewsItems& items);

// How a story that is at hand is written.
using StoryForm = QString (*)(const CStory&);

// One item per entry, in their order, with what is at hand: stories, and titles with any of `services`.
NewsItems GatherNews(BKQuoteInterface& backEnd, const std::vector<CHeadlineTable>& entries,
                     const std::vector<unsigned char>& services, StoryForm form);

// Asks the back end once for what the items lack; titles that are at hand after all are taken at once. The
// rest comes as answers.
void RequestMissing(BKQuoteInterface& backEnd, NewsItems& items);

// Headlines of these entries can be had: their titles are filled in where they are missing, and with them
// the stories that were waiting for the title. One that cannot be had all the same will not come.
void TakeTitles(BKQuoteInterface& backEnd, NewsItems& items, const std::vector<CHeadlineTable>& entries,
                const std::vector<unsigned char>& services);
// A story can be had: it is filled in where it is missing and the title is there. One without text says that
// there is none; what comes after that counts all the same.
void TakeStory(BKQuoteInterface& backEnd, NewsItems& items, const CHeadlineTable& entry);
