// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/screen_room.h"

#include <QScreen>
#include <QWidget>

namespace wirepane {

QSize withinScreen(const QWidget& window, const QSize& wanted) {
    // A frame is known only once its window is on the screen.
    constexpr QSize usualFrame(8, 36);
    return wanted.boundedTo(window.screen()->availableSize() - usualFrame);
}

}  // namespace wirepane
