// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_line.h"

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

// The fields of an item, and the first of them that is wrong.
class ItemFields {
public:
    explicit ItemFields(const QJsonObject& object, QString kindOfObject = u"item"_s)
        : fields(object), kind(std::move(kindOfObject)) {}

    QString text(QLatin1StringView name) {
        const QJsonValue value = fields.value(name);
        if (!value.isString())
            fail(name, u"is not a text"_s);
        return value.toString();
    }
    std::int64_t number(QLatin1StringView name, std::int64_t least, std::int64_t most) {
        const QJsonValue value = fields.value(name);
        const std::int64_t number = value.toInteger(least - 1);
        if (value.isDouble() && number >= least && number <= most)
            return number;
        fail(name, u"is not a whole number from %1 to %2"_s.arg(least).arg(most));
        return least;
    }
    double price(QLatin1StringView name) {
        const QJsonValue value = fields.value(name);
        if (!value.isDouble())
            fail(name, u"is not a number"_s);
        return value.toDouble();
    }
    bool has(QLatin1StringView name) const {
        return !fields.value(name).isNull() && !fields.value(name).isUndefined();
    }
    // False where it is missing.
    bool flag(QLatin1StringView name) {
        if (has(name) && !fields.value(name).isBool())
            fail(name, u"is neither true nor false"_s);
        return fields.value(name).toBool();
    }
    QJsonArray list(QLatin1StringView name) {
        if (has(name) && !fields.value(name).isArray())
            fail(name, u"is not a list"_s);
        return fields.value(name).toArray();
    }
    void fail(const QString& name, const QString& what) {
        if (fault.isEmpty())
            fault = u"“%1” of the %2 %3."_s.arg(name, kind, what);
    }

    QString fault;

private:
    const QJsonObject& fields;
    QString kind;
};

Result<StoreItem> itemFrom(const QJsonObject& object) {
    constexpr std::int64_t mostNumber = std::numeric_limits<std::int32_t>::max();
    ItemFields fields(object);
    NewsItem item;
    item.service = static_cast<unsigned char>(fields.number("service"_L1, 1, lastId));
    item.identity = fields.text("identity"_L1);
    item.time = fields.number("time"_L1, firstNewsTime, lastNewsTime);
    item.title = fields.text("title"_L1);
    if (fields.has("version"_L1))
        item.version = static_cast<int>(fields.number("version"_L1, -mostNumber - 1, mostNumber));
    if (fields.has("sequence"_L1))
        item.sequence = static_cast<std::int32_t>(fields.number("sequence"_L1, -mostNumber - 1, mostNumber));
    if (fields.has("story"_L1))
        item.story = fields.text("story"_L1);
    else if (fields.flag("storyFollows"_L1))
        item.story.reset();
    if (fields.has("category"_L1))
        item.category = fields.text("category"_L1);
    const QJsonArray related = fields.list("related"_L1);
    for (const auto& entry : related) {
        const QJsonObject symbolObject = entry.toObject();
        ItemFields symbol(symbolObject);
        item.related.push_back(
            {static_cast<unsigned char>(symbol.number("market"_L1, 0, lastId)), symbol.text("code"_L1)});
        if (!symbol.fault.isEmpty())
            fields.fail(u"related"_s, u"has an entry that is no {market, code}"_s);
    }
    if (!fields.fault.isEmpty())
        return Error{fields.fault};
    return stored(std::move(item));
}

Result<StoreItem> quoteFrom(const QJsonObject& object) {
    ItemFields fields(object, u"quote"_s);
    QuoteItem quote;
    quote.market = static_cast<unsigned char>(fields.number("market"_L1, 1, lastId));
    quote.code = fields.text("code"_L1);
    quote.last = fields.price("last"_L1);
    quote.change = fields.price("change"_L1);
    quote.volume = fields.number("volume"_L1, 0, mostVolume);
    if (!fields.fault.isEmpty())
        return Error{fields.fault};
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
