// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/sent_again.h"

#include "headline_list/cell_texts.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/clock.h"
#include "host/contract/fixed_services.h"
#include "news_view/application_switches.h"
#include "news_view/list_tip.h"
#include "news_view/mode_loading.h"
#include "news_view/news_services.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

SentAgain::SentAgain(ViewContext& viewContext, const CommonParts& commonParts, Choices listChoices)
    : context(viewContext), parts(commonParts), choices(std::move(listChoices)) {}

// --- What the user asks for ---

void SentAgain::askForHeadlines() {
    HeadlineList& list = context.listOf(context.shownList());
    if (list.grid() == nullptr)
        return;
    std::vector<int> rows;
    list.grid()->vGetAllSelectionNdx(rows);
    if (list.reCoverHeadline(rows))
        context.refresh();
}

void SentAgain::askForTable() {
    const ListIndex list = context.shownList();
    const auto category = choices.categoryId();
    const auto ask = [&](unsigned char service, TableKind kind, const QString& key) {
        if (parts.backEnd.BKNEWS_bReRequestHeadlineTable(service, static_cast<int>(kind), key))
            askedTables.emplace(list, service, key);
    };
    for (const ServiceEntry& entry : parts.services.currentServices()) {
        if (!entry.selected)
            continue;
        const CSymbolInfo symbol = choices.symbol();
        if (list == ListIndex::All)
            ask(entry.service, TableKind::ByDate, choices.dateKey());
        else if (list == ListIndex::Category && category)
            ask(entry.service, TableKind::ByCategory, *category);
        else if (list == ListIndex::Symbol &&
                 parts.backEnd.BKNEWS_bReRequestHeadlineTable(entry.service, symbol))
            askedTables.emplace(list, entry.service, symbol.code);
    }
}

// --- Tables that were sent again ---

// Only what this view has asked for puts its list to its top and is told of when it is missing. What another
// view asked for, or what the back end tells of by itself, leaves the reader where he is.
bool SentAgain::takeAsked(ListIndex list, const CHeadlineTableInfo& info) {
    return askedTables.erase({list, info.service, info.key}) > 0;
}

bool SentAgain::readsUnasked() const {
    return parts.settings.options[ViewOption::ReadMissedTables];
}

void SentAgain::takeDateTable(const CHeadlineTableInfo& info) {
    constexpr int dateKeyLength = 8;
    const bool asked = takeAsked(ListIndex::All, info);
    if (!asked && readsUnasked()) {
        takeAnnouncedDate(info);
        return;
    }
    if (!isServiceSelected(info.service) ||
        (info.key.size() == dateKeyLength && info.key != choices.dateKey()))
        return;
    const ListIndex shown = context.shownList();
    const bool warrants = info.service == warrantService;
    if (!warrants && shown != ListIndex::All && shown != ListIndex::Relation)
        return;
    const ListIndex list = warrants ? ListIndex::Warrant : shown;
    const auto read = [&] {
        if (warrants)
            return parts.lists.rebuildWarrant(info.key);
        return list == ListIndex::All ? parts.lists.rebuild(list, TableKind::ByDate, info.key)
                                      : readRelation();
    };
    const bool taken = take(info, list, asked, read, {keys::invalidDate, {}});
    if (taken && parts.switches.showWarningSearch)
        parts.lists.rebuildAsCopy(ListIndex::WarningTerm, ListIndex::All);
}

void SentAgain::takeCategoryTable(const CHeadlineTableInfo& info) {
    const bool asked = takeAsked(ListIndex::Category, info);
    if (choices.categoryId() != info.key || !isServiceSelected(info.service))
        return;
    if (!asked && readsUnasked()) {
        readNowOrWhenShown(ListIndex::Category);
        return;
    }
    const auto read = [&] {
        return parts.lists.rebuild(ListIndex::Category, TableKind::ByCategory, info.key);
    };
    take(info, ListIndex::Category, asked, read, {keys::classNotFound, u" "_s});
}

void SentAgain::takeSymbolTable(const CHeadlineTableInfo& info) {
    const bool asked = takeAsked(ListIndex::Symbol, info);
    const CSymbolInfo symbol = choices.listedSymbol();
    if (symbol.code.isEmpty() || symbol.code != info.key || !isServiceSelected(info.service))
        return;
    if (!asked && readsUnasked()) {
        readNowOrWhenShown(ListIndex::Symbol);
        return;
    }
    const auto read = [&] { return parts.lists.rebuildSymbol(symbol); };
    take(info, ListIndex::Symbol, asked, read, {keys::symbolNewsNotFound, u" "_s});
}

// True when the list was read anew and the back end does not deny having data for it.
bool SentAgain::take(const CHeadlineTableInfo& info, ListIndex list, bool asked,
                     const std::function<bool()>& read, const NothingFound& nothingFound) {
    CSuperSheetWnd* grid = parts.lists[list].grid();
    if (grid == nullptr)
        return false;
    const bool hasRows = asked ? read() : context.readInPlace(list, read);
    if (hasRows || info.status >= 0)
        return true;
    QString name;
    parts.backEnd.BKQNEWS_bGetShortNameByService(name, info.service);
    if (!choices.statusText().contains(name))
        context.setStatusText(withServiceName(name));
    parts.tip.showOver(
        grid, choices.statusText() + nothingFound.separator + langText(parts.backEnd, nothingFound.key));
    return false;
}

// The status text with one more service that has no news.
QString SentAgain::withServiceName(const QString& name) const {
    const QString status = choices.statusText();
    const QString before = status.trimmed();
    if (before.isEmpty() || !parts.settings.options[ViewOption::SeparateServiceNames])
        return status + name + u' ';
    return before + langText(parts.backEnd, keys::betweenNames) + name + u' ';
}

// What the user has ticked; the warrants are what the warrant mode has ticked for itself.
bool SentAgain::isServiceSelected(unsigned char service) const {
    const auto& entries =
        service == warrantService ? parts.services.currentServices() : parts.services.savedServices();
    return std::any_of(entries.begin(), entries.end(),
                       [&](const ServiceEntry& entry) { return entry.service == service && entry.selected; });
}

// --- Tables that the back end tells of by itself ---

void SentAgain::takeAnnouncedDate(const CHeadlineTableInfo& info) {
    const bool warrants = info.service == warrantService;
    if (!warrants && !isServiceSelected(info.service))
        return;
    if (info.key == choices.dateKey())
        readNowOrWhenShown(warrants ? ListIndex::Warrant : ListIndex::All);
    if (!warrants && info.key == dateKey(host_clock::today()))
        readNowOrWhenShown(ListIndex::Relation);
}

void SentAgain::readNowOrWhenShown(ListIndex list) {
    if (parts.lists[list].grid() == nullptr || !parts.loading.wasShown(list))
        return;
    if (context.shownList() == list)
        readAgain(list);
    else
        parts.lists.noteMissed(list);
}

void SentAgain::readAgain(ListIndex list) {
    context.readInPlace(list, [this, list] { return read(list); });
}

bool SentAgain::read(ListIndex list) {
    switch (list) {
        case ListIndex::All:
            return parts.lists.rebuild(list, TableKind::ByDate, choices.dateKey());
        case ListIndex::Category:
            return parts.lists.rebuild(list, TableKind::ByCategory, choices.categoryId().value_or(QString()));
        case ListIndex::Symbol:
            return parts.lists.rebuildSymbol(choices.listedSymbol());
        case ListIndex::Relation:
            return readRelation();
        case ListIndex::Warrant:
            return parts.lists.rebuildWarrant(choices.dateKey());
        default:
            return false;
    }
}

bool SentAgain::readRelation() {
    return parts.lists.rebuild(ListIndex::Relation, TableKind::ByDate, dateKey(host_clock::today()),
                               &choices.keySets());
}

}  // namespace wirepane
