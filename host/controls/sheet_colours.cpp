// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/sheet_colours.h"

#include "host/controls/sheet_cells.h"

namespace wirepane {

namespace {

QColor chosen(const QColor& own, const QColor& other) {
    return own.isValid() ? own : other;
}

// `share` parts of 100 of `over` on `under`: text stays readable on it in its usual colour.
QColor mixed(const QColor& over, const QColor& under, int share) {
    const auto part = [share](int a, int b) { return (a * share + b * (100 - share)) / 100; };
    return {part(over.red(), under.red()), part(over.green(), under.green()),
            part(over.blue(), under.blue())};
}

}  // namespace

QColor SheetColours::rowBackground(bool odd, const QPalette& palette) const {
    return odd ? chosen(oddRow, palette.color(QPalette::AlternateBase))
               : chosen(evenRow, palette.color(QPalette::Base));
}

QColor SheetColours::markBackground(bool hasFocus, const QPalette& palette) const {
    const QColor row = rowBackground(false, palette);
    if (hasFocus)
        return chosen(focused, mixed(palette.color(QPalette::Active, QPalette::Highlight), row, 28));
    return chosen(unfocused, mixed(textColour(palette), row, 14));
}

QColor SheetColours::textColour(const QPalette& palette) const {
    return chosen(text, palette.color(QPalette::Text));
}

QColor SheetColours::hoverBackground(const QPalette& palette) const {
    return chosen(hover, mixed(textColour(palette), rowBackground(false, palette), 7));
}

QColor SheetColours::arrivedBackground(const QColor& row, int share, const QPalette& palette) const {
    const QColor full = chosen(arrived, mixed(palette.color(QPalette::Link), row, 20));
    return mixed(full, row, share * 100 / SheetCells::fullArrival);
}

QColor SheetColours::accentColour(const QPalette& palette) const {
    return chosen(accent, palette.color(QPalette::Link));
}

QColor SheetColours::weakColour(const QPalette& palette) const {
    return chosen(weak, mixed(textColour(palette), rowBackground(false, palette), 68));
}

QColor SheetColours::borderColour(const QPalette& palette) const {
    return chosen(border, mixed(textColour(palette), rowBackground(false, palette), 50));
}

QColor SheetColours::lineColour(const QPalette& palette) const {
    return chosen(line, mixed(textColour(palette), rowBackground(false, palette), 20));
}

QColor SheetColours::urgentColour(const QPalette& palette) const {
    return chosen(urgent, palette.color(QPalette::BrightText));
}

QColor SheetColours::onUrgentColour() const {
    return chosen(onUrgent, Qt::white);
}

}  // namespace wirepane
