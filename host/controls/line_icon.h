// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QIcon>
#include <QPalette>

class QPainter;

namespace wirepane {

// The house's icons, drawn as lines on a grid of 16 x 16.
enum class LineIcon {
    Services,
    Calendar,
    Search,
    Advanced,
    Relation,
    LayoutList,
    LayoutRight,
    LayoutBelow,
    Next,
    Prev,
    Save,
    Print,
    Copy,
    Window,
    Close,
    Pin,
    Bell,
    BellOff,
    Star,
    Import,
    Connect,
    Pause,
    Play,
    Refresh,
    Edit,
    Remove,
    Add,
    Check,
    Down,
    Left,
    Right,
    Larger,
    Smaller,
    Clock,
    Warning,
    News,
    Quotes,
    Feed,
    Folder,
    Pipe,
    More,
    Count
};

// The icon in the application's palette of the moment that it is drawn at, so that it follows the scheme.
WIREPANE_HOST_EXPORT QIcon lineIcon(LineIcon icon, QPalette::ColorRole role = QPalette::ButtonText);

// Draws the icon into the largest square in the middle of the place. `stroke` is in units of the grid.
WIREPANE_HOST_EXPORT void drawLineIcon(QPainter& painter, LineIcon icon, const QRectF& place,
                                       const QColor& colour, qreal stroke = 1.5);

}  // namespace wirepane
