// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/mapped_table.h"

#include "backend/import/csv.h"
#include "backend/import/import_errors.h"
#include "backend/import/json_fault.h"
#include "backend/import/json_list.h"
#include "backend/import/mapped_row.h"
#include "backend/import/text_encoding.h"
#include "backend/import/wire_form.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> textIn(const QByteArray& source, const QStringList& encodings) {
    if (encodings.isEmpty())
        return decodedText(source);
    for (const QString& name : encodings) {
        QStringDecoder decoder = decoderOf(name.toLatin1());
        QString text = decoder(source);
        if (!decoder.hasError())
            return text;
    }
    return std::nullopt;
}

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
    RowSink(const Mapping& ofTable, const ReadOptions& readOptions, const ItemVisitor& visitor)
        : mapping(ofTable), options(readOptions), visit(visitor) {}

    bool take(const MappedRow& row, const RowPlace& place, qint64 position) const {
        const Result<NewsItem> item = mappedItem(mapping, row, options.service);
        if (!item)
            return reject(item.error(), place.alone(), position);
        return visit({StoreItem(item.value()), place.named(item.value().identity.left(200)), position});
    }
    bool reject(Error reason, Phrase place, qint64 position) const {
        return visit({std::move(reason), std::move(place), position});
    }

private:
    const Mapping& mapping;
    const ReadOptions& options;
    const ItemVisitor& visit;
};

Done readCsv(const QString& table, const Mapping& mapping, const RowSink& sink) {
    CsvReader csv(table, mapping.separator);
    const auto header = csv.next();
    QStringList columns = header ? header->fields : QStringList();
    std::for_each(columns.begin(), columns.end(), [](QString& column) { column = column.trimmed(); });
    for (const QString& column : mapping.neededColumns()) {
        if (!columns.contains(column))
            return makeError<import_errors::columnMissing>(column);
    }
    while (const auto record = csv.next()) {
        const RowPlace place{true, record->line};
        if (!record->closed) {
            sink.reject(makeError<import_errors::quoteNotClosed>(), place.alone(), csv.position());
            break;
        }
        MappedRow row;
        for (qsizetype i = 0; i < std::min(columns.size(), record->fields.size()); ++i)
            row.insert(columns.at(i), record->fields.at(i).trimmed());
        if (!sink.take(row, place, csv.position()))
            break;
    }
    return Nothing{};
}

bool takeObject(QByteArrayView text, const RowPlace& place, qint64 position, const RowSink& sink) {
    QJsonParseError problem;
    const auto document =
        QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), text.size()), &problem);
    if (problem.error != QJsonParseError::NoError)
        return sink.reject(makeError<import_errors::rowNoJson>(jsonFault(problem), problem.offset),
                           place.alone(), position);
    if (!document.isObject())
        return sink.reject(makeError<import_errors::rowNoObject>(), place.alone(), position);
    const QJsonObject object = document.object();
    MappedRow row;
    for (auto field = object.begin(); field != object.end(); ++field)
        row.insert(field.key().trimmed(), field.value().toVariant().toString().trimmed());
    return sink.take(row, place, position);
}

Done readJson(const QByteArray& table, const RowSink& sink) {
    JsonList list(table);
    qsizetype number = 0;
    while (const auto row = list.next()) {
        if (!takeObject(*row, {false, ++number}, list.position(), sink))
            return Nothing{};
    }
    if (!list.isClosed())
        sink.reject(makeError<import_errors::listWithoutEnd>(), makeError<import_errors::atRow>(number),
                    table.size());
    else if (!list.rest().isEmpty())
        sink.reject(makeError<import_errors::behindList>(), makeError<import_errors::atEnd>(), table.size());
    return Nothing{};
}

}  // namespace

Done readMappedTable(const QByteArray& source, const Mapping& mapping, const ReadOptions& options,
                     const ItemVisitor& visit) {
    const auto decoded = textIn(source, mapping.encodings);
    if (!decoded)
        return makeError<import_errors::noMappedEncoding>();
    const QString text = decoded->startsWith(QChar::ByteOrderMark) ? decoded->sliced(1) : *decoded;
    const QStringView start = QStringView(text).trimmed();
    if (start.isEmpty())
        return makeError<import_errors::fileEmpty>();
    if (start.startsWith(u'<'))
        return makeError<import_errors::markupPage>(titleLine(start.left(40)));
    const RowSink sink(mapping, options, visit);
    return start.startsWith(u'[') ? readJson(text.toUtf8(), sink) : readCsv(text, mapping, sink);
}

}  // namespace wirepane
