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
    CWarnTermConfigDlg(const CSearch& condition, QWidget* parent, bool takesQueries = false);

    // The condition as it was edited, after OK.
    CSearch composed() const { return condition; }

private:
    void createControls(bool takesQueries);
    void takeControls();

    CSearch condition;
    QLineEdit* keywordEdit = nullptr;
    QLineEdit* excludedEdit = nullptr;  // only with queries
    QButtonGroup* method = nullptr;     // button ids: SearchMethod, queryChoice
    QButtonGroup* scope = nullptr;      // button ids: the scope
};

namespace wirepane {

// The keywords of a text: what stands between blanks, commas and line feeds, in order, also when it repeats.
std::vector<QString> keywordsOfText(const QString& text);

}  // namespace wirepane
