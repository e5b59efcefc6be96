// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_entry.h"

#include <QDialog>

#include <functional>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTreeView;

namespace wirepane {
class AlertDesk;
class AlertModel;

// The last alerts: what was told, what was not and why, and the story of the one that is chosen. While it is
// open and active, alerts that come are seen.
class AlertsWindow : public QDialog {
    Q_OBJECT

public:
    // The story of a headline as it is shown; empty: there is none.
    using StoryOf = std::function<QString(const HeadlineKey&)>;
    // The desk is not owned and outlives the window.
    AlertsWindow(AlertDesk& desk, StoryOf storyOf, QWidget* parent);

signals:
    // The user wants to change the rules.
    void rulesAsked();

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void showList();
    void showCurrent();
    void seeIfActive();

    AlertDesk& desk;
    const StoryOf storyOf;
    AlertModel* model;
    QTreeView* list;
    QLabel* reason;
    QPlainTextEdit* story;
    QPushButton* rules;
};

}  // namespace wirepane
