// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

class QFont;
class QPainter;
class QRect;
class QStyleOption;
class QStyleOptionButton;
class QStyleOptionTab;

namespace wirepane {

// The grounds and outlines of controls, in the palette's colours (settings/colour_scheme.h says which role is
// which).

void drawButtonPlate(const QStyleOptionButton& option, QPainter& painter);
// What a tool lies on: nothing, unless it is pointed at or pressed.
void drawToolPlate(const QStyleOption& option, QPainter& painter);
// Where one types or chooses; `filled`: with its ground.
void drawInput(const QStyleOption& option, QPainter& painter, bool filled);
// Around a list or a text.
void drawListFrame(const QStyleOption& option, QPainter& painter, bool inView);
// Around what pops up.
void drawPopupFrame(const QStyleOption& option, QPainter& painter);
// A tab of a strip above what it belongs to, and what is written on it.
void drawTab(const QStyleOptionTab& option, QPainter& painter);
// What such a tab needs to be written on also while it is in front.
int tabWidth(const QStyleOptionTab& option, const QFont& font);
void drawHeading(const QStyleOption& option, QPainter& painter);
// The ground of the entry of a menu or menu bar that the pointer or the keyboard is on.
void drawMenuMark(const QStyleOption& option, QPainter& painter);
// A line of one pixel in the middle of what is dragged.
void drawSplitter(const QStyleOption& option, QPainter& painter);

}  // namespace wirepane
