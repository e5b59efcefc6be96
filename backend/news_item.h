// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"
#include "host/contract/records.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

namespace wirepane {

inline constexpr std::int64_t firstNewsTime = -2208988800;  // 1900-01-01 00:00:00 UTC
inline constexpr std::int64_t lastNewsTime = 253402300799;  // 9999-12-31 23:59:59 UTC

// A story in the packed form (packed_text.h) in which the store keeps it, made by who has the time.
struct PackedStory {
    QString of;        // what it was made of
    QByteArray bytes;  // empty: that story is not packed

    // False for a story that was cleaned since then, or is another one: this says nothing of it.
    bool isOf(const QString& story) const {
        return of.constData() == story.constData() && of.size() == story.size();
    }
};

// One piece of news on its way into the store, whatever it came from.
struct NewsItem {
    unsigned char service = 1;
    QString identity;  // what the source calls it, unique within the service: the same item twice is one item
    int version = 0;   // a later version replaces an earlier one
    std::int64_t time = 0;                     // seconds since 1970, UTC; firstNewsTime to lastNewsTime
    QString title;                             // one line of plain text
    std::optional<QString> story = QString();  // plain text in wire form; empty: it has none; absent: the
                                               // source says that one is still to come
    QString category;                  // name of its category; empty: none. The store gives each name an id
    std::vector<CSymbolInfo> related;  // the first is the main symbol; market 0: not known
    QString link;                      // where its publisher shows it; empty: not known
    std::optional<QString> withdrawn;  // its publisher takes it back: why, as far as it says. Title and story
                                       // may be empty then: those that were there stay

    std::optional<std::int32_t>
        sequence;  // given by a feed that numbers its headlines; else the store numbers
    std::optional<std::int32_t>
        categoryId;                // given by a feed that knows the store's ids; goes before `category`
    PackedStory packedStory = {};  // where it has been made ahead

    // Where several stores are to hold it alike: when it was taken in, and the day that its number belongs
    // to. With a day, number and category are taken as they are.
    std::optional<std::int64_t> received = {};
    std::optional<std::int32_t> day = {};
};

// One entry of the symbol table.
struct SymbolItem {
    unsigned char market = 0;
    QString code;
    QString name;
    int category = 1;          // the market's kind of symbol
    QString englishName = {};  // where `name` is in another language; empty: not known, the store keeps the
                               // one that it has
};

// One entry of a service's category catalogue.
struct CategoryItem {
    unsigned char service = 0;
    std::int32_t id = 0;
    QString name;
    QString colour;  // "#rrggbb"; empty: the grid's own
};

inline constexpr std::int64_t mostVolume = 9'007'199'254'740'991;  // what JSON numbers hold exactly

// What a symbol trades at, of the last moment that is known.
struct QuoteItem {
    unsigned char market = 0;
    QString code;
    double last = 0;
    double change = 0;        // against the previous close, in price units
    std::int64_t volume = 0;  // of the day, in units of trading; 0 to mostVolume
};

using StoreItem = std::variant<NewsItem, SymbolItem, CategoryItem, QuoteItem>;

// What was wrong with one item of a source, for a person to act on.
struct Rejection {
    std::optional<Phrase> place;  // "line 12", "item 3 (urn:x:1)"; none: all of it
    Error reason;
};

}  // namespace wirepane
