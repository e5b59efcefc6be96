// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/table_reader.h"

#include "backend/import/csv.h"
#include "backend/import/table_columns.h"
#include "backend/import/text_encoding.h"
#include "backend/import/whole_source.h"
#include "backend/import/wire_form.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

// What a table holds; its header line says it.
enum class TableKind { Unknown, Symbols, Categories, Quotes };

constexpr QLatin1StringView footer("File Creation Time");

TableKind kindOf(const TableColumns& columns) {
    if (columns.has(Column::Service) && columns.has(Column::Id) && columns.has(Column::Name))
        return TableKind::Categories;
    if (columns.has(Column::Market) && columns.has(Column::Code) && columns.has(Column::Last) &&
        columns.has(Column::Change) && columns.has(Column::Volume))
        return TableKind::Quotes;
    const bool knowsMarket = columns.has(Column::Market) || columns.market() != unknownMarket;
    return columns.has(Column::Code) && columns.has(Column::Name) && knowsMarket ? TableKind::Symbols
                                                                                 : TableKind::Unknown;
}

Error noNumber(QLatin1StringView what, const QString& text, qint64 least, qint64 most) {
    return {u"“%1” is not a %2: it must be a number from %3 to %4."_s.arg(
        titleLine(text.left(60)), what, QString::number(least), QString::number(most))};
}

Result<qint64> number(QLatin1StringView what, const QString& text, qint64 least, qint64 most) {
    bool isNumber = false;
    const qint64 value = text.toLongLong(&isNumber);
    if (!isNumber || value < least || value > most)
        return noNumber(what, text, least, most);
    return value;
}

Result<double> price(QLatin1StringView what, const QString& text) {
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        return Error{
            u"“%1” is not a %2: it must be a number such as 12.5."_s.arg(titleLine(text.left(60)), what)};
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
        return Error{u"“%1” is not a symbol code."_s.arg(titleLine(code.left(60)))};
    return code;
}

Result<StoreItem> symbolItem(const TableColumns& columns, const QStringList& row,
                             const ReadOptions& options) {
    const auto code = codeOf(columns, row);
    if (!code)
        return Error{code.error()};
    SymbolItem item;
    item.code = code.value();
    item.name = titleLine(columns.field(row, Column::Name));
    if (item.name.isEmpty())
        return Error{u"The symbol “%1” has no name."_s.arg(item.code)};
    item.market = marketOfList(columns.market(), options);
    if (columns.has(Column::Market)) {
        const auto market = number("market"_L1, columns.field(row, Column::Market), 1, 255);
        if (!market)
            return Error{market.error()};
        item.market = static_cast<unsigned char>(market.value());
    }
    const QString category = columns.field(row, Column::Category);
    if (!category.isEmpty()) {
        const auto kind = number("category"_L1, category, 0, std::numeric_limits<int>::max());
        if (!kind)
            return Error{kind.error()};
        item.category = int(kind.value());
    }
    return StoreItem(item);
}

Result<StoreItem> categoryItem(const TableColumns& columns, const QStringList& row) {
    static const QRegularExpression colourForm(u"^#[0-9A-Fa-f]{6}$"_s);
    const auto service = number("service"_L1, columns.field(row, Column::Service), 1, 255);
    if (!service)
        return Error{service.error()};
    const auto id =
        number("category id"_L1, columns.field(row, Column::Id), 0, std::numeric_limits<std::int32_t>::max());
    if (!id)
        return Error{id.error()};
    CategoryItem item;
    item.service = static_cast<unsigned char>(service.value());
    item.id = std::int32_t(id.value());
    item.name = titleLine(columns.field(row, Column::Name));
    if (item.name.isEmpty())
        return Error{u"The category %1 has no name."_s.arg(item.id)};
    item.colour = columns.field(row, Column::Colour).toLower();
    if (!item.colour.isEmpty() && !colourForm.match(item.colour).hasMatch())
        return Error{
            u"“%1” is not a colour: it must be as “#rrggbb”."_s.arg(titleLine(item.colour.left(60)))};
    return StoreItem(item);
}

Result<StoreItem> quoteItem(const TableColumns& columns, const QStringList& row) {
    const auto market = number("market"_L1, columns.field(row, Column::Market), 1, 255);
    if (!market)
        return Error{market.error()};
    const auto code = codeOf(columns, row);
    if (!code)
        return Error{code.error()};
    const auto last = price("last price"_L1, columns.field(row, Column::Last));
    if (!last)
        return Error{last.error()};
    const auto change = price("change"_L1, columns.field(row, Column::Change));
    if (!change)
        return Error{change.error()};
    const auto volume = number("volume"_L1, columns.field(row, Column::Volume), 0, mostVolume);
    if (!volume)
        return Error{volume.error()};
    return StoreItem(QuoteItem{static_cast<unsigned char>(market.value()), code.value(), last.value(),
                               change.value(), volume.value()});
}

Result<StoreItem> itemOf(TableKind kind, const TableColumns& columns, const QStringList& row,
                         const ReadOptions& options) {
    if (kind == TableKind::Categories)
        return categoryItem(columns, row);
    return kind == TableKind::Quotes ? quoteItem(columns, row) : symbolItem(columns, row, options);
}

bool isLeftOut(const QStringList& row) {
    return row.first().startsWith(footer) || std::all_of(row.begin(), row.end(), [](const QString& field) {
               return field.trimmed().isEmpty();
           });
}

void readRows(QStringView table, const ReadOptions& options, const ItemVisitor& visit) {
    CsvReader csv(table);
    const auto header = csv.next();
    if (!header)
        return;
    const TableColumns columns(header->fields);
    const TableKind kind = kindOf(columns);
    while (const auto row = csv.next()) {
        const QString place = u"line %1"_s.arg(row->line);
        if (!row->closed) {
            visit({Error{u"A quote is opened and never closed; nothing behind it is read."_s}, place,
                   csv.position()});
            return;
        }
        if (isLeftOut(row->fields))
            continue;
        if (!visit({itemOf(kind, columns, row->fields, options), place, csv.position()}))
            return;
    }
}

}  // namespace

bool isTable(const SourceHead& head) {
    return kindOf(TableColumns(head.csvHeader())) != TableKind::Unknown;
}

Done readTable(QIODevice& source, const ReadOptions& options, const ItemVisitor& visit) {
    const Result<QByteArray> bytes = wholeSource(source, options.limits.file);
    if (!bytes)
        return Error{bytes.error()};
    const auto text = decodedText(bytes.value());
    if (!text)
        return Error{u"The file is neither UTF-8 nor code page 950."_s};
    readRows(*text, options, visit);
    return Nothing{};
}

}  // namespace wirepane
