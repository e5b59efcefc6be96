// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>

namespace wirepane {
class ViewTitleBar;

// The frame of one of the user's views: it can stand beside others, behind one of their tabs, or float.
class ViewDock : public QDockWidget {
    Q_OBJECT

public:
    // `place` names the dock in a stored arrangement.
    ViewDock(int place, QWidget* parent);

    // The title on the bar and, after the group's letter, on a tab.
    void setTitle(const QString& title, unsigned char group);
    void setActive(bool active);
    void retranslate();

signals:
    // The user asks for these; nothing has been done yet.
    void groupChosen(unsigned char group);
    void renameAsked();
    void closeAsked();
    // The bar has been pressed.
    void pressed();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    ViewTitleBar* bar;
};

}  // namespace wirepane
