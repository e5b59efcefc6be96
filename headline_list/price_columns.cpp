// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/price_columns.h"

#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/price_history.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/views/quote_table.h"
#include "host/views/sheet_scheme.h"

#include <QFontMetrics>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::chrono::seconds followed{1};
constexpr int roomBetween = 16;

// As quote lists say it: `now` against what was then.
QuoteRow rowOf(double then, double now) {
    QuoteRow row;
    row.quote = CQuoteMemory{{}, now, now - then, 0};
    return row;
}

QString thenAndChange(const PriceSince& since) {
    return textOf(rowOf(since.then, since.then), QuoteColumn::Last) + u"  "_s +
           textOf(rowOf(since.then, since.now), QuoteColumn::Percent);
}

}  // namespace

PriceColumns::PriceColumns(BKQuoteInterface& newsBackEnd)
    : backEnd(newsBackEnd), prices(dynamic_cast<PriceHistory*>(&newsBackEnd)) {
    QObject::connect(&timer, &QTimer::timeout, &timer, [this] { follow(); });
}

void PriceColumns::show(CSuperSheetWnd& grid, bool show) {
    if (prices == nullptr || (!show && firstPlace < 0))
        return;
    shown = show;
    if (sheet != &grid) {
        sheet = &grid;
        firstPlace = grid.model()->columnCount();
        for (int column = 0; column < 2; ++column)
            grid.insertColumn(0, Qt::AlignRight | Qt::AlignVCenter, column == 0 ? u"price"_s : u"move"_s);
    }
    grid.setHeaderText(firstPlace, langText(backEnd, keys::priceThen), langText(backEnd, keys::priceThenTip));
    grid.setHeaderText(firstPlace + 1, langText(backEnd, keys::largestMove),
                       langText(backEnd, keys::largestMoveTip));
    for (const Column column : {Column::Then, Column::LargestMove})
        grid.vSetColWidth(firstPlace + static_cast<int>(column), show ? widthOf(column) : 0);
    if (show)
        timer.start(followed);
    else
        timer.stop();
}

int PriceColumns::widthOf(Column column) const {
    const QString widest = column == Column::Then ? u"1,000.00  +10.00%"_s : u"+100.00%"_s;
    const QString heading = langText(backEnd, column == Column::Then ? keys::priceThen : keys::largestMove);
    return std::max(QFontMetrics(sheet->font()).horizontalAdvance(widest),
                    QFontMetrics(sheet->headingFont()).horizontalAdvance(heading)) +
           roomBetween;
}

std::optional<PriceSince> PriceColumns::since(const HeadlineKey& key, int place) const {
    return shown && holds(place) ? prices->priceSince(key) : std::nullopt;
}

QString PriceColumns::text(const HeadlineKey& key, int place) const {
    const std::optional<PriceSince> price = since(key, place);
    if (!price)
        return {};
    return columnAt(place) == Column::Then
               ? thenAndChange(*price)
               : textOf(rowOf(price->then, price->farthest), QuoteColumn::Percent);
}

QColor PriceColumns::colour(const HeadlineKey& key, int place) const {
    const std::optional<PriceSince> price = since(key, place);
    if (!price)
        return {};
    const double until = columnAt(place) == Column::Then ? price->now : price->farthest;
    return movementColour(directionOf(rowOf(price->then, until)), sheet->palette().color(QPalette::Base));
}

void PriceColumns::follow() {
    const std::int64_t changes = prices->priceChanges();
    if (sheet == nullptr || !sheet->isVisible() || changes == drawn)
        return;
    drawn = changes;
    sheet->viewport()->update();
}

}  // namespace wirepane
