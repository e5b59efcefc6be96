// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"
#include "search/keyword_entry_dlg.h"
#include "search/recent_searches.h"

class QButtonGroup;

namespace wirepane {
class ReportList;

}  // namespace wirepane

// The modal dialog in which a keyword search is composed: its keywords, where and how they must match, or one
// of the searches made last.
class CAdvSearchDlg : public wirepane::KeywordEntryDlg {
    Q_OBJECT

public:
    // Edits copies of all three.
    CAdvSearchDlg(const CSearch& condition, const wirepane::KeywordList& pool,
                  const wirepane::RecentSearches& recent, QWidget* parent, bool takesQueries = false);

    // What the caller takes back whatever the result: the condition and the pool as they were edited, and the
    // recent searches, which OK alone changes.
    void readResult(CSearch& condition, wirepane::KeywordList& pool, wirepane::RecentSearches& recent) const;

protected:
    void onOK() override;

private:
    QLayout* createChoices();
    QLayout* createRecent();
    void createRecentList();
    void fillRecent();
    void loadCondition();
    bool readCondition();
    void selectRecent(int row);

    CSearch condition;
    wirepane::RecentSearches recent;
    QButtonGroup* scope = nullptr;  // button ids: SearchScope
    wirepane::ReportList* recentList = nullptr;
};
