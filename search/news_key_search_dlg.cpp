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

#include <QAbstractButton>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <utility>

using namespace wirepane;

namespace {

constexpr int methodWidth = 90;
constexpr int newsTypesWidth = 160;
constexpr int characters = 100;
constexpr int newsTypeRows = 5;  // that are in sight
constexpr int keySetRows = 6;

}  // namespace

CNewsKeySearchDlg::CNewsKeySearchDlg(const KeywordList& keywordPool, const CategoryMap& categories,
                                     const std::vector<CNewsKey>& stored, QWidget* parent, bool takesQueries)
    : KeywordEntryDlg({}, keywordPool, {search_ids::removeAllOfKeySet, search_keys::askRemoveAllOfKeySet},
                      parent, takesQueries),
      newsTypes(categories),
      keySets(withNewsTypes(stored, categories)) {
    setWindowId(this, search_ids::newsKeySearch);
    setWindowTitle(langText(search_keys::relationTitle));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(fontMetrics().height() * 2 / 3);
    column->addWidget(addCaption(this, search_ids::newsKeyTitle, langText(search_keys::relationTitle)));
    column->addLayout(createComposition(), 1);
    column->addLayout(createKeySets());
    column->addLayout(createEnd());
    const int row = RoomyRows::heightOf(fontMetrics());
    fitToScreen(this, characters, {{newsTypeList, row, newsTypeRows}, {keySetList, row, keySetRows}});
    for (std::size_t set = 0; set < keySets.size(); ++set)
        fillRow(static_cast<int>(set));
}

// Between what belongs together.
void CNewsKeySearchDlg::takeAnyCase() {
    capitalsNote->hide();
}

void CNewsKeySearchDlg::offerRehearsal(std::function<void(const CNewsKey&)> rehearse) {
    addToSaving(search_ids::rehearseKeySet, search_keys::rehearse, std::move(rehearse));
}

void CNewsKeySearchDlg::offerAlert(std::function<void(const CNewsKey&)> propose) {
    addToSaving(search_ids::alertOfKeySet, search_keys::alertMe, std::move(propose));
}

// What is done with the key set that is being composed.
void CNewsKeySearchDlg::addToSaving(int id, QLatin1StringView key, std::function<void(const CNewsKey&)> use) {
    auto* const last =
        qobject_cast<QPushButton*>(savingButtons->itemAt(savingButtons->count() - 1)->widget());
    QPushButton* button = makeButton(this, id, langText(key));
    savingButtons->addWidget(button);
    setTabOrder(last != nullptr ? last : saveButton, button);
    connect(button, &QPushButton::clicked, this, [this, use = std::move(use)] {
        if (const auto keySet = askKeySet())
            use(*keySet);
    });
}

int CNewsKeySearchDlg::nearby() const {
    return fontMetrics().height() / 3;
}

QCheckBox* CNewsKeySearchDlg::addCheckBox(int id, QLatin1StringView key) {
    auto* box = new QCheckBox(langText(key), this);
    setWindowId(box, id);
    box->installEventFilter(this);
    return box;
}

// Below the keywords to choose from the news types, below those that were chosen the rest.
QLayout* CNewsKeySearchDlg::createComposition() {
    QGridLayout* grid = createEntry();
    const int below = grid->rowCount();
    grid->addLayout(createNewsTypes(), below, 0);
    grid->addLayout(createSaving(), below, 2);
    return grid;
}

QLayout* CNewsKeySearchDlg::createNewsTypes() {
    allNewsTypes = addCheckBox(search_ids::allNewsTypes, search_keys::selectAllNewsTypes);
    newsTypeList = new CCheckListBox(this);
    setWindowId(newsTypeList, search_ids::newsTypes);
    newsTypeList->setAccessibleName(langText(search_keys::newsType));
    newsTypeList->installEventFilter(this);
    for (const auto& [id, name] : newsTypes)
        newsTypeList->item(newsTypeList->addString(name))->setData(Qt::UserRole, id);
    newsTypeList->setFixedHeight(newsTypeRows * RoomyRows::heightOf(fontMetrics()) +
                                 2 * newsTypeList->frameWidth());
    connect(newsTypeList, &QListWidget::itemChanged, this, &CNewsKeySearchDlg::followTicks);
    connect(allNewsTypes, &QCheckBox::clicked, this, [this](bool ticked) {
        for (int row = 0; row < newsTypeList->count(); ++row) {
            newsTypeList->setCheck(row, ticked);
            newsTypeList->item(row)->setSelected(ticked);
        }
    });
    auto* head = new QHBoxLayout;
    head->addWidget(addCaption(this, search_ids::newsTypesCaption, langText(search_keys::newsType)));
    head->addStretch();
    head->addWidget(allNewsTypes);
    auto* column = new QVBoxLayout;
    column->setSpacing(nearby());
    column->addLayout(head);
    column->addWidget(newsTypeList);
    return column;
}

QLayout* CNewsKeySearchDlg::createSaving() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(fontMetrics().height());
    createMethods(*grid, 0, addCaption(this, 0, langText(search_keys::method)),
                  search_ids::keySetMethodButtons);
    setCondition({SearchLanguage::Plain, {}, CNewsKey::all});
    grid->setColumnStretch(static_cast<int>(search_ids::keySetMethodButtons.size()) + 1, 1);
    saveButton = makeButton(this, search_ids::saveKeySet, langText(search_keys::addKeySet));
    connect(saveButton, &QPushButton::clicked, this, &CNewsKeySearchDlg::save);
    capitalsNote = new QLabel(langText(search_keys::capitalsNote), this);
    capitalsNote->setTextFormat(Qt::PlainText);
    capitalsNote->setWordWrap(true);
    auto* column = new QVBoxLayout;
    column->addLayout(grid);
    column->addWidget(capitalsNote);
    column->addStretch();
    savingButtons = new QHBoxLayout;
    savingButtons->addWidget(saveButton);
    column->addLayout(savingButtons);
    return column;
}

void CNewsKeySearchDlg::createKeySetList() {
    keySetList = new KeySetList(std::array{ReportColumn{langText(search_keys::methodColumn), methodWidth,
                                                        Qt::AlignHCenter, methodTexts()},
                                           ReportColumn{langText(search_keys::newsType), newsTypesWidth},
                                           ReportColumn{langText(search_keys::contentsColumn), 0}},
                                this);
    setWindowId(keySetList, search_ids::keySets);
    keySetList->setAccessibleName(langText(search_keys::relationTitle));
    keySetList->setFixedHeight(keySetList->heightOf(keySetRows));
    keySetList->installEventFilter(this);
    connect(keySetList, &KeySetList::rowChosen, this, &CNewsKeySearchDlg::edit);
    connect(keySetList, &KeySetList::rowLeft, this, &CNewsKeySearchDlg::stopEditing);
    connect(keySetList, &KeySetList::ticksChanged, this, &CNewsKeySearchDlg::followTicks);
    connect(keySetList, &KeySetList::rowDoubleClicked, this, [this](int row) {
        deleteChosen({row});
        stopEditing();
    });
}

QLayout* CNewsKeySearchDlg::createKeySets() {
    createKeySetList();
    allKeySets = addCheckBox(search_ids::allKeySets, search_keys::selectAllKeySets);
    connect(allKeySets, &QCheckBox::clicked, this, [this](bool ticked) {
        for (int row = 0; row < keySetList->rowCount(); ++row)
            keySetList->tick(row, ticked);
    });
    deleteButton = makeButton(this, search_ids::deleteKeySets, langText(search_keys::deleteKeySets));
    connect(deleteButton, &QPushButton::clicked, this, [this] { deleteChosen(keySetList->tickedRows()); });
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

QPushButton* CNewsKeySearchDlg::defaultFor(const QWidget* focus) const {
    const QList<QAbstractButton*> methods = methodButtons();
    const bool composing = focus == newsTypeList || focus == allNewsTypes ||
                           std::find(methods.begin(), methods.end(), focus) != methods.end();
    return composing ? saveButton : KeywordEntryDlg::defaultFor(focus);
}

std::vector<CNewsKey> CNewsKeySearchDlg::tickedKeySets() const {
    std::vector<CNewsKey> ticked;
    for (const int row : keySetList->tickedRows())
        ticked.push_back(keySets[static_cast<std::size_t>(row)]);
    return ticked;
}

// --- One key set ---

std::vector<std::int32_t> CNewsKeySearchDlg::tickedNewsTypes() const {
    std::vector<std::int32_t> ticked;
    for (int row = 0; row < newsTypeList->count(); ++row) {
        if (newsTypeList->check(row))
            ticked.push_back(newsTypeList->item(row)->data(Qt::UserRole).toInt());
    }
    return ticked;
}

std::optional<CNewsKey> CNewsKeySearchDlg::askKeySet() {
    const std::vector<std::int32_t> types = tickedNewsTypes();
    if (types.empty() || composed().keywords.empty()) {
        tellError(this, langText(types.empty() ? search_keys::noNewsType : search_keys::noKeyword));
        return std::nullopt;
    }
    const auto entered = askComposed(QueryUse::Headlines);
    if (!entered || entered->keywords.empty())
        return std::nullopt;
    CNewsKey keySet(entered->method, types, entered->keywords);
    keySet.language = entered->language;
    return keySet;
}

void CNewsKeySearchDlg::save() {
    const std::optional<CNewsKey> keySet = askKeySet();
    const int row = keySet ? saveKeySet(keySets, *keySet, editing) : -1;
    if (row < 0)
        return;
    fillRow(row);
    leaveEditing();
    keySetList->tick(row, true);
}

void CNewsKeySearchDlg::edit(int row) {
    if (row < 0 || row >= static_cast<int>(keySets.size()))
        return;
    editing = row;
    const CNewsKey& keySet = keySets[static_cast<std::size_t>(row)];
    setCondition({keySet.language, keySet.keywords, keySet.knownMethod()});
    newsTypeList->clearSelection();
    for (int type = 0; type < newsTypeList->count(); ++type) {
        const std::int32_t id = newsTypeList->item(type)->data(Qt::UserRole).toInt();
        newsTypeList->setCheck(
            type, std::find(keySet.newsTypes.begin(), keySet.newsTypes.end(), id) != keySet.newsTypes.end());
    }
    saveButton->setText(langText(search_keys::editKeySet));
    keySetList->mark(row);
}

void CNewsKeySearchDlg::leaveEditing() {
    editing = -1;
    saveButton->setText(langText(search_keys::addKeySet));
    clearKeywords();
    keySetList->mark(-1);
}

// A key set that is being composed anew is not lost.
void CNewsKeySearchDlg::stopEditing() {
    if (editing >= 0)
        leaveEditing();
}

// --- All of them ---

void CNewsKeySearchDlg::fillRow(int row) {
    keySetList->setKeySet(row, textsOfKeySet(keySets[static_cast<std::size_t>(row)], newsTypes));
}

void CNewsKeySearchDlg::deleteChosen(const std::vector<int>& rows) {
    std::vector<CNewsKey> doomed;
    for (const int row : rows)
        doomed.push_back(keySets.at(static_cast<std::size_t>(row)));
    if (doomed.empty() || !askYesNo(this, langText(search_keys::askDeleteKeySets).arg(doomed.size())))
        return;
    const std::vector<int> equal = rowsOfEqual(keySets, doomed);
    for (auto row = equal.rbegin(); row != equal.rend(); ++row) {
        const QSignalBlocker quiet(keySetList);
        keySets.erase(keySets.begin() + *row);
        keySetList->removeRow(*row);
    }
    followTicks();
    stopEditing();
}

// The boxes for all of them are ticked while all are.
void CNewsKeySearchDlg::followTicks() {
    const auto ticked = tickedNewsTypes().size();
    allNewsTypes->setChecked(ticked > 0 && ticked == newsTypes.size());
    const auto sets = keySetList->tickedRows().size();
    allKeySets->setChecked(sets > 0 && sets == keySets.size());
}
