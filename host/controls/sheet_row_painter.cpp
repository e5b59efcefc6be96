// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/sheet_row_painter.h"

#include "host/controls/row_look.h"
#include "host/controls/sheet_cells.h"

#include <QPaintDevice>
#include <QPainter>

#include <algorithm>

namespace wirepane {

namespace {

constexpr int roomForTag = 420;  // a cell that is narrower shows none
constexpr int roomForMark = 160;
constexpr int tagEdge = 18;  // from the cell's right edge: the scroll bar lies there
constexpr int tagGap = 10;   // between text and tag
constexpr int radius = 3;
constexpr int dotSize = 6;
constexpr int dotLeft = 6;
constexpr int mostKept = 64;

qreal baselineIn(const QRect& room, const QFont& font) {
    const QFontMetricsF metrics(font);
    return room.top() + (room.height() - metrics.height()) / 2 + metrics.ascent();
}

}  // namespace

void SheetRowPainter::setFont(const QFont& font) {
    if (hasFont && font == texts.font())
        return;
    hasFont = true;
    texts.setFont(font);
    QFont heavy = font;
    heavy.setWeight(std::max(font.weight(), QFont::Medium));
    heavyTexts.setFont(heavy);
    tags.setFont(sizedFont(font, tagShare));
    chipFont = sizedFont(font, chipShare);
    chipFont.setWeight(QFont::DemiBold);
    chips.clear();
}

void SheetRowPainter::forgetTexts() {
    texts.forget();
    heavyTexts.forget();
    tags.forget();
}

void SheetRowPainter::forgetPictures() {
    chips.clear();
    pens.clear();
}

// A pen made of a colour takes memory.
void SheetRowPainter::setPen(QPainter& painter, const QColor& colour) {
    if (pens.size() > mostKept)
        pens.clear();
    auto pen = pens.find(colour.rgba());
    if (pen == pens.end())
        pen = pens.insert(colour.rgba(), QPen(colour));
    painter.setPen(*pen);
}

int SheetRowPainter::paintTag(QPainter& painter, const QString& tag, const QRect& room,
                              const QColor& colour) {
    const DrawnText& drawn = tags.line(tag, roomForTag / 2);
    const qreal left = room.right() + 1 - drawn.width;
    setPen(painter, colour);
    DrawnTexts::draw(painter, drawn, left, baselineIn(room, tags.font()));
    return static_cast<int>(left) - tagGap;
}

int SheetRowPainter::paintTags(QPainter& painter, const SheetCells& cells, const Cell& cell,
                               const QPalette& palette) {
    const int width = cell.room.width();
    const QString tag = width < roomForTag ? QString() : cells.tag(cell.row, cell.column);
    const QString mark = width < roomForMark ? QString() : cells.mark(cell.row, cell.column);
    if (tag.isEmpty() && mark.isEmpty())
        return cell.room.right() + 1;
    QRect room = cell.room.adjusted(0, 0, -tagEdge, 0);
    if (!tag.isEmpty())
        room.setRight(paintTag(painter, tag, room, colours.weakColour(palette)) - 1);
    return mark.isEmpty() ? room.right() + 1
                          : paintTag(painter, mark, room, textColour(cells, cell, palette));
}

QColor SheetRowPainter::textColour(const SheetCells& cells, const Cell& cell, const QPalette& palette) const {
    const QColor own = cells.textColour(cell.row, cell.column);
    if (own.isValid() || cell.isSelected)
        return own.isValid() ? own : colours.textColour(palette);
    const SheetCells::Tone tone = cells.tone(cell.row);
    const bool isPale =
        tone == SheetCells::Tone::Read || (tone == SheetCells::Tone::Seen && cell.column == 0);
    return isPale ? colours.weakColour(palette) : colours.textColour(palette);
}

void SheetRowPainter::paintDot(QPainter& painter, const QRect& cell, const QPalette& palette) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.accentColour(palette));
    painter.drawEllipse(
        QRectF(cell.left() + dotLeft, cell.top() + (cell.height() - dotSize) / 2.0, dotSize, dotSize));
    painter.restore();
}

void SheetRowPainter::paint(QPainter& painter, const SheetCells& cells, const Cell& cell,
                            const QPalette& palette) {
    const QString text = cells.text(cell.row, cell.column);
    if (text.isEmpty())
        return;
    const int right = paintTags(painter, cells, cell, palette);
    DrawnTexts& lines = cells.tone(cell.row) == SheetCells::Tone::Unread ? heavyTexts : texts;
    const DrawnText& drawn = lines.line(text, right - cell.room.left(), &cells, cell.column);
    qreal x = cell.room.left();
    if (cell.alignment & Qt::AlignRight)
        x = right - drawn.width;
    if (drawn.chip.length > 0) {
        const QPixmap& chip = chipPicture(painter, drawn.chipLabel, drawn.chip.urgent, palette);
        const qreal high = chip.height() / chip.devicePixelRatio();
        painter.drawPixmap(QPointF(x, cell.room.top() + static_cast<int>((cell.room.height() - high) / 2)),
                           chip);
        x += chip.width() / chip.devicePixelRatio() + DrawnTexts::chipGap;
    }
    paintGrounds(painter, drawn, x, cell.room);
    setPen(painter, textColour(cells, cell, palette));
    const qreal baseline = baselineIn(cell.room, texts.font());
    DrawnTexts::draw(painter, drawn, x, baseline);
    if (cells.isStruck(cell.row, cell.column)) {
        const qreal middle = baseline - QFontMetricsF(texts.font()).xHeight() / 2;
        painter.drawLine(QPointF(x, middle), QPointF(std::min(x + drawn.width, qreal(right)), middle));
    }
}

void SheetRowPainter::paintGrounds(QPainter& painter, const DrawnText& drawn, qreal x,
                                   const QRect& room) const {
    if (drawn.grounds.isEmpty())
        return;
    const qreal height = std::min<qreal>(room.height() - 2, textHeight(texts.font()));
    const qreal top = room.top() + (room.height() - height) / 2;
    for (const DrawnText::Ground& ground : drawn.grounds) {
        const qreal left = x - drawn.overhang + ground.left;
        painter.fillRect(QRectF(left - 1, top, ground.right - ground.left + 2, height),
                         groundOf(colours.hits, ground.tint));
    }
}

const QPixmap& SheetRowPainter::chipPicture(const QPainter& painter, const QString& label, bool urgent,
                                            const QPalette& palette) {
    if (const qreal ratio = painter.device()->devicePixelRatioF(); ratio != chipRatio) {
        chips.clear();
        chipRatio = ratio;
    }
    if (const auto known = chips.constFind(label); known != chips.cend())
        return *known;
    const QSize size(texts.chipWidth(label), textHeight(chipFont) + 1);
    QPixmap picture((QSizeF(size) * chipRatio).toSize());
    picture.setDevicePixelRatio(chipRatio);
    picture.fill(Qt::transparent);
    QPainter drawing(&picture);
    drawing.setRenderHint(QPainter::Antialiasing);
    drawing.setPen(urgent ? QPen(Qt::NoPen) : QPen(colours.borderColour(palette)));
    drawing.setBrush(urgent ? QBrush(colours.urgentColour(palette)) : QBrush(Qt::NoBrush));
    const QRectF outline{QPointF(), QSizeF(size)};
    constexpr qreal half = 0.5;  // a line of one pixel lies within the pixel
    drawing.drawRoundedRect(urgent ? outline : outline.adjusted(half, half, -half, -half), radius, radius);
    drawing.setFont(chipFont);
    drawing.setPen(urgent ? colours.onUrgentColour() : colours.textColour(palette));
    drawing.drawText(outline, Qt::AlignCenter | Qt::TextSingleLine, label);
    return *chips.insert(label, picture);
}

}  // namespace wirepane
