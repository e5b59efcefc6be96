// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/topic.h"

namespace wirepane::sample {

namespace {

constexpr Mood good = Mood::Good;
constexpr Mood bad = Mood::Bad;

constexpr Phrase earningsHeadlines[] = {
    {u"{co}{quarter}稅後淨利{profit} 年{up}{pchg}%"},
    {u"《業績》{co}{quarter}每股盈餘{eps}"},
    {u"{co}獲利報喜 {quarter}毛利率站上{margin}%", good},
    {u"{co}{quarter}獲利年減{pchg}% {product}需求放緩", bad},
    {u"產品組合優化 {co}{quarter}淨利年增{pchg}%", good},
    {u"{co}財報：{quarter}營收{rev} EPS {eps}"},
    {u"{co}毛利率降至{margin}% 法人下修全年獲利", bad},
    {u"{co}法說會：{thisquarter}營收上看{guidehigh}"},
};
constexpr Phrase earningsLeads[] = {
    {u"{sector}廠{co}（{code}）{todaydate}公布{quarter}財報，稅後淨利{profit}，較去年同期{rose}{pchg}%"
     u"，每股盈餘{eps}。"},
    {u"受惠{product}需求放量，{co}（{code}）{quarter}稅後淨利達{profit}，年增{pchg}%，每股盈餘{eps}"
     u"，優於市場預期。",
     good},
    {u"受{product}客戶下單保守影響，{co}（{code}）{quarter}稅後淨利為{profit}，年減{pchg}%，每股盈餘{eps}"
     u"，低於市場預期。",
     bad},
};
constexpr Phrase earningsParagraphs[] = {
    {u"{co}{quarter}合併營收{rev}，較去年同期的{revprev}{rose}{chg}%；毛利率{margin}%，去年同期為{marginprev}"
     u"%。"},
    {u"財務長{finance}在線上法人說明會中表示，{site}據點稼動率維持高檔，{product2}比重已達{share}%"
     u"，為毛利率提供支撐。",
     good},
    {u"財務長{finance}在線上法人說明會中表示，客戶下單仍偏保守，預期{nextquarter}落底，{product2}"
     u"需求則相對穩健。",
     bad},
    {u"展望{thisquarter}，公司預估營收將介於{guidelow}至{guidehigh}"
     u"，毛利率與本季相當，上下差距在一個百分點以內。"},
    {u"研發費用占營收比重{rnd}%，公司強調投入不會因景氣短期波動而縮減。"},
    {u"{broker}分析師{analyst}認為，{co}在{product}領域的市占率持續提升，下半年動能可望優於同業{peer}（{"
     u"peercode}）。",
     good},
    {u"{broker}分析師{analyst}指出，{co}短期評價已反映多數利空，後續觀察客戶下單的回溫速度。", bad},
    {u"{co}去年同期每股盈餘為{epsprev}。"},
};

constexpr Phrase revenueHeadlines[] = {
    {u"{co}{month}營收{rev} 年{up}{chg}%"},
    {u"《營收》{co}{month}營收年{up}{chg}%、月{monup}{mom}%"},
    {u"{co}{month}營收年增{chg}% {product}需求強勁", good},
    {u"{co}{month}營收年減{chg}% {product}需求放緩", bad},
    {u"{co}前{monthcount}月營收{ytd} 年{ytdup}{ytdchg}%"},
    {u"{product}買氣旺 {co}{month}營收衝上{rev}", good},
};
constexpr Phrase revenueLeads[] = {
    {u"{co}（{code}）公布{month}自結合併營收{rev}，月{monup}{mom}%，年{up}{chg}%。"},
    {u"{sector}廠{co}（{code}）{month}合併營收為{rev}，去年同期為{revprev}，年{up}{chg}%。"},
};
constexpr Phrase revenueParagraphs[] = {
    {u"累計今年前{monthcount}月營收{ytd}，較去年同期{ytdrose}{ytdchg}%。"},
    {u"公司表示，{month}營收成長主因{product}銷售增加，加上{product2}新案陸續貢獻。", good},
    {u"公司表示，{month}營收下滑主因{product}客戶遞延訂單，工作天數亦較少。", bad},
    {u"法人預估，{nextmonth}營收可望與{month}持平，{nextquarter}進入傳統備貨期。"},
};

constexpr Phrase orderHeadlines[] = {
    {u"{co}拿下{foreign}{product}大單 總額{deal}"},
    {u"{co}{product}打進{foreign}供應鏈"},
    {u"{co}接單暢旺 能見度看到{nextquarter}"},
    {u"{co}與{foreign}簽{years}年供貨合約"},
    {u"急單湧入 {co}{site}廠加班趕工"},
    {u"{foreign}釋單 {co}、{peer}搶食{product}商機"},
};
constexpr Phrase orderLeads[] = {
    {u"{co}（{code}）取得{foreign}{product}訂單，合約期間{years}年，總金額約{deal}，由{site}廠負責供貨。"},
    {u"市場傳出，{foreign}擴大{product}委外，{co}（{code}）成為主要供應商之一；公司證實已簽訂{years}"
     u"年供貨合約，金額約{deal}。"},
};
constexpr Phrase orderParagraphs[] = {
    {u"總經理{chief}表示，客戶看重的是交期與在地服務，{site}"
     u"廠距離客戶組裝據點不到兩小時車程，是此次勝出的關鍵。"},
    {u"該筆訂單約占{co}去年營收的{ordershare}%，{nextquarter}起全量出貨，並附有兩次各一年的續約選擇權。"},
    {u"同業{peer}（{peercode}）也參與此次競標，業界預期{foreign}將採雙供應商策略。"},
    {u"因應訂單需求，{co}未來一年將在{site}增聘{workers}人，並汰換部分舊設備。"},
    {u"{broker}估計，此合約毛利率略高於公司平均的{margin}%，對獲利有正面助益。"},
};

constexpr Phrase dividendHeadlines[] = {
    {u"{co}擬配息{cash} 殖利率{yield}%"},     {u"《股利》{co}每股配發現金{cash}"},
    {u"{co}股利優於去年 每股配{cash}", good}, {u"{co}股利縮水 每股配{cash}", bad},
    {u"{co}{exdate}除息 每股{cash}"},
};
constexpr Phrase dividendLeads[] = {
    {u"{co}（{code}）董事會決議，擬配發每股現金股利{cash}，去年為{cashprev}，以前一日收盤價{price}"
     u"計算，殖利率{yield}%。"},
};
constexpr Phrase dividendParagraphs[] = {
    {u"除息交易日訂為{exdate}，股利預計{paydate}發放，此案將提報{meeting}股東常會。"},
    {u"此次盈餘發放率為{payout}%，財務長{finance}表示，公司在保留擴產所需資金後，將其餘回饋股東。"},
    {u"此次不配發股票股利。"},
};

constexpr Phrase boardHeadlines[] = {
    {u"{co}人事異動 {newcomer}接任{role}"},
    {u"{co}{role}{leaver}請辭 由{newcomer}接棒"},
    {u"《人事》{co}新任{role}{newcomer} {effective}上任"},
    {u"{co}董事會通過 {newcomer}出任{role}"},
};
constexpr Phrase boardLeads[] = {
    {u"{co}（{code}）{todaydate}董事會通過，由{newcomer}接任{role}，{effective}生效，原任{leaver}"
     u"因個人生涯規劃辭任。"},
};
constexpr Phrase boardParagraphs[] = {
    {u"{newcomer}在{co}服務{years}年，近年負責{site}的{product}事業，熟悉客戶與製程。"},
    {u"{leaver}將轉任顧問至{nextquarter}底，協助業務交接。"},
    {u"董事長{chair}感謝{leaver}多年來的貢獻，並強調營運方針與全年財務目標不變。"},
};

constexpr Phrase incidentHeadlines[] = {
    {u"{co}{site}廠{incident} 部分產線停工"},         {u"{co}{site}廠{incident} 估損失{loss}"},
    {u"{co}：{site}廠{incident}已獲控制 無人員傷亡"}, {u"{co}{site}廠部分復工 {days}天內恢復正常"},
    {u"{site}廠{incident} {co}：對出貨影響有限"},
};
constexpr Phrase incidentLeads[] = {
    {u"{co}（{code}）{site}廠{todaydate}清晨發生{incident}，{product}部分產線暫停生產，公司表示無人員傷亡。"},
};
constexpr Phrase incidentParagraphs[] = {
    {u"公司初估損失約{loss}，已投保相關產險，預計{days}天內恢復正常生產。"},
    {u"受影響產線約占{product}產出的{share}%，客戶訂單先以庫存及其他廠區支應。"},
    {u"廠長{leaver}表示，安全系統運作正常，員工在數分鐘內即完成疏散；勞檢單位下午進廠檢查。"},
    {u"同業{peer}（{peercode}）表示，目前尚未接獲轉單。"},
};

constexpr Phrase productHeadlines[] = {
    {u"{co}發表新一代{product} {nextquarter}量產"},
    {u"{co}{product}新製程省電{saving}% 鎖定{foreign}"},
    {u"{co}卡位{product2} 明年營收占比上看{share}%"},
    {u"{co}{site}研發中心啟用 聚焦{product}"},
    {u"{co}{product}送樣{foreign} 最快{nextquarter}出貨"},
};
constexpr Phrase productLeads[] = {
    {u"{co}（{code}）發表由{site}研發中心開發的新一代{product}，生產耗電較前代減少{saving}%，預計{"
     u"nextquarter}量產。"},
    {u"{sector}廠{co}（{code}）總經理{chief}表示，由{site}研發中心開發的新一代{product}已送樣{foreign}"
     u"等三家客戶，{nextquarter}可望開始出貨。"},
};
constexpr Phrase productParagraphs[] = {
    {u"{chief}指出，客戶要的不是更多功能，而是更低的使用成本；新產品由{workers}名工程師歷時兩年開發完成。"},
    {u"公司預期，明年{product}與{product2}合計占營收比重可達{share}%。"},
    {u"{broker}預估，新產品單價約較舊款高一成，有助於拉升毛利率。"},
};

constexpr Phrase legalHeadlines[] = {
    {u"{co}控{foreign}侵害{product}專利"},         {u"{foreign}提告 {co}：對營運無重大影響"},
    {u"{co}與{foreign}專利訴訟達成和解", good},    {u"法院判{co}應賠{foreign}{loss} 公司將上訴", bad},
    {u"{co}專利戰勝訴 {foreign}求償遭駁回", good},
};
constexpr Phrase legalLeads[] = {
    {u"{co}（{code}）與{foreign}的{product}專利爭訟有新進展，雙方{todaydate}分別發布聲明；{co}"
     u"強調，對接單與財務並無重大影響。"},
};
constexpr Phrase legalParagraphs[] = {
    {u"此案涉及{count}項專利，{foreign}原先求償{loss}。"},
    {u"法務長{newcomer}表示，公司尊重他人智慧財產權，也會積極捍衛自身權益。"},
    {u"{broker}分析師{analyst}認為，類似案件多以授權收場，相較{co}去年營收{annual}，影響金額有限。"},
    {u"下次開庭日期為{meeting}。"},
};

constexpr TopicText texts[] = {
    {Topic::Earnings, earningsHeadlines, earningsLeads, earningsParagraphs},
    {Topic::MonthlyRevenue, revenueHeadlines, revenueLeads, revenueParagraphs},
    {Topic::Orders, orderHeadlines, orderLeads, orderParagraphs},
    {Topic::Dividend, dividendHeadlines, dividendLeads, dividendParagraphs},
    {Topic::Board, boardHeadlines, boardLeads, boardParagraphs},
    {Topic::Incident, incidentHeadlines, incidentLeads, incidentParagraphs},
    {Topic::Product, productHeadlines, productLeads, productParagraphs},
    {Topic::Legal, legalHeadlines, legalLeads, legalParagraphs},
};

constexpr Phrase background[] = {
    {u"{cofull}主要產品為{product}與{product2}，員工約{staff}人，生產基地以{site}為主，董事長為{chair}。"},
    {u"{co}前一交易日收盤價為{close}，市值約{cap}。"},
    {u"目前共有{count}位分析師追蹤{co}，過半建議買進，平均目標價{meantarget}。"},
    {u"{co}去年全年營收{annual}，淨利率{netmargin}%。"},
    {u"{sector}同業包括{peer}（{peercode}）等。"},
};

}  // namespace

std::span<const TopicText> chineseCompanyTexts() {
    return texts;
}

std::span<const Phrase> chineseBackgroundTexts() {
    return background;
}

}  // namespace wirepane::sample
