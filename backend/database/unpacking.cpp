// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/database/unpacking.h"

#include "backend/packed_text.h"

#include <sqlite3.h>

namespace wirepane {

namespace {

// False: it is damaged.
bool giveText(sqlite3_context* context, sqlite3_value* value) {
    if (sqlite3_value_type(value) != SQLITE_BLOB) {
        sqlite3_result_value(context, value);
        return true;
    }
    const auto* const first = static_cast<const char*>(sqlite3_value_blob(value));
    const QByteArrayView packed(first, sqlite3_value_bytes(value));
    const std::optional<std::size_t> size = sizeOfUnpacked(packed);
    auto* const text = size ? static_cast<char*>(sqlite3_malloc64(*size + 1)) : nullptr;
    if (text == nullptr || !unpackText(packed, text, *size)) {
        sqlite3_free(text);
        return false;
    }
    sqlite3_result_text64(context, text, *size, sqlite3_free, SQLITE_UTF8);
    return true;
}

void unpack(sqlite3_context* context, int, sqlite3_value** values) {
    if (giveText(context, values[0]))
        return;
    const QByteArray reason = "the packed text of row " + QByteArray::number(sqlite3_value_int64(values[1]));
    sqlite3_result_error(context, reason.constData(), static_cast<int>(reason.size()));
    sqlite3_result_error_code(context, SQLITE_CORRUPT);
}

void unpackOrNull(sqlite3_context* context, int, sqlite3_value** values) {
    if (!giveText(context, values[0]))
        sqlite3_result_null(context);
}

}  // namespace

// The schema's views call them: they do nothing but read what they are given.
void registerUnpacking(sqlite3* connection) {
    constexpr int kind = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    sqlite3_create_function_v2(connection, "unpacked", 2, kind, nullptr, unpack, nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(connection, "unpacked_or_null", 1, kind, nullptr, unpackOrNull, nullptr,
                               nullptr, nullptr);
}

}  // namespace wirepane
