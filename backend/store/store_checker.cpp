// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_checker.h"

#include "backend/database/read_transaction.h"
#include "backend/database/statement.h"
#include "backend/search/search_index_check.h"
#include "backend/search/search_rules.h"
#include "backend/store/store_file.h"
#include "backend/store/store_rules.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <sqlite3.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::int64_t mostId = std::numeric_limits<std::int64_t>::max() - 1;
constexpr std::int64_t idsAtOnce = 2000;
constexpr std::int64_t wordsAtOnce = 200'000;
constexpr std::int64_t idsOfWindow = 16'000'000;  // of which the words are compared at once: 128 MB
constexpr double secondsOfPage = 40e-6;           // of the file, while its structure is read
constexpr double wordsOfTexts = 0.8;              // the time to read the index, of that to split the texts
constexpr int instructionsBetween = 1'000'000;    // of SQLite's, between two reports

double since(Clock::time_point from) {
    return std::chrono::duration<double>(Clock::now() - from).count();
}

// How much of a work of known parts is done. Parts are seconds, as they were estimated.
class Pace {
public:
    explicit Pace(const CheckProgress& progress) : tell(progress) {}

    void begin(double seconds) {
        all = seconds;
        report(0);
    }
    // `share` of the present part, of so many seconds, is done.
    void report(double share) {
        const double done =
            all > 0 ? std::clamp((before + part * std::clamp(share, 0.0, 1.0)) / all, 0.0, 1.0) : 1;
        const double took = since(from);
        // After a while the pace tells better than the estimate.
        constexpr double settled = 0.1;
        const double left = done > settled ? took * (1 - done) / done : all * (1 - done);
        if (tell)
            tell(done, std::chrono::seconds(std::int64_t(left + 0.5)));
    }
    void enter(double seconds) {
        before += std::exchange(part, seconds);
        partFrom = Clock::now();
    }
    // By the clock, where nothing else tells.
    void reportByTime() { report(part > 0 ? since(partFrom) / part : 1); }

private:
    const CheckProgress& tell;
    double all = 0;
    double before = 0;
    double part = 0;
    Clock::time_point from = Clock::now();
    Clock::time_point partFrom = from;
};

constexpr const char* extent =
    "SELECT min(id), max(id), (SELECT coalesce(max(position), 0) FROM arrivals) FROM ("
    "SELECT min(id) AS id FROM all_headlines UNION ALL SELECT max(id) FROM all_headlines UNION ALL "
    "SELECT min(headline) FROM stories UNION ALL SELECT max(headline) FROM stories UNION ALL "
    "SELECT min(headline) FROM related_symbols UNION ALL SELECT max(headline) FROM related_symbols)";

class Check {
public:
    Check(Database& database, const CheckProgress& progress)
        : store(database), rules(database), pace(progress) {}

    Result<QStringList> run();

private:
    bool readExtent();
    // The next so many ids from `id` on, beginning with one that has rows; nothing behind the last.
    std::optional<std::pair<std::int64_t, std::int64_t>> pageFrom(std::int64_t id, std::int64_t ids);
    double shareBefore(std::int64_t id) const {
        return (double(id) - double(firstId)) / (double(endId) - double(firstId));
    }
    void estimate();
    QStringList structureFaults();
    void checkRules();
    // False when the index cannot be read.
    bool checkIndex();
    bool checkWindow(SearchIndexCheck& index, std::int64_t first, std::int64_t end, double share);
    void addFaults(const SearchIndexCheck::Faults& found, QStringList& offenders);
    bool isTheSame(std::int64_t id);

    Database& store;
    StoreRules rules;
    Pace pace;
    // When the check began: the ids of news, those not indexed yet, the last arrival.
    std::int64_t firstId = 0;
    std::int64_t endId = 0;
    UnindexedIds unindexed;
    std::int64_t lastArrival = 0;
    double secondsOfStructure = 0;
    double secondsOfRules = 0;
    double secondsOfTexts = 0;
    QStringList faults;
};

bool Check::readExtent() {
    const ReadTransaction moment(store);
    Statement statement(store, extent);
    Query query(statement);
    if (!query.next())
        return false;
    firstId = query.number(0);
    endId = query.isNull(1) ? firstId : std::min(query.number(1), mostId) + 1;
    lastArrival = query.number(2);
    std::optional<UnindexedIds> read = UnindexedIds::read(store);
    if (!read)
        return false;
    unindexed = std::move(*read);
    return true;
}

std::optional<std::pair<std::int64_t, std::int64_t>> Check::pageFrom(std::int64_t id, std::int64_t ids) {
    const std::optional<std::int64_t> found = rules.idFrom(id);
    if (!found || *found >= endId)
        return std::nullopt;
    const std::int64_t first = *found;
    return std::pair(first, first < endId - ids ? first + ids : endId);
}

// By a few pieces from all over the store.
void Check::estimate() {
    constexpr int pieces = 4;
    std::int64_t pages = 0;
    store.readNumber("PRAGMA page_count", pages);
    secondsOfStructure = double(pages) * secondsOfPage;
    double ids = 0;
    StoreRules sample(store);
    for (int i = 0; i < pieces; ++i) {
        const ReadTransaction moment(store);
        const auto page = pageFrom(firstId + std::int64_t((double(endId) - double(firstId)) * i / pieces),
                                   idsAtOnce / pieces);
        if (!page)
            continue;
        const auto before = Clock::now();
        sample.checkPage(page->first, page->second);
        const auto between = Clock::now();
        SearchIndexCheck(store, page->first, page->second).addTexts(page->first, page->second);
        secondsOfRules += std::chrono::duration<double>(between - before).count();
        secondsOfTexts += since(between);
        ids += double(page->second - page->first);
    }
    const double times = ids > 0 ? (double(endId) - double(firstId)) / ids : 0;
    secondsOfRules *= times;
    secondsOfTexts *= times;
    pace.begin(secondsOfStructure + secondsOfRules + secondsOfTexts * (1 + wordsOfTexts));
}

QStringList Check::structureFaults() {
    pace.enter(secondsOfStructure);
    sqlite3_progress_handler(
        store.handle(), instructionsBetween,
        [](void* self) {
            static_cast<Pace*>(self)->reportByTime();
            return 0;
        },
        &pace);
    QStringList found;
    Statement statement(store, "PRAGMA integrity_check(10)");
    Query query(statement);
    while (query.next()) {
        if (query.text(0) != u"ok"_s)
            found += u"The file's structure is damaged: %1."_s.arg(query.text(0));
    }
    if (query.failed())
        found += sentence(store.failure());
    sqlite3_progress_handler(store.handle(), 0, nullptr, nullptr);
    return found;
}

void Check::checkRules() {
    pace.enter(secondsOfRules);
    rules.checkTables();
    for (auto page = pageFrom(firstId, idsAtOnce); page; page = pageFrom(page->second, idsAtOnce)) {
        const ReadTransaction moment(store);
        rules.checkPage(page->first, page->second);
        pace.report(shareBefore(page->second));
    }
    faults += rules.faults();
}

bool Check::checkWindow(SearchIndexCheck& index, std::int64_t first, std::int64_t end, double share) {
    pace.enter(secondsOfTexts * share);
    for (auto page = pageFrom(first, idsAtOnce); page && page->first < end;
         page = pageFrom(page->second, idsAtOnce)) {
        const ReadTransaction moment(store);
        if (!index.addTexts(page->first, std::min(page->second, end)))
            return false;
        pace.report(double(page->second - first) / double(end - first));
    }
    pace.enter(secondsOfTexts * wordsOfTexts * share);
    for (std::optional<bool> more = true; *more;) {
        const ReadTransaction moment(store);
        more = index.takeWords(wordsAtOnce);
        if (!more)
            return false;
        pace.report(double(index.wordsTaken()) / double(index.wordsAdded() + 1));
    }
    return true;
}

// An index that took the place of the other meanwhile is another one: of both, a part was read.
bool Check::checkIndex() {
    const SearchRules rulesBefore = searchRulesOf(store);
    QStringList offenders;
    for (auto window = pageFrom(firstId, idsOfWindow); window;
         window = pageFrom(window->second, idsOfWindow)) {
        const auto [first, end] = *window;
        SearchIndexCheck index(store, first, end, unindexed);
        if (!checkWindow(index, first, end, shareBefore(end) - shareBefore(first)))
            return false;
        addFaults(index.faults(), offenders);
    }
    if (searchRulesOf(store) != rulesBefore)
        return checkIndex();
    if (!offenders.isEmpty())
        faults += namingSome(u"The search index does not hold the text of: %1.", offenders);
    return true;
}

// What was written to since the check began may have been read once before and once after that.
bool Check::isTheSame(std::int64_t id) {
    Statement changed(store, "SELECT EXISTS(SELECT 1 FROM arrivals WHERE position > ? AND headline = ?)");
    Query query(changed, lastArrival, id);
    return !query.next() || query.number(0) == 0;
}

void Check::addFaults(const SearchIndexCheck::Faults& found, QStringList& offenders) {
    const ReadTransaction moment(store);
    Statement named(store, "SELECT service || '/' || identity FROM headlines WHERE id = ?");
    for (const std::int64_t id : found.texts) {
        if (offenders.size() > namedOffenders)
            return;
        Query query(named, id);
        // What has gone meanwhile is no fault.
        if (query.next() && isTheSame(id))
            offenders += query.text(0);
    }
    std::int64_t lastId = 0;
    store.readNumber("SELECT coalesce(max(id), 0) FROM all_headlines", lastId);
    for (const std::int64_t id : found.entries) {
        if (offenders.size() > namedOffenders)
            return;
        const bool hasCome = id >= endId && id <= lastId;
        const bool isOfOtherWindow = id >= firstId && id < endId && Query(named, id).next();
        if (!hasCome && !isOfOtherWindow)
            offenders += u"entry %1"_s.arg(id);
    }
}

Result<QStringList> Check::run() {
    if (std::optional<Error> fault = readingFault(store))
        return *fault;
    std::optional<Error> unread;
    if (readExtent())
        estimate();
    else
        unread = store.failure();
    faults = structureFaults();
    if (faults.isEmpty() && unread)
        faults += sentence(*unread);
    if (!faults.isEmpty())
        return faults;
    checkRules();
    if (!checkIndex())
        faults += u"The search index cannot be read: %1"_s.arg(sentence(store.failure()));
    return faults;
}

}  // namespace

Result<QStringList> StoreChecker::check(const CheckProgress& progress) const {
    const Result<std::unique_ptr<Database>> opened = Database::openToRead(path, StoreOptions().busyTimeout);
    if (!opened)
        return opened.error();
    if (!opened.value()->execute("PRAGMA temp_store = MEMORY"))
        return opened.value()->failure();
    return Check(*opened.value(), progress).run();
}

}  // namespace wirepane
