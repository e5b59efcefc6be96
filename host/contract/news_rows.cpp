// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/news_rows.h"

#include <QDateTime>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimeZone>

#include <array>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr auto headings =
    "time,service,service name,sequence,topic,symbols,title,story,pubstatus,"
    "price then,price,farthest price,price moment\r\n";

// By market, as news is taken in.
struct Exchange {
    unsigned char market;
    QLatin1StringView name;
};
constexpr std::array exchanges{Exchange{1, QLatin1StringView("XNYS")},
                               Exchange{16, QLatin1StringView("XTAI")},
                               Exchange{122, QLatin1StringView("ROCO")}};

QString statusOf(const NewsRow& row) {
    return row.withdrawn ? u"canceled"_s : u"usable"_s;
}

QString momentText(std::int64_t moment) {
    return QDateTime::fromSecsSinceEpoch(moment, QTimeZone::utc()).toString(Qt::ISODate);
}

QString momentOf(const CHeadline& headline) {
    return momentText(headline.time);
}

// In the order of the headings.
QStringList pricesOf(const NewsRow& row) {
    if (!row.prices)
        return {{}, {}, {}, {}};
    const PriceSince& since = row.prices->since;
    const auto number = [](double price) { return QString::number(price, 'g', 15); };
    return {number(since.then), number(since.now), number(since.farthest), momentText(row.prices->moment)};
}

QJsonObject priceObject(const FrozenPrices& prices) {
    return {{u"then"_s, prices.since.then},
            {u"now"_s, prices.since.now},
            {u"farthest"_s, prices.since.farthest},
            {u"moment"_s, momentText(prices.moment)}};
}

QStringList codesOf(const NewsRow& row) {
    QStringList codes;
    for (const CSymbolInfo& symbol : row.symbols)
        codes += u"%1:%2"_s.arg(symbol.market).arg(symbol.code);
    return codes;
}

// Of a story in wire form.
QString paragraphsOf(QString story, const QString& between) {
    story.removeIf([](QChar c) { return c == u'\r' || c == u'\n'; });
    return story.split(u"@@@@"_s).join(between);
}

QString quoted(QString field) {
    if (!field.contains(u',') && !field.contains(u'"') && !field.contains(u'\n') && !field.contains(u'\r'))
        return field;
    return u'"' + field.replace(u'"', u"\"\""_s) + u'"';
}

QByteArray csvLine(const NewsRow& row) {
    const QStringList fields{momentOf(row.headline),
                             QString::number(row.headline.service),
                             row.service,
                             QString::number(row.headline.sequence),
                             row.topic,
                             codesOf(row).join(u' '),
                             row.headline.title,
                             paragraphsOf(row.story.value_or(QString()), u"\n"_s),
                             statusOf(row)};
    return csvLineOf(fields + pricesOf(row));
}

// Where ninjs has it.
void insertReason(QJsonObject& object, const NewsRow& row) {
    if (row.withdrawn && !row.withdrawn->isEmpty())
        object.insert(u"ednote"_s, *row.withdrawn);
}

QByteArray compact(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QByteArray jsonObject(const NewsRow& row) {
    QJsonObject object{{u"time"_s, momentOf(row.headline)},
                       {u"service"_s, row.headline.service},
                       {u"serviceName"_s, row.service},
                       {u"sequence"_s, row.headline.sequence},
                       {u"topic"_s, row.topic},
                       {u"symbols"_s, QJsonArray::fromStringList(codesOf(row))},
                       {u"title"_s, row.headline.title},
                       {u"pubstatus"_s, statusOf(row)}};
    insertReason(object, row);
    if (row.prices)
        object.insert(u"prices"_s, priceObject(*row.prices));
    if (row.story)
        object.insert(u"story"_s, paragraphsOf(*row.story, u"\n"_s));
    return compact(object);
}

QJsonObject organisationOf(const CSymbolInfo& symbol) {
    QJsonObject ticker{{u"ticker"_s, symbol.code}};
    for (const Exchange& exchange : exchanges) {
        if (exchange.market == symbol.market)
            ticker.insert(u"exchange"_s, QString(exchange.name));
    }
    return {{u"name"_s, symbol.code}, {u"symbols"_s, QJsonArray{ticker}}};
}

QByteArray ninjsLine(const NewsRow& row) {
    QJsonObject item{
        {u"uri"_s,
         u"wirepane:%1:%2:%3"_s.arg(row.headline.service).arg(row.headline.time).arg(row.headline.sequence)},
        {u"type"_s, u"text"_s},
        {u"pubstatus"_s, statusOf(row)},
        {u"versioncreated"_s, momentOf(row.headline)},
        {u"headline"_s, row.headline.title}};
    insertReason(item, row);
    if (!row.topic.isEmpty())
        item.insert(u"subject"_s, QJsonArray{QJsonObject{{u"name"_s, row.topic}}});
    QJsonArray organisations;
    for (const CSymbolInfo& symbol : row.symbols)
        organisations.append(organisationOf(symbol));
    if (!organisations.isEmpty())
        item.insert(u"organisations"_s, organisations);
    if (!row.story)
        item.insert(u"storyFollows"_s, true);
    else if (!row.story->isEmpty())
        item.insert(u"body_text"_s, paragraphsOf(*row.story, u"\n\n"_s));
    return compact(item) + '\n';
}

}  // namespace

QByteArray csvLineOf(const QStringList& fields) {
    QStringList line;
    for (const QString& field : fields)
        line += quoted(field);
    return line.join(u',').toUtf8() + "\r\n";
}

const QStringList& newsRowForms() {
    static const QStringList names{u"csv"_s, u"json"_s, u"ninjs"_s};
    return names;
}

std::optional<NewsRowForm> newsRowFormOf(const QString& name) {
    const qsizetype place = newsRowForms().indexOf(name);
    return place < 0 ? std::nullopt : std::optional(static_cast<NewsRowForm>(place));
}

std::optional<NewsRowForm> newsRowFormOfFile(const QString& file) {
    const QString ending = QFileInfo(file).suffix().toLower();
    return newsRowFormOf(ending == "ndjson"_L1 || ending == "jsonl"_L1 ? u"ninjs"_s
                         : ending == "ninjs"_L1                        ? QString()
                                                                       : ending);
}

QByteArray newsRow(NewsRowForm form, const NewsRow& row, bool isFirst) {
    switch (form) {
        case NewsRowForm::Csv:
            return (isFirst ? headings : "") + csvLine(row);
        case NewsRowForm::Json:
            return (isFirst ? "[" : ",\n") + jsonObject(row);
        case NewsRowForm::Ninjs:
            break;
    }
    return ninjsLine(row);
}

QByteArray newsRowsEnd(NewsRowForm form, bool isEmpty) {
    switch (form) {
        case NewsRowForm::Csv:
            return isEmpty ? headings : "";
        case NewsRowForm::Json:
            return isEmpty ? "[]\n" : "]\n";
        case NewsRowForm::Ninjs:
            break;
    }
    return {};
}

}  // namespace wirepane
