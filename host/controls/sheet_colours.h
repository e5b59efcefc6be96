// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

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

    QColor rowBackground(bool odd, const QPalette& palette) const;
    QColor markBackground(bool hasFocus, const QPalette& palette) const;
    QColor textColour(const QPalette& palette) const;
};

}  // namespace wirepane
