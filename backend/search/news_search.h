// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/data_version.h"
#include "backend/search/headline_keys.h"
#include "backend/search/query_matches.h"
#include "host/contract/search_condition.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <vector>

namespace wirepane {

// Finds the stories of a condition in a store. What a search means:
// - A keyword is plain text; a title or story holds it when it holds the words of the keyword (WordReader)
//   one behind the other in one paragraph. A keyword without words is left out.
// - Keywords work together by the method (SearchMethod; one that is not set is "all"), each in the title, in
//   the story or in either by the scope (SearchScope). A condition without keywords finds nothing.
// - A query finds what docs/search.md tells; one with a fault finds nothing. Its days go by the host's clock.
// - Symbols narrow it to news that names one of them, in its market or in one that is not known.
//
// Thread: that of the database, which must outlive this and must not be written to through the same
// connection.
class NewsSearch {
public:
    // Which of the entries are asked for: the newest so many that are no later than a moment.
    struct Newest {
        std::size_t most = std::numeric_limits<std::size_t>::max();
        std::int64_t latest = std::numeric_limits<std::int64_t>::max();
    };

    explicit NewsSearch(Database& database);

    // The entries of a service, newest first; nothing when the store cannot be read or `stop` became true
    // meanwhile. Asked for one service after another, the same condition is looked up once.
    std::optional<std::vector<CHeadlineTable>> find(unsigned char service, const CSearch& condition,
                                                    const std::atomic<bool>* stop = nullptr);
    // The same, packed.
    std::optional<KeyBlocks> findPacked(unsigned char service, const CSearch& condition,
                                        const std::atomic<bool>* stop = nullptr);
    // For who searches once: the newest entries of several services, newest first. Many are read from the
    // store's index of times, as far as it takes, and the keys of all headlines are not. A few are looked for
    // in the newest news first: what is common is so there, too, and the index need not tell all that it has.
    // `first` is called with what was found there, where all news is looked through for more.
    using First = std::function<void(const std::vector<CHeadlineTable>& found)>;
    std::optional<std::vector<CHeadlineTable>> findOnce(const std::vector<unsigned char>& services,
                                                        const CSearch& condition, const Newest& newest,
                                                        const std::atomic<bool>* stop = nullptr,
                                                        const First& first = {});

    // Reads the keys of all headlines, which the first search with many matches would have to do.
    void prepare();

private:
    // Ids between which all that is searched lies, both among them.
    struct Ids {
        std::int64_t first = std::numeric_limits<std::int64_t>::min();
        std::int64_t last = std::numeric_limits<std::int64_t>::max();

        bool areAll() const { return *this == Ids(); }
        bool operator==(const Ids&) const = default;
    };
    // The part of the news that is searched: what is not older than a moment.
    struct Since {
        std::int64_t time = std::numeric_limits<std::int64_t>::min();
        Ids ids;
    };
    Since recently(const std::vector<unsigned char>& services, std::int64_t latest);
    std::optional<std::vector<CHeadlineTable>> findSince(const Since& since,
                                                         const std::vector<unsigned char>& services,
                                                         const CSearch& condition, const Newest& newest);
    // The matches of the condition, without the symbols that narrow it.
    std::optional<QueryMatch> matches(unsigned char service, const CSearch& condition);
    std::optional<IdSet> plainMatches(const CSearch& condition);
    std::optional<std::vector<CHeadlineTable>> entries(unsigned char service, const QueryMatch& match);
    std::optional<std::vector<CHeadlineTable>> newestEntries(unsigned char service, const QueryMatch& match,
                                                             std::size_t most);
    template <class Read>
    auto atOneMoment(Read read);
    bool addMatches(IdSet& ids, const QString& query);
    bool addRows(IdSet& ids, Query query);
    bool addNamed(IdSet& ids, unsigned char service, const CSymbolInfo& symbol);
    bool leaveOutWithdrawn(QueryMatch& match);
    bool isStopped() const { return stopping != nullptr && *stopping; }
    std::optional<QueryMatch> findNow(unsigned char service, const CSearch& condition, const Ids& among);

    Database& store;
    HeadlineKeys keys;
    DataVersion version;
    Statement matching;
    Statement matchingAmong;
    Statement naming;
    Statement dated;
    Statement withdrawn;
    QueryPlanner planner;
    QueryMatches queries;
    const std::atomic<bool>* stopping = nullptr;
    Ids askedAmong;  // the index is

    struct Last {
        CSearch condition;
        std::optional<std::int64_t> version;
        ReadQuery query;  // of a condition that is one
        IdSet ids;        // of any other
    };
    std::optional<Last> last;
};

}  // namespace wirepane
