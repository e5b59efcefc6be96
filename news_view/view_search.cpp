// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The searches of the news view, as the host calls them.
#include "news_view/searches.h"
#include "news_view/standing_searches.h"
#include "news_view/trv_news_ctrl_view.h"

void TRVNewsCtrlView::OnSearch() {
    searches->searchForText();
}

void TRVNewsCtrlView::OnDealsSearchDlg() {
    searches->compose();
}

void TRVNewsCtrlView::OnRelationSearchDlg() {
    standingSearches->composeKeySets();
}

void TRVNewsCtrlView::OnWarningSearchDlg() {
    standingSearches->manageWarningTerms();
}

void TRVNewsCtrlView::OnDealsSearch() {
    searches->send();
}

void TRVNewsCtrlView::OnEndNarrowing() {
    searches->endNarrowing();
}

void TRVNewsCtrlView::RespSearchHeadLineTable(const CSearch& condition, unsigned char serviceId) {
    searches->takeAnswer(condition, serviceId);
}

void TRVNewsCtrlView::ProcessNewSearchHeadline(CSearch& condition, ListIndex list, const CHeadline& headline,
                                               const QString& key) {
    searches->searchFor(condition, list, headline, key);
}

void TRVNewsCtrlView::vDoSearchChangeSymbol(const CSearch& condition, unsigned char market,
                                            const QString& symbolCode) {
    searches->narrow(CSearch(condition), {market, symbolCode});
}

void TRVNewsCtrlView::vShowTip(const QRect& rectangle, const QString& text) {
    searches->vShowTip(rectangle, text);
}
