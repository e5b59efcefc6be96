// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/warn_term_config_dlg.h"

#include "host/contract/lang_text.h"
#include "host/controls/window_id.h"
#include "search/condition_texts.h"
#include "search/dialog_controls.h"
#include "search/search_ids.h"
#include "search/search_keys.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace wirepane;

CWarnTermConfigDlg::CWarnTermConfigDlg(const CSearch& edited, QWidget* parent)
    : QDialog(parent), condition(edited) {
    setWindowId(this, search_ids::warnTermConfig);
    setWindowTitle(langText(search_keys::warningItemTitle));
    createControls();
    const QStringList keywords(condition.keywords.begin(), condition.keywords.end());
    keywordEdit->setText(keywords.join(u", "_s));
    method->button(numberOf(shownMethod(condition.method)))->setChecked(true);
    scope->button(numberOf(scopeOf(condition.scope)))->setChecked(true);
    keywordEdit->setFocus();
}

void CWarnTermConfigDlg::createControls() {
    keywordEdit = new QLineEdit(this);
    setWindowId(keywordEdit, search_ids::warningEdit);
    keywordEdit->setAccessibleName(langText(search_keys::contentsColumn));
    keywordEdit->setPlaceholderText(langText(search_keys::warningHint));
    keywordEdit->setMinimumWidth(fontMetrics().averageCharWidth() * 60);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(fontMetrics().height());
    grid->addWidget(addCaption(this, 0, langText(search_keys::contentsColumn)), 0, 0);
    const int columns = static_cast<int>(search_ids::warningScopeButtons.size()) + 1;
    grid->addWidget(keywordEdit, 0, 1, 1, columns);
    method = addChoices(this, *grid, 1, addCaption(this, 0, langText(search_keys::method)),
                        choicesOf(search_ids::warningMethodButtons));
    scope = addChoices(this, *grid, 2, addCaption(this, 0, langText(search_keys::scope)),
                       choicesOf(search_ids::warningScopeButtons));
    grid->setColumnStretch(columns, 1);

    QPushButton* ok = makeButton(this, search_ids::ok, langText(search_keys::warningOk));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* column = new QVBoxLayout(this);
    column->setSpacing(fontMetrics().height());
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addLayout(grid);
    column->addLayout(addEnd(this, ok));
}

CSearch CWarnTermConfigDlg::composed() const {
    CSearch edited = condition;
    edited.keywords = keywordsOfText(keywordEdit->text());
    edited.method = static_cast<unsigned char>(method->checkedId());
    edited.scope = static_cast<unsigned char>(scope->checkedId());
    return edited;
}

namespace wirepane {

std::vector<QString> keywordsOfText(const QString& text) {
    static const QRegularExpression separators(u"[ ,\n]"_s);
    const QStringList pieces = text.split(separators, Qt::SkipEmptyParts);
    return {pieces.begin(), pieces.end()};
}

}  // namespace wirepane
