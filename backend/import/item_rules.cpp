// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/item_rules.h"

#include "backend/import/import_errors.h"
#include "backend/import/news_time.h"
#include "backend/import/wire_form.h"
#include "host/contract/clock.h"

#include <algorithm>
#include <limits>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestIdentity = 1000;
constexpr std::size_t mostSymbols = 100;
constexpr qsizetype longestQuote = 60;

}  // namespace

std::optional<Error> faultOfIdentity(const QString& identity, Phrase what) {
    if (identity.size() <= longestIdentity)
        return std::nullopt;
    return makeError<import_errors::identityTooLong>(std::move(what), longestIdentity);
}

int versionOf(QStringView stated, std::int64_t time) {
    const qsizetype point = stated.indexOf(u'.');
    bool isNumber = false;
    const int version = (point < 0 ? stated : stated.first(point)).toInt(&isNumber);
    if (isNumber && version >= 0)
        return version;
    return int(std::clamp<std::int64_t>(time, 0, std::numeric_limits<int>::max()));
}

bool isWithdrawal(const QString& status) {
    return status == "canceled"_L1;
}

std::optional<Error> notForPublication(const QString& status, QLatin1StringView field) {
    if (status.isEmpty() || status == "usable"_L1 || isWithdrawal(status))
        return std::nullopt;
    return makeError<import_errors::notForPublication>(field, titleLine(status.left(longestQuote)));
}

std::optional<Error> underEmbargo(const QString& until, QLatin1StringView field) {
    const auto time = newsTime(until);
    if (time && *time <= host_clock::now())
        return std::nullopt;
    return makeError<import_errors::underEmbargo>(field, titleLine(until.left(longestQuote)));
}

void addSymbol(std::vector<CSymbolInfo>& symbols, const CSymbolInfo& symbol) {
    if (!symbol.code.isEmpty() && symbols.size() < mostSymbols &&
        std::find(symbols.begin(), symbols.end(), symbol) == symbols.end())
        symbols.push_back(symbol);
}

}  // namespace wirepane
