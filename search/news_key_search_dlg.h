// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "search/key_sets.h"
#include "search/keyword_entry_dlg.h"

class CCheckListBox;
class KeySetList;
class QButtonGroup;
class QCheckBox;
class QLabel;
class QLayout;

// The modal dialog in which the key sets of the relation search are composed, kept, and ticked: a key set is
// put together of keywords, a method and news types, and saved as a new one or over the one that is worked
// on.
class CNewsKeySearchDlg : public KeywordEntryDlg {
    Q_OBJECT

public:
    // Works on copies.
    CNewsKeySearchDlg(const KeywordList& pool, const CategoryMap& newsTypes,
                      const std::vector<CNewsKey>& stored, QWidget* parent);

    // The view compares keywords whatever their case: the note that says otherwise goes.
    void vTakeAnyCase();

    // What the caller takes back after OK, besides the pool.
    const std::vector<CNewsKey>& KeySets() const { return keySets; }
    std::vector<CNewsKey> TickedKeySets() const;

protected:
    QPushButton* pDefaultFor(const QWidget* focus) const override;

private:
    QLayout* pCreateComposition();
    QLayout* pCreateNewsTypes();
    QLayout* pCreateSaving();
    QLayout* pCreateKeySets();
    void vCreateKeySetList();
    int nearby() const;
    QCheckBox* pAddCheckBox(int id, QLatin1StringView key);

    CNewsKey ComposedKeySet() const;
    void vSave();
    void vEdit(int row);
    void vLeaveEditing();
    void vStopEditing();
    void vDelete(const std::vector<int>& rows);
    void vFillRow(int row);
    void vFollowTicks();

    const CategoryMap newsTypes;
    std::vector<CNewsKey> keySets;
    int editing = -1;  // the row that is worked on; -1: a new key set

    QButtonGroup* method = nullptr;  // button ids: SearchMethod
    CCheckListBox* newsTypeList = nullptr;
    QCheckBox* allNewsTypes = nullptr;
    KeySetList* keySetList = nullptr;
    QCheckBox* allKeySets = nullptr;
    QLabel* capitalsNote = nullptr;
    QPushButton* saveButton = nullptr;
    QPushButton* deleteButton = nullptr;
};
