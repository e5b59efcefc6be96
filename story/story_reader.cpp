// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/story_reader.h"

#include "headline_list/cell_texts.h"
#include "headline_list/entry_source.h"
#include "headline_list/language_keys.h"
#include "story/story_text.h"

#include <algorithm>
#include <limits>

void StoryReader::vSetStoryData(int newTable, int newPosition, const CSearch& newCondition) {
    table = newTable;
    condition = newCondition;
    SetHeadLinePos(newPosition);
}

void StoryReader::SetHeadLinePos(int newPosition) {
    position = std::max(0, newPosition);
    pointedAt = EntryAtPosition();
}

void StoryReader::MoveHeadLinePos(int newPosition) {
    if (pointedAt)
        SetHeadLinePos(newPosition);
    else
        position = std::max(0, newPosition);
}

void StoryReader::RecvNewHeadLine() {
    if (position < std::numeric_limits<int>::max())
        ++position;
}

void StoryReader::OnClearStory() {
    pointedAt.reset();
    shown.reset();
}

StoryTexts StoryReader::ShowData() {
    if (source == nullptr || source->iGetHeadlineTableSize(table) < 1)
        return {};
    pointedAt = EntryAtPosition();
    shown = pointedAt;
    const QString placeholder = LangText(backEnd, keys::recover);
    if (!pointedAt)
        return {placeholder, placeholder, true};
    const QString title = TitleOf(*pointedAt).value_or(placeholder);
    CStory story;
    if (!backEnd.BKQNEWS_bGetStory(story, *pointedAt))
        return {title, placeholder, true};
    return {title, TextOf(story, pointedAt->service, BodyEnd::Shown), false};
}

StoryTexts StoryReader::RespHeadLine(const std::vector<CHeadlineTable>& entries) const {
    const auto entry = Awaited();
    if (!entry || !bTitleIsShown())
        return {};
    const bool answered = std::any_of(entries.begin(), entries.end(), [&](const CHeadlineTable& candidate) {
        return IsSameNews(candidate, *entry);
    });
    return {answered ? TitleOf(*entry) : std::nullopt, {}, false};
}

StoryTexts StoryReader::RespStory(const CHeadlineTable& answered) {
    const auto entry = Awaited();
    CStory story;
    if (!entry || !IsSameNews(answered, *entry) || !backEnd.BKQNEWS_bGetStory(story, answered))
        return {};
    StoryTexts texts;
    texts.story = story.text.isEmpty() ? DatedText(story.time, LangText(backEnd, keys::noStory))
                                       : TextOf(story, entry->service, BodyEnd::Answered);
    if (!bTitleIsShown())
        texts.title = TitleOf(*entry).value_or(LangText(backEnd, keys::recover));
    shown = entry;
    return texts;
}

std::optional<TextRange> StoryReader::Mark(const QString& shownText) const {
    return condition.keywordSearch ? LastMatch(shownText, condition.keywords) : std::nullopt;
}

std::optional<CHeadlineTable> StoryReader::EntryAtPosition() const {
    CHeadlineTable entry;
    if (source == nullptr || !source->bGetHeadlineTable(entry, table, position))
        return {};
    return entry;
}

std::optional<CHeadlineTable> StoryReader::Awaited() const {
    if (follows == Follows::Headline)
        return pointedAt;
    const auto entry = EntryAtPosition();
    return entry && pointedAt && IsSameNews(*pointedAt, *entry) ? entry : std::nullopt;
}

bool StoryReader::bTitleIsShown() const {
    return shown && pointedAt && IsSameNews(*shown, *pointedAt);
}

// The title as it is to be shown; none while the headline is not at hand with any active service. A dated
// title never equals the placeholder, so it is converted without a look at that.
std::optional<QString> StoryReader::TitleOf(const CHeadlineTable& entry) const {
    std::vector<unsigned char> services;
    source->vGetNewsActiveService(services);
    std::vector<CHeadline> headlines;
    for (const unsigned char service : services) {
        if (backEnd.BKQNEWS_iGetHeadline(service, headlines, {entry}) > 0)
            break;
    }
    if (headlines.empty())
        return {};
    const CHeadline& first = headlines.front();
    return ShownText(backEnd, first.service, DatedText(first.time, first.title));
}

QString StoryReader::TextOf(const CStory& story, unsigned char service, BodyEnd end) const {
    QString body = ShownText(backEnd, service, story.text);
    vConvertStoryContent(body);
    return StoryText(story.time, body, end, LangText(backEnd, keys::storyRemark));
}
