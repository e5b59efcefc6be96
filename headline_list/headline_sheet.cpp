// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_columns.h"
#include "headline_list/headline_list.h"
#include "host/contract/sync_info.h"

namespace {

constexpr int rowHeight = 16;

}  // namespace

CSuperSheetWnd* CreateHeadlineSheet(QWidget* parent, const QRect& rectangle, int newsType,
                                    BKQuoteInterface& backEnd) {
    auto* sheet = new CSuperSheetWnd(new CSheetBuilder, parent);
    if (!sheet->bCreateSheet()) {
        delete sheet;
        return nullptr;
    }
    sheet->vSetThinBar(CSyncInfo::GetSettingCFG()->CApi_GetThinBarStatus());
    sheet->setGeometry(rectangle);
    sheet->vSetSmoothHorizontalScroll(true);
    sheet->vStretchLastColumn(false);
    sheet->vSetHeaderRowHeight(rowHeight);
    sheet->vSetRowHeight(rowHeight);
    for (int place = 0; const HeadlineColumnKind* column = ColumnAt(newsType, place); ++place)
        sheet->vInsertColumn(column->width, column->alignment, QString(column->key));
    SetHeadlineSheetTexts(*sheet, newsType, backEnd);
    sheet->show();
    return sheet;
}

void SetHeadlineSheetTexts(CSuperSheetWnd& sheet, int newsType, BKQuoteInterface& backEnd) {
    for (int place = 0; const HeadlineColumnKind* column = ColumnAt(newsType, place); ++place) {
        const QString toolTip =
            column->toolTipKey.isEmpty() ? QString() : LangText(backEnd, column->toolTipKey);
        sheet.vSetHeaderText(place, LangText(backEnd, column->headerKey), toolTip);
    }
}
