// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_list.h"

#include "headline_list/cell_state.h"
#include "headline_list/headline_columns.h"
#include "headline_list/headline_table.h"
#include "headline_list/reading_place.h"
#include "host/contract/bk_quote_interface.h"

#include <utility>

namespace {

CHeadlineTable entryOf(const CHeadline& headline) {
    return {headline.time, headline.sequence, headline.service, 0, 0};
}

}  // namespace

struct HeadlineList::State {
    HeadlineTable table;
    CellState cells;
    std::optional<ReadingPlace> heldPlace;
};

HeadlineList::HeadlineList(const ListKind& listKind, BKQuoteInterface& newsBackEnd, ListOwner& listOwner)
    : kind(listKind),
      backEnd(newsBackEnd),
      owner(listOwner),
      state(std::make_unique<State>()),
      table(state->table),
      cells(state->cells),
      heldPlace(state->heldPlace) {
    afterPainting.setSingleShot(true);
    QObject::connect(&afterPainting, &QTimer::timeout, &afterPainting, [this] { table.BuildIndex(); });
}

HeadlineList::~HeadlineList() {
    if (sheet != nullptr)
        sheet->vSetCells(nullptr);
}

void HeadlineList::vSetGrid(CSuperSheetWnd* grid) {
    sheet = grid;
    if (sheet != nullptr)
        sheet->vSetCells(this);
}

void HeadlineList::vSetTable(const TableRuns& runs) {
    table.assign(runs);
    afterPainting.start(0);
}

void HeadlineList::vSetTable(const HeadlineTable& other) {
    table = other;
    afterPainting.start(0);
}

void HeadlineList::vForgetWrittenCells() {
    cells.keepOnly({}, kind.showDate);
}

void HeadlineList::vFillHeadlineTable() {
    if (sheet == nullptr)
        return;
    cells.clear();
    sheet->vClearRows();
    sheet->vAddRows(table.size());
    sheet->vResetRowBkColor();
    owner.vRowsReplaced(kind.index);
    if (heldPlace) {
        std::exchange(heldPlace, std::nullopt)->vRestore(table, *sheet);
        return;
    }
    sheet->vResetScroll();
    sheet->viewport()->repaint();
}

void HeadlineList::vHoldPlace() {
    if (sheet != nullptr)
        heldPlace.emplace(table, *sheet);
}

void HeadlineList::vRefill() {
    vFillHeadlineTable();
    vFillHeadline();
}

HeadlinePlace HeadlineList::vProcessNewHeadline(const CHeadline& headline, bool showDate) {
    if (sheet == nullptr)
        return {};
    const int known = table.rowOfSameDay(KeyOf(headline));
    if (known < 0) {
        const int row = table.insertPosition(headline.time);
        vInsertHeadline(row, headline, showDate);
        return {row, -1};
    }
    const int old = table.rowOfNumber(KeyOf(headline));
    if (old != known) {
        // Another day's row goes, and this day's stays below the new one.
        vUpdateHeadline(known, headline, showDate);
        vInsertHeadline(0, headline, showDate);
        vDeleteHeadline(old + 1);
        return {0, old};
    }
    // Out before in, so that the table never has two rows of one number to tell apart.
    const HeadlineKey oldKey = KeyOf(table.at(old));
    table.remove(old);
    table.insert(0, entryOf(headline));
    forgetCells(oldKey);
    sheet->vMoveRowToTop(old);
    writeHeadline(0, headline, showDate);
    return {0, old};
}

void HeadlineList::vInsertHeadline(int row, const CHeadline& headline, bool showDate) {
    if (sheet == nullptr || row < 0 || row > table.size())
        return;
    table.insert(row, entryOf(headline));
    sheet->vInsertRow(row);
    writeHeadline(row, headline, showDate);
}

void HeadlineList::vReplaceHeadline(int row, const CHeadline& headline) {
    if (sheet == nullptr || row < 0 || row >= table.size())
        return;
    const HeadlineKey oldKey = KeyOf(table.at(row));
    if (oldKey == KeyOf(headline))
        return;
    const bool showDate = kind.showDate != cells.hasOtherTimeForm(oldKey);
    table.remove(row);
    table.insert(row, entryOf(headline));
    forgetCells(oldKey);
    writeHeadline(row, headline, showDate);
}

HeadlinePlace HeadlineList::vTakeOut(int row) {
    if (sheet == nullptr || row < 0 || row >= table.size())
        return {};
    vDeleteHeadline(row);
    return {-1, row};
}

void HeadlineList::vDeleteHeadline(int row) {
    if (sheet == nullptr || row < 0 || row >= table.size())
        return;
    const HeadlineKey key = KeyOf(table.at(row));
    table.remove(row);
    forgetCells(key);
    sheet->vDeleteRow(row);
}

void HeadlineList::forgetCells(const HeadlineKey& key) {
    if (table.rowOf(key) < 0)
        cells.forget(key);
}

const WrittenCells* HeadlineList::cellsOf(int row) const {
    return row >= 0 && row < table.size() ? cells.find(KeyOf(table.at(row))) : nullptr;
}

const HeadlineColumnKind* HeadlineList::columnAt(int place) const {
    return ColumnAt(owner.GetNewsType(), place);
}

QString HeadlineList::Text(int row, int column) const {
    const WrittenCells* written = cellsOf(row);
    const HeadlineColumnKind* shown = columnAt(column);
    return written != nullptr && shown != nullptr ? written->textOf(shown->column) : QString();
}

QColor HeadlineList::TextColour(int row, int column) const {
    const HeadlineColumnKind* shown = columnAt(column);
    if (shown == nullptr || shown->colour == nullptr || row < 0 || row >= table.size())
        return {};
    return shown->colour(owner, table.at(row).time, cellsOf(row));
}
