// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_line.h"

#include "backend/feed/feed_errors.h"
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
constexpr std::int64_t mostNumber = std::numeric_limits<std::int32_t>::max();

StoreItem stored(NewsItem item) {
    return item;
}

Result<StoreItem> ninjs(QByteArrayView record, unsigned char service) {
    const Result<NewsItem> item = ninjsItem(record, service);
    return item ? Result<StoreItem>(stored(item.value())) : Result<StoreItem>(item.error());
}

CSymbolInfo symbolFrom(const QJsonValue& entry, bool& isSymbol) {
    JsonFields fields(entry.toObject());
    const auto market = static_cast<unsigned char>(fields.number(u"market"_s, 0, lastId));
    CSymbolInfo symbol{market, fields.text(u"code"_s)};
    isSymbol = isSymbol && !fields.fault();
    return symbol;
}

Result<StoreItem> itemFrom(const QJsonObject& object) {
    JsonFields fields(object);
    NewsItem item;
    item.service = static_cast<unsigned char>(fields.number(u"service"_s, 1, lastId));
    item.identity = fields.text(u"identity"_s);
    item.time = fields.number(u"time"_s, firstNewsTime, lastNewsTime);
    item.withdrawn = fields.optionalText(u"withdrawn"_s);
    item.title =
        item.withdrawn ? fields.optionalText(u"title"_s).value_or(QString()) : fields.text(u"title"_s);
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

Result<StoreItem> symbolEntryFrom(const QJsonObject& object) {
    JsonFields fields(object);
    SymbolItem symbol;
    symbol.market = static_cast<unsigned char>(fields.number(u"market"_s, 1, lastId));
    symbol.code = fields.text(u"code"_s);
    symbol.name = fields.text(u"name"_s);
    symbol.englishName = fields.optionalText(u"english"_s).value_or(QString());
    symbol.category =
        static_cast<int>(fields.optionalNumber(u"category"_s, 0, mostNumber).value_or(symbol.category));
    if (const auto& fault = fields.fault())
        return makeError<import_errors::symbolField>(fault->field, jsonFault(*fault));
    return StoreItem(std::move(symbol));
}

Result<StoreItem> categoryEntryFrom(const QJsonObject& object) {
    JsonFields fields(object);
    CategoryItem category;
    category.service = static_cast<unsigned char>(fields.number(u"service"_s, 1, lastId));
    category.id = static_cast<std::int32_t>(fields.number(u"id"_s, 1, mostNumber));
    category.name = fields.text(u"name"_s);
    category.colour = fields.optionalText(u"colour"_s).value_or(QString());
    if (const auto& fault = fields.fault())
        return makeError<import_errors::categoryField>(fault->field, jsonFault(*fault));
    return StoreItem(std::move(category));
}

struct RecordKind {
    QLatin1StringView name;
    Result<StoreItem> (*read)(const QJsonObject&);
};
constexpr RecordKind recordKinds[] = {
    {"item"_L1, &itemFrom},
    {"quote"_L1, &quoteFrom},
    {"symbol"_L1, &symbolEntryFrom},
    {"category"_L1, &categoryEntryFrom},
};

FeedLine opened(const QJsonObject& content, unsigned char service) {
    const QString position = content.value("position"_L1).toString();
    for (const RecordKind& kind : recordKinds)
        if (content.value(kind.name).isObject())
            return FeedRecord{kind.read(content.value(kind.name).toObject()), position};
    if (content.value("ninjs"_L1).isObject()) {
        const QByteArray record =
            QJsonDocument(content.value("ninjs"_L1).toObject()).toJson(QJsonDocument::Compact);
        return FeedRecord{ninjs(record, service), position};
    }
    const QJsonValue id = content.value("service"_L1);
    const auto number = id.isUndefined() ? 1 : id.toInteger(0);
    if (!content.value("source"_L1).isString() || number < 1 || number > lastId)
        return FeedRecord{makeError<feed_errors::unknownLine>(), {}};
    return FeedHandshake{content.value("source"_L1).toString(), static_cast<unsigned char>(number),
                         content.value("numbered"_L1).toBool()};
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

}  // namespace

FeedLine parsedFeedLine(QByteArrayView line, unsigned char service) {
    const QByteArrayView trimmed = line.trimmed();
    if (const auto content = contentOf(trimmed))
        return opened(*content, service);
    return FeedRecord{ninjs(trimmed, service), {}};
}

}  // namespace wirepane
