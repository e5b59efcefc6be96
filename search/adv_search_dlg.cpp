// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/adv_search_dlg.h"

#include "host/contract/lang_text.h"
#include "host/controls/report_list.h"
#include "host/controls/roomy_rows.h"
#include "host/controls/window_id.h"
#include "search/condition_texts.h"
#include "search/dialog_controls.h"
#include "search/search_ids.h"
#include "search/search_keys.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

using namespace wirepane;

namespace {

constexpr int scopeWidth = 100;
constexpr int methodWidth = 80;
constexpr int characters = 100;
constexpr int recentRows = 5;  // that are in sight

}  // namespace

CAdvSearchDlg::CAdvSearchDlg(const CSearch& edited, const KeywordList& keywordPool,
                             const RecentSearches& searches, QWidget* parent, bool takesQueries)
    : KeywordEntryDlg(edited.keywords, keywordPool, {search_ids::removeAll, search_keys::askRemoveAll},
                      parent, takesQueries),
      condition(forEverySymbol(edited)),
      recent(searches) {
    setWindowId(this, search_ids::advancedSearch);
    setWindowTitle(langText(search_keys::title));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(fontMetrics().height() * 2 / 3);
    column->addLayout(createEntry(), 1);
    column->addLayout(createChoices());
    column->addLayout(createRecent());
    column->addLayout(createEnd());
    fitToScreen(this, characters, {{recentList, RoomyRows::heightOf(fontMetrics()), recentRows}});
    fillRecent();
    loadCondition();
}

void CAdvSearchDlg::readResult(CSearch& edited, KeywordList& keywordPool, RecentSearches& searches) const {
    edited = condition;
    const EnteredCondition entered = composed();
    const bool isPlain = entered.language == SearchLanguage::Plain;
    if (isPlain || std::holds_alternative<QueryNode>(readQuery(entered.keywords.front()))) {
        edited.language = entered.language;
        edited.keywords = entered.keywords;
    }
    keywordPool = offeredKeywords();
    searches = recent;
}

QLayout* CAdvSearchDlg::createChoices() {
    auto* grid = new QGridLayout;
    scope =
        addChoices(this, *grid, 0, addCaption(this, search_ids::scopeCaption, langText(search_keys::scope)),
                   choicesOf(search_ids::scopeButtons));
    createMethods(*grid, 1, addCaption(this, search_ids::methodCaption, langText(search_keys::method)),
                  search_ids::methodButtons);
    grid->setHorizontalSpacing(fontMetrics().height());
    grid->setColumnStretch(static_cast<int>(search_ids::scopeButtons.size()) + 1, 1);
    return grid;
}

void CAdvSearchDlg::createRecentList() {
    recentList = new ReportList(
        std::array{
            ReportColumn{langText(search_keys::scopeColumn), scopeWidth, Qt::AlignLeft, scopeTexts()},
            ReportColumn{langText(search_keys::methodColumn), methodWidth, Qt::AlignHCenter, methodTexts()},
            ReportColumn{langText(search_keys::contentsColumn), 0}},
        this);
    setWindowId(recentList, search_ids::recent);
    recentList->setAccessibleName(langText(search_keys::recent));
    recentList->setFixedHeight(recentList->heightOf(recentRows));
    recentList->installEventFilter(this);
    connect(recentList, &QTableWidget::cellClicked, this, &CAdvSearchDlg::selectRecent);
    connect(recentList, &QTableWidget::itemSelectionChanged, this, [this] {
        if (recentList->selectionModel()->hasSelection())
            selectRecent(recentList->currentRow());
    });
    connect(recentList, &QTableWidget::cellDoubleClicked, this, [this](int row) {
        selectRecent(row);
        QMetaObject::invokeMethod(
            this, [this] { onOK(); }, Qt::QueuedConnection);
    });
}

QLayout* CAdvSearchDlg::createRecent() {
    createRecentList();
    auto* column = new QVBoxLayout;
    column->addWidget(addCaption(this, search_ids::recentCaption, langText(search_keys::recent)));
    column->addWidget(recentList);
    return column;
}

// --- The condition and its controls ---

void CAdvSearchDlg::loadCondition() {
    scope->button(numberOf(scopeOf(condition.scope)))->setChecked(true);
    setCondition({condition.language, condition.keywords, condition.method});
}

bool CAdvSearchDlg::readCondition() {
    const auto entered = askComposed();
    if (!entered)
        return false;
    condition.language = entered->language;
    condition.method = static_cast<unsigned char>(entered->method);
    condition.scope = static_cast<unsigned char>(scope->checkedId());
    condition.keywords = entered->keywords;
    std::erase_if(condition.keywords, [](const QString& keyword) { return keyword.isEmpty(); });
    loadCondition();
    return true;
}

void CAdvSearchDlg::fillRecent() {
    int row = 0;
    for (auto search = recent.rbegin(); search != recent.rend(); ++search, ++row) {
        QString contents;
        for (const QString& keyword : search->keywords)
            contents += keyword + u' ';
        recentList->setRow(
            row, {scopeText(search->scope), searchMethodText(search->method, search->language), contents});
    }
}

void CAdvSearchDlg::selectRecent(int row) {
    const int index = static_cast<int>(recent.size()) - row - 1;
    const QSignalBlocker quiet(recentList);
    if (index < 0 || index >= static_cast<int>(recent.size())) {
        recentList->clearSelection();
        return;
    }
    condition = recent[static_cast<std::size_t>(index)];
    loadCondition();
    recentList->selectRow(row);
}

void CAdvSearchDlg::onOK() {
    if (!readCondition())
        return;
    keepRecentSearch(recent, condition);
    KeywordEntryDlg::onOK();
}
