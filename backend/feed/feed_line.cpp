// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_line.h"

#include "backend/import/import_errors.h"
#include "backend/import/json_fault.h"
#include "backend/import/ninjs_record.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr auto envelope = "wirepane"_L1;
constexpr int lastId = 255;

StoreItem stored(NewsItem item) {
    return item;
}

Result<StoreItem> ninjs(QByteArrayView record, unsigned char service) {
    const Result<NewsItem> item = ninjsItem(record, service);
    return item ? Result<StoreItem>(stored(item.value())) : Result<StoreItem>(item.error());
}

SymbolRef symbolFrom(const QJsonValue& entry, bool& isSymbol) {
    JsonFields fields(entry.toObject());
    const auto market = static_cast<unsigned char>(fields.number(u"market"_s, 0, lastId));
    SymbolRef symbol{market, fields.text(u"code"_s)};
    isSymbol = isSymbol && !fields.fault();
    return symbol;
}

Result<StoreItem> itemFrom(const QJsonObject& object) {
    constexpr std::int64_t mostNumber = std::numeric_limits<std::int32_t>::max();
    JsonFields fields(object);
    NewsItem item;
    item.service = static_cast<unsigned char>(fields.number(u"service"_s, 1, lastId));
    item.identity = fields.text(u"identity"_s);
    item.time = fields.number(u"time"_s, firstNewsTime, lastNewsTime);
    item.title = fields.text(u"title"_s);
    if (const auto version = fields.optionalNumber(u"version"_s, -mostNumber - 1, mostNumber))
        item.version = static_cast<int>(*version);
    if (const auto sequence = fields.optionalNumber(u"sequence"_s, -mostNumber - 1, mostNumber))
        item.sequence = static_cast<std::int32_t>(*sequence);
    const auto story = fields.optionalText(u"story"_s);
    const bool follows = fields.optionalFlag(u"storyFollows"_s).value_or(false);
    if (story || follows)
        item.story = story;
    item.category = fields.optionalText(u"category"_s).value_or(item.category);
    bool areSymbols = true;
    const QJsonArray related = fields.optionalList(u"related"_s).value_or(QJsonArray());
    for (const auto& entry : related)
        item.related.push_back(symbolFrom(entry, areSymbols));
    if (const auto& fault = fields.fault())
        return makeError<import_errors::itemField>(fault->field, jsonFault(*fault));
    if (!areSymbols)
        return makeError<import_errors::itemField>(u"related"_s, makeError<import_errors::holdsNoSymbol>());
    return stored(std::move(item));
}

Result<StoreItem> quoteFrom(const QJsonObject& object) {
    JsonFields fields(object);
    QuoteItem quote;
    quote.market = static_cast<unsigned char>(fields.number(u"market"_s, 1, lastId));
    quote.code = fields.text(u"code"_s);
    quote.last = fields.real(u"last"_s);
    quote.change = fields.real(u"change"_s);
    quote.volume = fields.number(u"volume"_s, 0, mostVolume);
    if (const auto& fault = fields.fault())
        return makeError<import_errors::quoteField>(fault->field, jsonFault(*fault));
    return StoreItem(std::move(quote));
}

FeedLine opened(const QJsonObject& content, unsigned char service) {
    const QString position = content.value("position"_L1).toString();
    if (content.value("item"_L1).isObject())
        return FeedRecord{itemFrom(content.value("item"_L1).toObject()), position};
    if (content.value("quote"_L1).isObject())
        return FeedRecord{quoteFrom(content.value("quote"_L1).toObject()), position};
    if (content.value("ninjs"_L1).isObject()) {
        const QByteArray record =
            QJsonDocument(content.value("ninjs"_L1).toObject()).toJson(QJsonDocument::Compact);
        return FeedRecord{ninjs(record, service), position};
    }
    const QJsonValue id = content.value("service"_L1);
    const auto number = id.isUndefined() ? 1 : id.toInteger(0);
    if (!content.value("source"_L1).isString() || number < 1 || number > lastId)
        return FeedRecord{Error{u"The line holds neither an item, a quote nor a greeting with a source."_s},
                          {}};
    return FeedHello{content.value("source"_L1).toString(), static_cast<unsigned char>(number)};
}

// The content of a line that is one of our own; nothing for any other.
std::optional<QJsonObject> contentOf(QByteArrayView line) {
    // A ninjs record is not parsed twice.
    if (!line.first(std::min<qsizetype>(line.size(), 32)).contains(QByteArrayView("\"wirepane\"")))
        return std::nullopt;
    const QJsonObject object = QJsonDocument::fromJson(line.toByteArray()).object();
    if (object.size() != 1 || !object.value(envelope).isObject())
        return std::nullopt;
    return object.value(envelope).toObject();
}

QByteArray lineOf(const QJsonObject& content) {
    return QJsonDocument(QJsonObject{{envelope, content}}).toJson(QJsonDocument::Compact) + '\n';
}

}  // namespace

FeedLine parsedFeedLine(QByteArrayView line, unsigned char service) {
    const QByteArrayView trimmed = line.trimmed();
    if (const auto content = contentOf(trimmed))
        return opened(*content, service);
    return FeedRecord{ninjs(trimmed, service), {}};
}

QByteArray helloLine(const FeedHello& hello) {
    return lineOf({{u"source"_s, hello.source}, {u"service"_s, hello.service}});
}

QByteArray itemLine(const NewsItem& item, const QString& position) {
    QJsonObject object{{u"service"_s, item.service}, {u"identity"_s, item.identity},
                       {u"version"_s, item.version}, {u"time"_s, qint64(item.time)},
                       {u"title"_s, item.title},     {u"category"_s, item.category}};
    if (!item.story)
        object[u"storyFollows"_s] = true;
    else if (!item.story->isEmpty())
        object[u"story"_s] = *item.story;
    if (item.sequence)
        object[u"sequence"_s] = *item.sequence;
    QJsonArray related;
    for (const SymbolRef& symbol : item.related)
        related.append(QJsonObject{{u"market"_s, symbol.market}, {u"code"_s, symbol.code}});
    object[u"related"_s] = related;
    return lineOf({{u"item"_s, object}, {u"position"_s, position}});
}

}  // namespace wirepane
