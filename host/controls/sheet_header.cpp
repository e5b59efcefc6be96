// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/sheet_header.h"

#include "host/controls/sheet_delegate.h"

#include <QPaintEvent>
#include <QPainter>

namespace wirepane {

SheetHeader::SheetHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(false);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Interactive);
    setMinimumSectionSize(1);
}

QColor SheetHeader::shownBackground() const {
    return background.isValid() ? background : palette().color(QPalette::Button);
}

QColor SheetHeader::shownLine() const {
    if (look.finished && line.isValid())
        return line;
    QColor faint = shownText();
    faint.setAlpha(60);
    return faint;
}

bool SheetHeader::event(QEvent* event) {
    if (look.finished && (event->type() == QEvent::Enter || event->type() == QEvent::Leave))
        viewport()->update();
    return QHeaderView::event(event);
}

QColor SheetHeader::shownText() const {
    return text.isValid() ? text : palette().color(QPalette::ButtonText);
}

void SheetHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
    if (!rect.isValid())
        return;
    painter->fillRect(rect, shownBackground());
    if (rect.right() < viewport()->width() - 1 && (!look.finished || underMouse()))
        painter->fillRect(QRect(rect.right(), rect.top() + 3, 1, rect.height() - 6), shownLine());
    painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), shownLine());
    QRect room = SheetDelegate::textRoom(rect, logicalIndex, look).adjusted(0, 0, 0, -1);
    if (isSortIndicatorShown() && sortIndicatorSection() == logicalIndex)
        room.setRight(paintSortMark(*painter, room));
    const QVariant alignment = model()->headerData(logicalIndex, Qt::Horizontal, Qt::TextAlignmentRole);
    const QString caption = model()->headerData(logicalIndex, Qt::Horizontal, Qt::DisplayRole).toString();
    painter->setPen(shownText());
    painter->drawText(room, static_cast<int>(alignment.value<Qt::Alignment>()) | Qt::TextSingleLine,
                      fontMetrics().elidedText(caption, Qt::ElideRight, room.width()));
}

int SheetHeader::paintSortMark(QPainter& painter, const QRect& room) const {
    constexpr int half = 4;  // of the mark's width
    const QPoint middle(room.right() - half, room.center().y());
    const int down = sortIndicatorOrder() == Qt::DescendingOrder ? 1 : -1;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shownText());
    painter.drawPolygon(QPolygon(
        {middle + QPoint(-half, -2 * down), middle + QPoint(half, -2 * down), middle + QPoint(0, 3 * down)}));
    painter.restore();
    return middle.x() - half - 2;
}

void SheetHeader::paintEvent(QPaintEvent* event) {
    QHeaderView::paintEvent(event);
    // The base fills what is right of the last section from the style: keep the row in one colour.
    const int end = length() - offset();
    if (end >= viewport()->width())
        return;
    const QRect rest(end, 0, viewport()->width() - end, height());
    QPainter painter(viewport());
    painter.fillRect(rest, shownBackground());
    if (look.finished)
        painter.fillRect(QRect(rest.left(), rest.bottom(), rest.width(), 1), shownLine());
}

}  // namespace wirepane
