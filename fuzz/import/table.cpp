// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/csv.h"
#include "backend/import/table_reader.h"
#include "backend/import/text_pieces.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/news_promises.h"

#include <QBuffer>

namespace wirepane {

namespace {

QString quoted(QString field) {
    return u'"' + field.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

// Records written out with quotes are read back as they were.
void promiseSameRecords(const QString& csv, QChar comma) {
    CsvReader reader(csv, comma);
    std::vector<QStringList> records;
    QString written;
    qsizetype position = 0;
    qint64 line = 0;
    while (const auto record = reader.next()) {
        promise(reader.position() > position && reader.position() <= csv.size(), "a record takes characters");
        promise(record->line > line && !record->fields.isEmpty(), "records stand on lines of their own");
        position = reader.position();
        line = record->line;
        records.push_back(record->fields);
        QStringList fields;
        for (const QString& field : record->fields)
            fields += quoted(field);
        written += fields.join(comma) + u'\n';
    }
    CsvReader again(written, comma);
    for (const QStringList& fields : records) {
        const auto record = again.next();
        promise(record && !record->fault && record->fields == fields, "a record is read back as it was");
    }
    promise(!again.next(), "no record comes out of nothing");
}

}  // namespace

// Tables of symbols and categories, and comma-separated values as such.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const QByteArray source = FuzzInput(bytes, size).bytes();
    QBuffer buffer;
    buffer.setData(source);
    buffer.open(QIODevice::ReadOnly);
    auto decoder = textDecoder(buffer);
    if (!decoder)
        return 0;
    const QString text = (*decoder)(source);
    for (const char16_t comma : {u',', u';', u'\t'})
        promiseSameRecords(text, comma);
    promiseFile(source, source.size(), {}, readTable);
    return 0;
}

}  // namespace wirepane
