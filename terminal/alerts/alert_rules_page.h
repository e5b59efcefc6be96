// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_rule.h"

#include <QWidget>

#include <functional>

class QCheckBox;
class QLabel;
class QPushButton;
class QTableWidget;
class QTimeEdit;

namespace wirepane {

// The page of the settings on which the user says what he is told of, and how. It changes nothing itself.
class AlertRulesPage : public QWidget {
    Q_OBJECT

public:
    // `test` tells a rule as it would be told.
    AlertRulesPage(const AlertSettings& present, std::function<void(const AlertRule&)> test);

    // One more rule, under a name of its own; where there is one with its query, that is the present one.
    void propose(AlertRule rule);

    AlertSettings settings() const;
    // What is wrong with the rules, as the page shows it, on the row that has it; empty: nothing.
    QString showFault();

private:
    void addRow(const AlertRule& rule);
    void addNew();
    void removeCurrent();
    void testCurrent();
    AlertRule ruleAt(int row) const;
    QString faultAt(int row) const;
    QLayout* buttonRow();
    QLayout* quietRow(const AlertSettings& present);

    const std::function<void(const AlertRule&)> test;
    QTableWidget* table;
    QLabel* fault;
    QCheckBox* hasQuietHours;
    QTimeEdit* quietFrom;
    QTimeEdit* quietTo;
};

}  // namespace wirepane
