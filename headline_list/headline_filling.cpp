// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// How the rows of a headline list are written.
#include "headline_list/cell_state.h"
#include "headline_list/cell_texts.h"
#include "headline_list/headline_columns.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/language_keys.h"
#include "headline_list/list_state.h"
#include "headline_list/relation_matcher.h"
#include "headline_list/service_entry.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/fixed_services.h"

#include <utility>

namespace wirepane {

std::vector<unsigned char> HeadlineList::servicesToAsk() const {
    if (kind.fill == FillServices::WarrantOnly)
        return {warrantService};
    std::vector<unsigned char> services;
    for (const ServiceEntry& entry : owner.allServices()) {
        if (entry.selected || kind.fill == FillServices::Every)
            services.push_back(entry.service);
    }
    return services;
}

std::vector<CHeadlineTable> HeadlineList::vGetShowedHeadlineTable() const {
    return sheet != nullptr ? entriesAt(sheet->rowsOnScreen()) : std::vector<CHeadlineTable>();
}

std::vector<CHeadlineTable> HeadlineList::entriesAt(const std::vector<int>& rows) const {
    std::vector<CHeadlineTable> entries;
    for (const int row : rows)
        entries.push_back(table.at(row));
    return entries;
}

std::vector<CHeadline> HeadlineList::headlinesOf(const std::vector<CHeadlineTable>& entries) const {
    std::vector<CHeadline> headlines;
    if (entries.empty())
        return headlines;
    for (const unsigned char service : servicesToAsk())
        backEnd.BKQNEWS_iGetHeadline(service, headlines, entries);
    return headlines;
}

void HeadlineList::vFillHeadline() {
    vUpdateHeadline(vGetShowedHeadlineTable());
}

void HeadlineList::vUpdateHeadline(const std::vector<CHeadlineTable>& entries) {
    for (const CHeadline& headline : headlinesOf(entries)) {
        const int row = table.rowOf(keyOf(headline));
        if (row >= 0)
            vUpdateHeadline(row, headline, kind.showDate);
    }
}

bool HeadlineList::reCoverHeadline(const std::vector<int>& rows) {
    const QString placeholder = langText(backEnd, keys::recover);
    std::vector<CHeadlineTable> wanted;
    for (const int row : rows) {
        if (sheet == nullptr || row < 0 || row >= table.size())
            continue;
        wanted.push_back(table.at(row));
        vFillSheet(row, timeText(wanted.back().time, kind.showDate), placeholder, placeholder);
    }
    std::vector<CHeadline> atHand;
    if (!wanted.empty()) {
        for (const unsigned char service : servicesToAsk())
            backEnd.BKQNEWS_bReCoverHeadline(service, atHand, wanted);
    }
    return !atHand.empty();
}

void HeadlineList::vUpdataTopHeadline(bool showDate, const RelationMatcher* relation) {
    if (sheet == nullptr || table.empty())
        return;
    const int row = sheet->firstVisibleRow();
    for (const CHeadline& headline : headlinesOf(table.rows(row, 1))) {
        if (relation == nullptr || relation->CheckIsRelationSearch(headline, headline.categoryId, {}))
            vUpdateHeadline(row, headline, showDate);
    }
}

void HeadlineList::vFillTempHeadline() {
    if (sheet == nullptr)
        return;
    for (const int row : sheet->rowsOnScreen()) {
        const CHeadlineTable entry = table.at(row);
        const WrittenCells* written = cellsOf(row);
        const QString time = written != nullptr ? written->textOf(HeadlineColumn::Time) : QString();
        const bool right = written != nullptr && (time == timeText(entry.time, kind.showDate) ||
                                                  time == timeText(entry.time, !kind.showDate));
        if (!right)
            writeCells(row, placeholdersOf(entry, kind.showDate != cells.hasOtherTimeForm(keyOf(entry))));
    }
}

void HeadlineList::vUpdateHeadline(int row, const CHeadline& headline, bool showDate) {
    const WrittenCells* written = cellsOf(row);
    if (written != nullptr && written->textOf(HeadlineColumn::Title) == headline.title)
        return;
    // A row whose texts were let go is written as it was: a refresh alone changes nothing in it.
    const bool otherForm =
        written == nullptr && showDate == kind.showDate && cells.hasOtherTimeForm(keyOf(headline));
    writeHeadline(row, headline, showDate != otherForm);
}

void HeadlineList::writeHeadline(int row, const CHeadline& headline, bool showDate) {
    const QString category = owner.categoryNameOf(headline.service, headline.categoryId);
    WrittenCells written{{}, categoryColour(headline.service, category), showDate};
    for (const HeadlineColumnKind& column : headlineColumns)
        written.texts.push_back(column.text({headline, showDate, backEnd, owner}));
    writeCells(row, std::move(written));
}

// What is said of a row whose headline is not at hand.
WrittenCells HeadlineList::placeholdersOf(const CHeadlineTable& entry, bool showDate) const {
    const QString placeholder = langText(backEnd, keys::recover);
    CHeadline known;
    known.service = entry.service;
    known.time = entry.time;
    known.sequence = entry.sequence;
    WrittenCells written{{}, {}, showDate};
    for (const HeadlineColumnKind& column : headlineColumns)
        written.texts.push_back(column.ofEntry ? column.text({known, showDate, backEnd, owner})
                                               : placeholder);
    return written;
}

void HeadlineList::vFillSheet(int row, const QString& time, const QString& category, const QString& title) {
    if (row < 0 || row >= table.size())
        return;
    WrittenCells written = placeholdersOf(table.at(row), kind.showDate);
    written.textOf(HeadlineColumn::Time) = time;
    written.textOf(HeadlineColumn::Category) = category;
    written.textOf(HeadlineColumn::Title) = title;
    written.categoryColour = categoryColour(table.at(row).service, category);
    writeCells(row, std::move(written));
}

// By the name as the catalogue has it, not as it is shown.
QColor HeadlineList::categoryColour(unsigned char service, const QString& name) const {
    QColor text;
    QColor background;
    if (kindOf(HeadlineColumn::Category).isOf(owner.GetNewsType()))
        owner.categoryColourOf(service, name, text, background);
    return text;
}

void HeadlineList::writeCells(int row, WrittenCells&& written) {
    if (sheet == nullptr || row < 0 || row >= table.size())
        return;
    if (state->widths.note(written))
        applyWidths();
    cells.write(keyOf(table.at(row)), std::move(written));
    if (cells.size() > CellState::enough)
        letCellsGo();
    sheet->invalidateRow(row);
    owner.categoryStateAfterWriting();
}

// Pushes write rows that nobody may ever look at. What is on screen stays, and the page at the top, where a
// reader of the news comes back to.
void HeadlineList::letCellsGo() {
    std::vector<CHeadlineTable> kept = entriesAt(sheet->rowsOnScreenToCome());
    const std::vector<CHeadlineTable> top = table.rows(0, sheet->rowsPerPage() + 1);
    kept.insert(kept.end(), top.begin(), top.end());
    cells.keepOnly(kept, kind.showDate);
}

}  // namespace wirepane
