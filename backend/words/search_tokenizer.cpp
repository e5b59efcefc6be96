// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/words/search_tokenizer.h"

#include "backend/words/search_words.h"

#include <optional>
#include <sqlite3.h>

namespace wirepane {

namespace {

// By which the index of a store was made; nothing where that is not told.
std::optional<std::int64_t> notedRules(sqlite3* connection) {
    std::optional<std::int64_t> fingerprint;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection, "SELECT fingerprint FROM search_rules", -1, &statement, nullptr) ==
            SQLITE_OK &&
        sqlite3_step(statement) == SQLITE_ROW)
        fingerprint = sqlite3_column_int64(statement, 0);
    sqlite3_finalize(statement);
    return fingerprint;
}

// The rules live as long as the program: they are what is made.
int create(void* connection, const char** arguments, int count, Fts5Tokenizer** made) {
    const std::optional<std::int64_t> fingerprint =
        count > 0 ? QByteArrayView(arguments[0]).toLongLong() : notedRules(static_cast<sqlite3*>(connection));
    const CharacterFolding* known = fingerprint ? CharacterFolding::find(*fingerprint) : nullptr;
    const CharacterFolding& rules = known != nullptr ? *known : CharacterFolding::instance();
    *made = reinterpret_cast<Fts5Tokenizer*>(const_cast<CharacterFolding*>(&rules));
    return SQLITE_OK;
}

void destroy(Fts5Tokenizer*) {}

using Take = int(void*, int, const char*, int, int, int);

int tokenize(Fts5Tokenizer* made, void* context, int flags, const char* text, int length, Take* take) {
    WordReader reader(QByteArrayView(text, length), *reinterpret_cast<const CharacterFolding*>(made));
    const bool isQuery = (flags & FTS5_TOKENIZE_QUERY) != 0;
    while (reader.next()) {
        if (isQuery && reader.isLineEnd())
            continue;
        const std::string_view word = reader.word();
        const int result =
            take(context, 0, word.data(), int(word.size()), int(reader.start()), int(reader.end()));
        if (result != SQLITE_OK)
            return result == SQLITE_DONE ? SQLITE_OK : result;
    }
    return SQLITE_OK;
}

fts5_api* apiOf(sqlite3* connection) {
    fts5_api* api = nullptr;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection, "SELECT fts5(?1)", -1, &statement, nullptr) == SQLITE_OK) {
        sqlite3_bind_pointer(statement, 1, &api, "fts5_api_ptr", nullptr);
        sqlite3_step(statement);
    }
    sqlite3_finalize(statement);
    return api;
}

}  // namespace

bool registerSearchTokenizer(sqlite3* connection) {
    fts5_api* const api = apiOf(connection);
    fts5_tokenizer methods{create, destroy, tokenize};
    return api != nullptr &&
           api->xCreateTokenizer(api, searchTokenizer, connection, &methods, nullptr) == SQLITE_OK;
}

}  // namespace wirepane
