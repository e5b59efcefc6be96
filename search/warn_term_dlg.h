// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "search/warning_items.h"

#include <QDialog>

class QLayout;
class ReportList;

// The modal dialog with the list of warning terms, in which one is chosen and all are managed. The one in
// force stands out.
class CWarnTermDlg : public QDialog {
    Q_OBJECT

public:
    // Works on copies. `inForce`: the condition that the chosen item changes. A back end has been installed.
    CWarnTermDlg(const WarningItems& items, const CSearch& inForce, QWidget* parent);

    // Runs the dialog: search_ids::ok or search_ids::cancel.
    int DoModal();

    // What the caller takes back whatever the result; the condition is changed by OK alone.
    const WarningItems& Items() const { return warnings; }
    const CSearch& Chosen() const { return chosen; }

private:
    void vCreateList();
    QLayout* pCreateCommands();
    QLayout* pCreateEnd();
    int SelectedRow() const;
    void vFillRow(int row);
    // Has the user edit a condition. False when he cancels, and when this dialog is gone by then.
    bool bEdit(CSearch& condition);
    void vAdd();
    void vEdit();
    void vDelete();
    void OnOK();

    WarningItems warnings;
    CSearch chosen;
    ReportList* list = nullptr;
};
