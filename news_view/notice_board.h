// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "news_view/list_notices.h"

#include <QColor>
#include <QFont>
#include <QRect>

#include <functional>
#include <vector>

namespace wirepane {
class ControlSet;

}  // namespace wirepane

class QWidget;

namespace wirepane {

// The notices of a view in the free part of its control row: what the user must know of the view and of the
// list that it shows, and the button that stops what it waits for. Interface thread only.
class NoticeBoard {
public:
    // Adds what one part of the view has to tell at the moment.
    using Teller = std::function<void(ListNotices&)>;

    struct Look {
        QFont font;
        QColor text;
        QColor background;
    };
    struct Surroundings {
        const QWidget& window;            // holds the control row
        const ControlSet& controls;       // the line of notices and its buttons, as far as they were created
        std::function<QRect()> row;       // where controls of the row stand, in the window; its height counts
        std::function<Look()> look;       // of this moment
        std::function<bool()> isWaiting;  // whether there is something to stop
        std::function<QWidget*()> next;   // gets the keyboard when what has it goes; null: nobody
    };

    // All that is referred to outlives the board.
    NoticeBoard(Surroundings surroundings, std::vector<Teller> tellers);

    // What the view has to say about its lists; empty most of the time.
    const QString& status() const { return statusText; }
    void setStatus(const QString& text);

    // What is to be told now.
    ListNotices notices() const;
    // Shows it. Call it when something of it may have changed, and when the control row has.
    void place();

private:
    QRect area() const;

    Surroundings around;
    std::vector<Teller> tellers;
    QString statusText;
};

// The widest gap that rectangles leave between the left edge of a row and its right one, a margin off them.
QRect widestGap(const QRect& row, std::vector<QRect> taken);

}  // namespace wirepane
