// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/adv_search_dlg.h"

#include "host/contract/lang_text.h"
#include "host/controls/window_id.h"
#include "search/condition_texts.h"
#include "search/dialog_controls.h"
#include "search/report_list.h"
#include "search/search_ids.h"
#include "search/search_keys.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int scopeWidth = 100;
constexpr int methodWidth = 80;
constexpr int recentRows = 5;  // that are in sight

}  // namespace

CAdvSearchDlg::CAdvSearchDlg(const CSearch& edited, const KeywordList& keywordPool,
                             const RecentSearches& searches, QWidget* parent)
    : KeywordEntryDlg(edited.keywords, keywordPool, {search_ids::removeAll, search_keys::askRemoveAll},
                      parent),
      condition(ForEverySymbol(edited)),
      recent(searches) {
    SetWindowId(this, search_ids::advancedSearch);
    setWindowTitle(LangText(search_keys::title));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(fontMetrics().height() * 2 / 3);
    column->addLayout(pCreateEntry(), 1);
    column->addLayout(pCreateChoices());
    column->addLayout(pCreateRecent());
    column->addLayout(pCreateEnd());
    resize(fontMetrics().averageCharWidth() * 100, sizeHint().height());
    vFillRecent();
    vLoadCondition();
}

void CAdvSearchDlg::vGetResult(CSearch& edited, KeywordList& keywordPool, RecentSearches& searches) const {
    edited = condition;
    edited.keywords = Keywords();
    keywordPool = Pool();
    searches = recent;
}

QLayout* CAdvSearchDlg::pCreateChoices() {
    auto* grid = new QGridLayout;
    scope =
        AddChoices(this, *grid, 0, AddCaption(this, search_ids::scopeCaption, LangText(search_keys::scope)),
                   ChoicesOf(search_ids::scopeButtons));
    method =
        AddChoices(this, *grid, 1, AddCaption(this, search_ids::methodCaption, LangText(search_keys::method)),
                   ChoicesOf(search_ids::methodButtons));
    grid->setHorizontalSpacing(fontMetrics().height());
    grid->setColumnStretch(static_cast<int>(search_ids::scopeButtons.size()) + 1, 1);
    return grid;
}

void CAdvSearchDlg::vCreateRecentList() {
    recentList = new ReportList(
        std::array{
            ReportColumn{LangText(search_keys::scopeColumn), scopeWidth, Qt::AlignLeft, ScopeTexts()},
            ReportColumn{LangText(search_keys::methodColumn), methodWidth, Qt::AlignHCenter, MethodTexts()},
            ReportColumn{LangText(search_keys::contentsColumn), 0}},
        this);
    SetWindowId(recentList, search_ids::recent);
    recentList->setAccessibleName(LangText(search_keys::recent));
    recentList->setFixedHeight(recentList->iHeightOf(recentRows));
    recentList->installEventFilter(this);
    connect(recentList, &QTableWidget::cellClicked, this, &CAdvSearchDlg::vSelectRecent);
    connect(recentList, &QTableWidget::itemSelectionChanged, this, [this] {
        if (recentList->selectionModel()->hasSelection())
            vSelectRecent(recentList->currentRow());
    });
    connect(recentList, &QTableWidget::cellDoubleClicked, this, [this](int row) {
        vSelectRecent(row);
        QMetaObject::invokeMethod(
            this, [this] { OnOK(); }, Qt::QueuedConnection);
    });
}

QLayout* CAdvSearchDlg::pCreateRecent() {
    vCreateRecentList();
    auto* column = new QVBoxLayout;
    column->addWidget(AddCaption(this, search_ids::recentCaption, LangText(search_keys::recent)));
    column->addWidget(recentList);
    return column;
}

// --- The condition and its controls ---

void CAdvSearchDlg::vLoadCondition() {
    method->button(numberOf(shownMethod(condition.method)))->setChecked(true);
    scope->button(numberOf(scopeOf(condition.scope)))->setChecked(true);
    vSetKeywords(condition.keywords);
}

void CAdvSearchDlg::vReadCondition() {
    condition.method = static_cast<unsigned char>(method->checkedId());
    condition.scope = static_cast<unsigned char>(scope->checkedId());
    condition.keywords = ShownKeywords();
    vSetKeywords(condition.keywords);
}

void CAdvSearchDlg::vFillRecent() {
    int row = 0;
    for (auto search = recent.rbegin(); search != recent.rend(); ++search, ++row) {
        QString contents;
        for (const QString& keyword : search->keywords)
            contents += keyword + u' ';
        recentList->vSetRow(row, {ScopeText(search->scope), MethodText(search->method), contents});
    }
}

void CAdvSearchDlg::vSelectRecent(int row) {
    const int index = static_cast<int>(recent.size()) - row - 1;
    const QSignalBlocker quiet(recentList);
    if (index < 0 || index >= static_cast<int>(recent.size())) {
        recentList->clearSelection();
        return;
    }
    condition = recent[static_cast<std::size_t>(index)];
    vLoadCondition();
    recentList->selectRow(row);
}

void CAdvSearchDlg::OnOK() {
    vReadCondition();
    KeepRecentSearch(recent, condition);
    KeywordEntryDlg::OnOK();
}
