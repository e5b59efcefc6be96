// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/service_role.h"

#include <algorithm>

namespace wirepane::sample {

namespace {

// Ordered by id.
constexpr Category table[] = {
    {101, u"Company", u"#1f7fd1"}, {102, u"Earnings", u"#c8452f"},  {103, u"Analysts", u"#8d62c9"},
    {104, u"Deals", u"#b0701a"},   {105, u"Stocks", u"#2a8c55"},    {106, u"Bonds", u"#5a7d95"},
    {107, u"Forex", u"#12868c"},   {108, u"Commods", u"#8a7a2b"},   {109, u"Economy", u"#c23f7f"},
    {110, u"Policy", u"#a0568f"},  {111, u"Transport", u"#5b73c4"}, {112, u"Briefs", u"#7d7d7d"},

    {201, u"公司", u"#1f7fd1"},    {202, u"財報", u"#c8452f"},      {203, u"法人", u"#8d62c9"},
    {204, u"投資", u"#b0701a"},    {205, u"股市", u"#2a8c55"},      {206, u"債券", u"#5a7d95"},
    {207, u"匯市", u"#12868c"},    {208, u"商品", u"#8a7a2b"},      {209, u"經濟", u"#c23f7f"},
    {210, u"政策", u"#a0568f"},    {211, u"航運", u"#5b73c4"},      {212, u"彙整", u"#7d7d7d"},
    {213, u"營收", u"#b5533c"},    {214, u"人事", u"#8d62c9"},      {215, u"股東會", u"#b0701a"},
    {216, u"股利", u"#5f8f2f"},    {217, u"資產", u"#5a7d95"},      {218, u"澄清", u"#c23f7f"},
    {219, u"注意", u"#9a4fb0"},    {220, u"法說", u"#12868c"},      {221, u"背書", u"#8a7a2b"},
    {222, u"上市", u"#1f7fd1"},

    {301, u"港股", u"#2a8c55"},    {302, u"異動", u"#c8452f"},      {303, u"北水", u"#12868c"},
    {304, u"業績", u"#b8562a"},    {305, u"盈警", u"#c23f7f"},      {306, u"回購", u"#8d62c9"},
    {307, u"配股", u"#b0701a"},    {308, u"交易", u"#5a7d95"},      {309, u"新股", u"#5b73c4"},
    {310, u"大行", u"#a0568f"},    {311, u"企業", u"#1f7fd1"},

    {401, u"發行", u"#1f7fd1"},    {402, u"掛牌", u"#2a8c55"},      {403, u"到期", u"#c8452f"},
    {404, u"調整", u"#b0701a"},    {405, u"熱門", u"#c23f7f"},      {406, u"焦點", u"#8d62c9"},
    {407, u"造市", u"#12868c"},    {408, u"增額", u"#5a7d95"},
};

}  // namespace

std::span<const Category> categories() {
    return table;
}

const Category& categoryOf(std::int32_t id) {
    return *std::lower_bound(
        std::begin(table), std::end(table), id,
        [](const Category& category, std::int32_t wanted) { return category.id < wanted; });
}

}  // namespace wirepane::sample
