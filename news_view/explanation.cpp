// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/explanation.h"

#include "headline_list/cell_texts.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/relation_matcher.h"
#include "headline_list/service_entry.h"
#include "headline_list/table_reading.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/clock.h"
#include "host/contract/fixed_services.h"

#include <algorithm>
#include <functional>

namespace wirepane {

namespace {

// What the rows of a list have in common, and how they are read.
struct Subject {
    StandingCheck check;
    QString wanted;
    QString has;
    std::function<TableRuns(const std::vector<ServiceEntry>&, RelationFilter)> read;
};

class Explanation {
public:
    Explanation(const ExplainedView& explainedView, const HeadlineKey& headlineKey)
        : view(explainedView), key(headlineKey), day(dateKey(localTime(key.time).date())) {
        const auto entry =
            std::find_if(view.services.begin(), view.services.end(),
                         [this](const ServiceEntry& own) { return own.service == key.service; });
        isTicked = entry != view.services.end() && entry->selected;
    }

    HeadlineStanding of(ListIndex list) const {
        HeadlineStanding standing{static_cast<int>(list),
                                  view.lists[list].headlineTable().rowOf(key),
                                  view.wasRead[static_cast<std::size_t>(list)],
                                  {}};
        for (const CheckedStanding& check : checks(list, standing.row)) {
            standing.checks.push_back(check);
            if (!check.passed && standing.row < 0)
                break;
        }
        return standing;
    }

private:
    bool isIn(const TableRuns& runs) const {
        return std::any_of(runs.begin(), runs.end(), [this](const auto& run) {
            return std::any_of(run.begin(), run.end(),
                               [this](const CHeadlineTable& entry) { return keyOf(entry) == key; });
        });
    }
    // As the list would be read if the headline's service alone were ticked.
    bool isRead(const Subject& subject, RelationFilter filter) const {
        return isIn(subject.read({{key.service, true, 0, false}}, filter));
    }

    Subject dayOf(const QString& wanted) const {
        return {StandingCheck::Day, wanted, day,
                [this, wanted](const std::vector<ServiceEntry>& services, RelationFilter filter) {
                    return readTables(view.backEnd, services, TableKind::ByDate, wanted, filter);
                }};
    }
    Subject topic() const;
    Subject symbol() const;
    Subject subjectOf(ListIndex list) const;

    std::vector<CheckedStanding> checks(ListIndex list, int row) const;
    CheckedStanding serviceCheck(ListIndex list) const;
    void addKeySets(ListIndex list, const Subject& subject, std::vector<CheckedStanding>& checks) const;

    const ExplainedView& view;
    const HeadlineKey& key;
    QString day;  // of the headline
    bool isTicked = false;
};

Subject Explanation::topic() const {
    std::vector<CHeadline> headlines;
    view.backEnd.BKQNEWS_iGetHeadline(key.service, headlines, {{key.time, key.sequence, key.service, 0, 0}});
    const QString own = headlines.empty() ? QString() : QString::number(headlines.front().categoryId);
    const QString wanted = view.categoryId.value_or(QString());
    return {StandingCheck::Topic, wanted, own,
            [this, wanted](const std::vector<ServiceEntry>& services, RelationFilter filter) {
                return readTables(view.backEnd, services, TableKind::ByCategory, wanted, filter);
            }};
}

Subject Explanation::symbol() const {
    const CSymbolInfo listed = view.lists.listSymbol();
    return {StandingCheck::Symbol,
            listed.code,
            {},
            [this, listed](const std::vector<ServiceEntry>& services, RelationFilter filter) {
                return readSymbolTables(view.backEnd, services, listed, filter);
            }};
}

Subject Explanation::subjectOf(ListIndex list) const {
    if (list == ListIndex::Category)
        return topic();
    if (list == ListIndex::Symbol)
        return symbol();
    // The news that the key sets are tried on is the present day's.
    return dayOf(list == ListIndex::Relation ? dateKey(host_clock::today()) : view.day);
}

CheckedStanding Explanation::serviceCheck(ListIndex list) const {
    const QString own = QString::number(key.service);
    if (list == ListIndex::Warrant)
        return {StandingCheck::Service, key.service == warrantService, QString::number(warrantService), own};
    return {StandingCheck::Service, isTicked, {}, own};
}

std::vector<CheckedStanding> Explanation::checks(ListIndex list, int row) const {
    std::vector<CheckedStanding> checks{{StandingCheck::Told, isRead(dayOf(day), nullptr), {}, {}},
                                        serviceCheck(list)};
    if (list == ListIndex::Search || list == ListIndex::WarningTerm) {
        const bool searched = view.wasSearched[static_cast<std::size_t>(list)];
        checks.push_back(
            {StandingCheck::Search, row >= 0, searched ? QStringLiteral("found") : QString(), {}});
        return checks;
    }
    const Subject subject = subjectOf(list);
    const bool isAbout = !subject.wanted.isEmpty() && isRead(subject, nullptr);
    checks.push_back({subject.check, isAbout, subject.wanted, subject.has});
    addKeySets(list, subject, checks);
    return checks;
}

// The relation list is read with the key sets, the others without, unless they were read while it was shown.
void Explanation::addKeySets(ListIndex list, const Subject& subject,
                             std::vector<CheckedStanding>& checks) const {
    const bool isTheirs = list == ListIndex::Relation;
    if (isTheirs == view.lists.hasOthersFilter(list))
        return;
    checks.push_back({isTheirs ? StandingCheck::KeySets : StandingCheck::Filter,
                      isRead(subject, view.keySets),
                      view.keySets->empty() ? QString() : QStringLiteral("ticked"),
                      {}});
}

}  // namespace

std::vector<HeadlineStanding> explainHeadline(const ExplainedView& view, const HeadlineKey& key) {
    std::vector<HeadlineStanding> standings;
    const Explanation explanation(view, key);
    for (const ListKind& kind : listKinds) {
        if (view.lists[kind.index].grid() != nullptr)
            standings.push_back(explanation.of(kind.index));
    }
    return standings;
}

}  // namespace wirepane
