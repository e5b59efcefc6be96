// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/story_reader.h"

#include "headline_list/cell_texts.h"
#include "headline_list/entry_source.h"
#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/query/query_marks.h"
#include "host/contract/query/search_hits.h"
#include "host/contract/symbol_name.h"
#include "story/story_text.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace wirepane {

void StoryReader::pointAt(std::optional<ListIndex> list, int newPosition, const CSearch& newCondition) {
    pointedList = list;
    if (!(condition == newCondition))
        hitFinder.reset();
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
    showsChanges = showsChanges && shown && pointedAt && isSameNews(*shown, *pointedAt);
    shown = pointedAt;
    const QString placeholder = langText(backEnd, keys::recover);
    StoryTexts texts;
    if (pointedAt)
        texts = titleOf(*pointedAt);
    else if (tellsHeads)
        texts.head = StoryHead();
    if (!texts.title)
        texts.title = placeholder;
    texts.story = placeholder;
    state = StoryState::Awaited;
    CStory story;
    if (!pointedAt || !backEnd.BKQNEWS_bGetStory(story, *pointedAt))
        return texts;
    putStory(texts, *pointedAt, story, BodyEnd::Shown);
    state = StoryState::There;
    return texts;
}

StoryTexts StoryReader::RespHeadLine(const std::vector<CHeadlineTable>& entries) const {
    const auto entry = awaitedHeadline();
    if (!entry || !titleIsShown())
        return {};
    const bool answered = std::any_of(entries.begin(), entries.end(), [&](const CHeadlineTable& candidate) {
        return isSameNews(candidate, *entry);
    });
    return answered ? titleOf(*entry) : StoryTexts();
}

StoryTexts StoryReader::headAgain() const {
    if (!shown || !tellsHeads)
        return {};
    StoryTexts texts = titleOf(*shown);
    texts.title.reset();
    return texts;
}

StoryTexts StoryReader::RespStory(const CHeadlineTable& answered) {
    const auto entry = awaitedHeadline();
    CStory story;
    if (!entry || !isSameNews(answered, *entry) || !backEnd.BKQNEWS_bGetStory(story, answered))
        return {};
    StoryTexts texts;
    if (!titleIsShown()) {
        showsChanges = false;
        texts = titleOf(*entry);
        if (!texts.title)
            texts.title = langText(backEnd, keys::recover);
    } else if (tellsChanges) {
        texts.head = titleOf(*entry).head;
    }
    state = story.text.isEmpty() ? StoryState::Empty : StoryState::There;
    shown = entry;
    if (story.text.isEmpty())
        texts.story = datedText(story.time, langText(backEnd, keys::noStory));
    else
        putStory(texts, *entry, story, BodyEnd::Answered);
    return texts;
}

std::optional<TextRange> StoryReader::mark(const QString& shownText) const {
    return condition.keywordSearch ? lastKeywordMatch(shownText, textsToMark(condition)) : std::nullopt;
}

std::optional<std::vector<SearchHit>> StoryReader::hits(const QString& shownText, std::size_t most) {
    if (!hitsAreTold || !condition.keywordSearch)
        return std::nullopt;
    if (hitFinder == nullptr)
        hitFinder = preparedHits(backEnd, condition);
    if (hitFinder == nullptr)
        return std::nullopt;
    // The date above the story and the remark below it are not of it.
    const qsizetype end = shownText.lastIndexOf(QChar(QChar::ParagraphSeparator));
    if (state != StoryState::There || end <= dateLineCharacters)
        return std::vector<SearchHit>();
    std::vector<SearchHit> found = hitFinder->hitsIn(
        shownText.sliced(dateLineCharacters, end - dateLineCharacters), HitPlace::Story, most);
    for (SearchHit& hit : found)
        hit.start += dateLineCharacters;
    return found;
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

std::optional<CHeadline> StoryReader::headlineOf(const CHeadlineTable& entry) const {
    std::vector<unsigned char> services;
    source->vGetNewsActiveService(services);
    std::vector<CHeadline> headlines;
    for (const unsigned char service : services) {
        if (backEnd.BKQNEWS_iGetHeadline(service, headlines, {entry}) > 0)
            break;
    }
    return headlines.empty() ? std::nullopt : std::optional(headlines.front());
}

// The title as it is to be shown, and the head; none while the headline is not at hand. A dated title never
// equals the placeholder, so it is converted without a look at that.
StoryTexts StoryReader::titleOf(const CHeadlineTable& entry) const {
    StoryTexts texts;
    const std::optional<CHeadline> headline = headlineOf(entry);
    if (headline)
        texts.title = shownText(backEnd, headline->service, datedText(headline->time, headline->title));
    if (tellsHeads)
        texts.head = headline ? headOf(entry, *headline) : StoryHead();
    return texts;
}

StoryHead StoryReader::headOf(const CHeadlineTable& entry, const CHeadline& headline) const {
    StoryHead head;
    head.headline = shownText(backEnd, headline.service, headline.title).simplified();
    backEnd.BKQNEWS_bGetShortNameByService(head.source, headline.service);
    head.topic = shownText(backEnd, headline.service, source->topicOf(headline.service, headline.categoryId));
    head.time = datedText(headline.time, {}).trimmed();
    CNewsSymLst related;
    backEnd.BKNEWS_GetSymbolListBySeqNo(related, entry);
    for (const CSymbolInfo& symbol : related.symbols) {
        const CSymbolInfo known = inItsMarket(backEnd, symbol);
        const QString name = symbolName(backEnd, known).value_or(QString());
        head.symbols.push_back({known, shownText(backEnd, headline.service, name)});
    }
    if (!tellsChanges)
        return head;
    head.remark = shownText(backEnd, headline.service, history.remark(headline));
    if (history.hasEarlier(keyOf(headline)))
        head.changes = langText(backEnd, showsChanges ? keys::hideChanges : keys::showChanges);
    return head;
}

void StoryReader::putStory(StoryTexts& texts, const CHeadlineTable& entry, const CStory& story,
                           BodyEnd end) const {
    QString body = shownText(backEnd, entry.service, story.text);
    vConvertStoryContent(body);
    const std::optional<CHeadline> headline = showsChanges ? headlineOf(entry) : std::nullopt;
    if (std::optional<ComparedStory> compared = headline ? history.compared(*headline, body) : std::nullopt) {
        body = compared->text.replace("\n"_L1, "\r\n"_L1);
        texts.changes = std::move(compared->marks);
        for (ChangeMark& mark : texts.changes)
            mark.from += dateLineCharacters;
    }
    texts.story = storyText(story.time, body, end, langText(backEnd, keys::storyRemark));
}

StoryTexts StoryReader::turnChanges() {
    CStory story;
    if (!hasChanges() || source == nullptr || !backEnd.BKQNEWS_bGetStory(story, *shown) ||
        story.text.isEmpty())
        return {};
    showsChanges = !showsChanges;
    StoryTexts texts = headAgain();
    putStory(texts, *shown, story, BodyEnd::Shown);
    return texts;
}

}  // namespace wirepane
