// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/settings/store_kind.h"

#include <QList>
#include <QString>

#include <optional>

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
    // Which of the user's stores is open, from which the other can be gone to; nothing: another one is.
    std::optional<StoreKind> store = std::nullopt;

    bool operator==(const MenuState&) const = default;
};

// Adds the menus of the main frame, in the language in force. Each wires its entries to the frame's signals.
void addFrameMenus(MainFrame& frame, const MenuState& state);

}  // namespace wirepane
