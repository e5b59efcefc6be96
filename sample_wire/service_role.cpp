// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/service_role.h"

namespace wirepane::sample {

namespace {

constexpr int at(int hour, int minute) {
    return hour * 60 + minute;
}

constexpr int allDay = 24 * 60;

// Companies report by day.
constexpr int dayBreak = at(6, 30);
constexpr int nightFall = at(22, 30);

constexpr RhythmPoint englishRhythm[] = {
    {0, 14},          {at(3, 0), 8},    {at(6, 0), 6},    {at(7, 30), 22},  {at(8, 55), 40},
    {at(9, 0), 95},   {at(9, 25), 60},  {at(10, 0), 34},  {at(12, 0), 22},  {at(13, 25), 40},
    {at(13, 30), 90}, {at(14, 10), 55}, {at(15, 0), 60},  {at(16, 0), 38},  {at(18, 0), 26},
    {at(20, 30), 40}, {at(21, 30), 52}, {at(22, 30), 26}, {at(23, 59), 15},
};
constexpr RhythmPoint chineseRhythm[] = {
    {0, 2},           {at(5, 30), 2},   {at(7, 0), 24},    {at(8, 30), 48},
    {at(8, 58), 50},  {at(9, 0), 130},  {at(9, 20), 90},   {at(10, 0), 48},
    {at(12, 0), 30},  {at(13, 20), 52}, {at(13, 30), 120}, {at(14, 20), 84},
    {at(15, 30), 62}, {at(17, 30), 50}, {at(19, 0), 24},   {at(21, 30), 12},
    {at(23, 59), 3},
};
constexpr RhythmPoint noticeRhythm[] = {
    {0, 1},          {at(6, 30), 1},   {at(7, 0), 10},   {at(8, 40), 16},  {at(9, 10), 7},
    {at(12, 30), 9}, {at(13, 35), 36}, {at(14, 30), 90}, {at(16, 0), 110}, {at(17, 10), 120},
    {at(18, 0), 84}, {at(20, 0), 26},  {at(22, 0), 8},   {at(23, 59), 1},
};
constexpr RhythmPoint hongKongRhythm[] = {
    {0, 2},           {at(6, 30), 3},   {at(8, 30), 46}, {at(9, 28), 52},  {at(9, 30), 130},
    {at(10, 0), 70},  {at(11, 50), 40}, {at(12, 0), 84}, {at(12, 40), 26}, {at(13, 0), 46},
    {at(15, 50), 48}, {at(16, 5), 120}, {at(17, 0), 92}, {at(18, 30), 70}, {at(20, 30), 30},
    {at(22, 30), 12}, {at(23, 59), 3},
};
constexpr RhythmPoint warrantRhythm[] = {
    {0, 0},          {at(7, 20), 0},  {at(8, 0), 40},   {at(8, 59), 30},  {at(9, 5), 90},
    {at(10, 0), 50}, {at(13, 0), 40}, {at(13, 35), 80}, {at(15, 0), 110}, {at(17, 0), 80},
    {at(19, 0), 10}, {at(20, 0), 0},  {at(23, 59), 0},
};

constexpr Beat englishBeats[] = {
    {Topic::Earnings, 102, 100, dayBreak, nightFall},
    {Topic::MonthlyRevenue, 102, 80, dayBreak, nightFall},
    {Topic::Orders, 101, 80},
    {Topic::Dividend, 101, 40, dayBreak, nightFall},
    {Topic::Board, 101, 50, dayBreak, nightFall},
    {Topic::Incident, 101, 24, dayBreak, nightFall},
    {Topic::Product, 101, 60},
    {Topic::Legal, 101, 30},
    {Topic::Analyst, 103, 90, dayBreak, nightFall},
    {Topic::Deal, 104, 60},
    {Topic::Capex, 104, 50, dayBreak, nightFall},
    {Topic::StockMove, 105, 110, at(9, 5), at(13, 29), true},
    {Topic::MarketOpen, 105, 90, at(9, 1), at(9, 40), true},
    {Topic::MarketMidday, 105, 30, at(10, 30), at(13, 0), true},
    {Topic::MarketClose, 105, 100, at(13, 31), at(14, 30), true},
    {Topic::Flows, 105, 60, at(14, 40), at(18, 0), true},
    {Topic::Bonds, 106, 36, at(9, 0), at(17, 0), true},
    {Topic::Forex, 107, 80, 0, allDay, true},
    {Topic::Commodity, 108, 80, 0, allDay, true},
    {Topic::Macro, 109, 90},
    {Topic::CentralBank, 109, 44},
    {Topic::Regulation, 110, 44},
    {Topic::Weather, 109, 16},
    {Topic::Transport, 111, 40},
    {Topic::Labour, 110, 24},
    {Topic::Digest, 112, 36, dayBreak, nightFall},
};

constexpr Beat chineseBeats[] = {
    {Topic::Earnings, 202, 100, dayBreak, nightFall},
    {Topic::MonthlyRevenue, 213, 100, dayBreak, nightFall},
    {Topic::Orders, 201, 80},
    {Topic::Dividend, 216, 50, dayBreak, nightFall},
    {Topic::Board, 201, 30, dayBreak, nightFall},
    {Topic::Incident, 201, 20, dayBreak, nightFall},
    {Topic::Product, 201, 60},
    {Topic::Legal, 201, 24},
    {Topic::Analyst, 203, 90, dayBreak, nightFall},
    {Topic::Deal, 204, 50},
    {Topic::Capex, 204, 56, dayBreak, nightFall},
    {Topic::StockMove, 205, 140, at(9, 5), at(13, 29), true},
    {Topic::MarketOpen, 205, 90, at(9, 1), at(9, 40), true},
    {Topic::MarketMidday, 205, 30, at(10, 30), at(13, 0), true},
    {Topic::MarketClose, 205, 90, at(13, 31), at(14, 30), true},
    {Topic::Flows, 203, 90, at(14, 40), at(18, 0), true},
    {Topic::Bonds, 206, 26, at(9, 0), at(17, 0), true},
    {Topic::Forex, 207, 50, at(9, 0), allDay, true},
    {Topic::Commodity, 208, 44, 0, allDay, true},
    {Topic::Macro, 209, 60},
    {Topic::CentralBank, 209, 30},
    {Topic::Regulation, 210, 36},
    {Topic::Weather, 209, 14},
    {Topic::Transport, 211, 36},
    {Topic::Labour, 210, 20},
    {Topic::Digest, 212, 40, dayBreak, nightFall},
};

constexpr Beat noticeBeats[] = {
    {Topic::NoticeRevenue, 213, 90},   {Topic::NoticeBoard, 214, 70},    {Topic::NoticeMeeting, 215, 50},
    {Topic::NoticeDividend, 216, 60},  {Topic::NoticeAsset, 217, 60},    {Topic::NoticeClarify, 218, 60},
    {Topic::NoticeAttention, 219, 36}, {Topic::NoticeBriefing, 220, 70}, {Topic::NoticeGuarantee, 221, 40},
};

constexpr Beat emergingBeats[] = {
    {Topic::NoticeRevenue, 213, 80},   {Topic::NoticeBoard, 214, 60},    {Topic::NoticeMeeting, 215, 40},
    {Topic::NoticeDividend, 216, 30},  {Topic::NoticeAsset, 217, 40},    {Topic::NoticeClarify, 218, 30},
    {Topic::NoticeAttention, 219, 30}, {Topic::NoticeBriefing, 220, 50}, {Topic::NoticeEmerging, 222, 80},
};

constexpr Beat hongKongBeats[] = {
    {Topic::MarketOpen, 301, 90, at(9, 31), at(10, 10), true},
    {Topic::MarketMidday, 301, 90, at(11, 55), at(12, 40), true},
    {Topic::MarketClose, 301, 90, at(16, 1), at(16, 50), true},
    {Topic::StockMove, 302, 140, at(9, 32), at(15, 59), true, 250},
    {Topic::Flows, 303, 70, at(16, 10), at(18, 0), true},
    {Topic::Earnings, 304, 90, 0, allDay, false, 350},
    {Topic::ProfitWarning, 305, 60, 0, allDay, false, 350},
    {Topic::Buyback, 306, 70, at(16, 10), at(22, 0), true, 350},
    {Topic::Placing, 307, 40, 0, allDay, false, 350},
    {Topic::Connected, 308, 90},
    {Topic::Listing, 309, 40},
    {Topic::Analyst, 310, 90, 0, allDay, false, 250},
    {Topic::Product, 311, 40, 0, allDay, false, 350},
    {Topic::Orders, 311, 40, 0, allDay, false, 350},
};

constexpr Beat warrantBeats[] = {
    {Topic::WarrantIssue, 401, 60},
    {Topic::WarrantIssue, 402, 40},
    {Topic::WarrantExpiry, 403, 60},
    {Topic::WarrantAdjust, 404, 50},
    {Topic::WarrantActive, 405, 60, at(9, 10), at(15, 30), true},
    {Topic::WarrantActive, 406, 60, at(9, 10), at(15, 30), true},
    {Topic::WarrantQuote, 407, 40},
    {Topic::WarrantSoldOut, 408, 40},
};

constexpr ServiceRole englishWire{Language::English, stockExchangeService, 0, 0, 30, 260,
                                  englishBeats,      englishRhythm};
constexpr ServiceRole chineseWire{Language::Chinese, stockExchangeService, emergingBoardService, 120, 30, 180,
                                  chineseBeats,      chineseRhythm};
constexpr ServiceRole notices{Language::Chinese, stockExchangeService, 0, 0, 14, 20,
                              noticeBeats,       noticeRhythm};
constexpr ServiceRole emergingNotices{Language::Chinese, emergingBoardService, 0, 0, 6, 20,
                                      emergingBeats,     noticeRhythm};
constexpr ServiceRole hongKongWire{Language::Chinese, hongKongService, 0, 0, 14, 90,
                                   hongKongBeats,     hongKongRhythm};
constexpr ServiceRole warrantWire{Language::Chinese, stockExchangeService, 0, 0, 8, 0,
                                  warrantBeats,      warrantRhythm};

}  // namespace

const ServiceRole& roleOf(unsigned char service) {
    switch (service) {
        case stockExchangeService:
            return notices;
        case emergingBoardService:
            return emergingNotices;
        case hongKongService:
            return hongKongWire;
        case warrantService:
            return warrantWire;
        default:
            return service % 2 == 1 ? englishWire : chineseWire;
    }
}

bool isOrdinaryWire(unsigned char service) {
    const ServiceRole* role = &roleOf(service);
    return role == &englishWire || role == &chineseWire;
}

}  // namespace wirepane::sample
