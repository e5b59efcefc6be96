// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_list.h"
#include "headline_list/language_keys.h"
#include "host/contract/sync_info.h"

#include <vector>

namespace {

constexpr int rowHeight = 16;

struct SheetColumn {
    int width;
    QLatin1StringView headerKey;
};

const std::vector<SheetColumn>& columnsOf(int newsType) {
    static const std::vector<SheetColumn> three{
        {100, keys::time}, {categoryColumnWidth, keys::category}, {300, keys::title}};
    static const std::vector<SheetColumn> two{{100, keys::time}, {300, keys::title}};
    return newsType == 1 ? two : three;
}

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
    for (const SheetColumn& column : columnsOf(newsType))
        sheet->vInsertColumn(column.width, Qt::AlignLeft | Qt::AlignVCenter);
    SetHeadlineSheetTexts(*sheet, newsType, backEnd);
    sheet->show();
    return sheet;
}

void SetHeadlineSheetTexts(CSuperSheetWnd& sheet, int newsType, BKQuoteInterface& backEnd) {
    int index = 0;
    for (const SheetColumn& column : columnsOf(newsType))
        sheet.vSetHeaderText(index++, LangText(backEnd, column.headerKey));
}
