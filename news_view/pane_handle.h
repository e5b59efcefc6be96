// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

#include <functional>

namespace wirepane {

// The line between two areas of a view, with room to be caught at: dragged it moves the edge, a double click
// puts it back.
class PaneHandle : public QWidget {
public:
    struct Calls {
        std::function<void(int)> moved;  // to this place across the line, in the parent's pixels
        std::function<void()> restored;
    };
    static constexpr int room = 7;  // across the line

    PaneHandle(QWidget* parent, Calls calls);

    // Over the line, which is one pixel wide or high; an empty one hides it.
    void placeOver(const QRect& line);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    const Calls calls;
    bool upright = true;
    bool dragged = false;
};

}  // namespace wirepane
