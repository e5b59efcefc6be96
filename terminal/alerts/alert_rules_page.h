// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_rule.h"

#include <QWidget>

#include <functional>
#include <vector>

class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;
class QTimeEdit;

namespace wirepane {
class AlertRuleForm;

// The page of the settings on which the user says what he is told of, and how: the rules, ticked where they
// are on, and beside them what the present one is. It changes nothing itself.
class AlertRulesPage : public QWidget {
    Q_OBJECT

public:
    struct Calls {
        std::function<void(const AlertRule&)> test;  // tells a rule as it would be told
        // Shows how often a rule would have spoken. The budget that the user found by it.
        std::function<int(const AlertRule&)> rehearse;
    };
    AlertRulesPage(const AlertSettings& present, Calls calls);

    // One more rule, under a name of its own; where there is one with its query, that is the present one.
    void propose(AlertRule rule);

    AlertSettings settings() const;
    // What is wrong with the rules, as the page shows it, on the rule that has it; empty: nothing.
    QString showFault();

private:
    void add(const AlertRule& rule);
    void addNew();
    void removeCurrent();
    void testCurrent();
    void rehearseCurrent();
    void showCurrent();
    void takeEdited();
    void takeTicks();
    QString faultOf(std::size_t place) const;
    QLayout* buttonRow();
    QLayout* quietRow(const AlertSettings& present);

    const Calls calls;
    std::vector<AlertRule> rules;  // as they are in the list
    QListWidget* list;
    AlertRuleForm* form;
    QLabel* fault;
    QCheckBox* hasQuietHours;
    QTimeEdit* quietFrom;
    QTimeEdit* quietTo;
};

}  // namespace wirepane
