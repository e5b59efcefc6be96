// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QPointer>
#include <QVariantMap>

#include <functional>

class CQuoteDlgTipMsg;

namespace wirepane {

// The one tip that a view shows over its lists: what is said next takes the place of what was said before.
class ListTip {
public:
    struct Look {
        QFont font;
        QColor text;
        QColor background;
        int top = 0;  // of the tip, below that of the grid
    };
    // `look` is asked each time that a tip is shown. Both must outlive the tip.
    ListTip(QWidget& view, std::function<Look()> look);
    ~ListTip();

    static constexpr int shortMs = 1000;
    // Over a grid of the view; null: nowhere.
    void showOver(QWidget* grid, const QString& text, int timeMs = shortMs);
    void stop();
    // Whether it is up; the text that was shown last, cut where it was too wide.
    bool isUp() const;
    QString text() const;
    // For the host's scripts: empty when no tip was ever shown.
    QVariantMap state() const;

private:
    QWidget& view;
    std::function<Look()> look;
    QPointer<CQuoteDlgTipMsg> window;
};

}  // namespace wirepane
