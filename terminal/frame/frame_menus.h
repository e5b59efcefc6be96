// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace wirepane {
class MainFrame;

// A view in the list of the window menu.
struct ListedView {
    int number = 0;
    QString title;

    bool operator==(const ListedView&) const = default;
};

// What the menus mark as being in force.
struct MenuState {
    QString scheme;
    QString language;
    QList<ListedView> views;
    int activeView = 0;  // 0: none; commands on the active view are disabled then
    unsigned char linkGroup = 0;
    bool compactRows = false;  // of the active view

    bool operator==(const MenuState&) const = default;
};

// Adds the menus of the main frame, in the language in force. Each wires its entries to the frame's signals.
void addFrameMenus(MainFrame& frame, const MenuState& state);

}  // namespace wirepane
