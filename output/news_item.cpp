// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/news_item.h"

#include "output/printable_story.h"
#include "story/story_text.h"

#include <algorithm>
#include <map>
#include <unordered_map>

namespace {

using ItemsByNumber = std::unordered_multimap<std::uint64_t, NewsItem*>;

std::uint64_t numberOf(unsigned char service, std::int32_t sequence) {
    return static_cast<std::uint64_t>(service) << 32 | static_cast<std::uint32_t>(sequence);
}

ItemsByNumber byNumber(NewsItems& items) {
    ItemsByNumber result;
    for (NewsItem& item : items)
        result.emplace(numberOf(item.entry.service, item.entry.sequence), &item);
    return result;
}

// Items of the same news take the title. A headline has no opaque values: it is of whatever entry has its
// service, number and day.
void takeTitle(const ItemsByNumber& items, const CHeadline& headline) {
    const auto [first, last] = items.equal_range(numberOf(headline.service, headline.sequence));
    for (auto item = first; item != last; ++item) {
        NewsItem& found = *item->second;
        const CHeadlineTable entry{headline.time, headline.sequence, headline.service, found.entry.second,
                                   found.entry.last};
        if (!IsSameNews(found.entry, entry))
            continue;
        found.title = headline.title;
        found.hasTitle = true;
    }
}

void takeLateStory(BKQuoteInterface& backEnd, NewsItem& item) {
    CStory story;
    if (!item.hasTitle || item.hasStory || !backEnd.BKQNEWS_bGetStory(story, item.entry) ||
        !IsSameNews(story.entry, item.entry))
        return;
    item.story = LateStory(story);
    item.hasStory = true;
}

}  // namespace

bool bIsComplete(const NewsItems& items) {
    return std::all_of(items.begin(), items.end(), [](const NewsItem& item) { return item.bIsComplete(); });
}

NewsItems GatherNews(BKQuoteInterface& backEnd, const std::vector<CHeadlineTable>& entries,
                     const std::vector<unsigned char>& services, StoryForm form) {
    NewsItems items(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        items[i].entry = entries[i];
        CStory story;
        if (!backEnd.BKQNEWS_bGetStory(story, entries[i]))
            continue;
        items[i].story = form(story);
        items[i].hasStory = true;
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

void RequestMissing(BKQuoteInterface& backEnd, NewsItems& items) {
    std::map<unsigned char, std::vector<CHeadlineTable>> untitled;
    for (const NewsItem& item : items) {
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
    for (const NewsItem& item : items) {
        if (!item.hasStory)
            backEnd.BKQNews_bReRequestHeadlineStory(item.entry);
    }
}

void TakeTitles(BKQuoteInterface& backEnd, NewsItems& items, const std::vector<CHeadlineTable>& entries,
                const std::vector<unsigned char>& services) {
    ItemsByNumber untitled;
    for (NewsItem& item : items) {
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
    for (const auto& [number, item] : untitled)
        takeLateStory(backEnd, *item);
}

void TakeStory(BKQuoteInterface& backEnd, NewsItems& items, const CHeadlineTable& entry) {
    for (NewsItem& item : items) {
        if (IsSameNews(item.entry, entry))
            takeLateStory(backEnd, item);
    }
}
