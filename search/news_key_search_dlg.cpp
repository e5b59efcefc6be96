// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/news_key_search_dlg.h"

#include "host/contract/lang_text.h"
#include "host/controls/check_list_box.h"
#include "host/controls/roomy_rows.h"
#include "host/controls/window_id.h"
#include "search/condition_texts.h"
#include "search/dialog_controls.h"
#include "search/key_set_list.h"
#include "search/search_ids.h"
#include "search/search_keys.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace {

constexpr int methodWidth = 90;
constexpr int newsTypesWidth = 160;
constexpr int newsTypeRows = 5;  // that are in sight
constexpr int keySetRows = 6;

}  // namespace

CNewsKeySearchDlg::CNewsKeySearchDlg(const KeywordList& keywordPool, const CategoryMap& categories,
                                     const std::vector<CNewsKey>& stored, QWidget* parent)
    : KeywordEntryDlg({}, keywordPool, {search_ids::removeAllOfKeySet, search_keys::askRemoveAllOfKeySet},
                      parent),
      newsTypes(categories),
      keySets(WithNewsTypes(stored, categories)) {
    SetWindowId(this, search_ids::newsKeySearch);
    setWindowTitle(LangText(search_keys::relationTitle));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(fontMetrics().height() * 2 / 3);
    column->addWidget(AddCaption(this, search_ids::newsKeyTitle, LangText(search_keys::relationTitle)));
    column->addLayout(pCreateComposition(), 1);
    column->addLayout(pCreateKeySets());
    column->addLayout(pCreateEnd());
    resize(fontMetrics().averageCharWidth() * 100, sizeHint().height());
    for (std::size_t row = 0; row < keySets.size(); ++row)
        vFillRow(static_cast<int>(row));
}

// Between what belongs together.
void CNewsKeySearchDlg::vTakeAnyCase() {
    capitalsNote->hide();
}

int CNewsKeySearchDlg::nearby() const {
    return fontMetrics().height() / 3;
}

QCheckBox* CNewsKeySearchDlg::pAddCheckBox(int id, QLatin1StringView key) {
    auto* box = new QCheckBox(LangText(key), this);
    SetWindowId(box, id);
    box->installEventFilter(this);
    return box;
}

// Below the keywords to choose from the news types, below those that were chosen the rest.
QLayout* CNewsKeySearchDlg::pCreateComposition() {
    QGridLayout* grid = pCreateEntry();
    const int below = grid->rowCount();
    grid->addLayout(pCreateNewsTypes(), below, 0);
    grid->addLayout(pCreateSaving(), below, 2);
    return grid;
}

QLayout* CNewsKeySearchDlg::pCreateNewsTypes() {
    allNewsTypes = pAddCheckBox(search_ids::allNewsTypes, search_keys::selectAllNewsTypes);
    newsTypeList = new CCheckListBox(this);
    SetWindowId(newsTypeList, search_ids::newsTypes);
    newsTypeList->setAccessibleName(LangText(search_keys::newsType));
    newsTypeList->installEventFilter(this);
    for (const auto& [id, name] : newsTypes)
        newsTypeList->item(newsTypeList->AddString(name))->setData(Qt::UserRole, id);
    newsTypeList->setFixedHeight(newsTypeRows * RoomyRows::HeightOf(fontMetrics()) +
                                 2 * newsTypeList->frameWidth());
    connect(newsTypeList, &QListWidget::itemChanged, this, &CNewsKeySearchDlg::vFollowTicks);
    connect(allNewsTypes, &QCheckBox::clicked, this, [this](bool ticked) {
        for (int row = 0; row < newsTypeList->count(); ++row) {
            newsTypeList->SetCheck(row, ticked);
            newsTypeList->item(row)->setSelected(ticked);
        }
    });
    auto* head = new QHBoxLayout;
    head->addWidget(AddCaption(this, search_ids::newsTypesCaption, LangText(search_keys::newsType)));
    head->addStretch();
    head->addWidget(allNewsTypes);
    auto* column = new QVBoxLayout;
    column->setSpacing(nearby());
    column->addLayout(head);
    column->addWidget(newsTypeList);
    return column;
}

QLayout* CNewsKeySearchDlg::pCreateSaving() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(fontMetrics().height());
    method = AddChoices(this, *grid, 0, AddCaption(this, 0, LangText(search_keys::method)),
                        ChoicesOf(search_ids::keySetMethodButtons));
    method->button(CNewsKey::all)->setChecked(true);
    grid->setColumnStretch(static_cast<int>(search_ids::keySetMethodButtons.size()) + 1, 1);
    saveButton = AddButton(this, search_ids::saveKeySet, LangText(search_keys::addKeySet));
    connect(saveButton, &QPushButton::clicked, this, &CNewsKeySearchDlg::vSave);
    capitalsNote = new QLabel(LangText(search_keys::capitalsNote), this);
    capitalsNote->setTextFormat(Qt::PlainText);
    capitalsNote->setWordWrap(true);
    auto* column = new QVBoxLayout;
    column->addLayout(grid);
    column->addWidget(capitalsNote);
    column->addStretch();
    column->addWidget(saveButton);
    return column;
}

void CNewsKeySearchDlg::vCreateKeySetList() {
    keySetList = new KeySetList(std::array{ReportColumn{LangText(search_keys::methodColumn), methodWidth,
                                                        Qt::AlignHCenter, MethodTexts()},
                                           ReportColumn{LangText(search_keys::newsType), newsTypesWidth},
                                           ReportColumn{LangText(search_keys::contentsColumn), 0}},
                                this);
    SetWindowId(keySetList, search_ids::keySets);
    keySetList->setAccessibleName(LangText(search_keys::relationTitle));
    keySetList->setFixedHeight(keySetList->iHeightOf(keySetRows));
    keySetList->installEventFilter(this);
    connect(keySetList, &KeySetList::RowChosen, this, &CNewsKeySearchDlg::vEdit);
    connect(keySetList, &KeySetList::RowLeft, this, &CNewsKeySearchDlg::vStopEditing);
    connect(keySetList, &KeySetList::TicksChanged, this, &CNewsKeySearchDlg::vFollowTicks);
    connect(keySetList, &KeySetList::RowDoubleClicked, this, [this](int row) {
        vDelete({row});
        vStopEditing();
    });
}

QLayout* CNewsKeySearchDlg::pCreateKeySets() {
    vCreateKeySetList();
    allKeySets = pAddCheckBox(search_ids::allKeySets, search_keys::selectAllKeySets);
    connect(allKeySets, &QCheckBox::clicked, this, [this](bool ticked) {
        for (int row = 0; row < keySetList->rowCount(); ++row)
            keySetList->vTick(row, ticked);
    });
    deleteButton = AddButton(this, search_ids::deleteKeySets, LangText(search_keys::deleteKeySets));
    connect(deleteButton, &QPushButton::clicked, this, [this] { vDelete(keySetList->TickedRows()); });
    auto* under = new QHBoxLayout;
    under->addWidget(allKeySets);
    under->addStretch();
    under->addWidget(deleteButton);
    auto* column = new QVBoxLayout;
    column->setSpacing(nearby());
    column->addWidget(keySetList);
    column->addLayout(under);
    return column;
}

QPushButton* CNewsKeySearchDlg::pDefaultFor(const QWidget* focus) const {
    const QList<QAbstractButton*> methods = method->buttons();
    const bool composing = focus == newsTypeList || focus == allNewsTypes ||
                           std::find(methods.begin(), methods.end(), focus) != methods.end();
    return composing ? saveButton : KeywordEntryDlg::pDefaultFor(focus);
}

std::vector<CNewsKey> CNewsKeySearchDlg::TickedKeySets() const {
    std::vector<CNewsKey> ticked;
    for (const int row : keySetList->TickedRows())
        ticked.push_back(keySets[static_cast<std::size_t>(row)]);
    return ticked;
}

// --- One key set ---

CNewsKey CNewsKeySearchDlg::ComposedKeySet() const {
    CNewsKey keySet(method->checkedId(), {}, Keywords());
    for (int row = 0; row < newsTypeList->count(); ++row) {
        if (newsTypeList->GetCheck(row))
            keySet.newsTypes.push_back(newsTypeList->item(row)->data(Qt::UserRole).toInt());
    }
    return keySet;
}

void CNewsKeySearchDlg::vSave() {
    const CNewsKey keySet = ComposedKeySet();
    if (keySet.newsTypes.empty() || keySet.keywords.empty()) {
        TellError(this,
                  LangText(keySet.newsTypes.empty() ? search_keys::noNewsType : search_keys::noKeyword));
        return;
    }
    const int row = SaveKeySet(keySets, keySet, editing);
    if (row < 0)
        return;
    vFillRow(row);
    vLeaveEditing();
    keySetList->vTick(row, true);
}

void CNewsKeySearchDlg::vEdit(int row) {
    if (row < 0 || row >= static_cast<int>(keySets.size()))
        return;
    editing = row;
    const CNewsKey& keySet = keySets[static_cast<std::size_t>(row)];
    vSetKeywords(keySet.keywords);
    method->button(keySet.knownMethod())->setChecked(true);
    newsTypeList->clearSelection();
    for (int type = 0; type < newsTypeList->count(); ++type) {
        const std::int32_t id = newsTypeList->item(type)->data(Qt::UserRole).toInt();
        newsTypeList->SetCheck(
            type, std::find(keySet.newsTypes.begin(), keySet.newsTypes.end(), id) != keySet.newsTypes.end());
    }
    saveButton->setText(LangText(search_keys::editKeySet));
    keySetList->vMark(row);
}

void CNewsKeySearchDlg::vLeaveEditing() {
    editing = -1;
    saveButton->setText(LangText(search_keys::addKeySet));
    vSetKeywords({});
    keySetList->vMark(-1);
}

// A key set that is being composed anew is not lost.
void CNewsKeySearchDlg::vStopEditing() {
    if (editing >= 0)
        vLeaveEditing();
}

// --- All of them ---

void CNewsKeySearchDlg::vFillRow(int row) {
    keySetList->vSetKeySet(row, TextsOfKeySet(keySets[static_cast<std::size_t>(row)], newsTypes));
}

void CNewsKeySearchDlg::vDelete(const std::vector<int>& rows) {
    std::vector<CNewsKey> doomed;
    for (const int row : rows)
        doomed.push_back(keySets.at(static_cast<std::size_t>(row)));
    if (doomed.empty() || !AskYesNo(this, LangText(search_keys::askDeleteKeySets).arg(doomed.size())))
        return;
    const std::vector<int> equal = RowsOfEqual(keySets, doomed);
    for (auto row = equal.rbegin(); row != equal.rend(); ++row) {
        const QSignalBlocker quiet(keySetList);
        keySets.erase(keySets.begin() + *row);
        keySetList->removeRow(*row);
    }
    vFollowTicks();
    vStopEditing();
}

// The boxes for all of them are ticked while all are.
void CNewsKeySearchDlg::vFollowTicks() {
    const auto ticked = ComposedKeySet().newsTypes.size();
    allNewsTypes->setChecked(ticked > 0 && ticked == newsTypes.size());
    const auto sets = keySetList->TickedRows().size();
    allKeySets->setChecked(sets > 0 && sets == keySets.size());
}
