// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/topic.h"

namespace wirepane::sample {

namespace {

constexpr Mood good = Mood::Good;
constexpr Mood bad = Mood::Bad;

constexpr Phrase buybackHeadlines[] = {
    {u"{co}斥{spent}回購{lots}千股"},
    {u"《回購》{co}最高價{price}購回股份"},
    {u"{co}連續{days}日回購 累計{stake2}%"},
    {u"{co}再出手回購 涉資{spent}"},
};
constexpr Phrase buybackLeads[] = {
    {u"{co}（{code}）公布，{todaydate}在交易所回購{lots}千股，最高價{price}，涉資{spent}。"},
};
constexpr Phrase buybackParagraphs[] = {
    {u"自回購授權通過以來，公司累計購回股份占已發行股本{stake2}%。"},
    {u"購回的股份將予註銷，公司連續第{days}個交易日進行回購。"},
};

constexpr Phrase warningHeadlines[] = {
    {u"《盈警》{co}料{quarter}純利跌{pchg}%", bad},
    {u"《盈喜》{co}料{quarter}純利升{pchg}%", good},
    {u"{co}料{quarter}純利{hkup}約{pchg}%"},
};
constexpr Phrase warningLeads[] = {
    {u"{co}（{code}）發盈利預告，預期{quarter}純利按年{hkup}約{pchg}%。"},
};
constexpr Phrase warningParagraphs[] = {
    {u"集團解釋，主因{product}售價回落，以及投資物業公平值下跌。", bad},
    {u"集團解釋，主因{product}銷量上升，以及融資成本下降。", good},
    {u"有關數字以未經審核管理賬目為基礎，業績定於{meeting}公布，股東及投資者買賣股份時務請審慎行事。"},
};

constexpr Phrase placingHeadlines[] = {
    {u"《配股》{co}每股{placing}配股 集資{deal}"},
    {u"{co}折讓{discount}%配股集資{deal}"},
    {u"{co}先舊後新配股 折讓{discount}%"},
};
constexpr Phrase placingLeads[] = {
    {u"{co}（{code}）宣布以每股{placing}配售新股，較上日收市價{price}折讓{discount}%，集資{deal}。"},
};
constexpr Phrase placingParagraphs[] = {
    {u"配售股份占擴大後股本{placed}%，{broker}為配售代理。"},
    {u"所得款項將用於發展{product}業務及償還銀行貸款。"},
};

constexpr Phrase connectedHeadlines[] = {
    {u"{co}：與母公司訂立{product}供應協議 屬持續關連交易"},
    {u"{co}：須予披露交易 出售{city}物業作價{deal}"},
    {u"{co}：自願公告 與{foreign}訂立合作備忘錄"},
    {u"{co}：主要交易 收購{product}業務{stake}%權益"},
    {u"{co}：內幕消息 公司接獲{foreign}初步收購建議"},
};
constexpr Phrase connectedLeads[] = {
    {u"{co}（{code}）董事會{todaydate}公布多項交易的最新情況，涉及總代價{deal}。"},
};
constexpr Phrase connectedParagraphs[] = {
    {u"有關代價按公平原則磋商後釐定，並參考獨立估值師的評估。"},
    {u"董事（包括獨立非執行董事）認為，交易條款屬一般商業條款，公平合理，符合公司及股東整體利益。"},
    {u"集團主要從事{product}及{product2}業務，{foreign}為獨立第三方。"},
    {u"由於交易須待先決條件達成後方可作實，股東及投資者買賣股份時務請審慎行事。"},
};

constexpr Phrase listingHeadlines[] = {
    {u"《新股》{sector}新股認購反應佳 超購{cover10}倍"},
    {u"{sector}企業遞表擬來港上市 集資{deal}"},
    {u"港股新股市場回暖 {broker}料全年集資增{chg}%", good},
    {u"港股新股市場降溫 {broker}料全年集資減{chg}%", bad},
};
constexpr Phrase listingLeads[] = {
    {u"市場消息指，一家主營{product}的{sector}企業計劃來港上市，集資約{deal}。"},
};
constexpr Phrase listingParagraphs[] = {
    {u"公開發售部分錄得{cover10}倍超額認購，{broker}為保薦人之一。"},
    {u"{broker}預料，今年新股集資額按年{up}{chg}%。"},
    {u"已上市同業包括{co}（{code}）及{peer}（{peercode}）。"},
};

constexpr Phrase openHeadlines[] = {
    {u"《開市》港股{hkiup}{iopen}% {up1}受捧"},
    {u"港股早段{hkiup} {up1}升{up1move}%"},
    {u"《開市》{up1}、{up2}造好 港股早段{hkiup}{iopen}%"},
};
constexpr Phrase openLeads[] = {
    {u"港股{todaydate}{hkiup}開，早段{hkiup}{iopen}%。"},
};
constexpr Phrase openParagraphs[] = {
    {u"{up1}（{up1code}）升{up1move}%，{down1}（{down1code}）則跌{down1move}%。"},
    {u"美元兌人民幣報{cny}，市場留意{country}{indicator}。"},
    {u"{broker}分析員{analyst}表示，大市成交未見配合，短線料上落市格局。"},
};

constexpr Phrase middayHeadlines[] = {
    {u"《半日市》港股{hkiup}{ipct}% 報{level}點"},
    {u"港股半日{hkiup}{ipct}% {up1}升、{down1}跌"},
};
constexpr Phrase middayLeads[] = {
    {u"港股{todaydate}半日{hkiup}{ipct}%，大市指數報{level}點。"},
};

constexpr Phrase closeHeadlines[] = {
    {u"《收市》港股{hkiup}{ipct}% 收報{level}點"},
    {u"港股全日{hkiup}{ipct}% 北水{hkbought}{flow}"},
    {u"{up1}升{up1move}% 港股收報{level}點"},
};
constexpr Phrase closeLeads[] = {
    {u"港股{todaydate}{hkiup}{ipct}%，大市指數收報{level}點，北水{hkbought}{flow}。"},
};

constexpr Phrase flowHeadlines[] = {
    {u"《資金流》北水{hkbought}{flow} 加倉{up1}"},
    {u"北水全日{hkbought}{flow}"},
    {u"北水追捧{up1} 沽出{down1}"},
};
constexpr Phrase flowLeads[] = {
    {u"北水{todaydate}{hkbought}{flow}，大市指數{hkiup}{ipct}%。"},
};
constexpr Phrase flowParagraphs[] = {
    {u"淨買入股份包括{up1}（{up1code}）及{up2}（{up2code}），淨賣出股份包括{down1}（{down1code}）。"},
    {u"{broker}分析員{analyst}表示，資金流向反映投資者對{sector}股看法分歧。"},
};

constexpr Phrase stockHeadlines[] = {
    {u"《異動股》{co}{hkup}{move}% 報{price}"}, {u"{co}股價{hkup}{move}% 暫報{price}"},
    {u"{sector}股造好 {co}升{move}%", good},    {u"{sector}股受壓 {co}跌{move}%", bad},
    {u"{co}破頂 最新報{price}", good},          {u"{co}低見{price} 失守50天線", bad},
};
constexpr Phrase stockLeads[] = {
    {u"{co}（{code}）股價{todaydate}{hkup}{move}%，{clock}報{price}，成交{lots}手。"},
};
constexpr Phrase stockParagraphs[] = {
    {u"同業{peer}（{peercode}）{hkup}{peermove}%，{broker}指{product}板塊短線資金流向轉變。"},
    {u"大市指數{hkiup}{ipct}%，報{level}點。"},
};

constexpr Phrase earningsHeadlines[] = {
    {u"《業績》{co}{quarter}純利{profit} 按年{hkup}{pchg}%"},
    {u"{co}{quarter}收入{rev} 每股盈利{eps}"},
    {u"{co}多賺{pchg}% 毛利率擴至{margin}%", good},
    {u"{co}少賺{pchg}% 毛利率收窄至{margin}%", bad},
};
constexpr Phrase earningsLeads[] = {
    {u"{co}（{code}）公布{quarter}業績，純利{profit}，按年{hkup}{pchg}%，每股盈利{eps}。"},
};
constexpr Phrase earningsParagraphs[] = {
    {u"期內收入{rev}，上年同期{revprev}，按年{hkup}{chg}%；毛利率{margin}%，上年同期{marginprev}%。"},
    {u"主席{chair}表示，{product}需求回穩，集團會繼續投資{site}的生產設施。", good},
    {u"主席{chair}表示，{product}市場競爭激烈，集團會嚴控成本。", bad},
    {u"{broker}分析員{analyst}指業績{hkbeat}預期，維持目標價{target}。"},
};

constexpr Phrase analystHeadlines[] = {
    {u"《大行》{broker}升{co}目標價至{target}", good},
    {u"《大行》{broker}削{co}目標價至{target}", bad},
    {u"{broker}籲增持{co} 看好{product}", good},
    {u"{broker}：{co}毛利率受壓 評級「中性」", bad},
};
constexpr Phrase analystLeads[] = {
    {u"{broker}發表報告，將{co}（{code}）目標價由{targetold}{raised}至{target}，料今年收入按年{hkup}{chg}%"
     u"。"},
};
constexpr Phrase analystParagraphs[] = {
    {u"分析員{analyst}指，新目標價相當於明年預測市盈率{multiple}倍。"},
    {u"該行較看好{peer}（{peercode}），因其{product2}業務占比較高。", bad},
    {u"該行認為{co}的{product2}業務有助提升盈利質素。", good},
    {u"主要風險包括匯率波動及{site}新生產線投產進度。"},
};

constexpr TopicText texts[] = {
    {Topic::Earnings, earningsHeadlines, earningsLeads, earningsParagraphs},
    {Topic::Analyst, analystHeadlines, analystLeads, analystParagraphs},
    {Topic::Buyback, buybackHeadlines, buybackLeads, buybackParagraphs},
    {Topic::ProfitWarning, warningHeadlines, warningLeads, warningParagraphs},
    {Topic::Placing, placingHeadlines, placingLeads, placingParagraphs},
    {Topic::Connected, connectedHeadlines, connectedLeads, connectedParagraphs},
    {Topic::Listing, listingHeadlines, listingLeads, listingParagraphs},
    {Topic::MarketOpen, openHeadlines, openLeads, openParagraphs},
    {Topic::MarketMidday, middayHeadlines, middayLeads, openParagraphs},
    {Topic::MarketClose, closeHeadlines, closeLeads, openParagraphs},
    {Topic::Flows, flowHeadlines, flowLeads, flowParagraphs},
    {Topic::StockMove, stockHeadlines, stockLeads, stockParagraphs},
};

}  // namespace

std::span<const TopicText> chineseHongKongTexts() {
    return texts;
}

}  // namespace wirepane::sample
