// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The context menu of the news view.
#include "host/controls/super_sheet_wnd.h"
#include "news_view/context_menu.h"
#include "news_view/trv_news_ctrl_view.h"

#include <QContextMenuEvent>

void TRVNewsCtrlView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        vContextMenuByKey();
    else if (!OnContextMenu(event->globalPos()))
        TRVQuoteBaseView::contextMenuEvent(event);
}

// At the row that the keys are at, as if it had been clicked.
void TRVNewsCtrlView::vContextMenuByKey() {
    CSuperSheetWnd* sheet = pGetCurrSheetView();
    if (sheet == nullptr)
        return;
    const int row = sheet->cptGetFocusNdx().y();
    sheet->vAutoVerScrolling(row);
    const QRect place = row < 0 ? QRect() : sheet->visualRect(sheet->currentIndex());
    const QPoint point(sheet->viewport()->width() / 4, row < 0 ? 0 : place.center().y());
    vPopUpMenu(sheet->viewport()->mapToGlobal(point), row >= 0);
}

bool TRVNewsCtrlView::OnContextMenu(const QPoint& screen) {
    const QPoint client = mapFromGlobal(screen);
    if (client.y() >= 0 && client.y() < iGetTitleHeight())
        return false;
    const CSuperSheetWnd* sheet = pGetCurrSheetView();
    const bool onRow =
        sheet != nullptr && sheet->isVisible() && sheet->iCalcRowNdx(sheet->mapFromGlobal(screen)) >= 0;
    vPopUpMenu(screen, onRow);
    return true;
}

void TRVNewsCtrlView::vPopUpMenu(const QPoint& screen, bool onRow) {
    if (!isVisible())
        return;
    const MenuSituation situation{static_cast<ListIndex>(currentMode), onRow, settings.showCategory,
                                  stage.pGetDialog() != nullptr && !bPaneShowsStories()};
    menu.popUp(contextMenuEntries(situation, backEnd, output.waitingCommands(), board.notices()), screen);
}
