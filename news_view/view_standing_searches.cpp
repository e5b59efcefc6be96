// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The standing searches of the news view: key sets, warning terms, and what their empty lists say.
#include "headline_list/language_keys.h"
#include "host/controls/heap_dialog.h"
#include "host/controls/super_sheet_wnd.h"
#include "news_view/trv_news_ctrl_view.h"
#include "search/news_key_search_dlg.h"
#include "search/search_ids.h"
#include "search/warn_term_dlg.h"

#include <QKeySequence>

using namespace Qt::StringLiterals;

namespace {

// As the user reads it: longer ones would fill the list.
QString keywordsOf(const CSearch& condition) {
    constexpr qsizetype longest = 200;
    const QString text = QStringList(condition.keywords.begin(), condition.keywords.end()).join(u", "_s);
    return text.size() > longest ? text.left(longest) + u'…' : text;
}

QString nativeKey(const QString& portable) {
    return QKeySequence(portable).toString(QKeySequence::NativeText);
}

// "%1" is the key that opens the dialog of the current list.
QString hintOf(QString text, const QString& second = {}) {
    return text.replace(u"%1"_s, nativeKey(u"Shift+F3"_s)).replace(u"%2"_s, second);
}

}  // namespace

// --- Key sets ---

void TRVNewsCtrlView::OnRelationSearchDlg() {
    vSetTickedKeySets({});
    HeapDialog dialog(new CNewsKeySearchDlg(searches.memory.keywordPool,
                                            NewsTypesOf(backEnd, services.Entries()), searches.memory.keySets,
                                            this));
    if (settings.options[ViewOption::KeySetsInAnyCase])
        dialog->vTakeAnyCase();
    const bool accepted = dialog->DoModal() == search_ids::ok;
    if (!dialog)
        return;
    searches.memory.keywordPool = dialog->Pool();
    if (accepted) {
        searches.memory.keySets = dialog->KeySets();
        vSetTickedKeySets(dialog->TickedKeySets());
    }
    dialog.Delete();
    if (tickedKeySets.empty())
        return;
    InitialHeadlineTable(static_cast<int>(ListIndex::Relation));
    if (currentMode == static_cast<int>(ListIndex::Relation))
        OnShowStory();
}

void TRVNewsCtrlView::vSetTickedKeySets(const std::vector<CNewsKey>& ticked) {
    tickedKeySets = RelationMatcher(ticked, settings.options[ViewOption::KeySetsInAnyCase]
                                                ? RelationMatcher::Case::Any
                                                : RelationMatcher::Case::AsWritten);
    vLoadHints();
    vPlaceNotices();
}

// --- Warning terms ---

void TRVNewsCtrlView::OnWarningSearchDlg() {
    HeapDialog dialog(new CWarnTermDlg(searches.memory.warnings, searches.warningTerm, this));
    const bool accepted = dialog->DoModal() == search_ids::ok;
    if (!dialog)
        return;
    searches.memory.warnings = dialog->Items();
    if (accepted)
        searches.warningTerm = dialog->Chosen();
    dialog.Delete();
    searches.edited = searches.warningTerm;
    vLoadHints();
    vPlaceNotices();
    if (accepted)
        OnDealsSearch();
}

// --- Hints ---

void TRVNewsCtrlView::vLoadHints() {
    const auto hint = [this](QLatin1StringView textKey, const QString& second = {}) {
        return hintOf(LangText(backEnd, textKey), second);
    };
    const auto tell = [this](ListIndex list, const QString& text) {
        if (CSuperSheetWnd* sheet = List(list).pGetGrid())
            sheet->vSetEmptyText(text);
    };
    for (const ListIndex list : {ListIndex::All, ListIndex::Category, ListIndex::Symbol})
        tell(list, LangText(backEnd, keys::hintNoNews).replace(u"%1"_s, nativeKey(u"F5"_s)));
    tell(ListIndex::Warrant, LangText(backEnd, keys::hintNoWarrantNews));
    tell(ListIndex::Search, hint(keys::hintSearch, nativeKey(u"F3"_s)));
    tell(ListIndex::Relation, hint(tickedKeySets.empty() ? keys::hintNoKeySet : keys::hintNoMatch));
    const bool chosen = !searches.warningTerm.keywords.empty();
    tell(ListIndex::WarningTerm,
         hint(chosen ? keys::hintWarningTerm : keys::hintNoWarningTerm, keywordsOf(searches.warningTerm)));
}

// Rows that were there before stay when no key set is ticked any more.
QString TRVNewsCtrlView::StandingNotice() const {
    const bool forsaken = currentMode == static_cast<int>(ListIndex::Relation) && tickedKeySets.empty() &&
                          iGetHeadlineTableSize(currentMode) > 0;
    return forsaken ? hintOf(LangText(backEnd, keys::hintNoKeySet)) : QString();
}
