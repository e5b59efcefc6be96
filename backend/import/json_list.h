// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QIODevice>

#include <limits>
#include <optional>

namespace wirepane {

// Cuts a JSON list into its entries by their brackets alone, so that one broken entry does not spoil the
// others and no more than one is ever in memory, or parsed, at a time.
class JsonList {
public:
    // `list` starts with "[" (blanks before it allowed), is open for reading and outlives this.
    // Of an entry of more bytes than `mostOfEntry` only an end is kept.
    explicit JsonList(QIODevice& list, qsizetype mostOfEntry = std::numeric_limits<qsizetype>::max());

    // The next entry without the blanks around it, valid until the next call; nothing behind the last.
    std::optional<QByteArrayView> next();

    bool wasTooLong() const { return tooLong; }  // the entry that came last
    bool isClosed() const { return closed; }     // the list's own "]" was found
    // Behind the last entry: whether more than blanks follows the list.
    bool isFollowed();

private:
    bool readOn();
    QByteArrayView entry(bool& isLast);

    QIODevice& source;
    const qsizetype most;
    QByteArray text;      // what has been read, from the present entry on
    qsizetype start = 0;  // of that entry
    qsizetype at = 0;
    bool tooLong = false;
    bool closed = false;
    bool atEnd = false;
};

}  // namespace wirepane
