// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/found_rows.h"

#include "terminal/console/console.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace wirepane {

FoundRows::FoundRows(Database& database, FoundForm rowForm)
    : reader(database),
      form(rowForm),
      maker(database,
            std::holds_alternative<NewsRowForm>(form) ? std::get<NewsRowForm>(form) : NewsRowForm::Json) {}

std::optional<QByteArray> FoundRows::row(const HeadlineKey& key) {
    if (std::holds_alternative<NewsRowForm>(form))
        return maker.row(key);
    const std::optional<CHeadline> headline = reader.headline(key);
    return headline ? std::optional(line(*headline)) : std::nullopt;
}

QByteArray FoundRows::end() const {
    return std::holds_alternative<NewsRowForm>(form) ? maker.end() : QByteArray();
}

QByteArray FoundRows::line(const CHeadline& headline) {
    const QDateTime time = QDateTime::fromSecsSinceEpoch(headline.time);
    if (std::get<FoundLine>(form) == FoundLine::Text)
        return outputLine(u"%1  %2  %3"_s.arg(time.toString(u"yyyy-MM-dd HH:mm"_s),
                                              maker.serviceName(headline.service), headline.title));
    const QJsonObject row{{u"service"_s, headline.service},
                          {u"time"_s, time.toUTC().toString(Qt::ISODate)},
                          {u"sequence"_s, headline.sequence},
                          {u"title"_s, headline.title}};
    return outputLine(QString::fromUtf8(QJsonDocument(row).toJson(QJsonDocument::Compact)));
}

}  // namespace wirepane
