// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/words/search_tokenizer.h"

#include "backend/words/search_words.h"

#include <sqlite3.h>

namespace wirepane {

namespace {

// There is nothing to keep: any address but null will do.
int create(void*, const char**, int, Fts5Tokenizer** made) {
    static char nothing = 0;
    *made = reinterpret_cast<Fts5Tokenizer*>(&nothing);
    return SQLITE_OK;
}

void destroy(Fts5Tokenizer*) {}

using Take = int(void*, int, const char*, int, int, int);

int tokenize(Fts5Tokenizer*, void* context, int flags, const char* text, int length, Take* take) {
    WordReader reader(QByteArrayView(text, length));
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
           api->xCreateTokenizer(api, searchTokenizer, nullptr, &methods, nullptr) == SQLITE_OK;
}

}  // namespace wirepane
