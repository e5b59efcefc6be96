// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/trial_reading.h"

#include "backend/import/built_in_mappings.h"
#include "backend/import/json_shape.h"
#include "backend/import/mapped_table.h"
#include "backend/import/source_formats.h"
#include "backend/import/source_reader.h"
#include "backend/import/text_encoding.h"

#include <QBuffer>
#include <QRegularExpression>

#include <algorithm>

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

void applyCategory(const NetworkSource& source, NewsItem& item) {
    if (source.categoryRule == CategoryRule::Always ||
        (source.categoryRule == CategoryRule::Otherwise && item.category.isEmpty()))
        item.category = source.category;
}

bool looksLikeMarkup(QByteArrayView body) {
    static const QRegularExpression start(
        u"^\\s*(?:<!--.*?-->\\s*)*<(?:!doctype\\s+html|html|head|body|meta|title)\\b"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    return start
        .match(QString::fromUtf8(
            withoutByteOrderMark(body.first(std::min(body.size(), qsizetype(recognisedFrom))))))
        .hasMatch();
}

// The columns of a table: the header's, or the fields of the records.
QStringList columnsOf(const QByteArray& body) {
    const SourceHead head(body.left(recognisedFrom));
    const std::vector<QJsonObject> records = recordsInHead(head);
    return records.empty() ? head.csvHeader() : records.front().keys();
}

// The built-in mapping whose every column the table has, where it is of no format that says what it is;
// empty: none.
QString fittingMapping(const QByteArray& body) {
    if (recognisedFormat(SourceHead(body.left(recognisedFrom))))
        return {};
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

Done readWith(const QByteArray& body, const NetworkSource& source, const ItemVisitor& visit) {
    ReadOptions options;
    options.service = source.service;
    options.market = source.market;
    QByteArray bytes = body;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    if (source.kind != NetworkKind::Table)
        return readSource(buffer, options, visit);
    const auto mapping = mappingNamed(source.mapping);
    if (!mapping)
        return mapping.error();
    return readMappedTable(buffer, mapping.value(), options, visit);
}

}  // namespace

TrialReport readTrial(const QByteArray& body, const NetworkSource& source, const QUrl& from) {
    TrialReport report;
    NetworkSource asRead = source;
    if (source.kind == NetworkKind::Auto && looksLikeMarkup(body))
        report.links = feedLinks(QString::fromUtf8(body), from);
    if (!report.links.empty())
        return report;
    if (const QString mapping = source.kind == NetworkKind::Auto ? fittingMapping(body) : QString();
        !mapping.isEmpty()) {
        asRead.kind = NetworkKind::Table;
        asRead.mapping = mapping;
        report.fitting = asRead;
    }
    const Done read = readWith(body, asRead, [&](SourceItem&& item) {
        if (!item.content) {
            if (report.rejected++ == 0)
                report.reason = item.content.error();
        } else if (auto* news = std::get_if<NewsItem>(&item.content.value())) {
            ++report.items;
            applyCategory(asRead, *news);
            keep(report.first, *news);
        }
        return true;
    });
    if (!read)
        report.fault = read.error();
    return report;
}

}  // namespace wirepane
