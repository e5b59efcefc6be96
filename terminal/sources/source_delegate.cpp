// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/source_delegate.h"

#include "host/controls/row_look.h"
#include "terminal/sources/source_model.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int twoLines = 44;    // pixels at the least
constexpr int aroundLines = 8;  // of them together
constexpr int iconSize = 16;
constexpr int lampSize = 8;
constexpr int barWidth = 3;
constexpr int gap = 8;
constexpr qreal smallShare = 0.9;  // of the font's size, for the second line

QFont smaller(QFont font) {
    font.setPointSizeF(font.pointSizeF() * smallShare);
    return font;
}

QColor colourOf(ColourRole role, const QStyleOptionViewItem& option, QPalette::ColorRole otherwise) {
    return roleColour(role, option.palette.color(QPalette::Active, otherwise));
}

void drawLine(QPainter& painter, const QRect& place, const QString& text, Qt::Alignment alignment) {
    // The face of another script may need more than the line has.
    painter.drawText(place, int(alignment | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip),
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
}

// In at most two lines; what does not fit ends in an ellipsis.
void drawWrapped(QPainter& painter, const QRect& place, const QString& text) {
    const int height = textHeight(painter.font());
    QTextLayout layout(text, painter.font());
    layout.beginLayout();
    QTextLine first = layout.createLine();
    first.setLineWidth(place.width());
    layout.endLayout();
    const qsizetype broken = first.textStart() + first.textLength();
    if (broken >= text.size()) {
        drawLine(painter, place, text, Qt::AlignLeft);
        return;
    }
    QRect line(place.left(), place.center().y() - height + 1, place.width(), height);
    drawLine(painter, line, text.left(broken).trimmed(), Qt::AlignLeft);
    line.translate(0, height);
    drawLine(painter, line, text.mid(broken), Qt::AlignLeft);
}

void drawGround(QPainter& painter, const QStyleOptionViewItem& option, bool isFirst) {
    const bool hasFocus = option.state & QStyle::State_Active;
    if (option.state & QStyle::State_Selected) {
        painter.fillRect(option.rect, option.palette.color(hasFocus ? QPalette::Active : QPalette::Inactive,
                                                           QPalette::Highlight));
        if (isFirst && hasFocus)
            painter.fillRect(QRect(option.rect.topLeft(), QSize(barWidth, option.rect.height())),
                             option.palette.color(QPalette::Link));
    } else if (option.state & QStyle::State_MouseOver) {
        painter.fillRect(option.rect, option.palette.color(QPalette::Light));
    }
    painter.fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                     option.palette.color(QPalette::Mid));
}

void drawBox(QPainter& painter, const QStyleOptionViewItem& option, bool isOn) {
    const QStyle& style = *option.widget->style();
    QStyleOptionButton box;
    box.initFrom(option.widget);
    const int side = style.pixelMetric(QStyle::PM_IndicatorWidth, &box, option.widget);
    box.rect = QStyle::alignedRect(option.direction, Qt::AlignCenter, QSize(side, side), option.rect);
    box.state = QStyle::State_Enabled | (isOn ? QStyle::State_On : QStyle::State_Off);
    style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, &painter, option.widget);
}

void drawTitle(QPainter& painter, const QStyleOptionViewItem& option, const SourceRow& row) {
    const QColor weak = option.palette.color(QPalette::Active, QPalette::PlaceholderText);
    const QRect place = option.rect.adjusted(4, 0, -gap, 0);
    const QRect icon(place.left(), place.center().y() - iconSize / 2, iconSize, iconSize);
    drawLineIcon(painter, row.icon, icon, weak);
    const QFont small = smaller(option.font);
    const int height = textHeight(option.font);
    const int below = textHeight(small);
    QRect line(icon.right() + gap, place.center().y() - (height + below) / 2,
               place.right() - icon.right() - gap, height);
    painter.setPen(row.isOn ? option.palette.color(QPalette::Active, QPalette::Text) : weak);
    drawLine(painter, line, row.title, Qt::AlignLeft);
    line = QRect(line.left(), line.bottom() + 1, line.width(), below);
    painter.setFont(small);
    painter.setPen(weak);
    drawLine(painter, line, row.detail, Qt::AlignLeft);
}

void drawState(QPainter& painter, const QStyleOptionViewItem& option, const SourceRow& row) {
    const QRect place = option.rect.adjusted(4, 0, -gap, 0);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colourOf(row.lamp, option, QPalette::PlaceholderText));
    painter.drawEllipse(QRect(place.left(), place.center().y() - lampSize / 2 + 1, lampSize, lampSize));
    painter.setPen(
        option.palette.color(QPalette::Active, row.isOn ? QPalette::Text : QPalette::PlaceholderText));
    painter.setFont(smaller(option.font));
    drawWrapped(painter, place.adjusted(lampSize + gap, 0, 0, 0), row.state);
}

}  // namespace

QSize SourceDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    const int lines = textHeight(option.font) + textHeight(smaller(option.font));
    return {0, std::max(twoLines, lines + aroundLines)};
}

void SourceDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                           const QModelIndex& index) const {
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    const auto* model = qobject_cast<const SourceModel*>(index.model());
    const SourceRow& row = model->shown(index.row());
    painter->save();
    painter->setFont(option.font);
    drawGround(*painter, option, index.column() == 0);
    switch (index.column()) {
        case SourceModel::On:
            drawBox(*painter, option, row.isOn);
            break;
        case SourceModel::Source:
            drawTitle(*painter, option, row);
            break;
        case SourceModel::State:
            drawState(*painter, option, row);
            break;
        default:
            painter->setPen(option.palette.color(QPalette::Active,
                                                 row.isOn ? QPalette::Text : QPalette::PlaceholderText));
            drawLine(*painter, option.rect.adjusted(4, 0, -gap, 0), option.text, option.displayAlignment);
    }
    painter->restore();
}

}  // namespace wirepane
