// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QFont>

namespace wirepane {
class ViewOptions;

// How the rows of a sheet look, beyond one line of plain text in rows of a set height. Pixels.
struct RowLook {
    bool finished = false;  // as SheetRowPainter draws rows; the headings small and without separators
    int gutter = 0;         // before the first column's text; others begin at their column's edge. 0: 4 each
    int air = 0;            // what a row has over the height of its text; 0: the set height
    int heading = 0;        // the height of the headings; 0: the set height

    bool operator==(const RowLook&) const = default;
};

// What a view's settings say of it.
WIREPANE_HOST_EXPORT RowLook rowLook(const ViewOptions& options);

// The larger of the font's height and 1.35 times its size: a Chinese glyph beside a low Latin font needs it.
WIREPANE_HOST_EXPORT int textHeight(const QFont& font);
// What so many pixels at the usual size of type are beside this font; never less.
WIREPANE_HOST_EXPORT int grown(int pixels, const QFont& font);
// The font in `share` parts of 1000 of its size.
WIREPANE_HOST_EXPORT QFont sizedFont(const QFont& font, int share);
// What headings, tags and chips have of the size of their rows' font.
inline constexpr int headingShare = 900;
inline constexpr int tagShare = 800;
inline constexpr int chipShare = 825;

}  // namespace wirepane
