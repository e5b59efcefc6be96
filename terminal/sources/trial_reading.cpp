// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/trial_reading.h"

#include "backend/import/built_in_mappings.h"
#include "backend/import/json_shape.h"
#include "backend/network/answer_reading.h"
#include "backend/network/network_errors.h"
#include "terminal/sources/feed_title.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Newest first, the one that comes later in the answer behind.
void keep(std::vector<TrialItem>& first, const NewsItem& item) {
    const auto place = std::find_if(first.begin(), first.end(),
                                    [&](const TrialItem& other) { return other.time < item.time; });
    first.insert(place, {item.time, item.category, item.title});
    if (first.size() > TrialReport::mostItems)
        first.pop_back();
}

// The columns of a table: the header's, or the fields of the records.
QStringList columnsOf(const QByteArray& body) {
    const SourceHead head(body.left(recognisedFrom));
    const std::vector<QJsonObject> records = recordsInHead(head);
    return records.empty() ? head.csvHeader() : records.front().keys();
}

// The built-in mapping whose every column the table has; empty: none.
QString fittingMapping(const QByteArray& body) {
    const QStringList columns = columnsOf(body);
    for (const QString& name : builtInMappings()) {
        const auto mapping = mappingNamed(name);
        const QStringList needed = mapping ? mapping.value().neededColumns() : QStringList();
        if (!needed.isEmpty() && std::all_of(needed.begin(), needed.end(), [&](const QString& column) {
                return std::any_of(columns.begin(), columns.end(),
                                   [&](const QString& given) { return given.trimmed() == column; });
            }))
            return name;
    }
    return {};
}

bool isPage(const SourceAnswer& read) {
    return read.fault && (read.fault->code == &network_errors::pageInstead ||
                          read.fault->code == &network_errors::portalInstead);
}

void showItems(TrialReport& report, std::vector<SourceItem>& items) {
    for (SourceItem& item : items) {
        if (!item.content) {
            if (report.rejected++ == 0)
                report.reason = item.content.error();
        } else if (const auto* news = std::get_if<NewsItem>(&item.content.value())) {
            ++report.items;
            keep(report.first, *news);
        }
    }
}

}  // namespace

TrialReport readTrial(const HttpAnswer& answer, const NetworkSource& source, std::int64_t now) {
    TrialReport report;
    SourceAnswer read = readAnswer(source, answer, now);
    if (isPage(read))
        report.links = feedLinks(QString::fromUtf8(answer.body), answer.address);
    if (!report.links.empty())
        return report;
    if (!read.isRead && !answer.fault && source.kind == NetworkKind::Auto) {
        NetworkSource asTable = source;
        asTable.kind = NetworkKind::Table;
        asTable.mapping = fittingMapping(answer.body);
        if (!asTable.mapping.isEmpty()) {
            if (asTable.service == ownService)
                asTable.service = fixedServiceOf(mappingNamed(asTable.mapping).value());
            read = readAnswer(asTable, answer, now);
            report.fitting = asTable;
        }
    }
    if (read.isRead)
        report.title = feedTitle(answer.body);
    addToTrial(report, std::move(read));
    return report;
}

void addToTrial(TrialReport& report, SourceAnswer&& answer) {
    report.left += answer.left;
    report.fault = answer.fault;
    showItems(report, answer.items);
}

}  // namespace wirepane
