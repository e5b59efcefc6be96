// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "search/key_sets.h"
#include "search/keyword_entry_dlg.h"

#include <functional>
#include <optional>

class CCheckListBox;

namespace wirepane {
class KeySetList;

}  // namespace wirepane

class QBoxLayout;
class QCheckBox;
class QLabel;
class QLayout;

// The modal dialog in which the key sets of the relation search are composed, kept, and ticked: a key set is
// put together of keywords, a method and news types, and saved as a new one or over the one that is worked
// on.
class CNewsKeySearchDlg : public wirepane::KeywordEntryDlg {
    Q_OBJECT

public:
    // Works on copies.
    CNewsKeySearchDlg(const wirepane::KeywordList& pool, const wirepane::CategoryMap& newsTypes,
                      const std::vector<CNewsKey>& stored, QWidget* parent, bool takesQueries = false);

    // The view compares keywords whatever their case: the note that says otherwise goes.
    void takeAnyCase();

    // The key set that is being composed can be tried before it is saved: `rehearse` is called with it.
    void offerRehearsal(std::function<void(const CNewsKey&)> rehearse);

    // An alert can be made of it: `propose` is called with it.
    void offerAlert(std::function<void(const CNewsKey&)> propose);

    // What the caller takes back after OK, besides the pool.
    const std::vector<CNewsKey>& composedKeySets() const { return keySets; }
    std::vector<CNewsKey> tickedKeySets() const;

protected:
    QPushButton* defaultFor(const QWidget* focus) const override;

private:
    void addToSaving(int id, QLatin1StringView key, std::function<void(const CNewsKey&)> use);
    QLayout* createComposition();
    QLayout* createNewsTypes();
    QLayout* createSaving();
    QLayout* createKeySets();
    void createKeySetList();
    int nearby() const;
    QCheckBox* addCheckBox(int id, QLatin1StringView key);

    std::vector<std::int32_t> tickedNewsTypes() const;
    // As it is to be saved; nothing: the user was told what is missing.
    std::optional<CNewsKey> askKeySet();
    void save();
    void edit(int row);
    void leaveEditing();
    void stopEditing();
    void deleteChosen(const std::vector<int>& rows);
    void fillRow(int row);
    void followTicks();

    const wirepane::CategoryMap newsTypes;
    std::vector<CNewsKey> keySets;
    int editing = -1;  // the row that is worked on; -1: a new key set

    CCheckListBox* newsTypeList = nullptr;
    QCheckBox* allNewsTypes = nullptr;
    wirepane::KeySetList* keySetList = nullptr;
    QCheckBox* allKeySets = nullptr;
    QLabel* capitalsNote = nullptr;
    QBoxLayout* savingButtons = nullptr;
    QPushButton* saveButton = nullptr;
    QPushButton* deleteButton = nullptr;
};
