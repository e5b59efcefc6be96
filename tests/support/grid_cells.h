// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/controls/super_sheet_wnd.h"

#include <QLatin1StringView>

namespace wirepane {

// A cell of a headline grid, by the key of its column.
inline QModelIndex cellOf(const CSuperSheetWnd& sheet, int row, QLatin1StringView column) {
    return sheet.model()->index(row, sheet.column(column));
}

inline QString cellText(const CSuperSheetWnd& sheet, int row, QLatin1StringView column) {
    return cellOf(sheet, row, column).data().toString();
}

}  // namespace wirepane
