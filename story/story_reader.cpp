// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/story_reader.h"

#include "headline_list/cell_texts.h"
#include "headline_list/entry_source.h"
#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "story/story_text.h"

#include <algorithm>
#include <limits>

namespace wirepane {

void StoryReader::pointAt(std::optional<ListIndex> list, int newPosition, const CSearch& newCondition) {
    pointedList = list;
    condition = newCondition;
    SetHeadLinePos(newPosition);
}

void StoryReader::SetHeadLinePos(int newPosition) {
    position = std::max(0, newPosition);
    pointedAt = entryAtPosition();
}

void StoryReader::moveHeadLinePos(int newPosition) {
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

StoryTexts StoryReader::showData() {
    if (source == nullptr || !pointedList || source->entryCount(*pointedList) < 1)
        return {};
    pointedAt = entryAtPosition();
    shown = pointedAt;
    const QString placeholder = langText(backEnd, keys::recover);
    if (!pointedAt)
        return {placeholder, placeholder};
    const QString title = titleOf(*pointedAt).value_or(placeholder);
    CStory story;
    if (!backEnd.BKQNEWS_bGetStory(story, *pointedAt))
        return {title, placeholder};
    return {title, textOf(story, pointedAt->service, BodyEnd::Shown)};
}

StoryTexts StoryReader::RespHeadLine(const std::vector<CHeadlineTable>& entries) const {
    const auto entry = awaitedHeadline();
    if (!entry || !titleIsShown())
        return {};
    const bool answered = std::any_of(entries.begin(), entries.end(), [&](const CHeadlineTable& candidate) {
        return isSameNews(candidate, *entry);
    });
    return {answered ? titleOf(*entry) : std::nullopt, {}};
}

StoryTexts StoryReader::RespStory(const CHeadlineTable& answered) {
    const auto entry = awaitedHeadline();
    CStory story;
    if (!entry || !isSameNews(answered, *entry) || !backEnd.BKQNEWS_bGetStory(story, answered))
        return {};
    StoryTexts texts;
    texts.story = story.text.isEmpty() ? datedText(story.time, langText(backEnd, keys::noStory))
                                       : textOf(story, entry->service, BodyEnd::Answered);
    if (!titleIsShown())
        texts.title = titleOf(*entry).value_or(langText(backEnd, keys::recover));
    shown = entry;
    return texts;
}

std::optional<TextRange> StoryReader::mark(const QString& shownText) const {
    return condition.keywordSearch ? lastKeywordMatch(shownText, condition.keywords) : std::nullopt;
}

std::optional<CHeadlineTable> StoryReader::entryAtPosition() const {
    return source != nullptr && pointedList ? source->entryOf(*pointedList, position) : std::nullopt;
}

std::optional<CHeadlineTable> StoryReader::awaitedHeadline() const {
    if (follows == Follows::Headline)
        return pointedAt;
    const auto entry = entryAtPosition();
    return entry && pointedAt && isSameNews(*pointedAt, *entry) ? entry : std::nullopt;
}

bool StoryReader::titleIsShown() const {
    return shown && pointedAt && isSameNews(*shown, *pointedAt);
}

// The title as it is to be shown; none while the headline is not at hand with any active service. A dated
// title never equals the placeholder, so it is converted without a look at that.
std::optional<QString> StoryReader::titleOf(const CHeadlineTable& entry) const {
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
    return shownText(backEnd, first.service, datedText(first.time, first.title));
}

QString StoryReader::textOf(const CStory& story, unsigned char service, BodyEnd end) const {
    QString body = shownText(backEnd, service, story.text);
    vConvertStoryContent(body);
    return storyText(story.time, body, end, langText(backEnd, keys::storyRemark));
}

}  // namespace wirepane
