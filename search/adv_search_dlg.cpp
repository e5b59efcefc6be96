// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/adv_search_dlg.h"

#include "host/controls/plain_caption.h"
#include "host/controls/window_id.h"
#include "search/search_ids.h"
#include "search/search_keys.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

constexpr int scopeWidth = 100;
constexpr int methodWidth = 80;
constexpr int recentRows = 5;  // that are in sight
constexpr int methodAll = 1;
constexpr int methodAny = 2;

struct Choice {
    int id;
    QLatin1StringView key;
};
constexpr std::array scopes{Choice{search_ids::scopeHeadlines, search_keys::scopeHeadlines},
                            Choice{search_ids::scopeStories, search_keys::scopeStories},
                            Choice{search_ids::scopeBoth, search_keys::scopeBoth}};
constexpr std::array methods{Choice{search_ids::methodOr, search_keys::methodOr},
                             Choice{search_ids::methodAnd, search_keys::methodAnd}};

// Without the mark of a key, also where it stands in brackets behind the text.
QString withoutKey(const QString& caption) {
    const qsizetype bracket = caption.indexOf(QLatin1StringView("(&"));
    return NameOfCaption(bracket > 0 ? caption.left(bracket) : caption).trimmed();
}

}  // namespace

CAdvSearchDlg::CAdvSearchDlg(const CSearch& edited, const KeywordList& keywordPool,
                             const RecentSearches& searches, QWidget* parent)
    : KeywordEntryDlg(edited.keywords, keywordPool, search_ids::removeAll, parent),
      condition(edited),
      recent(searches) {
    SetWindowId(this, search_ids::advancedSearch);
    setWindowTitle(Text(search_keys::title));
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
    const auto addRow = [&](int row, int captionId, QLatin1StringView caption, auto& choices) {
        auto* group = new QButtonGroup(this);
        grid->addWidget(pAddCaption(captionId, Text(caption)), row, 0);
        int index = 0;
        for (const Choice& choice : choices) {
            auto* button = new QRadioButton(Text(choice.key), this);
            SetWindowId(button, choice.id);
            button->installEventFilter(this);
            grid->addWidget(button, row, index + 1);
            group->addButton(button, index++);
        }
        return group;
    };
    scope = addRow(0, search_ids::scopeCaption, search_keys::scope, scopes);
    method = addRow(1, search_ids::methodCaption, search_keys::method, methods);
    grid->setHorizontalSpacing(fontMetrics().height());
    grid->setColumnStretch(static_cast<int>(scopes.size()) + 1, 1);
    return grid;
}

void CAdvSearchDlg::vCreateRecentList() {
    recentList = new QTableWidget(0, 3, this);
    SetWindowId(recentList, search_ids::recent);
    recentList->setAccessibleName(Text(search_keys::recent));
    recentList->setSelectionBehavior(QAbstractItemView::SelectRows);
    recentList->setSelectionMode(QAbstractItemView::SingleSelection);
    recentList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    recentList->setTabKeyNavigation(false);
    recentList->setWordWrap(false);
    recentList->verticalHeader()->hide();
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

void CAdvSearchDlg::vCreateRecentColumns() {
    recentList->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    QHeaderView* header = recentList->horizontalHeader();
    header->setSectionsMovable(true);
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    header->resizeSection(0, scopeWidth);
    header->resizeSection(1, methodWidth);
    int index = 0;
    for (const QLatin1StringView key :
         {search_keys::scopeColumn, search_keys::methodColumn, search_keys::contentsColumn}) {
        auto* item = new QTableWidgetItem(Text(key));
        item->setTextAlignment(index == 1 ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
        recentList->setHorizontalHeaderItem(index++, item);
    }
    recentList->setFixedHeight(header->sizeHint().height() + recentRows * (fontMetrics().height() + 6) +
                               2 * recentList->frameWidth());
}

QLayout* CAdvSearchDlg::pCreateRecent() {
    vCreateRecentList();
    vCreateRecentColumns();
    auto* column = new QVBoxLayout;
    column->addWidget(pAddCaption(search_ids::recentCaption, Text(search_keys::recent)));
    column->addWidget(recentList);
    return column;
}

QLayout* CAdvSearchDlg::pCreateEnd() {
    QPushButton* cancel = pAddButton(search_ids::cancel, Text(search_keys::cancel));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(GetDlgItem(this, search_ids::ok));
    row->addWidget(cancel);
    return row;
}

// --- The condition and its controls ---

void CAdvSearchDlg::vLoadCondition() {
    method->button(condition.method == methodAll ? 1 : 0)->setChecked(true);
    scope->button(condition.scope <= 1 ? condition.scope : 2)->setChecked(true);
    vSetKeywords(condition.keywords);
}

void CAdvSearchDlg::vReadCondition() {
    condition.method = method->checkedId() == 1 ? methodAll : methodAny;
    condition.scope = static_cast<unsigned char>(scope->checkedId());
    condition.keywords = ShownKeywords();
    vSetKeywords(condition.keywords);
}

void CAdvSearchDlg::vFillRecent() {
    recentList->setRowCount(static_cast<int>(recent.size()));
    int row = 0;
    for (auto search = recent.rbegin(); search != recent.rend(); ++search, ++row) {
        const Choice& searchScope = scopes[std::min<std::size_t>(search->scope, scopes.size() - 1)];
        const Choice& searchMethod = methods[search->method == methodAll ? 1 : 0];
        QString contents;
        for (const QString& keyword : search->keywords)
            contents += keyword + u' ';
        const QString texts[] = {withoutKey(Text(searchScope.key)), withoutKey(Text(searchMethod.key)),
                                 contents};
        for (int index = 0; index < 3; ++index) {
            auto* item = new QTableWidgetItem(texts[index]);
            item->setTextAlignment(index == 1 ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
            recentList->setItem(row, index, item);
        }
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
