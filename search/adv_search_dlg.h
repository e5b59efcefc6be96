// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"
#include "search/keyword_entry_dlg.h"
#include "search/recent_searches.h"

class QButtonGroup;
class ReportList;

// The modal dialog in which a keyword search is composed: its keywords, where and how they must match, or one
// of the searches made last.
class CAdvSearchDlg : public KeywordEntryDlg {
    Q_OBJECT

public:
    // Edits copies of all three.
    CAdvSearchDlg(const CSearch& condition, const KeywordList& pool, const RecentSearches& recent,
                  QWidget* parent);

    // What the caller takes back whatever the result: the condition and the pool as they were edited, and the
    // recent searches, which OK alone changes.
    void vGetResult(CSearch& condition, KeywordList& pool, RecentSearches& recent) const;

protected:
    void OnOK() override;

private:
    QLayout* pCreateChoices();
    QLayout* pCreateRecent();
    void vCreateRecentList();
    void vFillRecent();
    void vLoadCondition();
    void vReadCondition();
    void vSelectRecent(int row);

    CSearch condition;
    RecentSearches recent;
    QButtonGroup* scope = nullptr;   // button ids: SearchScope
    QButtonGroup* method = nullptr;  // button ids: SearchMethod
    ReportList* recentList = nullptr;
};
