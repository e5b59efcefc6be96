// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_list.h"

#include "headline_list/cell_state.h"
#include "headline_list/headline_columns.h"
#include "headline_list/headline_table.h"
#include "headline_list/list_state.h"
#include "headline_list/reading_place.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/clock.h"
#include "host/contract/headline_looks.h"
#include "host/contract/news_record.h"
#include "host/contract/reading_marks.h"

#include <utility>

namespace wirepane {

namespace {

CHeadlineTable entryOf(const CHeadline& headline) {
    return {headline.time, headline.sequence, headline.service, 0, 0};
}

}  // namespace

HeadlineList::HeadlineList(const ListKind& listKind, BKQuoteInterface& newsBackEnd, ListOwner& listOwner)
    : kind(listKind),
      backEnd(newsBackEnd),
      owner(listOwner),
      state(std::make_unique<State>(newsBackEnd)),
      table(state->table),
      cells(state->cells),
      heldPlace(state->heldPlace) {
    state->record = dynamic_cast<NewsRecord*>(&backEnd);
    state->marks = dynamic_cast<ReadingMarks*>(&backEnd);
    state->looks = dynamic_cast<HeadlineLooks*>(&backEnd);
    if (state->looks != nullptr)
        QObject::connect(&state->looks->lookTeller(), &LookTeller::changed, &afterPainting, [this] {
            if (sheet != nullptr)
                sheet->viewport()->update();
        });
    afterPainting.setSingleShot(true);
    QObject::connect(&afterPainting, &QTimer::timeout, &afterPainting, [this] { table.buildIndex(); });
    QObject::connect(&state->fading, &QTimer::timeout, &state->fading, [this] { fade(); });
    state->clock.start();
}

HeadlineList::~HeadlineList() {
    if (sheet != nullptr)
        sheet->setCells(nullptr);
}

void HeadlineList::setGrid(CSuperSheetWnd* grid) {
    sheet = grid;
    if (sheet == nullptr)
        return;
    sheet->setCells(this);
    watchFolds();
    QObject::connect(sheet, &CSuperSheetWnd::columnDragged, &afterPainting,
                     [this](int place, int width) { takeDraggedWidth(place, width); });
    QObject::connect(sheet, &CSuperSheetWnd::columnEndDoubleClicked, &afterPainting,
                     [this](int place) { takeDraggedWidth(place, 0); });
}

void HeadlineList::setTable(const TableRuns& runs) {
    table.assign(runs);
    afterPainting.start(0);
}

void HeadlineList::setTable(const HeadlineTable& other) {
    table = other;
    afterPainting.start(0);
}

void HeadlineList::forgetWrittenCells() {
    cells.keepOnly({}, kind.showDate);
}

void HeadlineList::vFillHeadlineTable() {
    if (sheet == nullptr)
        return;
    cells.clear();
    state->arrivals.clear();
    sheet->clearRows();
    sheet->addRows(table.size());
    sheet->resetRowBkColor();
    if (heldPlace)
        state->folds.tellAll();
    else
        state->folds.clear();
    showFolds();
    owner.rowsReplaced(kind.index);
    if (heldPlace) {
        std::exchange(heldPlace, std::nullopt)->restore(table, *sheet);
        return;
    }
    sheet->resetScroll();
    sheet->viewport()->repaint();
}

void HeadlineList::holdPlace() {
    if (sheet != nullptr)
        heldPlace.emplace(table, *sheet);
}

void HeadlineList::refill() {
    vFillHeadlineTable();
    vFillHeadline();
}

HeadlinePlace HeadlineList::vProcessNewHeadline(const CHeadline& headline, bool showDate,
                                                const QString& symbol) {
    if (sheet == nullptr)
        return {};
    noteArrival(headline);
    const int known = table.rowOfSameDay(keyOf(headline));
    if (known < 0) {
        const int row = table.insertPosition(headline.time);
        noteBurst(headline, symbol);
        vInsertHeadline(row, headline, showDate);
        return {row, -1};
    }
    const int old = table.rowOfNumber(keyOf(headline));
    if (old != known) {
        // Another day's row goes, and this day's stays below the new one.
        vUpdateHeadline(known, headline, showDate);
        vInsertHeadline(0, headline, showDate);
        vDeleteHeadline(old + 1);
        return {0, old};
    }
    // Out before in, so that the table never has two rows of one number to tell apart.
    const HeadlineKey oldKey = keyOf(table.at(old));
    table.remove(old);
    table.insert(0, entryOf(headline));
    state->folds.letGo(oldKey, keyOf(headline));
    forgetCells(oldKey);
    sheet->moveRowToTop(old);
    writeHeadline(0, headline, showDate);
    return {0, old};
}

void HeadlineList::vInsertHeadline(int row, const CHeadline& headline, bool showDate) {
    if (sheet == nullptr || row < 0 || row > table.size())
        return;
    table.insert(row, entryOf(headline));
    sheet->insertRow(row);
    writeHeadline(row, headline, showDate);
}

void HeadlineList::replaceHeadline(int row, const CHeadline& headline) {
    if (sheet == nullptr || row < 0 || row >= table.size())
        return;
    const HeadlineKey oldKey = keyOf(table.at(row));
    if (oldKey == keyOf(headline))
        return;
    const bool showDate = kind.showDate != cells.hasOtherTimeForm(oldKey);
    table.remove(row);
    table.insert(row, entryOf(headline));
    state->folds.letGo(oldKey, keyOf(headline));
    forgetCells(oldKey);
    showFolds();
    writeHeadline(row, headline, showDate);
}

HeadlinePlace HeadlineList::takeOut(int row) {
    if (sheet == nullptr || row < 0 || row >= table.size())
        return {};
    vDeleteHeadline(row);
    return {-1, row};
}

void HeadlineList::vDeleteHeadline(int row) {
    if (sheet == nullptr || row < 0 || row >= table.size())
        return;
    const HeadlineKey key = keyOf(table.at(row));
    table.remove(row);
    forgetCells(key);
    sheet->deleteRow(row);
}

void HeadlineList::forgetCells(const HeadlineKey& key) {
    if (table.rowOf(key) >= 0)
        return;
    cells.forget(key);
    state->folds.forget(key);
}

const WrittenCells* HeadlineList::cellsOf(int row) const {
    return row >= 0 && row < table.size() ? cells.find(keyOf(table.at(row))) : nullptr;
}

const HeadlineColumnKind* HeadlineList::columnAt(int place) const {
    return headlineColumnAt(owner.GetNewsType(), place);
}

QString HeadlineList::text(int row, int column) const {
    if (state->prices.holds(column) && row >= 0 && row < table.size())
        return state->prices.text(keyOf(table.at(row)), column);
    const WrittenCells* written = cellsOf(row);
    const HeadlineColumnKind* shown = columnAt(column);
    if (written == nullptr || shown == nullptr)
        return {};
    if (shown->column == HeadlineColumn::Time && kind.showDate && state->options[ViewOption::OtherYears]) {
        const QString day = otherYearText(table.at(row).time, host_clock::now());
        if (!day.isEmpty())
            return day;
    }
    return written->textOf(shown->column);
}

QColor HeadlineList::textColour(int row, int column) const {
    if (state->prices.holds(column) && row >= 0 && row < table.size())
        return state->prices.colour(keyOf(table.at(row)), column);
    const HeadlineColumnKind* shown = columnAt(column);
    if (shown == nullptr || shown->colour == nullptr || row < 0 || row >= table.size())
        return {};
    return shown->colour(owner, table.at(row).time, cellsOf(row));
}

}  // namespace wirepane
