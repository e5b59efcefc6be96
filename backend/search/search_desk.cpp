// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/search_desk.h"

#include <algorithm>
#include <utility>

namespace wirepane {

namespace {
constexpr std::ptrdiff_t mostKept = 8;  // besides the present ones
}

SearchDesk::SearchDesk(const QString& storePath, Answered answered, Gate answerGate)
    : tell(std::move(answered)),
      gate(answerGate ? std::move(answerGate) : [](const std::function<void()>& answer) { answer(); }) {
    worker = std::make_unique<SearchWorker>(
        storePath, [this](std::int64_t ticket, std::vector<CHeadlineTable>&& entries) {
            auto found = std::make_shared<std::vector<CHeadlineTable>>(std::move(entries));
            const auto answer = [this, ticket, found] { take(ticket, std::move(*found)); };
            QMetaObject::invokeMethod(
                &eventLoop, [this, answer] { gate(answer); }, Qt::QueuedConnection);
        });
}

void SearchDesk::ask(unsigned char service, int kind, const CSearch& condition) {
    Search& search = searchOf(kind, condition);
    present[kind] = search.id;
    const Pending pending{++lastNumber, std::make_shared<std::atomic<bool>>(false)};
    if (const auto older = search.pending.find(service); older != search.pending.end())
        *older->second.dropped = true;
    search.pending[service] = pending;
    worker->ask({pending.ticket, service, condition, pending.dropped});
    forgetOldest();
}

SearchDesk::Search& SearchDesk::searchOf(int kind, const CSearch& condition) {
    const auto known = std::find_if(searches.begin(), searches.end(), [&](const Search& search) {
        return search.kind == kind && search.condition == condition;
    });
    if (known == searches.end())
        return searches.emplace_back(Search{++lastNumber, kind, condition, {}, {}});
    if (present[kind] != known->id && known->condition.time != condition.time)
        known->tables.clear();
    known->condition.time = condition.time;
    searches.splice(searches.end(), searches, known);
    return searches.back();
}

const std::vector<CHeadlineTable>& SearchDesk::table(unsigned char service, int kind) const {
    static const std::vector<CHeadlineTable> none;
    const auto id = present.find(kind);
    if (id == present.end())
        return none;
    for (const Search& search : searches) {
        if (search.id != id->second)
            continue;
        const auto found = search.tables.find(service);
        return found == search.tables.end() ? none : found->second;
    }
    return none;
}

void SearchDesk::take(std::int64_t ticket, std::vector<CHeadlineTable>&& entries) {
    for (Search& search : searches) {
        for (auto pending = search.pending.begin(); pending != search.pending.end(); ++pending) {
            if (pending->second.ticket != ticket)
                continue;
            const unsigned char service = pending->first;
            search.pending.erase(pending);
            search.tables[service] = std::move(entries);
            deliver(search, service);
            forgetOldest();
            return;
        }
    }
}

// A receiver may send a search meanwhile, which then stays the present one.
void SearchDesk::deliver(Search& search, unsigned char service) {
    const int kind = search.kind;
    const std::int64_t id = search.id;
    const CSearch condition = search.condition;
    const std::int64_t before = std::exchange(present[kind], id);
    tell(condition, service);
    if (present[kind] == id)
        present[kind] = before;
}

void SearchDesk::forgetOldest() {
    const auto canGo = [this](const Search& search) {
        return search.pending.empty() && present[search.kind] != search.id;
    };
    for (auto idle = std::count_if(searches.begin(), searches.end(), canGo); idle > mostKept; --idle)
        searches.erase(std::find_if(searches.begin(), searches.end(), canGo));
}

}  // namespace wirepane
