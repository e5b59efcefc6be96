// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"
#include "search/search_memory.h"

#include <QString>

#include <chrono>
#include <optional>
#include <span>
#include <utility>
#include <vector>

class BKQuoteInterface;

namespace wirepane {
enum class ListIndex : int;
enum class TableKind : int;
struct ServiceEntry;

// The searches of a view: their conditions, what has been sent and is still to be answered, and what is kept
// of them. Showing results is the view's affair. Interface thread only.
class SearchDesk {
public:
    explicit SearchDesk(BKQuoteInterface& newsBackEnd) : backEnd(newsBackEnd) {}

    CSearch edited;       // what the search dialogs start from
    CSearch ordinary;     // what the search mode sends
    CSearch second;       // answered as a table of its own kind; nothing sends it
    CSearch warningTerm;  // what the warning-term mode sends
    SearchMemory memory;

    // Takes over what was kept; the warning item in force becomes what the warning-term mode sends.
    void restore(SearchMemory kept);

    // The condition that a mode sends; null for a mode without searches.
    CSearch* conditionOf(ListIndex mode);
    // Asks a service besides.
    void ask(const CSearch& condition, unsigned char service);
    // A service has answered a condition: true when this view waits for that; it does not any more. Other
    // answers come by themselves, because the service has found more. `now` as in Moment.
    bool takeAnswerDue(const CSearch& condition, unsigned char service, std::int64_t now);

    // The condition that a list's rows were found under, with its keywords to be marked; empty for others.
    CSearch foundUnder(ListIndex list) const;
    // The table that holds the answer to a condition; none: no search of this view asked for it.
    std::optional<TableKind> kindOfAnswer(const CSearch& condition) const;

    // The symbol that a list's search is narrowed to: of what was found, else of what will be sent next.
    std::optional<CSymbolInfo> narrowing(ListIndex list) const;
    // What a list's search is narrowed to counts no more: what was found under it is what its mode sends
    // next, for every symbol.
    void endNarrowing(ListIndex list);
    // When the search of a list was sent last; none: never.
    struct Moment {
        std::int64_t time = 0;         // seconds since 1970
        std::size_t endedOutages = 0;  // of the back end's connection, until then
    };
    std::optional<Moment> sentAt(ListIndex list) const;
    // What has come of it.
    struct Course {
        bool isSent = false;
        bool isAwaited = false;                         // an answer is still to come
        std::int64_t until = 0;                         // what is found is as of this moment
        std::optional<std::chrono::milliseconds> took;  // until the last answer so far; none: there is none
        bool isTyped = false;                           // and nobody has sent it
        bool isNewestOnly = false;                      // there may be more than is shown
    };
    Course courseOf(ListIndex list) const;
    // Nothing is searched for any more: an answer that comes still is nobody's.
    void endSearch(ListIndex list);

    // The word alone, or the query, in headlines, composed at `now`; another one than that in force is not
    // narrowed to a symbol.
    CSearch quickSearch(const QString& word, std::int64_t now, SearchLanguage language) const;
    // The newest that such a search finds are shown, before anybody has sent it: it is the one in force.
    void takeTyped(const CSearch& condition, const Moment& now, std::chrono::milliseconds took, bool isAll);
    // Of what has been sent the newest stand in the list, until all is answered.
    void noteNewestOnly(ListIndex list);
    // Makes a quick search the ordinary condition, and keeps its word in the history.
    void takeQuickSearch(const QString& word, std::int64_t now,
                         SearchLanguage language = SearchLanguage::Plain);
    // For hosts: the quick-search words used so far, each once, newest last.
    const std::vector<QString>& searchHistory() const { return history; }
    // True when the text of the search box is another one than at the previous search.
    bool takeSearchText(const QString& text);
    // What the user reads while answers are awaited: the wait text and the keywords, 1,000 characters at
    // most: a list of keywords can be longer than any screen.
    QString waitText(const CSearch& condition) const;

    // Two keywords or more need a method: all must match unless one is set.
    static void completeMethod(CSearch& condition);
    // Sends the condition of a mode to the selected services; they are pending when `awaited`, all others
    // are not. `now` is what SentAt gives from then on.
    void sendSearch(ListIndex mode, std::span<ServiceEntry> services, bool awaited, const Moment& now);
    // Narrows every condition that equals `condition` to a symbol; the one of the warning terms with
    // `warningTermToo` only.
    void narrow(const CSearch& condition, const CSymbolInfo& symbol, bool warningTermToo);

private:
    struct Sent {
        CSearch condition;
        std::optional<Moment> at;
        std::chrono::steady_clock::time_point begun;
        std::int64_t answeredAt = 0;
        std::optional<std::chrono::milliseconds> took;
        bool isTyped = false;
        bool isNewestOnly = false;
    };
    const Sent* sentFrom(ListIndex list) const;
    bool isAwaited(const CSearch& condition) const;

    BKQuoteInterface& backEnd;
    Sent sentOrdinary;
    Sent sentWarningTerm;
    std::vector<std::pair<CSearch, unsigned char>> due;  // sent, and not answered
    std::vector<QString> history;
    QString previousText;
};

// A service has answered, or will not: it is not pending any more. True when others still are.
bool markAnswered(std::span<ServiceEntry> services, unsigned char service);
// Nothing is awaited any more. True when something was.
bool forgetPending(std::span<ServiceEntry> services);

// The key of search tables.
inline const QString searchTableKey = QStringLiteral("SEARCH");

}  // namespace wirepane
