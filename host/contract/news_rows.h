// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/price_history.h"
#include "host/contract/records.h"

#include <QByteArray>
#include <QStringList>

#include <optional>
#include <vector>

namespace wirepane {

// News as rows that other programs read.
enum class NewsRowForm {
    Csv,    // RFC 4180, with a line of headings
    Json,   // one list of objects
    Ninjs,  // a ninjs 2.0 record per line; what is taken in again as the same news
};

// The names that the user gives them, in the order of NewsRowForm.
WIREPANE_CONTRACT_EXPORT const QStringList& newsRowForms();
// By a name, or by the ending of a file's name (.csv, .json, .ndjson, .jsonl); nothing: it is none.
WIREPANE_CONTRACT_EXPORT std::optional<NewsRowForm> newsRowFormOf(const QString& name);
WIREPANE_CONTRACT_EXPORT std::optional<NewsRowForm> newsRowFormOfFile(const QString& file);

// What the price of the first symbol had done since the headline, as of a moment (seconds since 1970, UTC).
struct FrozenPrices {
    PriceSince since;
    std::int64_t moment = 0;
};

// One piece of news. Times are written in UTC, stories in lines. What was withdrawn is "canceled" in every
// form.
struct NewsRow {
    CHeadline headline;
    QString service;  // its short name
    QString topic;
    std::vector<CSymbolInfo> symbols;
    std::optional<QString> story;             // in wire form; nothing: it is still to come
    std::optional<QString> withdrawn = {};    // its publisher has taken it back: why, as far as it said
    std::optional<FrozenPrices> prices = {};  // left out of ninjs records, which are taken in again
};

// The bytes of a row, in UTF-8 and with what goes before it: `isFirst` begins what the rows stand in.
WIREPANE_CONTRACT_EXPORT QByteArray newsRow(NewsRowForm form, const NewsRow& row, bool isFirst);
// What ends the rows. `isEmpty`: there were none.
WIREPANE_CONTRACT_EXPORT QByteArray newsRowsEnd(NewsRowForm form, bool isEmpty);

// The line of a CSV file with these fields, with its end.
WIREPANE_CONTRACT_EXPORT QByteArray csvLineOf(const QStringList& fields);

}  // namespace wirepane
