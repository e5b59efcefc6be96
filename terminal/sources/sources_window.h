// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/sources/service_box.h"
#include "terminal/sources/source_model.h"
#include "terminal/sources/source_trial.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;

namespace wirepane {
class SourceDesk;
class TrialView;

// The Sources page: the list of sources with how each stands, and what the user does to it.
class SourcesWindow : public QDialog {
    Q_OBJECT

public:
    // None is owned; all outlive the window.
    SourcesWindow(SourceDesk& desk, SourceTrial& trial, SourceModel::Lives lives, ServicesOf services,
                  QWidget* parent);
    ~SourcesWindow() override;

    // What a list of feeds names is added, paused: the user looks at it first.
    void importList(const QString& path);
    void exportList(const QString& path);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void retranslate();
    QLayout* topRow();
    QLayout* detailRow();
    QTreeView* makeList();
    const ListedSource* current() const;
    void showList();
    void showCounts();
    void showCurrent();
    void select(const QString& name);
    void add();
    void addDefined(const NetworkSource& source, const SourceSecret& secret);
    void tick(int row, bool on);
    void takeReadyMade(const ReadyMadeSource& source);
    void test();
    void togglePause();
    void edit();
    void remove();
    void move(int by);
    void askForImport();
    void askForExport();
    void tell(const QString& text);
    void report(const Done& done);

    SourceDesk& desk;
    const ServicesOf services;
    SourceTrial& trial;
    SourceModel* model;
    QLineEdit* address;
    QPushButton* addButton;
    QPushButton* importButton;
    QPushButton* exportButton;
    QLabel* counts;
    QTreeView* list;
    QLabel* title;
    QLabel* place;
    QPushButton* testButton;
    QPushButton* pauseButton;
    QPushButton* editButton;
    QPushButton* removeButton;
    QPushButton* upButton;
    QPushButton* downButton;
    TrialView* trialView;
    QString shownName;  // the source that the trial's items are of
};

}  // namespace wirepane
