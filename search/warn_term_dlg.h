// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "search/warning_items.h"

#include <QDialog>

#include <functional>

class QBoxLayout;
class QLayout;

namespace wirepane {
class ReportList;

}  // namespace wirepane

// The modal dialog with the list of warning terms, in which one is chosen and all are managed. The one in
// force stands out.
class CWarnTermDlg : public QDialog {
    Q_OBJECT

public:
    // Works on copies. `inForce`: the condition that the chosen item changes. A back end has been installed.
    CWarnTermDlg(const wirepane::WarningItems& items, const CSearch& inForce, QWidget* parent,
                 bool takesQueries = false);

    // An alert can be made of the term that is selected: `propose` is called with it.
    void offerAlert(std::function<void(const CSearch&)> propose);

    // Runs the dialog: search_ids::ok or search_ids::cancel.
    int DoModal();

    // What the caller takes back whatever the result; the condition is changed by OK alone.
    const wirepane::WarningItems& items() const { return warnings; }
    const CSearch& chosenItem() const { return chosen; }

private:
    void createList();
    QLayout* createCommands();
    QLayout* createEnd();
    int selectedRow() const;
    void fillRow(int row);
    // Has the user edit a condition. False when he cancels, and when this dialog is gone by then.
    bool edit(CSearch& condition);
    void add();
    void edit();
    void deleteChosen();
    void onOK();

    wirepane::WarningItems warnings;
    CSearch chosen;
    const bool hasQueries;
    wirepane::ReportList* list = nullptr;
    QBoxLayout* commands = nullptr;
};
