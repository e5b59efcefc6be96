// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/search_index_check.h"

#include "backend/database/statement.h"
#include "backend/words/search_tokenizer.h"

#include <QByteArrayView>
#include <QHash>

#include <algorithm>
#include <sqlite3.h>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// The index splits words no further than this.
constexpr int longestWord = 32768;

// One number per text: the sum over its words, each with its column and place, so that the order in which
// words are met does not matter.
using Sums = std::unordered_map<std::int64_t, std::uint64_t>;

std::uint64_t valueOf(QByteArrayView word, int column, std::int64_t place) {
    return qHashMulti(0x9e3779b9, word, column, place);
}

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

    std::uint64_t sumOf(const QString& text, int column) {
        Walk walk{0, column, -1};
        const QByteArray bytes = text.toUtf8();
        methods.xTokenize(splitter, &walk, FTS5_TOKENIZE_DOCUMENT, bytes.constData(),
                          static_cast<int>(bytes.size()), &WordSplitter::meet);
        return walk.sum;
    }

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
        walk->sum += valueOf({word, std::min(length, longestWord)}, walk->column, walk->place);
        return SQLITE_OK;
    }

    fts5_tokenizer methods{};
    Fts5Tokenizer* splitter = nullptr;
};

bool readIndex(Database& database, Sums& sums) {
    Statement words(database, "SELECT term, doc, col = 'story', \"offset\" FROM temp.search_words");
    Query query(words);
    while (query.next())
        sums[query.number(1)] += valueOf(query.bytes(0), static_cast<int>(query.number(2)), query.number(3));
    return !query.failed();
}

}  // namespace

std::optional<QStringList> searchIndexFaults(Database& database, int most) {
    WordSplitter splitter(database);
    if (!splitter.isThere() ||
        !database.execute(
            "CREATE VIRTUAL TABLE temp.search_words USING fts5vocab(main, news_search, instance)"))
        return std::nullopt;
    Sums sums;
    if (!readIndex(database, sums))
        return std::nullopt;

    QStringList faults;
    Statement texts(database,
                    "SELECT news_text.id, news_text.title, story, service || '/' || identity "
                    "FROM news_text JOIN headlines ON headlines.id = news_text.id WHERE coalesce(("
                    "SELECT last < headlines.id FROM import_blocks WHERE first <= headlines.id "
                    "ORDER BY first DESC LIMIT 1), 1) "
                    "ORDER BY news_text.id");
    Query query(texts);
    while (query.next()) {
        const auto indexed = sums.extract(query.number(0));
        const std::uint64_t expected = splitter.sumOf(query.text(1), 0) + splitter.sumOf(query.text(2), 1);
        if ((indexed.empty() ? 0 : indexed.mapped()) != expected && faults.size() < most)
            faults += query.text(3);
    }
    if (query.failed())
        return std::nullopt;
    for (auto left = sums.cbegin(); left != sums.cend() && faults.size() < most; ++left)
        faults += u"entry %1"_s.arg(left->first);
    return faults;
}

}  // namespace wirepane
