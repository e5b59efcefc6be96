// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"

#include <QDialog>

class QButtonGroup;
class QLineEdit;

// The modal dialog for one warning term: its keywords in a line, where and how they must match.
class CWarnTermConfigDlg : public QDialog {
    Q_OBJECT

public:
    // A back end has been installed.
    CWarnTermConfigDlg(const CSearch& condition, QWidget* parent);

    // The condition as the controls have it.
    CSearch composed() const;

private:
    void createControls();

    CSearch condition;
    QLineEdit* keywordEdit = nullptr;
    QButtonGroup* method = nullptr;  // button ids: SearchMethod
    QButtonGroup* scope = nullptr;   // button ids: the scope
};

namespace wirepane {

// The keywords of a text: what stands between blanks, commas and line feeds, in order, also when it repeats.
std::vector<QString> keywordsOfText(const QString& text);

}  // namespace wirepane
