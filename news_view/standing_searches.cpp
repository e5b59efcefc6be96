// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/standing_searches.h"

#include "headline_list/cell_state.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/language_keys.h"
#include "host/contract/headline_looks.h"
#include "host/controls/heap_dialog.h"
#include "host/controls/rehearsal_dlg.h"
#include "news_view/list_notices.h"
#include "news_view/news_services.h"
#include "news_view/rehearsed_key_set.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"
#include "search/alert_query.h"
#include "search/dialog_controls.h"
#include "search/news_key_search_dlg.h"
#include "search/search_desk.h"
#include "search/search_ids.h"
#include "search/warn_term_dlg.h"

#include <QKeySequence>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qsizetype longestName = 40;  // of an alert

// As the user reads it: longer ones would fill the list.
QString keywordsOf(const CSearch& condition) {
    constexpr qsizetype longest = 200;
    const QString text = QStringList(condition.keywords.begin(), condition.keywords.end()).join(u", "_s);
    return text.size() > longest ? text.left(longest) + u'…' : text;
}

// Null: the back end cannot try queries on headlines.
HeadlineQueries* queriesOf(const CommonParts& parts) {
    return dynamic_cast<HeadlineQueries*>(&parts.backEnd);
}

QString nativeKey(const QString& portable) {
    return QKeySequence(portable).toString(QKeySequence::NativeText);
}

// "%1" is the key that opens the dialog of the shown list.
QString hintOf(QString text, const QString& second = {}) {
    return text.replace(u"%1"_s, nativeKey(u"Shift+F3"_s)).replace(u"%2"_s, second);
}

}  // namespace

HeadlineLooks* StandingSearches::alerts() const {
    return parts.settings.options[ViewOption::AlertLooks] ? dynamic_cast<HeadlineLooks*>(&parts.backEnd)
                                                          : nullptr;
}

StandingSearches::StandingSearches(ViewContext& viewContext, const CommonParts& commonParts,
                                   SearchDesk& searchDesk, Calls given)
    : context(viewContext), parts(commonParts), desk(searchDesk), calls(std::move(given)) {}

// --- Key sets ---

void StandingSearches::composeKeySets() {
    setTicked({});
    const bool takesQueries =
        parts.settings.options[ViewOption::SearchQueries] && queriesOf(parts) != nullptr;
    HeapDialog dialog(new CNewsKeySearchDlg(desk.memory.keywordPool,
                                            newsTypesOf(parts.backEnd, parts.services.currentServices()),
                                            desk.memory.keySets, &parts.window, takesQueries));
    if (parts.settings.options[ViewOption::KeySetsInAnyCase])
        dialog->takeAnyCase();
    if (parts.settings.options[ViewOption::RehearseKeySets] &&
        dynamic_cast<KeySetRehearsal*>(&parts.backEnd) != nullptr)
        dialog->offerRehearsal([this, &dialog](const CNewsKey& keySet) { rehearse(keySet, dialog.get()); });
    if (HeadlineLooks* const host = alerts())
        dialog->offerAlert([this, host](const CNewsKey& keySet) {
            const QString query =
                alertQuery(keySet, newsTypesOf(parts.backEnd, parts.services.currentServices()));
            host->proposeAlert(query.left(longestName), query);
        });
    const bool accepted = dialog->DoModal() == search_ids::ok;
    if (!dialog)
        return;
    desk.memory.keywordPool = dialog->offeredKeywords();
    if (accepted) {
        desk.memory.keySets = dialog->composedKeySets();
        setTicked(dialog->tickedKeySets());
    }
    dialog.destroy();
    if (ticked.empty())
        return;
    calls.readRelationList();
    if (context.shownList() == ListIndex::Relation)
        context.showStory();
}

// As it would be matched live, in the services of the list.
void StandingSearches::rehearse(const CNewsKey& keySet, QWidget* over) {
    const auto letters = parts.settings.options[ViewOption::KeySetsInAnyCase]
                             ? RelationMatcher::Case::Any
                             : RelationMatcher::Case::AsWritten;
    HeapDialog dialog(
        new RehearsalDlg(*dynamic_cast<KeySetRehearsal*>(&parts.backEnd),
                         rehearsedKeySet(keySet, letters, parts.services.activeServices(ListIndex::Relation)),
                         RehearsalDlg::usualBudget, over));
    runModally(dialog.get());
}

std::optional<QueryFault> StandingSearches::addKeySet(const CSearch& condition) {
    if (condition.isQuery()) {
        const ReadQuery read = readQuery(condition.query(), QueryUse::Headlines);
        if (const auto* fault = std::get_if<QueryFault>(&read))
            return *fault;
    }
    CNewsKey keySet(condition.method, {CNewsKey::everyNewsType}, condition.keywords);
    keySet.method = keySet.keywords.size() < 2 ? CNewsKey::all : keySet.knownMethod();
    keySet.language = condition.language;
    // Titles are compared in upper case.
    if (!keySet.isQuery() && !parts.settings.options[ViewOption::KeySetsInAnyCase])
        std::transform(keySet.keywords.begin(), keySet.keywords.end(), keySet.keywords.begin(),
                       [](const QString& keyword) { return keyword.toUpper(); });
    std::vector<CNewsKey>& keySets = desk.memory.keySets;
    if (std::find(keySets.begin(), keySets.end(), keySet) == keySets.end())
        keySets.push_back(keySet);
    setTicked({keySet});
    calls.readRelationList();
    return std::nullopt;
}

void StandingSearches::setTicked(const std::vector<CNewsKey>& keySets) {
    const bool anyCase = parts.settings.options[ViewOption::KeySetsInAnyCase];
    ticked = RelationMatcher(keySets, anyCase ? RelationMatcher::Case::Any : RelationMatcher::Case::AsWritten,
                             queriesOf(parts));
    loadHints();
    context.placeNotices();
}

const RelationMatcher* StandingSearches::filterOfShownList() const {
    return context.shownList() == ListIndex::Relation ? &ticked : nullptr;
}

// --- Warning terms ---

void StandingSearches::manageWarningTerms() {
    HeapDialog dialog(new CWarnTermDlg(desk.memory.warnings, desk.warningTerm, &parts.window,
                                       parts.settings.options[ViewOption::SearchQueries]));
    if (HeadlineLooks* const host = alerts())
        dialog->offerAlert([host](const CSearch& term) {
            const QString query = alertQuery(term);
            host->proposeAlert(query.left(longestName), query);
        });
    const bool accepted = dialog->DoModal() == search_ids::ok;
    if (!dialog)
        return;
    desk.memory.warnings = dialog->items();
    if (accepted)
        desk.warningTerm = dialog->chosenItem();
    dialog.destroy();
    desk.edited = desk.warningTerm;
    loadHints();
    context.placeNotices();
    if (accepted)
        calls.sendSearch();
}

void StandingSearches::addWarningTerm(const CSearch& condition) {
    WarningItems& warnings = desk.memory.warnings;
    const CSearch wanted = forEverySymbol(condition);
    const auto known = std::find_if(warnings.items.begin(), warnings.items.end(),
                                    [&](const CSearch& item) { return asksTheSame(item, wanted); });
    const auto row = known - warnings.items.begin();
    if (known == warnings.items.end() && !warnings.add(wanted))
        return;
    warnings.chosen = static_cast<int>(row) + 1;
    desk.warningTerm = *warnings.chosenItem();
    desk.edited = desk.warningTerm;
    loadHints();
    context.placeNotices();
}

// --- Hints ---

void StandingSearches::loadHints() {
    const auto hint = [this](QLatin1StringView textKey, const QString& second = {}) {
        return hintOf(langText(parts.backEnd, textKey), second);
    };
    const auto tellEmpty = [this](ListIndex list, const QString& text) {
        if (CSuperSheetWnd* sheet = context.listOf(list).grid())
            sheet->setEmptyText(text);
    };
    for (const ListIndex list : {ListIndex::All, ListIndex::Category, ListIndex::Symbol})
        tellEmpty(list, langText(parts.backEnd, keys::hintNoNews).replace(u"%1"_s, nativeKey(u"F5"_s)));
    tellEmpty(ListIndex::Warrant, langText(parts.backEnd, keys::hintNoWarrantNews));
    tellEmpty(ListIndex::Search, hint(keys::hintSearch, nativeKey(u"F3"_s)));
    tellEmpty(ListIndex::Relation, hint(ticked.empty() ? keys::hintNoKeySet : keys::hintNoMatch));
    const bool chosen = !desk.warningTerm.keywords.empty();
    tellEmpty(ListIndex::WarningTerm,
              hint(chosen ? keys::hintWarningTerm : keys::hintNoWarningTerm, keywordsOf(desk.warningTerm)));
}

void StandingSearches::tell(ListNotices& notices) const {
    const bool forsaken = context.shownList() == ListIndex::Relation && ticked.empty() &&
                          !context.listOf(ListIndex::Relation).headlineTable().empty();
    if (forsaken)
        notices.tell(NoticeKind::Hint, hintOf(langText(parts.backEnd, keys::hintNoKeySet)));
}

}  // namespace wirepane
