// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/drawn_texts.h"

#include "host/controls/row_look.h"

#include <QFontInfo>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace wirepane {

namespace {

constexpr int mostYoung = 512;
constexpr int chipMargin = 6;

// Whose ink stands in the right half of a full-width cell.
bool opensWithFullWidthBracket(const QString& text) {
    constexpr QStringView brackets = u"\u300A\uFF08\u300C\u3010\u300E\u3008\uFF3B";
    return !text.isEmpty() && brackets.contains(text.front());
}

// Gives each digit the room of the widest, itself in the middle of it. False where glyphs do not stand for
// characters one by one.
bool spaceFigures(QGlyphRun& run, const QString& text, const QFontMetricsF& metrics, const Figures& figures,
                  qreal& width) {
    QList<QPointF> places = run.positions();
    if (places.size() != text.size())
        return false;
    width = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qreal own = metrics.horizontalAdvance(text[i]);
        const qreal room = text[i].isDigit() ? figures.digit() : own;
        places[i].setX(width + (room - own) / 2);
        width += room;
    }
    run.setPositions(places);
    return true;
}

// Those behind the chip, in what is drawn beside it.
QList<SheetHit> hitsFrom(qsizetype first, QList<SheetHit> hits) {
    hits.removeIf([first](const SheetHit& hit) { return hit.start < first; });
    for (SheetHit& hit : hits)
        hit.start -= first;
    return hits;
}

// In a line that is cut, what is left of a hit ends with it.
QList<DrawnText::Ground> groundsOf(const QList<SheetHit>& hits, const QTextLine& line) {
    QList<DrawnText::Ground> grounds;
    for (const SheetHit& hit : hits) {
        const auto end = static_cast<int>(std::min<qsizetype>(hit.start + hit.length, line.textLength()));
        if (hit.start >= end)
            break;
        const qreal left = line.cursorToX(static_cast<int>(hit.start));
        const qreal right = line.cursorToX(end);
        grounds.append({std::min(left, right), std::max(left, right), hit.tint});
    }
    return grounds;
}

}  // namespace

void DrawnTexts::setFont(const QFont& font) {
    if (font == ownFont && !young.isEmpty())
        return;
    ownFont = font;
    chipFont = sizedFont(font, chipShare);
    chipFont.setWeight(QFont::DemiBold);
    figures = Figures(QFontMetricsF(font));
    young.clear();
    old.clear();
}

void DrawnTexts::forget() {
    young = {};
    old = {};
}

int DrawnTexts::chipWidth(const QString& label) const {
    return QFontMetrics(chipFont).horizontalAdvance(label) + 2 * chipMargin;
}

const DrawnText& DrawnTexts::line(const QString& text, int room, const SheetCells* cells, int column) {
    const Key key{text, room, column};
    if (const auto found = young.constFind(key); found != young.cend())
        return *found;
    if (young.size() >= mostYoung)
        old = std::exchange(young, {});
    const auto kept = old.constFind(key);
    return *young.insert(key, kept != old.cend() ? *kept : layOut(text, room, cells, column));
}

DrawnText DrawnTexts::layOut(const QString& text, int room, const SheetCells* cells, int column) const {
    DrawnText drawn;
    if (cells != nullptr)
        drawn.chip = cells->chip(text, column);
    const QString shown = text.mid(drawn.chip.length);
    if (drawn.chip.length > 0) {
        drawn.chipLabel = text.mid(drawn.chip.labelFrom, drawn.chip.labelLength);
        room -= chipWidth(drawn.chipLabel) + chipGap;
    }
    constexpr qreal blankOfBracket = 0.45;
    if (opensWithFullWidthBracket(shown))
        drawn.overhang = blankOfBracket * QFontInfo(ownFont).pixelSize();
    Manner manner;
    if (cells != nullptr) {
        manner.ofFigures = figures.areUneven() && cells->holdsFigures(column);
        manner.hits = hitsFrom(drawn.chip.length, cells->hits(text, column));
    }
    layOutLine(drawn, shown, manner);
    if (const qreal most = std::max(0, room) + drawn.overhang; drawn.width > most)
        layOutLine(drawn, QFontMetricsF(ownFont).elidedText(shown, Qt::ElideRight, most), manner);
    return drawn;
}

void DrawnTexts::layOutLine(DrawnText& drawn, const QString& text, const Manner& manner) const {
    QTextLayout layout(text, ownFont);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    if (!line.isValid())
        return;
    drawn.ascent = line.ascent();
    drawn.width = line.naturalTextWidth();
    drawn.runs = layout.glyphRuns();
    drawn.grounds = groundsOf(manner.hits, line);
    if (manner.ofFigures && drawn.runs.size() == 1)
        spaceFigures(drawn.runs.front(), text, QFontMetricsF(ownFont), figures, drawn.width);
}

void DrawnTexts::draw(QPainter& painter, const DrawnText& text, qreal x, qreal baseline) {
    const QPointF origin(x - text.overhang, baseline - text.ascent);
    for (const QGlyphRun& run : text.runs)
        painter.drawGlyphRun(origin, run);
}

}  // namespace wirepane
