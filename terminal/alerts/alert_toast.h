// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QTimer>

class QLabel;
class QPushButton;

namespace wirepane {

// Tells in the corner of a window what has just come. It takes no key and no focus; what comes while it is up
// is counted on it, and it goes by itself or when it is closed.
class AlertToast : public QFrame {
    Q_OBJECT

public:
    // Over the window, which owns it.
    explicit AlertToast(QWidget& window);

    // The newest of `count` alerts, beside those that are up already; for so many seconds, and no shorter
    // than these. 0: until the user closes it.
    void tell(const QString& rule, const QString& title, int count, int seconds);

signals:
    // The user wants to see them all.
    void opened();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void place();

    QLabel* rule;
    QLabel* title;
    QLabel* more;
    QPushButton* close;
    int shown = 0;         // alerts since it is up
    bool staysUp = false;  // one of them is to stay
    QTimer goes;
};

}  // namespace wirepane
