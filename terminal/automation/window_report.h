// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QRect>

class QWidget;

namespace wirepane {
struct OpenView;

// [left, top, width, height].
QJsonArray rectangleReport(const QRect& rectangle);

// The controls of a window: its direct children that have a number, by number.
QJsonArray controlsReport(const QWidget& window);

// The whole state of a view: what it tells of itself, its caption, controls, grids and timers.
QJsonObject viewReport(const OpenView& view);

}  // namespace wirepane
