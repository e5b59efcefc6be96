// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QToolBar>

class QLabel;
class QToolButton;

namespace wirepane {

// One line for who has never been here: how to read, search, import. Hidden at first.
class FirstStepsBar : public QToolBar {
    Q_OBJECT

public:
    explicit FirstStepsBar(QWidget* parent = nullptr);

    // Sets the texts in the language in force.
    void retranslate();

signals:
    // The user wants to see it no more. It is hidden already.
    void dismissed();

private:
    QLabel* steps;
    QToolButton* hideButton;
};

}  // namespace wirepane
