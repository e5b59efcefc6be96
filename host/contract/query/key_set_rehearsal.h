// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace wirepane {

// How often a query or a key set would have spoken.
struct WIREPANE_CONTRACT_EXPORT Rehearsal {
    struct Day {
        QDate day;
        int hits = 0;
    };
    struct Hour {
        std::int64_t begin = 0;  // seconds since 1970
        int hits = 0;
    };
    struct Word {
        QString text;
        int hits = 0;
    };
    static constexpr std::size_t mostWords = 10;
    static constexpr std::size_t mostTitles = 200;

    int tried = 0;                  // headlines
    std::vector<HeadlineKey> hits;  // newest first
    QStringList titles;             // of the first of them, in their order, `mostTitles` at most
    std::vector<Day> days;          // oldest first, also those without a hit
    std::vector<Hour> hours;        // those with hits, busiest first, of equal ones the latest
    // Parts that ask for something, as they are written, by the hits that hold them.
    std::vector<Word> bringing;
    // Words, and pairs of characters of a script without blanks, that are not named and that stand at least
    // twice as often in the hits as elsewhere: how many hits fewer there were if one of them were excluded.
    std::vector<Word> exclusions;

    // In how many hours there were more hits.
    int hoursOver(int budget) const;
};

// Optional for back ends, beside BKQuoteInterface: whoever has the news tries a key set on that of the last
// 30 days. Interface thread.
class WIREPANE_CONTRACT_EXPORT KeySetRehearsal {
public:
    virtual ~KeySetRehearsal();

    // Called on another thread; `symbol`: the code of the headline's symbol, empty: it has none.
    using Wants = std::function<bool(const CHeadline& headline, const QString& symbol)>;
    struct Part {
        QString text;
        Wants wants;
    };
    struct KeySet {
        QString query;  // as alerts know them, unless:
        Wants wants;    // says what is wanted, and `parts` which keyword brings it
        std::vector<Part> parts;
        std::vector<std::int32_t> newsTypes;  // empty: all
        std::vector<unsigned char> services;
    };
    // Without holding the interface thread up. Calls `told` once, from the event loop, as long as what is
    // returned is kept; with nothing where the query has a fault or the news cannot be read.
    using Told = std::function<void(const std::optional<Rehearsal>& rehearsal)>;
    [[nodiscard]] virtual std::shared_ptr<const void> rehearseKeySet(KeySet keySet, Told told) = 0;
};

}  // namespace wirepane
