// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/found_rows.h"

#include "terminal/console/console.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

std::optional<QByteArray> FoundRows::row(const HeadlineKey& key) {
    const std::optional<CHeadline> headline = reader.headline(key);
    if (!headline)
        return std::nullopt;
    if (std::holds_alternative<FoundLine>(form))
        return line(*headline);
    NewsRow row{*headline, serviceName(headline->service), {}, {}, reader.story(key)};
    if (const auto topic = reader.category(headline->service, headline->categoryId))
        row.topic = topic->name;
    row.symbols = reader.relatedSymbols(key).value_or(std::vector<CSymbolInfo>());
    return newsRow(std::get<NewsRowForm>(form), row, std::exchange(isFirst, false));
}

QByteArray FoundRows::end() const {
    const auto* rows = std::get_if<NewsRowForm>(&form);
    return rows != nullptr ? newsRowsEnd(*rows, isFirst) : QByteArray();
}

QString FoundRows::serviceName(unsigned char service) {
    const auto stored = reader.service(service);
    return stored ? stored->shortName : QString::number(service);
}

QByteArray FoundRows::line(const CHeadline& headline) {
    const QDateTime time = QDateTime::fromSecsSinceEpoch(headline.time);
    if (std::get<FoundLine>(form) == FoundLine::Text)
        return outputLine(u"%1  %2  %3"_s.arg(time.toString(u"yyyy-MM-dd HH:mm"_s),
                                              serviceName(headline.service), headline.title));
    const QJsonObject row{{u"service"_s, headline.service},
                          {u"time"_s, time.toUTC().toString(Qt::ISODate)},
                          {u"sequence"_s, headline.sequence},
                          {u"title"_s, headline.title}};
    return outputLine(QString::fromUtf8(QJsonDocument(row).toJson(QJsonDocument::Compact)));
}

}  // namespace wirepane
