// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "fuzz/support/news_promises.h"

#include "backend/feed/feed_line.h"
#include "backend/import/news_time.h"
#include "fuzz/support/fuzz_input.h"

#include <QBuffer>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace wirepane {

namespace {

constexpr QLatin1StringView paragraphMark("@@@@");
constexpr qsizetype longestTitle = 500;
constexpr qsizetype longestIdentity = 1000;
constexpr std::size_t mostSymbols = 100;

bool isOverride(char32_t c) {
    return (c >= 0x202a && c <= 0x202e) || (c >= 0x2066 && c <= 0x2069);
}

void promiseTitle(const QString& title) {
    promiseCleanText(title);
    promise(!title.isEmpty() && title.size() <= longestTitle, "a title has 1 to 500 characters");
    promise(title == title.simplified(), "the white space of a title is folded");
}

void promiseSameItem(const NewsItem& a, const NewsItem& b) {
    promise(a.service == b.service && a.identity == b.identity && a.version == b.version &&
                a.time == b.time && a.title == b.title && a.story == b.story && a.category == b.category &&
                a.related == b.related && a.sequence == b.sequence,
            "an item sent over a feed arrives as it was");
}

// An item that was read can be sent on as a line of a live feed.
void promiseFeedLine(const NewsItem& item) {
    const QByteArray line = itemLine(item, QStringLiteral("12"));
    promise(line.indexOf('\n') == line.size() - 1, "an item is one line of a feed");
    const FeedLine parsed = parsedFeedLine(line, 1);
    const auto* record = std::get_if<FeedRecord>(&parsed);
    promise(record != nullptr && record->item && record->position == QLatin1StringView("12"),
            "the line of an item can be read");
    promiseSameItem(std::get<NewsItem>(record->item.value()), item);
}

void promiseNews(const NewsItem& item) {
    promise(item.service != 0, "an item belongs to a service");
    promise(!item.identity.isEmpty() && item.identity.size() <= longestIdentity,
            "an identity has 1 to 1000 characters");
    promiseTitle(item.title);
    promise(item.version >= 0, "versions count from 0 on");
    promise(isNewsTime(item.time), "times lie in the years 1900 to 2199");
    if (item.story)
        promiseWireForm(*item.story);
    promise(item.related.size() <= mostSymbols, "an item has at most 100 symbols");
    for (auto symbol = item.related.begin(); symbol != item.related.end(); ++symbol) {
        promise(!symbol->code.isEmpty(), "a symbol has a code");
        promise(std::find(item.related.begin(), symbol, *symbol) == symbol, "no symbol is named twice");
    }
    promiseFeedLine(item);
}

void promiseSymbol(const SymbolItem& item) {
    promise(!item.code.isEmpty() && item.code.size() <= 2 * 32, "a symbol's code has 1 to 32 characters");
    promiseCleanText(item.code);
    promiseTitle(item.name);
    if (!item.englishName.isEmpty())
        promiseTitle(item.englishName);
    promise(item.category >= 0, "kinds of symbols count from 0 on");
}

void promiseCategory(const CategoryItem& item) {
    promise(item.service != 0 && item.id >= 0, "a category has a service and an id");
    promiseTitle(item.name);
    promise(item.colour.isEmpty() || item.colour.size() == 7, "a colour is #rrggbb");
}

void promiseQuote(const QuoteItem& item) {
    promise(item.market != 0 && !item.code.isEmpty() && item.code.size() <= 2 * 32,
            "a quote has a market, and a code of 1 to 32 characters");
    promiseCleanText(item.code);
    promise(std::isfinite(item.last) && std::isfinite(item.change), "prices are numbers");
    promise(item.volume >= 0 && item.volume <= mostVolume, "a volume is within its limits");
}

}  // namespace

void promiseCleanText(QStringView text) {
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar c = text[at];
        const bool pair = c.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        promise(pair || !c.isSurrogate(), "no surrogate is alone");
        promise(c.unicode() >= 0x20 && (c.unicode() < 0x7f || c.unicode() >= 0xa0), "no control characters");
        promise(!isOverride(c.unicode()), "no direction overrides");
        at += pair ? 1 : 0;
    }
}

void promiseWireForm(QStringView story) {
    promiseCleanText(story);
    const auto paragraphs = story.toString().split(paragraphMark);
    for (const QString& paragraph : paragraphs) {
        promise(story.isEmpty() || !paragraph.trimmed().isEmpty(), "no paragraph is empty");
        promise(&paragraph == &paragraphs.front() || !paragraph.startsWith(u'@'),
                "a mark is apart from text");
        promise(&paragraph == &paragraphs.back() || !paragraph.endsWith(u'@'), "a mark is apart from text");
    }
}

void promiseItem(const StoreItem& item) {
    if (const auto* news = std::get_if<NewsItem>(&item))
        promiseNews(*news);
    else if (const auto* symbol = std::get_if<SymbolItem>(&item))
        promiseSymbol(*symbol);
    else if (const auto* quote = std::get_if<QuoteItem>(&item))
        promiseQuote(*quote);
    else
        promiseCategory(std::get<CategoryItem>(item));
}

ReadingResult promiseReading(qint64 size, const std::function<void(const ItemVisitor&)>& read) {
    ReadingResult result;
    qint64 bytes = 0;
    read([&](SourceItem&& item) {
        promise(item.bytesRead >= bytes && item.bytesRead <= size, "bytes read grow, within the source");
        bytes = item.bytesRead;
        promise(!sentence(item.place).isEmpty(), "an item has a place");
        if (item.content) {
            promiseItem(item.content.value());
            result.items.push_back(item.content.value());
        } else {
            promise(!sentence(item.content.error()).isEmpty(), "a rejection has a reason");
            ++result.rejections;
        }
        return true;
    });
    const std::size_t all = result.items.size() + std::size_t(result.rejections);
    std::size_t seen = 0;
    const std::size_t enough = all / 2 + 1;
    read([&](SourceItem&&) { return ++seen < enough; });
    promise(seen == std::min(enough, all), "reading stops when it is told to");
    return result;
}

ReadingResult promiseFile(QByteArray source, qint64 size, const ReadOptions& options,
                          decltype(SourceFormat::read) read) {
    bool isRefused = false;
    const ReadingResult result = promiseReading(size, [&](const ItemVisitor& visit) {
        QBuffer buffer(&source);
        buffer.open(QIODevice::ReadOnly);
        const Done done = read(buffer, options, visit);
        isRefused = !done;
        promise(done || !sentence(done.error()).isEmpty(), "a refusal has a reason");
    });
    promise(!isRefused || (result.items.empty() && result.rejections == 0), "what is refused gives nothing");
    return result;
}

}  // namespace wirepane
