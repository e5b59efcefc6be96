// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

class QPainter;
class QStyleOption;

namespace wirepane {

// The boxes and circles of what can be ticked, with an edge that shows on light and on dark ground.
void drawCheckBox(const QStyleOption& option, QPainter& painter);
void drawRadioButton(const QStyleOption& option, QPainter& painter);

}  // namespace wirepane
