// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/mapped_table.h"

#include "backend/import/csv.h"
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

class RowSink {
public:
    RowSink(const Mapping& ofTable, const ReadOptions& readOptions, const ItemVisitor& visitor)
        : mapping(ofTable), options(readOptions), visit(visitor) {}

    bool take(const MappedRow& row, const QString& place, qint64 position) const {
        const Result<NewsItem> item = mappedItem(mapping, row, options.service);
        if (!item)
            return reject(item.error(), place, position);
        return visit(
            {StoreItem(item.value()), place + u" ("_s + item.value().identity.left(200) + u')', position});
    }
    bool reject(const QString& reason, const QString& place, qint64 position) const {
        return visit({Error{reason}, place, position});
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
            return Error{u"The table has no column “%1”, which the mapping names."_s.arg(column)};
    }
    while (const auto record = csv.next()) {
        const QString place = u"line %1"_s.arg(record->line);
        if (!record->closed) {
            sink.reject(u"A quote is opened and never closed; nothing behind it is read."_s, place,
                        csv.position());
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

bool takeObject(QByteArrayView text, const QString& place, qint64 position, const RowSink& sink) {
    QJsonParseError problem;
    const auto document =
        QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), text.size()), &problem);
    if (problem.error != QJsonParseError::NoError)
        return sink.reject(
            u"The row is not valid JSON: %1 (at byte %2)."_s.arg(problem.errorString()).arg(problem.offset),
            place, position);
    if (!document.isObject())
        return sink.reject(u"The row is not a JSON object."_s, place, position);
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
        if (!takeObject(*row, u"row %1"_s.arg(++number), list.position(), sink))
            return Nothing{};
    }
    if (!list.isClosed())
        sink.reject(u"The list has no end: “]” is missing."_s, u"row %1"_s.arg(number), table.size());
    else if (!list.rest().isEmpty())
        sink.reject(u"There is something behind the end of the list."_s, u"the end"_s, table.size());
    return Nothing{};
}

}  // namespace

Done readMappedTable(const QByteArray& source, const Mapping& mapping, const ReadOptions& options,
                     const ItemVisitor& visit) {
    const auto decoded = textIn(source, mapping.encodings);
    if (!decoded)
        return Error{u"The file is in none of the encodings of the mapping."_s};
    const QString text = decoded->startsWith(QChar::ByteOrderMark) ? decoded->sliced(1) : *decoded;
    const QStringView start = QStringView(text).trimmed();
    if (start.isEmpty())
        return Error{u"The file is empty."_s};
    if (start.startsWith(u'<'))
        return Error{u"The file is a page of markup, not a table: it starts with “%1”."_s.arg(
            titleLine(start.left(40)))};
    const RowSink sink(mapping, options, visit);
    return start.startsWith(u'[') ? readJson(text.toUtf8(), sink) : readCsv(text, mapping, sink);
}

}  // namespace wirepane
