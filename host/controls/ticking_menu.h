// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QMenu>

namespace wirepane {

// A menu of what can be ticked, which stays open while one ticks.
class WIREPANE_HOST_EXPORT TickingMenu : public QMenu {
    Q_OBJECT

public:
    using QMenu::QMenu;

    // Whether it does; otherwise it closes as any menu.
    void setStaysOpen(bool stays) { staysOpen = stays; }

Q_SIGNALS:
    // A tick was asked for with Shift: of this entry alone.
    void onlyAsked(QAction* entry);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool tick(Qt::KeyboardModifiers modifiers);

    bool staysOpen = false;
};

}  // namespace wirepane
