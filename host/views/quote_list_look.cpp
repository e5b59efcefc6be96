// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// How a quote list looks: its columns, its colours, what it draws in place of an empty list.
#include "host/contract/colour_roles.h"
#include "host/contract/lang_text.h"
#include "host/controls/row_look.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/views/quote_column_kinds.h"
#include "host/views/quote_list_base_view.h"

#include <QPainter>

#include <algorithm>
#include <numeric>

using namespace wirepane;

void QuoteListBaseView::resizeEvent(QResizeEvent* event) {
    TRVQuoteBaseView::resizeEvent(event);
    layOut();
}

void QuoteListBaseView::layOut() {
    if (sheet != nullptr)
        sheet->setGeometry(rect().adjusted(1, 1 + titleHeight(), -1, -1));
}

void QuoteListBaseView::setLook(const RowLook& look) {
    if (sheet == nullptr)
        return;
    sheet->setLook(look);
    sheet->stretchLast(!look.finished);
    fitColumns();
}

QuoteWidths QuoteListBaseView::wantedWidths() const {
    constexpr int cellMargins = 10;
    constexpr int sortMarkRoom = 12;
    const QFontMetrics metrics(GetViewFont());
    const int character = metrics.horizontalAdvance(u'0');
    const RowLook& look = sheet->look();
    QuoteWidths wanted{};
    for (std::size_t column = 0; column < wanted.size(); ++column) {
        const QuoteColumnKind& kind = quoteColumnKinds.at(column);
        const int characters = kind.characters > 0 ? kind.characters : look.finished ? 0 : nameRoom;
        const int header = metrics.horizontalAdvance(langText(kind.headerKey)) + sortMarkRoom;
        wanted.at(column) = std::max(characters * character, header) + cellMargins;
        if (look.finished)
            wanted.at(column) = std::max(grown(kind.width, GetViewFont()), wanted.at(column));
    }
    wanted.front() += look.gutter;
    return wanted;
}

void QuoteListBaseView::fitColumns() {
    const QuoteWidths wanted = wantedWidths();
    int box = sheet->viewport()->width();
    // Finished rows are set from the left: the eye need not cross a gap.
    if (sheet->look().finished)
        box = std::min(std::accumulate(wanted.begin(), wanted.end(), 0), box - sheet->look().gutter / 2);
    const QuoteWidths widths = fitQuoteColumns(wanted, box);
    for (int column = 0; column < quoteColumns; ++column)
        sheet->vSetColWidth(column, widths.at(static_cast<std::size_t>(column)));
}

void QuoteListBaseView::OnDraw(QPainter& painter) {
    if (currentDataState() == DataState::NotSupported)
        vNotSupportSymbol(painter);
    TRVQuoteBaseView::OnDraw(painter);
}

void QuoteListBaseView::vNotSupportSymbol(QPainter& painter) {
    constexpr int margin = 8;
    const QRect area = rect().adjusted(0, titleHeight(), 0, 0);
    QColor faint = colText;
    faint.setAlpha(160);
    painter.fillRect(area, colBackground);
    painter.setFont(GetViewFont());
    painter.setPen(faint);
    painter.drawText(area.adjusted(margin, margin, -margin, -margin), Qt::AlignCenter | Qt::TextWordWrap,
                     notice());
}

QString QuoteListBaseView::text(int row, int column) const {
    return row < table.size() ? textOf(table.at(row), static_cast<QuoteColumn>(column)) : QString();
}

QColor QuoteListBaseView::textColour(int row, int column) const {
    const auto kind = static_cast<QuoteColumn>(column);
    const bool coloured =
        kind == QuoteColumn::Last || kind == QuoteColumn::Change || kind == QuoteColumn::Percent;
    const int direction = coloured && row < table.size() ? directionOf(table.at(row)) : 0;
    if (direction == 0)
        return {};
    return direction > 0 ? riseColour : fallColour;
}

// Plain rows flash as far as figures go; of finished ones the cells that have changed.
QColor QuoteListBaseView::highlight(int row, int column) const {
    constexpr int strength = 70;
    if (column < static_cast<int>(QuoteColumn::Last) || row >= table.size())
        return {};
    const bool finished = sheet->look().finished;
    if (!flashes.isFlashing(table.at(row).symbol, finished ? column : QuoteFlashes::anyColumn))
        return {};
    QColor colour = palette().color(QPalette::Highlight);
    colour.setAlpha(strength);
    return finished ? roleColour(ColourRole::Arrived, colour) : colour;
}

bool QuoteListBaseView::holdsFigures(int column) const {
    return column != static_cast<int>(QuoteColumn::Name);
}
