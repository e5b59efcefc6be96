// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/command_menu.h"

#include <QMenu>

namespace wirepane {

bool CommandMenu::isUp() const {
    return menu != nullptr;
}

void CommandMenu::popUp(const std::vector<MenuEntry>& entries, const QPoint& screen) {
    if (isUp())
        return;
    menu = new QMenu(&window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const MenuEntry& entry : entries) {
        if (entry.command == 0) {
            menu->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(entry.caption);
        action->setData(entry.command);
        action->setCheckable(entry.checked.has_value());
        action->setChecked(entry.checked.value_or(false));
        QObject::connect(action, &QAction::triggered, &window,
                         [this, command = entry.command] { carryOut(command); });
    }
    menu->popup(screen);
}

}  // namespace wirepane
