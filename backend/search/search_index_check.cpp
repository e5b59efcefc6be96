// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/search_index_check.h"

#include "backend/database/statement.h"
#include "backend/words/search_tokenizer.h"

#include <QByteArrayView>
#include <QHash>

#include <algorithm>
#include <iterator>
#include <sqlite3.h>
#include <utility>

namespace wirepane {

namespace {

// The index splits words no further than this.
constexpr int longestWord = 32768;

constexpr std::size_t mostBeyond = 1000;  // that are remembered

// A text's number is the sum over its words, each with its column and place, so that the order in which words
// are met does not matter.
std::uint64_t valueOf(std::size_t wordHash, int column, std::int64_t place) {
    return qHashMulti(wordHash, column, place);
}

std::size_t hashOf(QByteArrayView word) {
    return qHash(word, 0x9e3779b9);
}

}  // namespace

// The splitter of words that the index was made with.
class WordSplitter {
public:
    explicit WordSplitter(Database& database) {
        fts5_api* api = nullptr;
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(database.handle(), "SELECT fts5(?1)", -1, &statement, nullptr) == SQLITE_OK) {
            sqlite3_bind_pointer(statement, 1, &api, "fts5_api_ptr", nullptr);
            sqlite3_step(statement);
        }
        sqlite3_finalize(statement);
        void* context = nullptr;
        if (api == nullptr || api->xFindTokenizer(api, searchTokenizer, &context, &methods) != SQLITE_OK ||
            methods.xCreate(context, nullptr, 0, &splitter) != SQLITE_OK)
            splitter = nullptr;
    }
    ~WordSplitter() {
        if (splitter != nullptr)
            methods.xDelete(splitter);
    }
    WordSplitter(const WordSplitter&) = delete;
    WordSplitter& operator=(const WordSplitter&) = delete;

    bool isThere() const { return splitter != nullptr; }

    std::uint64_t sumOf(QByteArrayView text, int column) {
        Walk walk{0, column, -1};
        methods.xTokenize(splitter, &walk, FTS5_TOKENIZE_DOCUMENT, text.data(), static_cast<int>(text.size()),
                          &WordSplitter::meet);
        words += walk.place + 1;
        return walk.sum;
    }
    std::int64_t wordsMet() const { return words; }

private:
    struct Walk {
        std::uint64_t sum;
        int column;
        std::int64_t place;
    };
    static int meet(void* context, int flags, const char* word, int length, int, int) {
        auto* walk = static_cast<Walk*>(context);
        if ((flags & FTS5_TOKEN_COLOCATED) == 0)
            ++walk->place;
        walk->sum += valueOf(hashOf({word, std::min(length, longestWord)}), walk->column, walk->place);
        return SQLITE_OK;
    }

    fts5_tokenizer methods{};
    Fts5Tokenizer* splitter = nullptr;
    std::int64_t words = 0;
};

std::optional<UnindexedIds> UnindexedIds::read(Database& database) {
    UnindexedIds found;
    Statement blocks(database, "SELECT first, last FROM import_blocks");
    Query query(blocks);
    while (query.next())
        found.runs.emplace(query.number(0), query.number(1));
    return query.failed() ? std::nullopt : std::optional(std::move(found));
}

bool UnindexedIds::contains(std::int64_t id) const {
    const auto next = runs.upper_bound(id);
    return next != runs.begin() && id <= std::prev(next)->second;
}

SearchIndexCheck::SearchIndexCheck(Database& database, std::int64_t first, std::int64_t end,
                                   UnindexedIds unindexed)
    : store(database),
      splitter(std::make_unique<WordSplitter>(database)),
      firstId(first),
      leftOut(std::move(unindexed)),
      sums(std::size_t(std::max<std::int64_t>(0, end - first))) {
    store.execute(
        "CREATE VIRTUAL TABLE IF NOT EXISTS temp.search_words USING fts5vocab(main, news_search, instance)");
}

SearchIndexCheck::~SearchIndexCheck() = default;

bool SearchIndexCheck::addTexts(std::int64_t first, std::int64_t end) {
    if (!splitter->isThere())
        return false;
    Statement statement(store, "SELECT id, title, story FROM news_text WHERE id >= ? AND id < ?");
    Query query(statement, first, end);
    while (query.next()) {
        const std::int64_t id = query.number(0);
        // A damaged table may give what was not asked for.
        if (id < first || id >= end || leftOut.contains(id))
            continue;
        sums[std::size_t(id - firstId)] +=
            splitter->sumOf(query.bytes(1), 0) + splitter->sumOf(query.bytes(2), 1);
        texts.add(id - firstId);
    }
    added = splitter->wordsMet();
    return !query.failed();
}

std::optional<bool> SearchIndexCheck::takeWords(std::int64_t most) {
    Statement words(store, lastTerm ? "SELECT term, doc, col = 'story', \"offset\" FROM temp.search_words "
                                      "WHERE term > ?"
                                    : "SELECT term, doc, col = 'story', \"offset\" FROM temp.search_words");
    const QByteArray from = lastTerm.value_or(QByteArray());
    const std::unique_ptr<Query> query =
        lastTerm ? std::make_unique<Query>(words, QByteArrayView(from)) : std::make_unique<Query>(words);
    const std::int64_t end = taken + most;
    std::size_t hash = 0;
    for (bool isFirst = true; query->next(); isFirst = false) {
        if (const QByteArrayView term = query->bytes(0); isFirst || term != *lastTerm) {
            if (taken >= end)
                return true;
            lastTerm = term.toByteArray();
            hash = hashOf(term);
        }
        ++taken;
        takeWord(query->number(1), valueOf(hash, int(query->number(2)), query->number(3)));
    }
    return query->failed() ? std::nullopt : std::optional(false);
}

void SearchIndexCheck::takeWord(std::int64_t id, std::uint64_t value) {
    const auto place = std::size_t(id - firstId);
    if (id >= firstId && place < sums.size())
        sums[place] -= value;
    else if (beyond.size() < mostBeyond)
        beyond.insert(id);
}

SearchIndexCheck::Faults SearchIndexCheck::faults() const {
    Faults found;
    for (std::size_t place = 0; place < sums.size(); ++place) {
        if (sums[place] != 0 && !leftOut.contains(firstId + std::int64_t(place)))
            (texts.contains(std::int64_t(place)) ? found.texts : found.entries)
                .push_back(firstId + std::int64_t(place));
    }
    found.entries.insert(found.entries.end(), beyond.begin(), beyond.end());
    return found;
}

}  // namespace wirepane
