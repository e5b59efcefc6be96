// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>
#include <vector>

class QButtonGroup;
class QDialog;
class QGridLayout;
class QLabel;
class QLayout;
class QPushButton;
class QWidget;

namespace wirepane {

// Controls of the search dialogs: direct children of the dialog, known by their numbers, with the dialog as
// their event filter.

// A button that Enter presses only where the dialog says so.
QPushButton* makeButton(QDialog* dialog, int id, const QString& text);
// A bold caption. `id` 0: nobody asks for it.
QLabel* addCaption(QDialog* dialog, int id, const QString& text);

struct Choice {
    int id;
    int value;
    QLatin1StringView key;
};
// A row of radio buttons behind a caption, of which one is checked at a time; they stand in the group by
// their values, which are not negative.
QButtonGroup* addChoices(QDialog* dialog, QGridLayout& grid, int row, QLabel* caption,
                         std::span<const Choice> choices);

// The last row of the dialog: `ok`, and a button that cancels. They come last in the order of the Tab key
// when all other controls are there.
QLayout* addEnd(QDialog* dialog, QPushButton* ok);

// A list that shows so many rows of this height where the screen has room for them.
struct RowsInSight {
    QWidget* list;
    int rowHeight;
    int rows;
};
// Makes a dialog so many characters wide and as high as it asks to be; on a screen that is too low, these
// lists show fewer rows. To be called when all is in its place.
void fitToScreen(QDialog* dialog, int characters, std::vector<RowsInSight> lists = {});

// Runs a dialog over a window or a part of it, which gets the keyboard back. Its result; QDialog::Rejected
// when what is below is gone by then, and `child` with it. Below may be nothing.
int runOver(QWidget* below, QDialog* child);
// Runs a dialog over its parent: search_ids::ok or search_ids::cancel. The dialog may be gone by then.
int runModally(QDialog* dialog);
// Asks the user a question over a window or a part of it. True for Yes; false also when what is below is gone
// by then.
bool askYesNo(QWidget* below, const QString& question);
// Tells the user why nothing happened.
void tellError(QWidget* below, const QString& text);

}  // namespace wirepane
