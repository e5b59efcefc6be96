// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/hit_grounds.h"

#include <QColor>
#include <QPalette>

namespace wirepane {

// The colours of a sheet's rows. A colour that was not set (invalid) follows the palette, so a sheet without
// colours of its own fits a light and a dark scheme.
struct WIREPANE_HOST_EXPORT SheetColours {
    QColor evenRow;
    QColor oddRow;
    QColor text;
    QColor focused;    // the marking of rows while the sheet has the keyboard
    QColor unfocused;  // and while it has not
    bool marking = true;
    // Of finished rows.
    QColor hover;
    QColor arrived;
    QColor accent;  // the bar at the selected row
    QColor weak;    // tags and headings
    QColor border;  // the outline of a chip
    QColor line;    // below the headings
    QColor urgent;  // the ground of an urgent chip, and its text
    QColor onUrgent;
    HitGrounds hits;

    QColor rowBackground(bool odd, const QPalette& palette) const;
    QColor markBackground(bool hasFocus, const QPalette& palette) const;
    QColor textColour(const QPalette& palette) const;
    QColor hoverBackground(const QPalette& palette) const;
    // The ground of a row, `share` of SheetCells::fullArrival after it has come.
    QColor arrivedBackground(const QColor& row, int share, const QPalette& palette) const;
    QColor accentColour(const QPalette& palette) const;
    QColor weakColour(const QPalette& palette) const;
    QColor borderColour(const QPalette& palette) const;
    QColor lineColour(const QPalette& palette) const;
    QColor urgentColour(const QPalette& palette) const;
    QColor onUrgentColour() const;
};

}  // namespace wirepane
