// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/mapped_table.h"

#include "backend/import/csv.h"
#include "backend/import/decoded_source.h"
#include "backend/import/import_errors.h"
#include "backend/import/json_fault.h"
#include "backend/import/json_list.h"
#include "backend/import/mapped_row.h"
#include "backend/import/source_size.h"
#include "backend/import/wire_form.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

// A row by its line (CSV) or by its number (JSON).
struct RowPlace {
    bool byLine = true;
    qint64 number = 0;

    Phrase alone() const {
        return byLine ? makeError<import_errors::atLine>(number) : makeError<import_errors::atRow>(number);
    }
    Phrase named(const QString& name) const {
        return byLine ? makeError<import_errors::atLineNamed>(number, name)
                      : makeError<import_errors::atRowNamed>(number, name);
    }
};

class RowSink {
public:
    RowSink(const QIODevice& table, const Mapping& ofTable, const ReadOptions& readOptions,
            const ItemVisitor& visitor)
        : source(table), mapping(ofTable), options(readOptions), visit(visitor) {}

    bool take(const MappedRow& row, const RowPlace& place) const {
        const Result<NewsItem> item = mappedItem(mapping, row, options.service);
        if (!item)
            return reject(item.error(), place.alone());
        return visit({StoreItem(item.value()), place.named(item.value().identity.left(200)), source.pos()});
    }
    bool reject(Error reason, Phrase place) const {
        return visit({std::move(reason), std::move(place), source.pos()});
    }

private:
    const QIODevice& source;
    const Mapping& mapping;
    const ReadOptions& options;
    const ItemVisitor& visit;
};

Done readCsv(TextPieces table, qint64 most, const Mapping& mapping, const RowSink& sink) {
    CsvReader csv(std::move(table), mapping.separator, most);
    const auto header = csv.next();
    QStringList columns = header ? header->fields : QStringList();
    std::for_each(columns.begin(), columns.end(), [](QString& column) { column = column.trimmed(); });
    for (const QString& column : mapping.neededColumns()) {
        if (!columns.contains(column))
            return makeError<import_errors::columnMissing>(column);
    }
    while (const auto record = csv.next()) {
        const RowPlace place{true, record->line};
        if (record->fault) {
            sink.reject(*record->fault, place.alone());
            break;
        }
        MappedRow row;
        for (qsizetype i = 0; i < std::min(columns.size(), record->fields.size()); ++i)
            row.insert(columns.at(i), record->fields.at(i).trimmed());
        if (!sink.take(row, place))
            break;
    }
    return Nothing{};
}

bool takeObject(QByteArrayView text, const RowPlace& place, const RowSink& sink) {
    QJsonParseError problem;
    const auto document =
        QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), text.size()), &problem);
    if (problem.error != QJsonParseError::NoError)
        return sink.reject(makeError<import_errors::rowNoJson>(jsonFault(problem), problem.offset),
                           place.alone());
    if (!document.isObject())
        return sink.reject(makeError<import_errors::rowNoObject>(), place.alone());
    const QJsonObject object = document.object();
    MappedRow row;
    for (auto field = object.begin(); field != object.end(); ++field)
        row.insert(field.key().trimmed(), field.value().toVariant().toString().trimmed());
    return sink.take(row, place);
}

Done readJson(QIODevice& table, qint64 most, const RowSink& sink) {
    JsonList list(table, most);
    qsizetype number = 0;
    while (const auto row = list.next()) {
        const RowPlace place{false, ++number};
        const bool goesOn = list.wasTooLong()
                                ? sink.reject(makeError<import_errors::recordTooLong>(most), place.alone())
                                : takeObject(*row, place, sink);
        if (!goesOn)
            return Nothing{};
    }
    if (!list.isClosed())
        sink.reject(makeError<import_errors::listWithoutEnd>(), makeError<import_errors::atRow>(number));
    else if (list.isFollowed())
        sink.reject(makeError<import_errors::behindList>(), makeError<import_errors::atEnd>());
    return Nothing{};
}

// The same text with nothing but itself at its start.
struct TableText {
    QString start;  // the first piece with more than blanks, and those before it
    TextPieces all;
};

TableText tableText(TextPieces pieces) {
    QString start = pieces();
    if (start.startsWith(QChar::ByteOrderMark))
        start.remove(0, 1);
    QString piece = start;
    while (!piece.isEmpty() && QStringView(piece).trimmed().isEmpty())
        start += piece = pieces();
    return {start, [rest = std::move(pieces), first = start]() mutable {
                return first.isEmpty() ? rest() : std::exchange(first, {});
            }};
}

}  // namespace

Done readMappedTable(QIODevice& source, const Mapping& mapping, const ReadOptions& options,
                     const ItemVisitor& visit) {
    if (const auto fault = faultOfSize(source, options.limits.file))
        return *fault;
    auto decoder = textDecoder(source, mapping.encodings);
    if (!decoder)
        return makeError<import_errors::noMappedEncoding>();
    const TableText table = tableText(textPieces(source, std::move(*decoder)));
    const QStringView start = QStringView(table.start).trimmed();
    if (start.isEmpty())
        return makeError<import_errors::fileEmpty>();
    if (start.startsWith(u'<'))
        return makeError<import_errors::markupPage>(titleLine(start.left(40)));
    const RowSink sink(source, mapping, options, visit);
    if (!start.startsWith(u'['))
        return readCsv(table.all, options.limits.record, mapping, sink);
    DecodedSource list(source, table.all);
    return readJson(list, options.limits.record, sink);
}

}  // namespace wirepane
