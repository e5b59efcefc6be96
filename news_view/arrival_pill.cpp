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

ArrivalPill::ArrivalPill(ViewContext& context, const CommonParts& common) : view(context), parts(common) {}

void ArrivalPill::watch(CSuperSheetWnd& grid, ListIndex list) {
    grid.installEventFilter(this);
    connect(&grid, &CSuperSheetWnd::scrolledVertically, this, [this, list] { noteScrolled(list); });
}

void ArrivalPill::noteMoved(ListIndex list, const HeadlinePlace& place) {
    const CSuperSheetWnd* const grid = view.listOf(list).grid();
    if (grid == nullptr || place.row < 0 || place.oldRow >= 0 ||
        !parts.settings.options[ViewOption::ArrivalPill] || place.row >= grid->firstVisibleRowToCome())
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
    return entry != above.end() ? entry->second : 0;
}

bool ArrivalPill::carryOut(int command) {
    if (command != ids::showNewest)
        return false;
    if (parts.settings.options[ViewOption::ArrivalPill])
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

void ArrivalPill::follow() {
    isPosted = false;
    CSuperSheetWnd* const grid = view.listOf(view.shownList()).grid();
    const int rows = count();
    if (rows == 0 || grid == nullptr || !grid->isVisible()) {
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
    const QString said = langText(parts.backEnd, keys::newAbove).arg(rows);
    button->setFont(grid->headingFont());
    button->showText(said, keyOfCommand(ids::showNewest).toString(QKeySequence::NativeText));
    button->setAccessibleName(langText(parts.backEnd, keys::goToNewest).arg(said));
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
