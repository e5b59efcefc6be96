// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QMenu>

class QPainter;

namespace wirepane {

// A menu of what can be ticked, which stays open while one ticks. Open, it says behind each entry what stands
// after the tab of its text, and offers at the entry under the pointer to tick that alone.
class WIREPANE_HOST_EXPORT TickingMenu : public QMenu {
    Q_OBJECT

public:
    using QMenu::QMenu;

    // Makes it stay open; without this it closes, and looks, as any menu. `offer` is what the place is called
    // that ticks an entry alone.
    void stayOpen(const QString& offer);
    // Where that place is at an entry, in the menu; empty at one that cannot be ticked.
    QRect onlyPlace(QAction* entry) const;

Q_SIGNALS:
    // This entry alone is to be ticked: its place was pressed, or it was ticked with Shift.
    void onlyAsked(QAction* entry);

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool tick(bool alone);
    int countWidth() const;
    void drawEntry(QPainter& painter, QAction* entry) const;

    QString onlyText;  // empty: the menu does not stay open
};

}  // namespace wirepane
