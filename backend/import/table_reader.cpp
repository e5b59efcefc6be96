// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/table_reader.h"

#include "backend/import/csv.h"
#include "backend/import/import_errors.h"
#include "backend/import/source_size.h"
#include "backend/import/table_columns.h"
#include "backend/import/wire_form.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

// What a table holds; its header line says it.
enum class TableContent { Unknown, Symbols, Categories, Quotes };

constexpr QLatin1StringView footer("File Creation Time");

TableContent kindOf(const TableColumns& columns) {
    if (columns.has(Column::Service) && columns.has(Column::Id) && columns.has(Column::Name))
        return TableContent::Categories;
    if (columns.has(Column::Market) && columns.has(Column::Code) && columns.has(Column::Last) &&
        columns.has(Column::Change) && columns.has(Column::Volume))
        return TableContent::Quotes;
    const bool knowsMarket = columns.has(Column::Market) || columns.market() != unknownMarket;
    return columns.has(Column::Code) && columns.has(Column::Name) && knowsMarket ? TableContent::Symbols
                                                                                 : TableContent::Unknown;
}

Result<qint64> number(Phrase what, const QString& text, qint64 least, qint64 most) {
    bool isNumber = false;
    const qint64 value = text.toLongLong(&isNumber);
    if (!isNumber || value < least || value > most)
        return makeError<import_errors::numberOutOfRange>(titleLine(text.left(60)), std::move(what), least,
                                                          most);
    return value;
}

Result<double> price(Phrase what, const QString& text) {
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        return makeError<import_errors::noPrice>(titleLine(text.left(60)), std::move(what));
    return value;
}

// The two company lists have the same header; the name under which they are published tells them apart.
unsigned char marketOfList(unsigned char byHeader, const ReadOptions& options) {
    if (options.market != unknownMarket)
        return options.market;
    static const QRegularExpression overTheCounter(u"_O(\\W|$)"_s);
    if (byHeader == stockExchangeService && overTheCounter.match(options.sourceName).hasMatch())
        return emergingBoardService;
    return byHeader;
}

Result<QString> codeOf(const TableColumns& columns, const QStringList& row) {
    static const QRegularExpression codeForm(u"^[^\\s\\p{C}]{1,32}$"_s,
                                             QRegularExpression::UseUnicodePropertiesOption);
    QString code = columns.field(row, Column::Code);
    if (!codeForm.match(code).hasMatch())
        return makeError<import_errors::noSymbolCode>(titleLine(code.left(60)));
    return code;
}

Result<StoreItem> symbolItem(const TableColumns& columns, const QStringList& row,
                             const ReadOptions& options) {
    const auto code = codeOf(columns, row);
    if (!code)
        return code.error();
    SymbolItem item;
    item.code = code.value();
    item.name = titleLine(columns.field(row, Column::Name));
    if (item.name.isEmpty())
        return makeError<import_errors::symbolWithoutName>(item.code);
    item.englishName = titleLine(columns.field(row, Column::EnglishName));
    item.market = marketOfList(columns.market(), options);
    if (columns.has(Column::Market)) {
        const auto market =
            number(makeError<import_errors::market>(), columns.field(row, Column::Market), 1, 255);
        if (!market)
            return market.error();
        item.market = static_cast<unsigned char>(market.value());
    }
    const QString category = columns.field(row, Column::Category);
    if (!category.isEmpty()) {
        const auto kind =
            number(makeError<import_errors::category>(), category, 0, std::numeric_limits<int>::max());
        if (!kind)
            return kind.error();
        item.category = int(kind.value());
    }
    return StoreItem(item);
}

Result<StoreItem> categoryItem(const TableColumns& columns, const QStringList& row) {
    static const QRegularExpression colourForm(u"^#[0-9A-Fa-f]{6}$"_s);
    const auto service =
        number(makeError<import_errors::service>(), columns.field(row, Column::Service), 1, 255);
    if (!service)
        return service.error();
    const auto id = number(makeError<import_errors::categoryId>(), columns.field(row, Column::Id), 0,
                           std::numeric_limits<std::int32_t>::max());
    if (!id)
        return id.error();
    CategoryItem item;
    item.service = static_cast<unsigned char>(service.value());
    item.id = std::int32_t(id.value());
    item.name = titleLine(columns.field(row, Column::Name));
    if (item.name.isEmpty())
        return makeError<import_errors::categoryWithoutName>(item.id);
    item.colour = columns.field(row, Column::Colour).toLower();
    if (!item.colour.isEmpty() && !colourForm.match(item.colour).hasMatch())
        return makeError<import_errors::noColour>(titleLine(item.colour.left(60)));
    return StoreItem(item);
}

Result<StoreItem> quoteItem(const TableColumns& columns, const QStringList& row) {
    const auto market =
        number(makeError<import_errors::market>(), columns.field(row, Column::Market), 1, 255);
    if (!market)
        return market.error();
    const auto code = codeOf(columns, row);
    if (!code)
        return code.error();
    const auto last = price(makeError<import_errors::lastPrice>(), columns.field(row, Column::Last));
    if (!last)
        return last.error();
    const auto change = price(makeError<import_errors::change>(), columns.field(row, Column::Change));
    if (!change)
        return change.error();
    const auto volume =
        number(makeError<import_errors::volume>(), columns.field(row, Column::Volume), 0, mostVolume);
    if (!volume)
        return volume.error();
    return StoreItem(QuoteItem{static_cast<unsigned char>(market.value()), code.value(), last.value(),
                               change.value(), volume.value()});
}

Result<StoreItem> itemOf(TableContent kind, const TableColumns& columns, const QStringList& row,
                         const ReadOptions& options) {
    if (kind == TableContent::Categories)
        return categoryItem(columns, row);
    return kind == TableContent::Quotes ? quoteItem(columns, row) : symbolItem(columns, row, options);
}

bool isLeftOut(const QStringList& row) {
    return row.first().startsWith(footer) || std::all_of(row.begin(), row.end(), [](const QString& field) {
               return field.trimmed().isEmpty();
           });
}

void readRows(CsvReader csv, const QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    const auto header = csv.next();
    if (!header)
        return;
    const TableColumns columns(header->fields);
    const TableContent kind = kindOf(columns);
    while (const auto row = csv.next()) {
        const Phrase place = makeError<import_errors::atLine>(row->line);
        if (row->fault) {
            visit({*row->fault, place, source.pos()});
            return;
        }
        if (isLeftOut(row->fields))
            continue;
        if (!visit({itemOf(kind, columns, row->fields, options), place, source.pos()}))
            return;
    }
}

}  // namespace

bool isTable(const SourceHead& head) {
    return kindOf(TableColumns(head.csvHeader())) != TableContent::Unknown;
}

Done readTable(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    if (const auto fault = faultOfSize(source, options.limits.file))
        return *fault;
    auto decoder = textDecoder(source);
    if (!decoder)
        return makeError<import_errors::noKnownEncoding>();
    readRows(CsvReader(textPieces(source, std::move(*decoder)), u',', options.limits.record), source, options,
             visit);
    return Nothing{};
}

}  // namespace wirepane
