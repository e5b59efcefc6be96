// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/story_history.h"

#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"
#include "headline_list/row_tip.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/news_origins.h"
#include "host/contract/news_record.h"
#include "story/story_text.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qsizetype mostComparedUnasked = 200'000;  // characters of both stories
constexpr std::size_t mostNumbersTold = 3;

QString linesOf(BKQuoteInterface& backEnd, unsigned char service, const QString& wireForm) {
    QString lines = shownText(backEnd, service, wireForm);
    vConvertStoryContent(lines);
    return lines.replace("\r\n"_L1, "\n"_L1);
}

CHeadlineTable entryOf(const CHeadline& headline) {
    return {headline.time, headline.sequence, headline.service};
}

// There is one at least.
const NewsVersion& comparedVersion(const std::vector<NewsVersion>& versions) {
    const auto read = std::find_if(versions.rbegin(), versions.rend(),
                                   [](const NewsVersion& version) { return version.opened != 0; });
    return read != versions.rend() ? *read : versions.back();
}

// Puts what went before what came, one behind the other.
void append(ComparedStory& whole, const QString& before, const QString& after) {
    for (const TextPart& part : changesBetween(before, after).parts) {
        const bool isRemoved = part.kind == TextPart::Kind::Removed;
        if (part.kind != TextPart::Kind::Same)
            whole.marks.push_back({int(whole.text.size()), int(part.length), isRemoved});
        whole.text += QStringView(isRemoved ? before : after).sliced(part.from, part.length);
    }
}

}  // namespace

StoryHistory::StoryHistory(BKQuoteInterface& newsSource)
    : backEnd(newsSource),
      record(dynamic_cast<NewsRecord*>(&newsSource)),
      origins(dynamic_cast<NewsOrigins*>(&newsSource)) {}

QString StoryHistory::remark(const CHeadline& headline) const {
    const NewsState state = record != nullptr ? record->newsState(keyOf(headline)) : NewsState();
    QStringList sentences;
    if (state.corrections > 0) {
        const QString numbers = changedNumbers(headline);
        sentences += numbers.isEmpty() ? langText(backEnd, keys::correctedMark)
                                       : langText(backEnd, keys::correctedNumbers).arg(numbers);
        sentences += timeSinceReading(keyOf(headline));
    }
    if (state.withdrawal)
        sentences += withdrawalText(backEnd, *state.withdrawal);
    const QStringList sources = origins != nullptr ? origins->originsOf(keyOf(headline)) : QStringList();
    if (sources.size() > 1)
        sentences += langText(backEnd, keys::severalSources)
                         .arg(sources.join(langText(backEnd, keys::betweenSources)));
    sentences.removeAll(QString());
    return sentences.join(u" \u00B7 "_s);
}

bool StoryHistory::hasEarlier(const HeadlineKey& key) const {
    return record != nullptr && record->newsState(key).corrections > 0;
}

std::optional<StoryHistory::Texts> StoryHistory::earlier(const CHeadline& headline) const {
    if (!hasEarlier(keyOf(headline)))
        return std::nullopt;
    const std::vector<NewsVersion> versions = record->versionsOf(keyOf(headline));
    if (versions.empty())
        return std::nullopt;
    const NewsVersion& before = comparedVersion(versions);
    return Texts{shownText(backEnd, headline.service, before.title),
                 linesOf(backEnd, headline.service, before.story.value_or(QString()))};
}

QString StoryHistory::timeSinceReading(const HeadlineKey& key) const {
    const std::vector<NewsVersion> versions = record->versionsOf(key);
    if (versions.empty())
        return {};
    const NewsVersion& before = comparedVersion(versions);
    if (before.opened == 0)
        return {};
    const std::int64_t seconds = std::max<std::int64_t>(before.replaced - before.opened, 0);
    return langText(backEnd, keys::correctedAfterReading).arg(QLocale(QLocale::English).toString(seconds));
}

std::optional<ComparedStory> StoryHistory::compared(const CHeadline& headline, const QString& story) const {
    const std::optional<Texts> before = earlier(headline);
    if (!before)
        return std::nullopt;
    ComparedStory whole;
    const QString title = shownText(backEnd, headline.service, headline.title);
    if (title != before->title) {
        append(whole, before->title, title);
        whole.text += u"\n\n"_s;
    }
    append(whole, before->story, QString(story).replace("\r\n"_L1, "\n"_L1));
    return whole;
}

QString StoryHistory::changedNumbers(const CHeadline& headline) const {
    const std::optional<Texts> before = earlier(headline);
    CStory story;
    if (!before || !backEnd.BKQNEWS_bGetStory(story, entryOf(headline)) ||
        before->story.size() + story.text.size() > mostComparedUnasked)
        return {};
    std::vector<NumberChange> numbers =
        changesBetween(before->title, shownText(backEnd, headline.service, headline.title)).numbers;
    for (NumberChange& change :
         changesBetween(before->story, linesOf(backEnd, headline.service, story.text)).numbers) {
        if (std::find(numbers.begin(), numbers.end(), change) == numbers.end())
            numbers.push_back(std::move(change));
    }
    QStringList told;
    for (std::size_t i = 0; i < std::min(numbers.size(), mostNumbersTold); ++i)
        told += numbers[i].before + u" \u2192 "_s + numbers[i].after;
    if (numbers.size() > mostNumbersTold)
        told += u"\u2026"_s;
    return told.join(u", "_s);
}

}  // namespace wirepane
