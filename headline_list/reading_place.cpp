// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/reading_place.h"

#include <algorithm>
#include <numeric>

namespace wirepane {

namespace {

std::vector<HeadlineKey> keysOf(const std::vector<CHeadlineTable>& entries) {
    std::vector<HeadlineKey> keys;
    for (const CHeadlineTable& entry : entries)
        keys.push_back(keyOf(entry));
    return keys;
}

}  // namespace

ReadingPlace::ReadingPlace(const HeadlineTable& table, const CSuperSheetWnd& sheet) {
    const int first = sheet.firstVisibleRow();
    if (first > 0 || sheet.isHeld())
        onScreen = keysOf(table.rows(first, sheet.rowsPerPage() + 1));
    if (const int row = sheet.cptGetFocusNdx().y(); row >= 0 && row < table.size())
        current = keyOf(table.at(row));
    std::vector<int> rows;
    sheet.vGetAllSelectionNdx(rows);
    allSelected = rows.size() > 1 && static_cast<int>(rows.size()) == table.size();
    for (const int row : rows) {
        if (allSelected || selected.size() == mostSelected || row >= table.size())
            break;
        selected.push_back(keyOf(table.at(row)));
    }
}

void ReadingPlace::restore(const HeadlineTable& table, CSuperSheetWnd& sheet) const {
    std::vector<int> rows;
    if (allSelected) {
        rows.resize(static_cast<std::size_t>(table.size()));
        std::iota(rows.begin(), rows.end(), 0);
    }
    for (const HeadlineKey& key : selected) {
        if (const int row = table.rowOf(key); row >= 0)
            rows.push_back(row);
    }
    sheet.selectRows(rows, current ? table.rowOf(*current) : -1);
    for (std::size_t i = 0; i < onScreen.size(); ++i) {
        const int row = table.rowOf(onScreen[i]);
        if (row < 0)
            continue;
        sheet.setFirstVisibleRow(std::max(0, row - static_cast<int>(i)));
        return;
    }
    sheet.setFirstVisibleRow(0);
}

}  // namespace wirepane
