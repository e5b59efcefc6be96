// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/warn_term_config_dlg.h"

#include "host/contract/lang_text.h"
#include "host/controls/window_id.h"
#include "search/condition_texts.h"
#include "search/dialog_controls.h"
#include "search/search_ids.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array methods{Choice{search_ids::warningAnd, methodKeys[1]},
                             Choice{search_ids::warningOr, methodKeys[0]}};
constexpr std::array scopes{Choice{search_ids::warningHeadlines, scopeKeys[0]},
                            Choice{search_ids::warningStories, scopeKeys[1]},
                            Choice{search_ids::warningBoth, scopeKeys[2]}};

}  // namespace

CWarnTermConfigDlg::CWarnTermConfigDlg(const CSearch& edited, QWidget* parent)
    : QDialog(parent), condition(edited) {
    SetWindowId(this, search_ids::warnTermConfig);
    setWindowTitle(LangText(search_keys::warningItemTitle));
    vCreateControls();
    const QStringList keywords(condition.keywords.begin(), condition.keywords.end());
    keywordEdit->setText(keywords.join(u", "_s));
    method->button(condition.method == conditions::methodAll ? 0 : 1)->setChecked(true);
    scope->button(std::min<int>(condition.scope, 2))->setChecked(true);
    keywordEdit->setFocus();
}

void CWarnTermConfigDlg::vCreateControls() {
    keywordEdit = new QLineEdit(this);
    SetWindowId(keywordEdit, search_ids::warningEdit);
    keywordEdit->setAccessibleName(LangText(search_keys::contentsColumn));
    keywordEdit->setPlaceholderText(LangText(search_keys::warningHint));
    keywordEdit->setMinimumWidth(fontMetrics().averageCharWidth() * 60);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(fontMetrics().height());
    grid->addWidget(AddCaption(this, 0, LangText(search_keys::contentsColumn)), 0, 0);
    grid->addWidget(keywordEdit, 0, 1, 1, static_cast<int>(scopes.size()) + 1);
    method = AddChoices(this, *grid, 1, AddCaption(this, 0, LangText(search_keys::method)), methods);
    scope = AddChoices(this, *grid, 2, AddCaption(this, 0, LangText(search_keys::scope)), scopes);
    grid->setColumnStretch(static_cast<int>(scopes.size()) + 1, 1);

    QPushButton* ok = AddButton(this, search_ids::ok, LangText(search_keys::warningOk));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* column = new QVBoxLayout(this);
    column->setSpacing(fontMetrics().height());
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addLayout(grid);
    column->addLayout(AddEnd(this, ok));
}

CSearch CWarnTermConfigDlg::Condition() const {
    CSearch edited = condition;
    edited.keywords = KeywordsOfText(keywordEdit->text());
    edited.method = method->checkedId() == 0 ? conditions::methodAll : conditions::methodAny;
    edited.scope = static_cast<unsigned char>(scope->checkedId());
    return edited;
}

std::vector<QString> KeywordsOfText(const QString& text) {
    static const QRegularExpression separators(u"[ ,\n]"_s);
    const QStringList pieces = text.split(separators, Qt::SkipEmptyParts);
    return {pieces.begin(), pieces.end()};
}
