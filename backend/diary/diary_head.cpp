// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/diary/diary_head.h"

namespace wirepane {

DiaryHead noEntries() {
    constexpr qsizetype digits = 64;
    return {0, QByteArray(digits, '0')};
}

KeptHead::KeptHead(Database& store)
    : read(store, "SELECT entries, seal FROM diary_head"),
      write(store, "REPLACE INTO diary_head(one, entries, seal) VALUES(1, ?, ?)") {}

DiaryHead KeptHead::head(bool& failed) {
    Query row(read);
    const bool isKept = row.next();
    failed = row.failed();
    return isKept ? DiaryHead{row.number(0), row.bytes(1).toByteArray()} : noEntries();
}

bool KeptHead::keep(const DiaryHead& head) {
    return Query(write, head.count, QByteArrayView(head.seal)).run();
}

}  // namespace wirepane
