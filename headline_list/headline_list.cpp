// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_list.h"

#include "headline_list/cell_texts.h"
#include "headline_list/language_keys.h"

HeadlineList::HeadlineList(const ListKind& listKind, BKQuoteInterface& newsBackEnd, ListOwner& listOwner)
    : kind(listKind), backEnd(newsBackEnd), owner(listOwner) {}

HeadlineList::~HeadlineList() {
    if (sheet != nullptr)
        sheet->vSetCells(nullptr);
}

void HeadlineList::vSetGrid(CSuperSheetWnd* grid) {
    sheet = grid;
    if (sheet != nullptr)
        sheet->vSetCells(this);
}

void HeadlineList::vSetTable(TableRuns runs) {
    table.assign(SortedNewestFirst(std::move(runs)));
}

void HeadlineList::vFillHeadlineTable() {
    if (sheet == nullptr)
        return;
    cells.clear();
    sheet->vClearRows();
    sheet->vAddRows(table.size());
    sheet->vResetRowBkColor();
    sheet->vResetScroll();
    sheet->viewport()->repaint();
}

void HeadlineList::vRefill() {
    vFillHeadlineTable();
    vFillHeadline();
}

std::vector<unsigned char> HeadlineList::servicesToAsk() const {
    if (kind.fill == FillServices::WarrantOnly)
        return {warrantService};
    std::vector<unsigned char> services;
    for (const ServiceEntry& entry : owner.vGetServices()) {
        if (entry.selected || kind.fill == FillServices::Every)
            services.push_back(entry.service);
    }
    return services;
}

std::vector<CHeadlineTable> HeadlineList::vGetShowedHeadlineTable() const {
    if (sheet == nullptr || sheet->iGetRowCount() == 0)
        return {};
    return table.rows(sheet->iGetFirstVisibleRow(), sheet->iGetRowsPerPage() + 1);
}

void HeadlineList::vFillHeadline() {
    const std::vector<CHeadlineTable> shown = vGetShowedHeadlineTable();
    if (shown.empty())
        return;
    std::vector<CHeadline> headlines;
    for (const unsigned char service : servicesToAsk())
        backEnd.BKQNEWS_iGetHeadline(service, headlines, shown);
    for (const CHeadline& headline : headlines) {
        const int row = table.rowOf(KeyOf(headline));
        if (row >= 0)
            vUpdateHeadline(row, headline, kind.showDate);
    }
}

void HeadlineList::vFillTempHeadline() {
    const QString placeholder = LangText(backEnd, keys::recover);
    const std::vector<CHeadlineTable> shown = vGetShowedHeadlineTable();
    int row = shown.empty() ? 0 : sheet->iGetFirstVisibleRow();
    for (const CHeadlineTable& entry : shown) {
        const QString time = TimeText(entry.time, kind.showDate);
        const WrittenCells* written = cellsOf(row);
        if (written == nullptr || written->time != time)
            vFillSheet(row, time, placeholder, placeholder);
        ++row;
    }
}

void HeadlineList::vUpdateHeadline(int row, const CHeadline& headline, bool showDate) {
    const WrittenCells* written = cellsOf(row);
    if (written != nullptr && written->title == headline.title)
        return;
    const QString category = owner.cszTransferCatIDToCatName(headline.categoryId);
    vFillSheet(row, TimeText(headline.time, showDate), ShownText(backEnd, headline.service, category),
               ShownText(backEnd, headline.service, headline.title));
}

void HeadlineList::vFillSheet(int row, const QString& time, const QString& category, const QString& title) {
    if (sheet == nullptr || row < 0 || row >= table.size())
        return;
    WrittenCells written{time, category, title, {}};
    QColor background;
    if (!hasTwoColumns())
        owner.GetCategoryColor(category, written.categoryColour, background);
    cells.write(KeyOf(table.at(row)), std::move(written));
    sheet->vInvalidateRow(row);
    owner.vCategoryStateAfterWriting();
}

const WrittenCells* HeadlineList::cellsOf(int row) const {
    return row >= 0 && row < table.size() ? cells.find(KeyOf(table.at(row))) : nullptr;
}

QString HeadlineList::Text(int row, int column) const {
    const WrittenCells* written = cellsOf(row);
    if (written == nullptr)
        return {};
    if (column == 0)
        return written->time;
    return column == 1 && !hasTwoColumns() ? written->category : written->title;
}

QColor HeadlineList::TextColour(int row, int column) const {
    const WrittenCells* written = column == 1 && !hasTwoColumns() ? cellsOf(row) : nullptr;
    return written != nullptr ? written->categoryColour : QColor();
}
