// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/figures.h"
#include "host/controls/sheet_cells.h"

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QList>

class QPainter;

namespace wirepane {

// A line of text as it is drawn: its glyphs in their places.
struct DrawnText {
    QList<QGlyphRun> runs;
    qreal ascent = 0;  // from the line's top to its baseline
    qreal width = 0;
    qreal overhang =
        0;  // how far the first glyph begins right of the line's start: a full-width bracket's blank
    SheetChip chip;
    QString chipLabel;
    struct Ground {
        qreal left = 0;
        qreal right = 0;
        int tint = 0;
    };
    QList<Ground> grounds;  // of what is marked of it
};

// Lines of text laid out once for each text and room, for as long as they are being drawn: of those that no
// longer are, some hundred are kept.
class WIREPANE_HOST_EXPORT DrawnTexts {
public:
    void setFont(const QFont& font);
    const QFont& font() const { return ownFont; }
    // The line of a text that has `room` pixels, cut with dots where it is wider. `cells` says what of it
    // is a chip, which takes of that room, what is marked, and whether its digits have one width. The answer
    // is valid until the next call.
    const DrawnText& line(const QString& text, int room, const SheetCells* cells = nullptr, int column = -1);
    // What has been laid out is not needed for now.
    void forget();
    // Draws it from `x` on the baseline.
    static void draw(QPainter& painter, const DrawnText& text, qreal x, qreal baseline);
    // The width of a chip with this label.
    int chipWidth(const QString& label) const;

    static constexpr int chipGap = 8;

private:
    struct Key {
        QString text;
        int room;
        int column;
        bool operator==(const Key&) const = default;
    };
    friend size_t qHash(const Key& key, size_t seed) noexcept {
        return qHashMulti(seed, key.text, key.room, key.column);
    }
    DrawnText layOut(const QString& text, int room, const SheetCells* cells, int column) const;
    struct Manner {
        bool ofFigures = false;
        QList<SheetHit> hits;
    };
    void layOutLine(DrawnText& drawn, const QString& text, const Manner& manner) const;

    QFont ownFont;
    QFont chipFont;
    Figures figures;
    QHash<Key, DrawnText> young;
    QHash<Key, DrawnText> old;  // not drawn since the young ones were begun
};

}  // namespace wirepane
