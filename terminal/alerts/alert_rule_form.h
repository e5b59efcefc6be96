// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_rule.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

namespace wirepane {
class SoundBox;

// What one rule is, to be changed: all but whether it is on.
class AlertRuleForm : public QWidget {
    Q_OBJECT

public:
    AlertRuleForm();

    void show(const AlertRule& rule);
    // The rule with what stands in the form.
    AlertRule changed(AlertRule rule) const;
    void editName();
    void editQuery();
    void setBudget(int hitsAnHour);

signals:
    // The user has changed something.
    void edited();

private:
    QLineEdit* name;
    QLineEdit* query;
    QCheckBox* hasToast;
    QSpinBox* toastSeconds;
    QCheckBox* hasNotice;
    SoundBox* sound;
    QCheckBox* onlyConnected;
    QSpinBox* pause;
    QSpinBox* budget;
    QComboBox* tint;
    QLineEdit* tag;
};

}  // namespace wirepane
