// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/chip_line.h"

#include "host/contract/colour_roles.h"
#include "host/controls/line_icon.h"
#include "host/controls/row_look.h"
#include "host/controls/uncut_width.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace wirepane {

namespace {

constexpr int margin = 8;
constexpr int gap = 6;
constexpr int beforeSum = 16;
constexpr int chipMargin = 9;
constexpr int crossSide = 10;
constexpr int widestChip = 220;
constexpr int leastDetails = 40;
constexpr int lineFlags = Qt::AlignVCenter | Qt::TextSingleLine;

QColor weakColour(const QPalette& palette) {
    return roleColour(ColourRole::Weak, palette.color(QPalette::PlaceholderText));
}

}  // namespace

// --- A chip ---

ChipButton::ChipButton(QWidget* parent) : SButton(parent) {
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

void ChipButton::tell(const ChipLineText::Chip& chip) {
    showText(chip.text);
    setAccessibleName(chip.action);
    setToolTip(chip.action.toHtmlEscaped());
}

int ChipButton::neededWidth() const {
    const int needed =
        uncutWidth(fontMetrics(), literalText()) + 2 * chipMargin + gap + grown(crossSide, font());
    return std::min(needed, grown(widestChip, font()));
}

void ChipButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isTouched = underMouse() || isDown();
    const QColor ground = isTouched ? roleColour(ColourRole::Press, palette().color(QPalette::Mid))
                                    : palette().color(QPalette::Button);
    constexpr qreal half = 0.5;  // a line of one pixel lies within the pixel
    const QRectF outline = QRectF(rect()).adjusted(half, half, -half, -half);
    painter.setBrush(ground);
    painter.setPen(hasFocus() ? QPen(roleColour(ColourRole::Accent, palette().color(QPalette::Highlight)), 2)
                              : QPen(ground));
    painter.drawRoundedRect(outline, outline.height() / 2, outline.height() / 2);
    const int side = grown(crossSide, font());
    const QRect cross(width() - chipMargin - side, (height() - side) / 2, side, side);
    const QRect room(chipMargin, 0, cross.left() - gap - chipMargin, height());
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(room, lineFlags, fontMetrics().elidedText(literalText(), Qt::ElideRight, room.width()));
    drawLineIcon(painter, LineIcon::Close, cross, palette().color(QPalette::ButtonText));
}

void ChipButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)
        click();
    else
        SButton::keyPressEvent(event);
}

// --- The line ---

ChipLine::ChipLine(QWidget* parent) : QWidget(parent) {
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
}

QFont ChipLine::sumFont() const {
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    return bold;
}

void ChipLine::addChip() {
    auto* chip = new ChipButton(this);
    setTabOrder(chips.empty() ? before.data() : chips.back(), chip);
    const int index = static_cast<int>(chips.size());
    connect(chip, &SButton::clicked, this, [this, index] { emit taken(index); });
    chips.push_back(chip);
}

void ChipLine::tell(const ChipLineText& newText) {
    if (newText == text)
        return;
    text = newText;
    while (chips.size() < text.chips.size())
        addChip();
    for (std::size_t i = 0; i < text.chips.size(); ++i)
        chips[i]->tell(text.chips[i]);
    QStringList whole{text.lead};
    for (const ChipLineText::Chip& chip : text.chips)
        whole += chip.text;
    whole << text.sum << text.details;
    whole.removeAll(QString());
    setAccessibleName(whole.join(QLatin1Char(' ')));
    setToolTip(accessibleName().toHtmlEscaped());
    place();
    update();
}

void ChipLine::place() {
    const QFontMetrics metrics(font());
    const int sum = uncutWidth(QFontMetrics(sumFont()), text.sum);
    const int details = uncutWidth(metrics, text.details);
    const int right = width() - margin;
    const int forChips = right - sum - beforeSum;
    const int dots = metrics.horizontalAdvance(QChar(0x2026)) + gap;
    leadPlace = QRect(margin, 0, std::min(uncutWidth(metrics, text.lead), width() - 2 * margin), height());
    morePlace = {};
    int x = text.lead.isEmpty() ? margin : leadPlace.right() + 1 + gap;
    const int high = std::min(height() - 4, metrics.height() + 4);
    bool hasRoom = true;
    for (std::size_t i = 0; i < chips.size(); ++i) {
        const int needed = chips[i]->neededWidth();
        const bool isLast = i + 1 == text.chips.size();
        const bool isPart = i < text.chips.size();
        if (isPart && hasRoom && x + needed + (isLast ? 0 : dots) > forChips) {
            hasRoom = false;
            morePlace = QRect(x, 0, dots, height());
            x += dots;
        }
        if (isPart && hasRoom) {
            chips[i]->setGeometry(x, (height() - high) / 2, needed, high);
            x += needed + gap;
        }
        chips[i]->setVisible(isPart && hasRoom);
    }
    const int forDetails = std::min(details, right - sum - gap - x - beforeSum);
    const int shownDetails = forDetails < std::min(details, leastDetails) ? 0 : std::max(0, forDetails);
    detailsPlace = QRect(right - shownDetails, 0, shownDetails, height());
    const int sumRight = detailsPlace.left() - (shownDetails > 0 ? gap : 0);
    sumPlace = QRect(std::max(x, sumRight - sum), 0, std::max(0, std::min(sum, sumRight - x)), height());
}

void ChipLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(QRect(0, height() - 1, width(), 1),
                     roleColour(ColourRole::Line, palette().color(QPalette::Mid)));
    painter.setPen(weakColour(palette()));
    const auto drawCut = [&](const QRect& room, const QString& words) {
        painter.drawText(room, lineFlags,
                         painter.fontMetrics().elidedText(words, Qt::ElideRight, room.width()));
    };
    drawCut(leadPlace, text.lead);
    if (!morePlace.isEmpty())
        painter.drawText(morePlace, lineFlags, QString(QChar(0x2026)));
    drawCut(detailsPlace, text.details);
    painter.setFont(sumFont());
    painter.setPen(palette().color(QPalette::Text));
    drawCut(sumPlace, text.sum);
}

void ChipLine::resizeEvent(QResizeEvent*) {
    place();
}

void ChipLine::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        place();
}

}  // namespace wirepane
