// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/view_docks.h"

#include "terminal/frame/view_dock.h"

#include <QMainWindow>

namespace wirepane {

namespace {

constexpr int stateVersion = 1;
constexpr int roomForTwo = 900;  // pixels
constexpr Qt::DockWidgetArea area = Qt::TopDockWidgetArea;

}  // namespace

ViewDocks::ViewDocks(QMainWindow& mainFrame) : frame(mainFrame) {
    frame.setDockOptions(QMainWindow::AllowNestedDocks | QMainWindow::AllowTabbedDocks);
    frame.setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
}

ViewDock* ViewDocks::add(int place, ViewDock* neighbour) {
    auto* dock = new ViewDock(place, &frame);
    if (neighbour != nullptr && !neighbour->isFloating())
        placeBeside(dock, neighbour);
    else
        frame.addDockWidget(area, dock);
    docks.append(dock);
    return dock;
}

void ViewDocks::placeBeside(ViewDock* dock, ViewDock* neighbour) {
    const bool tabbed = !frame.tabifiedDockWidgets(neighbour).isEmpty();
    if (!tabbed && neighbour->width() >= roomForTwo) {
        const int half = neighbour->width() / 2;
        frame.splitDockWidget(neighbour, dock, Qt::Horizontal);
        frame.resizeDocks({neighbour, dock}, {half, half}, Qt::Horizontal);
    } else {
        frame.tabifyDockWidget(neighbour, dock);
    }
}

void ViewDocks::remove(ViewDock* dock) {
    docks.removeOne(dock);
    frame.removeDockWidget(dock);
    // It may be asking for its own closing.
    dock->deleteLater();
}

void ViewDocks::arrange(Arrangement arrangement, ViewDock* onTop) {
    QList<QDockWidget*> placed;
    for (ViewDock* dock : docks) {
        if (!dock->isFloating())
            placed.append(dock);
    }
    // Taken out first: a dock that is added to a tabbed one becomes a tab, whatever is asked for.
    for (QDockWidget* dock : placed)
        frame.removeDockWidget(dock);
    const Qt::Orientation direction = arrangement == Arrangement::Rows ? Qt::Vertical : Qt::Horizontal;
    for (qsizetype i = 0; i < placed.size(); ++i) {
        if (i == 0)
            frame.addDockWidget(area, placed[i]);
        else if (arrangement == Arrangement::Tabs)
            frame.tabifyDockWidget(placed[i - 1], placed[i]);
        else
            frame.splitDockWidget(placed[i - 1], placed[i], direction);
        placed[i]->show();
    }
    if (arrangement != Arrangement::Tabs)
        frame.resizeDocks(placed, QList<int>(placed.size(), 1), direction);
    if (onTop != nullptr)
        onTop->raise();
}

QByteArray ViewDocks::save() const {
    return frame.saveState(stateVersion);
}

bool ViewDocks::restore(const QByteArray& stored) {
    return frame.restoreState(stored, stateVersion);
}

}  // namespace wirepane
