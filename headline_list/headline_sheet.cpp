// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_columns.h"
#include "headline_list/headline_list.h"
#include "host/contract/sync_info.h"
#include "host/controls/sheet_builder.h"

namespace wirepane {

namespace {

constexpr int rowHeight = 16;

}  // namespace

CSuperSheetWnd* createHeadlineSheet(QWidget* parent, const QRect& rectangle, NewsType newsType,
                                    BKQuoteInterface& backEnd) {
    auto* sheet = new CSuperSheetWnd(new CSheetBuilder, parent);
    if (!sheet->bCreateSheet()) {
        delete sheet;
        return nullptr;
    }
    sheet->setThinBar(CSyncInfo::GetSettingCFG()->CApi_GetThinBarStatus());
    sheet->setGeometry(rectangle);
    sheet->setSmoothHorizontalScroll(true);
    sheet->stretchLast(false);
    sheet->setHeaderRowHeight(rowHeight);
    sheet->setHeightOfRows(rowHeight);
    for (int place = 0; const HeadlineColumnKind* column = headlineColumnAt(newsType, place); ++place)
        sheet->insertColumn(column->width, column->alignment, QString(column->key));
    setHeadlineSheetTexts(*sheet, newsType, backEnd);
    sheet->show();
    return sheet;
}

void setHeadlineSheetTexts(CSuperSheetWnd& sheet, NewsType newsType, BKQuoteInterface& backEnd) {
    for (int place = 0; const HeadlineColumnKind* column = headlineColumnAt(newsType, place); ++place) {
        const QString toolTip =
            column->toolTipKey.isEmpty() ? QString() : langText(backEnd, column->toolTipKey);
        sheet.setHeaderText(place, langText(backEnd, column->headerKey), toolTip);
    }
}

}  // namespace wirepane
