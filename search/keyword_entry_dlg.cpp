// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/keyword_entry_dlg.h"

#include "host/contract/bk_quote_interface.h"
#include "host/contract/lang_text.h"
#include "host/contract/search_control.h"
#include "host/contract/symbol_name.h"
#include "host/controls/hover_button.h"
#include "host/controls/quote_trv_change_symbol.h"
#include "host/controls/registered_message.h"
#include "host/controls/xtp_tab_control.h"
#include "search/dialog_controls.h"
#include "search/search_desk.h"
#include "search/search_ids.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimerEvent>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int symbolTab = 1;

// From the top down, however they were selected.
KeywordList selectedTexts(const QListWidget& list) {
    QModelIndexList indexes = list.selectionModel()->selectedRows();
    std::sort(indexes.begin(), indexes.end());
    KeywordList texts;
    for (const QModelIndex& index : std::as_const(indexes))
        texts.push_back(index.data().toString());
    return texts;
}

// Replaces the items of a list in one go; nothing is selected.
void fill(QListWidget& list, const std::vector<QString>& texts) {
    list.setUpdatesEnabled(false);
    list.clear();
    list.addItems({texts.begin(), texts.end()});
    list.setUpdatesEnabled(true);
}

void selectAlone(QListWidget& list, int row) {
    list.clearSelection();
    if (row < 0)
        return;
    list.setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    list.scrollToItem(list.item(row));
}

}  // namespace

KeywordEntryDlg::KeywordEntryDlg(KeywordList conditionKeywords, KeywordList keywordPool,
                                 const RemoveAll& removing, QWidget* parent, bool takesQueries)
    : QDialog(parent),
      backEnd(*BKQuoteInterface::GetBKInterface()),
      keywords(std::move(conditionKeywords)),
      pool(std::move(keywordPool)),
      removeAll(removing),
      hasQueries(takesQueries) {}

int KeywordEntryDlg::DoModal() {
    return runModally(this);
}

void KeywordEntryDlg::onOK() {
    accept();
}

// --- Tabs ---

void KeywordEntryDlg::selectTab(int tab) {
    if (tab != 0 && tab != symbolTab)
        return;
    currentTab = tab;
    for (QWidget* control : {static_cast<QWidget*>(keywordEdit), static_cast<QWidget*>(poolList),
                             static_cast<QWidget*>(poolButton)})
        control->setVisible(tab == 0);
    for (QWidget* control : {static_cast<QWidget*>(symbolEdit), static_cast<QWidget*>(candidateList),
                             static_cast<QWidget*>(pickerButton)})
        control->setVisible(tab == symbolTab);
    currentEdit()->setFocus();
}

QLineEdit* KeywordEntryDlg::currentEdit() const {
    return currentTab == symbolTab ? symbolEdit : keywordEdit;
}

void KeywordEntryDlg::focusEdit() {
    currentEdit()->setFocus();
    currentEdit()->selectAll();
}

// --- Keywords and their pool ---

void KeywordEntryDlg::setKeywords(const KeywordList& changed, const std::vector<int>& selected) {
    keywords = changed;
    fill(*keywordList, keywords);
    for (const int row : selected)
        keywordList->item(row)->setSelected(true);
    if (!selected.empty())
        keywordList->scrollToItem(keywordList->item(selected.back()));
}

void KeywordEntryDlg::setExcluded(const KeywordList& changed) {
    excluded = changed;
    if (excludedList != nullptr)
        fill(*excludedList, excluded);
}

void KeywordEntryDlg::clearKeywords() {
    shown = {};
    setKeywords({});
    setExcluded({});
}

EnteredCondition KeywordEntryDlg::composed() const {
    const EntryLists lists{keywords, excluded, methodGroup->checkedId()};
    const bool isUnchangedQuery = shown.language == SearchLanguage::Query && lists == listsOfCondition(shown);
    return isUnchangedQuery ? shown : conditionOfLists(lists);
}

std::optional<EnteredCondition> KeywordEntryDlg::askComposed(QueryUse use) {
    return askCondition(this, composed(), keywords, use);
}

void KeywordEntryDlg::setCondition(const EnteredCondition& condition) {
    shown = condition;
    EntryLists lists = listsOfCondition(condition);
    if (!hasQueries && condition.language == SearchLanguage::Query)
        lists = {condition.keywords, {}, condition.method};
    setKeywords(lists.keywords);
    setExcluded(lists.excluded);
    methodGroup->button(lists.method == queryChoice ? queryChoice : numberOf(shownMethod(lists.method)))
        ->setChecked(true);
}

void KeywordEntryDlg::fillPool(const QString& part) {
    fill(*poolList, keywordsWith(pool, part));
}

void KeywordEntryDlg::addTypedKeyword() {
    const QString typed = keywordEdit->text();
    int inPool = -1;
    if (!typed.isEmpty()) {
        inPool = keepKeyword(pool, typed);
        addKeywords({typed});
    }
    fillPool({});
    selectAlone(*poolList, inPool);
    keywordEdit->clear();
}

void KeywordEntryDlg::addKeywords(const KeywordList& added) {
    KeywordList changed = keywords;
    std::vector<int> selected;
    for (const QString& keyword : added) {
        if (const int index = keepKeyword(changed, keyword); index >= 0)
            selected.push_back(index);
    }
    setKeywords(changed, selected);
}

KeywordList KeywordEntryDlg::takeSelected() {
    QListWidget& list = currentTab == symbolTab ? *candidateList : *poolList;
    KeywordList added;
    for (const QString& text : selectedTexts(list)) {
        const KeywordList parts = currentTab == symbolTab ? keywordsOfCandidate(text) : KeywordList{text};
        added.insert(added.end(), parts.begin(), parts.end());
    }
    list.clearSelection();
    return added;
}

void KeywordEntryDlg::addSelected() {
    addKeywords(takeSelected());
    focusEdit();
}

// What was typed and not added yet goes before what is selected.
void KeywordEntryDlg::excludeSelected() {
    const QString typed = currentTab == symbolTab ? QString() : keywordEdit->text();
    KeywordList added;
    if (typed.isEmpty()) {
        added = takeSelected();
    } else {
        added = {typed};
        keepKeyword(pool, typed);
        keywordEdit->clear();
        fillPool({});
    }
    KeywordList changed = excluded;
    for (const QString& keyword : added)
        keepKeyword(changed, keyword);
    setExcluded(changed);
    focusEdit();
}

void KeywordEntryDlg::removeSelected() {
    KeywordList changed = keywords;
    for (const QString& text : selectedTexts(*keywordList))
        removeKeyword(changed, text);
    setKeywords(changed);
    if (excludedList == nullptr)
        return;
    KeywordList kept = excluded;
    for (const QString& text : selectedTexts(*excludedList))
        removeKeyword(kept, text);
    setExcluded(kept);
}

void KeywordEntryDlg::removeFromPool() {
    for (const QString& text : selectedTexts(*poolList))
        removeKeyword(pool, text);
    keywordEdit->clear();
    fillPool({});
}

void KeywordEntryDlg::emptyKeywords() {
    const bool isEmpty = keywords.empty() && excluded.empty();
    if (!isEmpty && askYesNo(this, langText(removeAll.question)))
        clearKeywords();
}

// --- Symbols ---

void KeywordEntryDlg::symbolTyped(const QString& typed) {
    candidateTimer.stop();
    if (typed.isEmpty())
        candidateList->clear();
    else
        candidateTimer.start(search_ids::candidateDelayMs, this);
}

void KeywordEntryDlg::timerEvent(QTimerEvent* event) {
    if (event->timerId() != candidateTimer.timerId()) {
        QDialog::timerEvent(event);
        return;
    }
    candidateTimer.stop();
    findCandidates();
}

void KeywordEntryDlg::findCandidates() {
    std::vector<QString> found;
    SearchControl::GetSearchObjInterface()->FindSearchList(symbolEdit->text(), found);
    fill(*candidateList, found);
    // As list boxes search: upper and lower case alike.
    const auto first = std::find_if(found.begin(), found.end(), [this](const QString& candidate) {
        return candidate.startsWith(symbolEdit->text(), Qt::CaseInsensitive);
    });
    selectAlone(*candidateList, first == found.end() ? -1 : static_cast<int>(first - found.begin()));
}

void KeywordEntryDlg::showPicker() {
    if (symbolPicker.isNull()) {
        symbolPicker = new QuoteTRVChangeSymbol(this, 1);
        symbolPicker->Create();
    }
    symbolPicker->show();
    symbolPicker->activateWindow();
    QRect place = symbolPicker->frameGeometry();
    place.moveCenter(frameGeometry().center());
    symbolPicker->move(place.topLeft());
    symbolPicker->vSetShowStatus(true);
}

void KeywordEntryDlg::takePicked(quintptr symbol) {
    if (symbolPicker.isNull() || symbol == 0)
        return;
    const CSymbolInfo& picked = *reinterpret_cast<const CSymbolInfo*>(symbol);
    KeywordList added{picked.code};
    if (const auto name = symbolName(backEnd, picked))
        added.push_back(*name);
    candidateList->clearSelection();
    addKeywords(added);
    symbolEdit->setFocus();
    symbolEdit->selectAll();
}

bool KeywordEntryDlg::event(QEvent* event) {
    static const QEvent::Type picked = registerMessage(u"RVMSGCHANGESYMBOLBYSEARCH"_s);
    static const QEvent::Type treeUpdate = registerMessage(u"MSG_SYMBOLUPDATE_TREEDLG"_s);
    if (event->type() == picked) {
        takePicked(static_cast<RegisteredMessageEvent*>(event)->firstParameter);
        return true;
    }
    if (event->type() == treeUpdate) {
        if (symbolPicker)
            symbolPicker->vDoSymbolUpdateTreeNode(
                static_cast<RegisteredMessageEvent*>(event)->firstParameter);
        return true;
    }
    return QDialog::event(event);
}

// --- The default button ---

QPushButton* KeywordEntryDlg::defaultFor(const QWidget* focus) const {
    if (focus == keywordEdit)
        return addTypedButton;
    if (focus == symbolEdit || focus == candidateList || focus == poolList)
        return addButton;
    if (auto* button = qobject_cast<QPushButton*>(const_cast<QWidget*>(focus)))
        return button;
    return okButton;
}

bool KeywordEntryDlg::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        defaultFor(qobject_cast<QWidget*>(watched))->setDefault(true);
    return QDialog::eventFilter(watched, event);
}

// A dialog presses no hidden button for Enter, and the one that adds what was typed is hidden.
void KeywordEntryDlg::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) {
        QDialog::keyPressEvent(event);
        return;
    }
    for (QPushButton* button : findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (button->isDefault()) {
            button->click();
            return;
        }
    }
}

}  // namespace wirepane
