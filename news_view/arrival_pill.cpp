// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/arrival_pill.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/language_keys.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "news_view/command_keys.h"
#include "news_view/common_parts.h"
#include "news_view/pill_button.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"

#include <QEvent>
#include <QHeaderView>

#include <algorithm>
#include <utility>

namespace wirepane {

namespace {

constexpr int fromEdge = 14;  // the scroll bar lies there

}  // namespace

ArrivalPill::ArrivalPill(ViewContext& context, const CommonParts& common, Calls given)
    : view(context), parts(common), calls(std::move(given)) {}

void ArrivalPill::watch(CSuperSheetWnd& grid, ListIndex list) {
    grid.installEventFilter(this);
    connect(&grid, &CSuperSheetWnd::scrolledVertically, this, [this, list] { noteScrolled(list); });
}

void ArrivalPill::noteMoved(ListIndex list, const HeadlinePlace& place) {
    const CSuperSheetWnd* const grid = view.listOf(list).grid();
    if (grid == nullptr || place.row < 0 || place.oldRow >= 0 ||
        !(parts.settings.options[ViewOption::ArrivalPill] || calls.heldAt(list)) ||
        place.row >= grid->firstVisibleRowToCome())
        return;
    ++above[list];
    followSoon();
}

void ArrivalPill::forget(ListIndex list) {
    if (above.erase(list) > 0)
        followSoon();
}

void ArrivalPill::noteScrolled(ListIndex list) {
    const auto entry = above.find(list);
    if (entry == above.end())
        return;
    // What has come on screen is not above it any more.
    entry->second = std::min(entry->second, view.listOf(list).grid()->firstVisibleRow());
    if (entry->second == 0)
        above.erase(entry);
    followSoon();
}

int ArrivalPill::count() const {
    const auto entry = above.find(view.shownList());
    // Of a list that is shorter than its page nothing is above.
    return entry != above.end() ? std::min(entry->second, view.listOf(entry->first).grid()->firstVisibleRow())
                                : 0;
}

bool ArrivalPill::carryOut(int command) {
    if (command != ids::showNewest)
        return false;
    if (parts.settings.options[ViewOption::ArrivalPill] || calls.heldAt(view.shownList()))
        goToTop();
    return true;
}

void ArrivalPill::goToTop() {
    CSuperSheetWnd* const grid = view.listOf(view.shownList()).grid();
    if (grid == nullptr)
        return;
    if (button != nullptr && button->hasFocus())
        grid->setFocus(Qt::OtherFocusReason);
    above.erase(view.shownList());
    calls.letGo(view.shownList());
    grid->setFirstVisibleRow(0);
    view.refresh();
    followSoon();
}

bool ArrivalPill::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide || event->type() == QEvent::Resize ||
        event->type() == QEvent::Move)
        followSoon();
    return false;
}

// Once for what changes together: a burst of news costs one picture.
void ArrivalPill::followSoon() {
    if (!std::exchange(isPosted, true))
        QMetaObject::invokeMethod(this, &ArrivalPill::follow, Qt::QueuedConnection);
}

QString ArrivalPill::said(ListIndex list) const {
    const int rows = count();
    const auto matching = calls.heldAt(list);
    if (!matching)
        return rows > 0 ? langText(parts.backEnd, keys::newAbove).arg(rows) : QString();
    if (rows == 0)
        return langText(parts.backEnd, keys::heldList);
    return *matching > 0
               ? langText(parts.backEnd, keys::heldMatching).arg(rows).arg(std::min(*matching, rows))
               : langText(parts.backEnd, keys::heldWaiting).arg(rows);
}

void ArrivalPill::follow() {
    isPosted = false;
    CSuperSheetWnd* const grid = view.listOf(view.shownList()).grid();
    const ListIndex list = view.shownList();
    const QString told = grid != nullptr && grid->isVisible() ? said(list) : QString();
    if (told.isEmpty()) {
        if (button != nullptr) {
            if (button->hasFocus() && grid != nullptr)
                grid->setFocus(Qt::OtherFocusReason);
            button->hide();
        }
        return;
    }
    if (button == nullptr) {
        button = new PillButton(&parts.window);
        setWindowId(button, ids::showNewest);
        connect(button, &QAbstractButton::clicked, this, &ArrivalPill::goToTop);
    }
    button->setFont(grid->headingFont());
    const bool isHeld = calls.heldAt(list).has_value();
    button->showText(
        told, keyOfCommand(isHeld ? ids::holdList : ids::showNewest).toString(QKeySequence::NativeText));
    button->setAccessibleName(langText(parts.backEnd, isHeld ? keys::letListGo : keys::goToNewest).arg(told));
    button->setToolTip(button->accessibleName().toHtmlEscaped());
    const QHeaderView* const band = grid->horizontalHeader();
    const QSize size(button->sizeHint().width(),
                     std::min(button->sizeHint().height() + 2, band->height() - 2));
    const QPoint end = band->mapTo(&parts.window, QPoint(band->width() - fromEdge, band->height() / 2));
    button->setGeometry(end.x() - size.width(), end.y() - size.height() / 2, size.width(), size.height());
    button->raise();
    button->show();
}

}  // namespace wirepane
