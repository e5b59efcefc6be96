// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/topic.h"

namespace wirepane::sample {

namespace {

constexpr Phrase issueHeadlines[] = {
    {u"{broker}發行{warrant}（{wcode}）標的{co}"},
    {u"新權證掛牌：{warrant}（{wcode}）履約價{strike}"},
    {u"{broker}公告{warrant}發行條件 存續期間{months}個月"},
    {u"{warrant}（{wcode}）{effective}上市買賣"},
    {u"{co}再添新權證 {warrant}發行{wunits}千單位"},
};
constexpr Phrase issueLeads[] = {
    {u"{broker}公告發行{warrant}（{wcode}），標的證券為{co}（{code}），發行總量{wunits}千單位。"},
};
constexpr Phrase issueParagraphs[] = {
    {u"履約價格：{strike}；標的前一日收盤價：{price}；行使比例：1比{ratio}。"},
    {u"發行價格：每單位{wprice}；存續期間：{months}個月；上市日：{effective}。"},
    {u"流動量提供者為{broker}，採主動報價方式。"},
};

constexpr Phrase expiryHeadlines[] = {
    {u"{warrant}（{wcode}）{effective}到期 最後交易日將屆"},
    {u"{warrant}到期通知：標的{co}現價{price} 履約價{strike}"},
    {u"{broker}：{warrant}（{wcode}）將終止上市"},
    {u"{warrant}存續期間屆滿 採現金結算"},
};
constexpr Phrase expiryLeads[] = {
    {u"{warrant}（{wcode}）將於{effective}到期，到期前兩個營業日為最後交易日，標的證券為{co}（{code}）。"},
};
constexpr Phrase expiryParagraphs[] = {
    {u"履約價格為{strike}，{co}前一日收盤價為{price}，到期時具履約價值者由{broker}自動以現金結算。"},
    {u"結算價以標的證券到期日收盤前六十分鐘內成交價格簡單算術平均價計算。"},
};

constexpr Phrase adjustHeadlines[] = {
    {u"{co}除息 {warrant}（{wcode}）調整履約價至{strike}"},
    {u"{warrant}履約價由{strikeold}調整為{strike}"},
    {u"{broker}公告{warrant}行使比例調整為1比{ratio}"},
    {u"{warrant}（{wcode}）契約調整 {exdate}生效"},
};
constexpr Phrase adjustLeads[] = {
    {u"因標的證券{co}（{code}）配發現金股利，{broker}公告{warrant}（{wcode}）履約價格由{strikeold}調整為{"
     u"strike}，{exdate}生效。"},
};
constexpr Phrase adjustParagraphs[] = {
    {u"行使比例同時調整為1比{ratio}，到期日不變。"},
    {u"{co}前一日收盤價為{price}。調整依發行條款所訂公式計算，不影響持有人權益。"},
};

constexpr Phrase activeHeadlines[] = {
    {u"《權證熱門榜》{warrant}成交{lots}張居前"},    {u"{co}走勢活潑 認購權證{warrant}成交放大"},
    {u"權證買盤點火 {co}系列{warrant}成交{lots}張"}, {u"{warrant}（{wcode}）成交量躍居前五"},
    {u"《權證焦點》看好{co} 資金鎖定{warrant}"},
};
constexpr Phrase activeLeads[] = {
    {u"{co}（{code}）{todaydate}股價{rise}{move}%，連結該標的的{warrant}（{wcode}）成交{lots}"
     u"張，列入當日熱門權證。"},
};
constexpr Phrase activeParagraphs[] = {
    {u"{warrant}由{broker}發行，履約價{strike}，目前隱含波動率約{iv}%，實質槓桿{leverage}倍。"},
    {u"權證交易人士提醒，應留意剩餘天數與買賣價差，槓桿商品盈虧波動較大，不宜重壓。"},
};

constexpr Phrase quoteHeadlines[] = {
    {u"{broker}：{warrant}（{wcode}）暫停提供報價"},
    {u"{warrant}恢復報價 委買委賣價差縮小"},
    {u"{broker}調降{warrant}隱含波動率至{iv}%"},
    {u"{broker}說明{warrant}（{wcode}）造市情形"},
};
constexpr Phrase quoteLeads[] = {
    {u"{broker}就{warrant}（{wcode}）的造市情形提出說明，委買隱含波動率約{iv}%，標的證券為{co}（{code}）。"},
};
constexpr Phrase quoteParagraphs[] = {
    {u"發行人表示，標的流動性不足或漲跌停時，依規定得不提供報價，情形排除後即恢復。"},
    {u"該權證履約價{strike}，標的最近收盤價{price}，實質槓桿{leverage}倍。"},
};

constexpr Phrase soldHeadlines[] = {
    {u"{warrant}（{wcode}）流通在外比例達{soldshare}%"},
    {u"{warrant}逾八成售出 {broker}申請增額發行{wunits}千單位"},
    {u"{broker}增額發行{warrant} 總量{wunits}千單位"},
    {u"{warrant}（{wcode}）籌碼偏高 投資人宜留意"},
};
constexpr Phrase soldLeads[] = {
    {u"連結{co}（{code}）的{warrant}（{wcode}）流通在外比例已達{soldshare}%，{broker}將增額發行{wunits}"
     u"千單位，以維持造市品質。"},
};
constexpr Phrase soldParagraphs[] = {
    {u"標的證券最近收盤價{price}，該權證履約價{strike}，行使比例1比{ratio}。"},
    {u"流通在外比例偏高時，權證價格可能偏離合理價值，增額完成前委賣報價數量可能受限。"},
};

constexpr TopicText texts[] = {
    {Topic::WarrantIssue, issueHeadlines, issueLeads, issueParagraphs},
    {Topic::WarrantExpiry, expiryHeadlines, expiryLeads, expiryParagraphs},
    {Topic::WarrantAdjust, adjustHeadlines, adjustLeads, adjustParagraphs},
    {Topic::WarrantActive, activeHeadlines, activeLeads, activeParagraphs},
    {Topic::WarrantQuote, quoteHeadlines, quoteLeads, quoteParagraphs},
    {Topic::WarrantSoldOut, soldHeadlines, soldLeads, soldParagraphs},
};

}  // namespace

std::span<const TopicText> chineseWarrantTexts() {
    return texts;
}

}  // namespace wirepane::sample
