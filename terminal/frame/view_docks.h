// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

class QMainWindow;

namespace wirepane {
class ViewDock;

enum class Arrangement { Columns, Rows, Tabs };

// The docks of the user's views in the main frame, and how they stand to each other.
class ViewDocks {
public:
    // Not owned.
    explicit ViewDocks(QMainWindow& mainFrame);

    // A new dock, which the frame owns: beside `neighbour` where that leaves both room enough, else as a tab
    // with it; alone when there is no neighbour.
    ViewDock* add(int place, ViewDock* neighbour);
    void remove(ViewDock* dock);

    // Puts all docks that do not float side by side, one above another, or behind tabs.
    void arrange(Arrangement arrangement, ViewDock* onTop);

    // Where all docks stand, and back. False, and everything as it was, when that cannot be understood.
    QByteArray save() const;
    bool restore(const QByteArray& stored);

    const QList<ViewDock*>& all() const { return docks; }

private:
    void placeBeside(ViewDock* dock, ViewDock* neighbour);

    QMainWindow& frame;
    QList<ViewDock*> docks;
};

}  // namespace wirepane
