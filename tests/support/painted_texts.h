// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QString>

#include <vector>

class QWidget;

namespace wirepane {

// A run of text that a widget has painted. Places are pixels of the screen, from the widget's corner.
struct PaintedText {
    QString text;
    QRectF place;  // of the ink of its letters
    QRectF room;   // what the painter let be drawn there
};

// What the widget paints as texts, its children left out. Texts that are laid out as glyphs alone are not
// among them.
std::vector<PaintedText> paintedTexts(QWidget& widget);

}  // namespace wirepane
