// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

// The news and symbol records that the host and the news module exchange. All are plain values.

#include <QHashFunctions>
#include <QString>

#include <cstdint>
#include <tuple>
#include <type_traits>
#include <vector>

namespace wirepane {

// What identifies a headline: two records with equal keys are the same headline.
struct HeadlineKey {
    std::int64_t time = 0;      // seconds since 1970, UTC; shown in local time
    std::int32_t sequence = 0;  // the back end's number of the headline within its service and day
    unsigned char service = 0;  // news service id

    bool operator==(const HeadlineKey&) const = default;
};

}  // namespace wirepane

// One entry of a headline table: the index entry by which a headline, its story and its related symbols are
// fetched. 32 bytes, because a list may hold a million of them.
struct CHeadlineTable {
    std::int64_t time = 0;      // seconds since 1970, UTC
    std::int32_t sequence = 0;  // number within service and day
    unsigned char service = 0;  // news service id
    std::int64_t second = 0;    // opaque to the module: breaks ties when sorting, handed back unchanged
    std::int64_t last = 0;      // opaque to the module: breaks the ties that `second` leaves
};
static_assert(sizeof(CHeadlineTable) == 32 && std::is_trivially_copyable_v<CHeadlineTable>);

// One pushed or cached headline.
struct CHeadline {
    unsigned char service = 0;
    std::int64_t time = 0;  // seconds since 1970, UTC
    std::int32_t sequence = 0;
    QString title;            // plain text, never markup
    std::uint16_t flags = 0;  // the back end's own; the module does not read it
    std::int32_t categoryId = 0;
    std::uint64_t reserved = 0;  // the back end's own; the module does not read it
};

namespace wirepane {

inline HeadlineKey keyOf(const CHeadlineTable& entry) {
    return {entry.time, entry.sequence, entry.service};
}
// The order of lists, newest first.
inline bool isNewer(const CHeadlineTable& a, const CHeadlineTable& b) {
    return a.time != b.time ? a.time > b.time : a.sequence > b.sequence;
}
inline HeadlineKey keyOf(const CHeadline& headline) {
    return {headline.time, headline.sequence, headline.service};
}

}  // namespace wirepane

// What a table-recovery answer is about.
struct CHeadlineTableInfo {
    unsigned char service = 0;
    signed char status = 0;  // negative: the back end holds no data for the request
    QString key;             // yyyymmdd for date tables, the category id text, the symbol's code
};

// The story of one headline. `text` is in wire form: a paragraph break is "@@@@"; physical line breaks, where
// there are any, are transport wrapping.
struct CStory {
    std::int64_t time = 0;  // seconds since 1970, UTC
    QString text;
    CHeadlineTable entry;  // the headline that the story belongs to
};

// A symbol of a market. With an empty code it stands for a whole service.
struct CSymbolInfo {
    unsigned char market = 0;  // service id of the market
    QString code;

    bool operator==(const CSymbolInfo&) const = default;
};
// An order without a meaning, and a hash, so that symbols can be kept in sets and maps.
inline bool operator<(const CSymbolInfo& a, const CSymbolInfo& b) {
    return std::tie(a.market, a.code) < std::tie(b.market, b.code);
}
inline std::size_t qHash(const CSymbolInfo& symbol, std::size_t seed = 0) {
    return qHashMulti(seed, symbol.market, symbol.code);
}

// The symbols related to one headline.
struct CNewsSymLst {
    std::vector<CSymbolInfo> symbols;
};

// The related symbols of a headline, sent again.
struct CNewsSymlistInfo {
    wirepane::HeadlineKey headline;
    CNewsSymLst list;
};

namespace wirepane {

// One change of the host's symbol catalogue.
struct CSymbolUpdateInfo {
    unsigned char service = 0;
    QString code;
};

// A service has started a new news day.
struct CMarketStatus {
    unsigned char service = 0;
    std::int32_t date = 0;  // yyyymmdd
};

// One quote record of a symbol, as the memory callbacks carry it.
struct CQuoteMemory {
    CSymbolInfo symbol;
    double last = 0;
    double change = 0;  // against the previous close, in price units
    std::int64_t volume = 0;
};

}  // namespace wirepane
