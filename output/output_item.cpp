// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/output_item.h"

#include "host/contract/bk_quote_interface.h"
#include "output/printable_story.h"
#include "story/story_text.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <unordered_map>

namespace wirepane {

namespace {

using ItemsByNumber = std::unordered_multimap<std::uint64_t, OutputItem*>;

std::uint64_t numberOf(unsigned char service, std::int32_t sequence) {
    return static_cast<std::uint64_t>(service) << 32 | static_cast<std::uint32_t>(sequence);
}

ItemsByNumber byNumber(OutputItems& items) {
    ItemsByNumber result;
    for (OutputItem& item : items)
        result.emplace(numberOf(item.entry.service, item.entry.sequence), &item);
    return result;
}

// Items of the same news take the title. A headline has no opaque values: it is of whatever entry has its
// service, number and day.
void takeTitle(const ItemsByNumber& items, const CHeadline& headline) {
    const auto [first, last] = items.equal_range(numberOf(headline.service, headline.sequence));
    for (auto item = first; item != last; ++item) {
        OutputItem& found = *item->second;
        const CHeadlineTable entry{headline.time, headline.sequence, headline.service, found.entry.second,
                                   found.entry.last};
        if (!isSameNews(found.entry, entry))
            continue;
        found.title = headline.title;
        found.hasTitle = true;
    }
}

void putStory(OutputItem& item, const CStory& story, StoryForm form) {
    item.leftOut = story.text.isEmpty();
    item.hasStory = !item.leftOut;
    item.story = item.leftOut ? QString() : form(story);
}

void takeLateStory(BKQuoteInterface& backEnd, OutputItem& item) {
    CStory story;
    if (item.hasTitle && !item.hasStory && backEnd.BKQNEWS_bGetStory(story, item.entry) &&
        isSameNews(story.entry, item.entry))
        putStory(item, story, &lateStory);
}

// The headline was announced, and none of the services that are looked at has it: its own may, as for news
// that was listed before its service was unticked.
void takeAnnounced(BKQuoteInterface& backEnd, OutputItem& item) {
    std::vector<CHeadline> headlines;
    item.leftOut = backEnd.BKQNEWS_iGetHeadline(item.entry.service, headlines, {item.entry}) == 0;
    if (item.leftOut)
        return;
    item.title = headlines.front().title;
    item.hasTitle = true;
}

}  // namespace

bool isSettled(const OutputItems& items) {
    return std::all_of(items.begin(), items.end(), [](const OutputItem& item) { return item.isSettled(); });
}

std::vector<HeadlineKey> keysOf(const OutputItems& items) {
    std::vector<HeadlineKey> keys;
    for (const OutputItem& item : items)
        keys.push_back(keyOf(item.entry));
    return keys;
}

OutputItems completeItems(const OutputItems& items) {
    OutputItems complete;
    std::copy_if(items.begin(), items.end(), std::back_inserter(complete),
                 [](const OutputItem& item) { return item.isComplete(); });
    return complete;
}

OutputItems gatherNews(BKQuoteInterface& backEnd, const std::vector<CHeadlineTable>& entries,
                       const std::vector<unsigned char>& services, StoryForm form) {
    OutputItems items(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        items[i].entry = entries[i];
        CStory story;
        if (backEnd.BKQNEWS_bGetStory(story, entries[i]))
            putStory(items[i], story, form);
    }
    const ItemsByNumber index = byNumber(items);
    for (const unsigned char service : services) {
        std::vector<CHeadline> headlines;
        backEnd.BKQNEWS_iGetHeadline(service, headlines, entries);
        for (const CHeadline& headline : headlines)
            takeTitle(index, headline);
    }
    return items;
}

void requestMissing(BKQuoteInterface& backEnd, OutputItems& items) {
    std::map<unsigned char, std::vector<CHeadlineTable>> untitled;
    for (const OutputItem& item : items) {
        if (!item.hasTitle)
            untitled[item.entry.service].push_back(item.entry);
    }
    for (const auto& [service, entries] : untitled) {
        std::vector<CHeadline> headlines;
        backEnd.BKQNEWS_bReCoverHeadline(service, headlines, entries);
        const ItemsByNumber index = byNumber(items);
        for (const CHeadline& headline : headlines)
            takeTitle(index, headline);
    }
    for (const OutputItem& item : items) {
        if (!item.isSettled() && !item.hasStory)
            backEnd.BKQNews_bReRequestHeadlineStory(item.entry);
    }
}

void takeTitles(BKQuoteInterface& backEnd, OutputItems& items, const std::vector<CHeadlineTable>& entries,
                const std::vector<unsigned char>& services) {
    ItemsByNumber untitled;
    for (OutputItem& item : items) {
        if (!item.hasTitle)
            untitled.emplace(numberOf(item.entry.service, item.entry.sequence), &item);
    }
    if (untitled.empty())
        return;
    for (const unsigned char service : services) {
        std::vector<CHeadline> headlines;
        backEnd.BKQNEWS_iGetHeadline(service, headlines, entries);
        for (const CHeadline& headline : headlines)
            takeTitle(untitled, headline);
    }
    for (const auto& [number, item] : untitled) {
        const bool announced = std::any_of(
            entries.begin(), entries.end(),
            [&awaited = item->entry](const CHeadlineTable& entry) { return isSameNews(entry, awaited); });
        if (announced && !item->hasTitle)
            takeAnnounced(backEnd, *item);
        takeLateStory(backEnd, *item);
    }
}

void takeStory(BKQuoteInterface& backEnd, OutputItems& items, const CHeadlineTable& entry) {
    for (OutputItem& item : items) {
        if (isSameNews(item.entry, entry))
            takeLateStory(backEnd, item);
    }
}

}  // namespace wirepane
