// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QStringList>

#include <optional>

namespace wirepane {

// Where a window of this size opens: at the right of another one, else at its left, else at the right edge of
// the screen; never larger than the screen. All in pixels of the desktop.
QRect placeBeside(const QRect& other, const QSize& size, const QRect& screen);

// The places of a window, one for each screen, as texts "x,y,width,height screen".
std::optional<QRect> placeOn(const QStringList& places, const QString& screen);
void keepPlace(QStringList& places, const QString& screen, const QRect& place);

}  // namespace wirepane
