// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The context menu of the news view.
#include "headline_list/language_keys.h"
#include "host/controls/plain_caption.h"
#include "host/controls/super_sheet_wnd.h"
#include "news_view/control_ids.h"
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
    if (!isVisible() || contextMenu != nullptr)
        return;
    // Not waited for: the view may go while the menu is up.
    contextMenu = new QMenu(this);
    contextMenu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* category = vAddCommand(keys::showCategory, ids::changeCategoryState);
    category->setCheckable(true);
    category->setChecked(settings.showCategory);
    if (currentMode <= static_cast<int>(ListIndex::Symbol)) {
        contextMenu->addSeparator();
        vAddCommand(keys::recoverHeadlineList, ids::recoverHeadlineTable);
    }
    if (onRow) {
        vAddCommand(keys::recoverStory, ids::recoverStory);
        if (stage.pGetDialog() != nullptr && !bPaneShowsStories())
            vAddCommand(keys::detailedStory, ids::showStory);
        vAddCommand(keys::printNews, ids::printNews);
        vAddCommand(keys::saveAsNews, ids::saveNews);
    }
    vAddWaitingCommands();
    const ListNotices notices = Notices();
    for (const auto& [kind, text] : notices.InOrder()) {
        if (const int command = CommandOf(kind); command != 0)
            vAddCommand(CaptionOfName(text), command);
    }
    contextMenu->popup(screen);
}

void TRVNewsCtrlView::vAddWaitingCommands() {
    if (!bAwaitsOutput())
        return;
    if (const int ready = iReadyForOutput(); ready > 0) {
        QAction* action = vAddCommand(keys::putOutReady, ids::putOutReady);
        action->setText(action->text().arg(ready));
    }
    vAddCommand(keys::stopWaiting, ids::stopWaiting);
}

QAction* TRVNewsCtrlView::vAddCommand(QLatin1StringView key, int id) {
    return vAddCommand(LangText(backEnd, key), id);
}

QAction* TRVNewsCtrlView::vAddCommand(const QString& caption, int id) {
    QAction* action = contextMenu->addAction(caption);
    action->setData(id);
    connect(action, &QAction::triggered, this, [this, id] { OnCommand(id); });
    return action;
}
