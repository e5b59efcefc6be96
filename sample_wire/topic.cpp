// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/topic.h"

using namespace Qt::StringLiterals;

namespace wirepane::sample {

std::span<const QLatin1StringView> topicNames() {
    static constexpr QLatin1StringView names[topicCount] = {
        "earnings"_L1,
        "monthly_revenue"_L1,
        "orders"_L1,
        "dividend"_L1,
        "board"_L1,
        "incident"_L1,
        "product"_L1,
        "legal"_L1,
        "analyst"_L1,
        "deal"_L1,
        "capex"_L1,
        "stock_move"_L1,
        "market_open"_L1,
        "market_midday"_L1,
        "market_close"_L1,
        "flows"_L1,
        "bonds"_L1,
        "forex"_L1,
        "commodity"_L1,
        "macro"_L1,
        "central_bank"_L1,
        "regulation"_L1,
        "weather"_L1,
        "transport"_L1,
        "labour"_L1,
        "digest"_L1,
        "notice_revenue"_L1,
        "notice_board"_L1,
        "notice_meeting"_L1,
        "notice_dividend"_L1,
        "notice_asset"_L1,
        "notice_clarify"_L1,
        "notice_attention"_L1,
        "notice_briefing"_L1,
        "notice_guarantee"_L1,
        "notice_emerging"_L1,
        "buyback"_L1,
        "profit_warning"_L1,
        "placing"_L1,
        "connected"_L1,
        "listing"_L1,
        "warrant_issue"_L1,
        "warrant_expiry"_L1,
        "warrant_adjust"_L1,
        "warrant_active"_L1,
        "warrant_quote"_L1,
        "warrant_sold_out"_L1,
    };
    return names;
}

}  // namespace wirepane::sample
