// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

class QMenu;
class QPoint;
class QWidget;

namespace wirepane {

// A line of a menu of commands.
struct MenuEntry {
    int command = 0;  // 0: a separator
    QString caption;
    std::optional<bool> checked;  // nothing: it has no check mark

    bool operator==(const MenuEntry&) const = default;
};

// The menu that pops up over a view: one at a time, whoever asks for it. It is not waited for: the view may
// go while the menu is up. Interface thread only.
class CommandMenu {
public:
    // The window, which owns the menu, outlives this. `carryOut` gets the number of what the user chooses.
    CommandMenu(QWidget& menuWindow, std::function<void(int)> carryOutCommand)
        : window(menuWindow), carryOut(std::move(carryOutCommand)) {}

    bool isUp() const;
    // Shows the entries at a point of the screen; nothing happens while a menu is up.
    void popUp(const std::vector<MenuEntry>& entries, const QPoint& screen);

private:
    QWidget& window;
    std::function<void(int)> carryOut;
    QPointer<QMenu> menu;
};

}  // namespace wirepane
