// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/markets.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>

namespace wirepane {

namespace {

struct Exchange {
    const char* code;
    unsigned char market;
};

constexpr std::array<Exchange, 15> exchanges{{
    {"XTAI", stockExchangeService},
    {"TWSE", stockExchangeService},
    {"TAI", stockExchangeService},
    {"ROCO", emergingBoardService},
    {"TPEX", emergingBoardService},
    {"XNAS", usMarket},
    {"XNGS", usMarket},
    {"XNCM", usMarket},
    {"XNMS", usMarket},
    {"XNYS", usMarket},
    {"XASE", usMarket},
    {"ARCX", usMarket},
    {"BATS", usMarket},
    {"NYSE", usMarket},
    {"NASDAQ", usMarket},
}};

}  // namespace

unsigned char marketOfExchange(QStringView exchange) {
    const QStringView code = exchange.trimmed();
    const auto* found = std::find_if(exchanges.begin(), exchanges.end(), [&](const Exchange& known) {
        return code.compare(QLatin1StringView(known.code), Qt::CaseInsensitive) == 0;
    });
    return found == exchanges.end() ? unknownMarket : found->market;
}

}  // namespace wirepane
