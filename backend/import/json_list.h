// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

#include <optional>

namespace wirepane {

// Cuts a JSON list into its entries by their brackets alone, so that one broken entry does not spoil the
// others and no more than one is ever parsed at a time.
class JsonList {
public:
    // `list` starts with "[" (blanks before it allowed) and outlives this.
    explicit JsonList(QByteArrayView list);

    // The next entry without the blanks around it; nothing behind the last.
    std::optional<QByteArrayView> next();

    qsizetype position() const { return at; }  // bytes read so far
    bool isClosed() const { return closed; }   // the list's own "]" was found
    // Behind the last entry: what follows the list, blanks left out.
    QByteArrayView rest() const { return text.sliced(at).trimmed(); }

private:
    QByteArrayView entryFrom(qsizetype start, bool& isLast);

    QByteArrayView text;
    qsizetype at = 0;
    bool closed = false;
    bool atEnd = false;
};

}  // namespace wirepane
