// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>

#include <span>

namespace wirepane::sample {

enum class Language : unsigned char { English, Chinese };

// What a piece of sample news is about. Each topic is one kind of event: every headline of a topic words the
// same facts, so that any of its leads and paragraphs can follow.
enum class Topic : unsigned char {
    // a company
    Earnings,
    MonthlyRevenue,
    Orders,
    Dividend,
    Board,
    Incident,
    Product,
    Legal,
    Analyst,
    Deal,
    Capex,
    StockMove,
    // the markets
    MarketOpen,
    MarketMidday,
    MarketClose,
    Flows,
    Bonds,
    Forex,
    Commodity,
    // the economy
    Macro,
    CentralBank,
    Regulation,
    Weather,
    Transport,
    Labour,
    Digest,
    // exchange announcements
    NoticeRevenue,
    NoticeBoard,
    NoticeMeeting,
    NoticeDividend,
    NoticeAsset,
    NoticeClarify,
    NoticeAttention,
    NoticeBriefing,
    NoticeGuarantee,
    NoticeEmerging,
    // Hong Kong
    Buyback,
    ProfitWarning,
    Placing,
    Connected,
    Listing,
    // warrants
    WarrantIssue,
    WarrantExpiry,
    WarrantAdjust,
    WarrantActive,
    WarrantQuote,
    WarrantSoldOut,
};
inline constexpr int topicCount = static_cast<int>(Topic::WarrantSoldOut) + 1;

// The event is about one company, which every text of it names.
constexpr bool isAboutCompany(Topic topic) {
    return topic <= Topic::StockMove || (topic >= Topic::NoticeRevenue && topic != Topic::Listing);
}
// The event is about things that are made in a plant.
constexpr bool needsMaker(Topic topic) {
    return topic == Topic::Orders || topic == Topic::Incident || topic == Topic::Product ||
           topic == Topic::Legal || topic == Topic::Analyst || topic == Topic::Capex;
}
// The event is an announcement: a form of which every item is sent.
constexpr bool isNotice(Topic topic) {
    return topic >= Topic::NoticeRevenue && topic <= Topic::NoticeEmerging;
}
constexpr bool isAboutWarrant(Topic topic) {
    return topic >= Topic::WarrantIssue;
}

// Which way the figures of the event must point for a phrase to fit.
enum class Mood : unsigned char { Any, Good, Bad };

// By the place of each in Topic, as the data files call them.
std::span<const QLatin1StringView> topicNames();

}  // namespace wirepane::sample
