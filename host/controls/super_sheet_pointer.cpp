// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What a sheet does about the pointer over its rows: the row under it, tool tips.
#include "host/controls/sheet_builder.h"
#include "host/controls/sheet_cells.h"
#include "host/controls/sheet_delegate.h"
#include "host/controls/super_sheet_wnd.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>

using namespace wirepane;

bool CSuperSheetWnd::viewportEvent(QEvent* event) {
    takeUpRows();
    if (event->type() == QEvent::ToolTip && showToolTip(static_cast<const QHelpEvent&>(*event)))
        return true;
    if (event->type() == QEvent::MouseMove)
        hoverAt(static_cast<const QMouseEvent*>(event)->position().toPoint().y());
    else if (event->type() == QEvent::Leave || event->type() == QEvent::Hide)
        hoverAt(-1);
    return QTableView::viewportEvent(event);
}

// -1 where there is none, without taking anything up.
int CSuperSheetWnd::rowAtHeight(int y) const {
    if (y < 0 || builder == nullptr)
        return -1;
    const int row = rowAtPlace(verticalScrollBar()->value() + y / verticalHeader()->defaultSectionSize());
    return row < builder->rowCount() ? row : -1;
}

void CSuperSheetWnd::hoverAt(int y) {
    const int before = rowAtHeight(hoverY);
    hoverY = y;
    const int now = rowAtHeight(y);
    if (!delegate->look.finished || before == now)
        return;
    repaintRow(before);
    repaintRow(now);
}

bool CSuperSheetWnd::showToolTip(const QHelpEvent& event) {
    const int row = rowAtHeight(event.pos().y());
    const SheetCells* cells = builder != nullptr ? builder->cells() : nullptr;
    const QString text = row >= 0 && cells != nullptr ? cells->toolTip(row) : QString();
    if (text.isEmpty())
        return false;
    const int height = verticalHeader()->defaultSectionSize();
    const QRect place(0, event.pos().y() / height * height, viewport()->width(), height);
    // It takes what looks like markup for markup, and breaks lines early.
    constexpr qsizetype wide = 160;
    const QString asMarkup = text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
    const QLatin1String space(text.size() < wide ? "nowrap" : "normal");
    QToolTip::showText(event.globalPos(),
                       QStringLiteral("<p style='white-space:%1'>%2</p>").arg(space, asMarkup), viewport(),
                       place);
    return true;
}
