// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/sources/source_trial.h"

#include <QWidget>

class QLabel;
class QTreeWidget;

namespace wirepane {

// What a trial has shown: a sentence, and the first items as they would stand.
class TrialView : public QWidget {
    Q_OBJECT

public:
    explicit TrialView(QWidget* parent = nullptr);

    // What it is for, in the language in force.
    void showNotAsked();
    void showAsking();
    void show(const TrialReport& report);
    QString sentence() const;
    int items() const;

private:
    void tell(const QString& text, bool isFault);

    QLabel* label;
    QTreeWidget* list;
};

}  // namespace wirepane
