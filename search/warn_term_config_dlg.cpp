// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/warn_term_config_dlg.h"

#include "host/contract/lang_text.h"
#include "host/controls/window_id.h"
#include "search/condition_texts.h"
#include "search/dialog_controls.h"
#include "search/query_entry.h"
#include "search/search_ids.h"
#include "search/search_keys.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

QString shownText(const KeywordList& keywords) {
    return QStringList(keywords.begin(), keywords.end()).join(u", "_s);
}

bool splitsAnyOf(const KeywordList& keywords) {
    return std::any_of(keywords.begin(), keywords.end(), [](const QString& keyword) {
        return keywordsOfText(keyword) != KeywordList{keyword};
    });
}

}  // namespace

CWarnTermConfigDlg::CWarnTermConfigDlg(const CSearch& edited, QWidget* parent, bool takesQueries)
    : QDialog(parent), condition(edited) {
    setWindowId(this, search_ids::warnTermConfig);
    setWindowTitle(langText(search_keys::warningItemTitle));
    createControls(takesQueries);
    EntryLists lists{condition.keywords, {}, numberOf(shownMethod(condition.method))};
    if (takesQueries && condition.isQuery()) {
        lists = listsOfCondition({condition.language, condition.keywords, condition.method});
        // Blanks separate keywords here: a phrase can only be told by the query itself.
        if (splitsAnyOf(lists.keywords) || splitsAnyOf(lists.excluded))
            lists = {condition.keywords, {}, queryChoice};
        excludedEdit->setText(shownText(lists.excluded));
    }
    keywordEdit->setText(lists.method == queryChoice ? lists.keywords.front() : shownText(lists.keywords));
    method->button(lists.method)->setChecked(true);
    scope->button(numberOf(scopeOf(condition.scope)))->setChecked(true);
    keywordEdit->setFocus();
}

void CWarnTermConfigDlg::createControls(bool takesQueries) {
    keywordEdit = new QLineEdit(this);
    setWindowId(keywordEdit, search_ids::warningEdit);
    keywordEdit->setAccessibleName(langText(search_keys::contentsColumn));
    keywordEdit->setPlaceholderText(langText(search_keys::warningHint));
    keywordEdit->setMinimumWidth(fontMetrics().averageCharWidth() * 60);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(fontMetrics().height());
    grid->addWidget(addCaption(this, 0, langText(search_keys::contentsColumn)), 0, 0);
    if (takesQueries) {
        excludedEdit = new QLineEdit(this);
        setWindowId(excludedEdit, search_ids::excluded);
        excludedEdit->setAccessibleName(langText(search_keys::excluded));
        excludedEdit->setPlaceholderText(langText(search_keys::warningHint));
    }
    const int columns = static_cast<int>(search_ids::warningScopeButtons.size()) + 1;
    grid->addWidget(keywordEdit, 0, 1, 1, columns);
    if (takesQueries) {
        grid->addWidget(addCaption(this, search_ids::excludedCaption, langText(search_keys::excluded)), 1, 0);
        grid->addWidget(excludedEdit, 1, 1, 1, columns);
    }
    method = addChoices(this, *grid, 2, addCaption(this, 0, langText(search_keys::method)),
                        withQuery(choicesOf(search_ids::warningMethodButtons), takesQueries));
    scope = addChoices(this, *grid, 3, addCaption(this, 0, langText(search_keys::scope)),
                       choicesOf(search_ids::warningScopeButtons));
    grid->setColumnStretch(columns, 1);

    QPushButton* ok = makeButton(this, search_ids::ok, langText(search_keys::warningOk));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &CWarnTermConfigDlg::takeControls);

    auto* column = new QVBoxLayout(this);
    column->setSpacing(fontMetrics().height());
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addLayout(grid);
    column->addLayout(addEnd(this, ok));
}

void CWarnTermConfigDlg::takeControls() {
    EntryLists lists{keywordsOfText(keywordEdit->text()), {}, method->checkedId()};
    if (excludedEdit != nullptr)
        lists.excluded = keywordsOfText(excludedEdit->text());
    if (lists.method == queryChoice && !lists.keywords.empty())
        lists.keywords = {keywordEdit->text().trimmed()};
    const auto entered = askCondition(this, conditionOfLists(lists), keywordsOfText(keywordEdit->text()));
    if (!entered)
        return;
    condition.language = entered->language;
    condition.keywords = entered->keywords;
    condition.method = static_cast<unsigned char>(entered->method);
    condition.scope = static_cast<unsigned char>(scope->checkedId());
    accept();
}

namespace wirepane {

std::vector<QString> keywordsOfText(const QString& text) {
    static const QRegularExpression separators(u"[ ,\n]"_s);
    const QStringList pieces = text.split(separators, Qt::SkipEmptyParts);
    return {pieces.begin(), pieces.end()};
}

}  // namespace wirepane
