// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

namespace wirepane {
class LinkBadge;

// The bar over a docked view: its link group, its title, buttons to float and to close it. A press anywhere
// else on it reaches the dock, which moves by it.
class ViewTitleBar : public QWidget {
    Q_OBJECT

public:
    explicit ViewTitleBar(QWidget* parent);

    void setTitle(const QString& title);
    void setGroup(unsigned char group);
    // The active view's bar is brighter.
    void setActive(bool active);
    // Sets the texts of the buttons in the language in force.
    void retranslate();

signals:
    void groupChosen(unsigned char group);
    void renameAsked();
    void floatAsked();
    void closeAsked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void elide();

    LinkBadge* badge;
    QLabel* label;
    QToolButton* floatButton;
    QToolButton* closeButton;
    QString title;
    bool active = false;
};

}  // namespace wirepane
