// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/mapped_table.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/news_promises.h"

#include <QBuffer>

#include <algorithm>

namespace wirepane {

namespace {

QByteArray tableFor(const Mapping& mapping) {
    QStringList names = mapping.neededColumns() + mapping.story + mapping.symbols.columns +
                        mapping.service.columns + mapping.category.columns;
    names.removeDuplicates();
    QStringList header;
    for (QString name : names)
        header += u'"' + name.replace(u'"', QStringLiteral("\"\"")) + u'"';
    const QString row = QStringList(header.size(), QStringLiteral("2004-01-02")).join(mapping.separator);
    return (header.join(mapping.separator) + u'\n' + row + u'\n').toUtf8();
}

bool isService(const QString& text) {
    return text.toInt() >= 1 && text.toInt() <= 255;
}

}  // namespace

// Mapping files; a good one is used on a small table.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const Result<Mapping> parsed = Mapping::parse(FuzzInput(bytes, size).bytes());
    if (!parsed) {
        promise(!sentence(parsed.error()).isEmpty(), "a refusal has a reason");
        return 0;
    }
    const Mapping& mapping = parsed.value();
    promise(!mapping.identity.isEmpty() && !mapping.time.dateColumns.isEmpty() && mapping.time.zone.isValid(),
            "a mapping says which columns name an item and when it is of");
    promise(mapping.service.otherwise.isEmpty() || isService(mapping.service.otherwise),
            "services have numbers");
    promise(std::all_of(mapping.service.names.begin(), mapping.service.names.end(), isService),
            "services are named by numbers");
    QBuffer table;
    table.setData(tableFor(mapping));
    table.open(QIODevice::ReadOnly);
    promiseReading(table.size(), [&](const ItemVisitor& visit) {
        table.seek(0);
        readMappedTable(table, mapping, {}, visit);
    });
    return 0;
}

}  // namespace wirepane
