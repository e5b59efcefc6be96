// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/written_lines.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QByteArray lineOf(const QJsonObject& content) {
    return QJsonDocument(QJsonObject{{u"wirepane"_s, content}}).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray recordLine(const QString& kind, const QJsonObject& record, const QString& position) {
    QJsonObject content{{kind, record}};
    if (!position.isEmpty())
        content[u"position"_s] = position;
    return lineOf(content);
}

QByteArray lineOf(const NewsItem& item, const QString& position) {
    QJsonObject object{{u"service"_s, item.service}, {u"identity"_s, item.identity},
                       {u"version"_s, item.version}, {u"time"_s, qint64(item.time)},
                       {u"title"_s, item.title},     {u"category"_s, item.category}};
    if (!item.story)
        object[u"storyFollows"_s] = true;
    else if (!item.story->isEmpty())
        object[u"story"_s] = *item.story;
    if (item.withdrawn)
        object[u"withdrawn"_s] = *item.withdrawn;
    if (item.sequence)
        object[u"sequence"_s] = *item.sequence;
    QJsonArray related;
    for (const CSymbolInfo& symbol : item.related)
        related.append(QJsonObject{{u"market"_s, symbol.market}, {u"code"_s, symbol.code}});
    object[u"related"_s] = related;
    return recordLine(u"item"_s, object, position);
}

QByteArray lineOf(const SymbolItem& symbol, const QString& position) {
    QJsonObject object{{u"market"_s, symbol.market},
                       {u"code"_s, symbol.code},
                       {u"name"_s, symbol.name},
                       {u"category"_s, symbol.category}};
    if (!symbol.englishName.isEmpty())
        object[u"english"_s] = symbol.englishName;
    return recordLine(u"symbol"_s, object, position);
}

QByteArray lineOf(const CategoryItem& category, const QString& position) {
    return recordLine(u"category"_s,
                      {{u"service"_s, category.service},
                       {u"id"_s, category.id},
                       {u"name"_s, category.name},
                       {u"colour"_s, category.colour}},
                      position);
}

QByteArray lineOf(const QuoteItem& quote, const QString& position) {
    return recordLine(u"quote"_s,
                      {{u"market"_s, quote.market},
                       {u"code"_s, quote.code},
                       {u"last"_s, quote.last},
                       {u"change"_s, quote.change},
                       {u"volume"_s, qint64(quote.volume)}},
                      position);
}

}  // namespace

QByteArray handshakeLine(const FeedHandshake& handshake) {
    QJsonObject content{{u"source"_s, handshake.source}, {u"service"_s, handshake.service}};
    if (handshake.isNumbered)
        content[u"numbered"_s] = true;
    return lineOf(content);
}

QByteArray itemLine(const NewsItem& item, const QString& position) {
    return lineOf(item, position);
}

QByteArray feedLine(const StoreItem& item, const QString& position) {
    return std::visit([&position](const auto& content) { return lineOf(content, position); }, item);
}

}  // namespace wirepane
