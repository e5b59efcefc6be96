// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/topic.h"

namespace wirepane::sample {

namespace {

constexpr Mood good = Mood::Good;
constexpr Mood bad = Mood::Bad;

constexpr Phrase analystHeadlines[] = {
    {u"{broker}升{co}目標價至{target}", good},
    {u"{broker}降{co}目標價至{target}", bad},
    {u"{broker}看好{product}前景 {co}評等調升至買進", good},
    {u"{broker}示警{product}庫存 {co}評等降至持有", bad},
    {u"《法人看盤》{co}訂單價值遭低估 目標價{target}", good},
    {u"《法人看盤》{co}毛利率有壓 目標價{target}", bad},
    {u"{broker}：{co}今年營收估年{up}{chg}%"},
};
constexpr Phrase analystLeads[] = {
    {u"{broker}最新報告將{co}（{code}）目標價由{targetold}{raised}至{target}，並預估今年營收年{up}{chg}%。"},
};
constexpr Phrase analystParagraphs[] = {
    {u"分析師{analyst}指出，{product}交期較上季拉長約三週，顯示供需轉趨吃緊。", good},
    {u"分析師{analyst}指出，{product}交期較上季縮短約三週，顯示客戶備貨轉趨保守。", bad},
    {u"新目標價相當於明年預估每股盈餘的{multiple}倍。"},
    {u"與同業{peer}（{peercode}）相比，{co}在{product2}的布局較早，可望享有較高的評價。", good},
    {u"與同業{peer}（{peercode}）相比，{co}對{product2}的依賴較深，短期波動較大。", bad},
    {u"主要風險包括匯率快速變動，以及{site}新產線的量產時程。"},
};

constexpr Phrase dealHeadlines[] = {
    {u"{co}斥資{deal}取得{foreign}{stake}%股權"},
    {u"{co}入股{peer} 持股{stake}%"},
    {u"{co}處分{site}不動產 交易金額{deal}"},
    {u"{co}攜手{foreign} 合資布局{product}"},
    {u"{co}發行可轉債 募資{deal}"},
    {u"強強聯手？市場傳{co}有意併{peer}"},
};
constexpr Phrase dealLeads[] = {
    {u"{co}（{code}）董事會討論多項投資與資產活化案，單筆最高{deal}，包括取得{foreign}{stake}%股權、入股{"
     u"peer}（{peercode}）、處分{site}不動產，以及發行可轉換公司債。"},
};
constexpr Phrase dealParagraphs[] = {
    {u"{foreign}表示，雙方仍在初步洽談階段。"},
    {u"資金來源為自有資金及{years}年期銀行聯貸，預計{meeting}前完成。"},
    {u"{broker}分析師{analyst}認為，{product}產業的規模優勢比五年前更重要，整併將是長期趨勢。"},
};

constexpr Phrase capexHeadlines[] = {
    {u"{co}砸{capex}擴建{site}廠"},
    {u"{co}董事會通過{capex}資本支出"},
    {u"{co}{site}新廠動土 主攻{product}"},
    {u"{co}擴充{product}產能 估增{share}%"},
    {u"{co}在{site}購地 為{product}擴產鋪路"},
};
constexpr Phrase capexLeads[] = {
    {u"{co}（{code}）董事會通過{capex}資本支出，用於擴充{site}的{product}產線，完工後產能可增加{share}%。"},
};
constexpr Phrase capexParagraphs[] = {
    {u"新產線預計{nextquarter}動工，{months}個月內投產，將創造{workers}個就業機會。"},
    {u"總經理{chief}表示，約{rnd}%的經費將用於節能與水資源回收設備。"},
    {u"財務長{finance}指出，資金由營運現金流及銀行借款支應，折舊對毛利率的影響在半個百分點以內。"},
};

constexpr Phrase stockHeadlines[] = {
    {u"{co}盤中{rise}{move}% 報{price}"},
    {u"《熱門股》{co}爆量{lots}張 股價{rise}{move}%"},
    {u"{co}帶頭衝 {sector}族群走強", good},
    {u"{co}領跌 {sector}族群賣壓湧現", bad},
    {u"{co}創三個月新高 報{price}", good},
    {u"{co}跌破月線 報{price}", bad},
    {u"《盤中焦點》{sector}股{rise} {co}、{peer}同步表態"},
};
constexpr Phrase stockLeads[] = {
    {u"{co}（{code}）股價{todaydate}{rise}{move}%，{clock}報{price}，成交量{lots}張。"},
};
constexpr Phrase stockParagraphs[] = {
    {u"{sector}族群同步表態，{peer}（{peercode}）{rise}{peermove}%。"},
    {u"法人指出，公司對{product}市況釋出樂觀看法，吸引內資買盤進駐。", good},
    {u"法人指出，股價跌破月線後引發停損賣壓，短線以觀望為宜。", bad},
    {u"大盤同一時間{iup}{ipct}%，加權指數報{level}點。"},
};

constexpr Phrase openHeadlines[] = {
    {u"《開盤》台股{iopenhow}{iopen}% {up1}、{up2}走強"},
    {u"台股早盤{iup}勢 {sector}股受關注"},
    {u"{sector}股早盤表態 {up1}漲{up1move}%"},
    {u"台股{iopenhow} {down1}逆勢走弱"},
    {u"《早盤》{up1}漲、{down1}跌 台股{iopenhow}"},
};
constexpr Phrase openLeads[] = {
    {u"台股{todaydate}{iopenhow}{iopen}%，市場反應隔夜國際股市走勢。"},
};
constexpr Phrase openParagraphs[] = {
    {u"個股方面，{up1}（{up1code}）公布財報後上漲{up1move}%，{down1}（{down1code}）則下跌{down1move}%。"},
    {u"匯市方面，美元兌新台幣早盤在{twd}附近。"},
    {u"投資人關注本週將公布的{country}{indicator}。"},
    {u"開盤半小時成交量較前一交易日{thinner}。"},
};

constexpr Phrase middayHeadlines[] = {
    {u"《盤中》台股{iup}{ipct}% 成交值{halfturnover}"},
    {u"台股盤中報{level}點 {up1}領漲"},
    {u"類股輪動 台股盤中{iup}{ipct}%"},
    {u"{sector}股成盤面焦點 加權指數報{level}點"},
};
constexpr Phrase middayLeads[] = {
    {u"台股{todaydate}盤中{iup}{ipct}%，{clock}加權指數報{level}點。"},
};

constexpr Phrase closeHeadlines[] = {
    {u"《收盤》台股{iup}{ipct}% 收{level}點"},    {u"台股收{level}點 成交值{turnover}"},
    {u"台股{iup}{ipct}%作收 {up1}漲、{down1}跌"}, {u"{adv}檔上漲、{dec}檔下跌 台股收{level}點"},
    {u"《盤後》{sector}股表態 台股{iup}{ipct}%"},
};
constexpr Phrase closeLeads[] = {
    {u"台股{todaydate}{iup}{ipct}%，加權指數收{level}點，成交值{turnover}。"},
};
constexpr Phrase closeParagraphs[] = {
    {u"上漲個股中，{up1}（{up1code}）漲{up1move}%、{up2}（{up2code}）漲{up2move}%；{down1}（{down1code}）跌{"
     u"down1move}%、{down2}（{down2code}）跌{down2move}%。"},
    {u"上漲家數{adv}檔，下跌家數{dec}檔。"},
    {u"{broker}分析師{analyst}表示，市場等待{country}{indicator}公布，追價意願不高，短線以區間整理看待。"},
    {u"外資{fbought}{flow}。"},
    {u"新台幣兌美元收在{twd}元，十年期公債殖利率{yld}%。"},
};

constexpr Phrase flowHeadlines[] = {
    {u"《籌碼》外資{fbought}{flow}"},
    {u"外資{fbought}台股{flow} 加碼{up1}"},
    {u"外資調節{down1} 買超{up1}"},
    {u"三大法人動向：外資{fbought}{flow}"},
};
constexpr Phrase flowLeads[] = {
    {u"證交所盤後統計，外資{todaydate}{fbought}台股{flow}。"},
};
constexpr Phrase flowParagraphs[] = {
    {u"外資買超個股包括{up1}（{up1code}）、{up2}（{up2code}），賣超個股包括{down1}（{down1code}）。"},
    {u"投信與自營商多數時間站在外資的對立面，融資餘額小幅減少。"},
    {u"加權指數收{level}點，{iup}{ipct}%。"},
};

constexpr Phrase bondHeadlines[] = {
    {u"《債市》十年期公債殖利率{yld}% {yup}{ybp}個基點"},
    {u"公債標售投標倍數{cover}倍 買盤穩健"},
    {u"殖利率來到{yld}% 壽險買盤進場"},
    {u"債市觀望{centralbank} 十年券報{yld}%"},
};
constexpr Phrase bondLeads[] = {
    {u"十年期公債殖利率{todaydate}{yup}{ybp}個基點，報{yld}%。"},
};
constexpr Phrase bondParagraphs[] = {
    {u"本週稍早的十年期公債標售，投標倍數為{cover}倍。"},
    {u"{broker}交易員表示，殖利率只要來到區間上緣，壽險資金就會進場承接。"},
    {u"隔拆利率變動不大，市場預期{centralbank}下次會議將維持利率{rate}%不變。"},
};

constexpr Phrase forexHeadlines[] = {
    {u"《匯市》美元兌{curname}{fxup}{fxpct}% 報{fx}"},
    {u"美元兌{curname}{fxfirms} 盤中報{fx}"},
    {u"{curname}{fxother} 報{fx}"},
    {u"市場等待{indicator} 美元兌{curname}報{fx}"},
    {u"出口商主導盤勢 美元兌{curname}來到{fx}"},
};
constexpr Phrase forexLeads[] = {
    {u"美元兌{curname}{todaydate}{fxfirms}，{clock}報{fx}，較前一交易日的{fxprev}{fxup}{fxpct}%。"},
};
constexpr Phrase forexParagraphs[] = {
    {u"匯銀人士指出，盤勢以出口商的實質需求為主，部分資金在{country}{indicator}公布前先行調整部位。"},
    {u"交易員表示，目前市場量能不大，稍大的單子就足以帶動匯價。"},
    {u"國際金價每盎司{gold}美元，原油每桶{oil}美元。"},
    {u"{broker}{analyst}預期，本月匯價波動將在目前價位的上下百分之一以內。"},
};

constexpr Phrase commodityHeadlines[] = {
    {u"《商品》{cmd}{rise}{cpct}% 報{cprice}{cunit}"},
    {u"供應疑慮升溫 {cmd}漲至{cprice}{cunit}", good},
    {u"庫存攀升 {cmd}回落至{cprice}{cunit}", bad},
    {u"{cmd}{rise}{cpct}% 市場等待{indicator}"},
};
constexpr Phrase commodityLeads[] = {
    {u"{cmd}{todaydate}{rise}{cpct}%，報{cprice}{cunit}。"},
};
constexpr Phrase commodityParagraphs[] = {
    {u"主要倉庫庫存連續第三週下降，另有兩船貨因天候延誤。", good},
    {u"主要倉庫庫存連續第三週增加，{country}買盤轉趨觀望。", bad},
    {u"{broker}分析師{analyst}表示，實體需求符合季節常態，價格波動主要來自基金部位調整。"},
    {u"美元兌{curname}{fxup}{fxpct}%至{fx}，強勢美元通常不利以美元計價的原物料。"},
};

constexpr TopicText texts[] = {
    {Topic::Analyst, analystHeadlines, analystLeads, analystParagraphs},
    {Topic::Deal, dealHeadlines, dealLeads, dealParagraphs},
    {Topic::Capex, capexHeadlines, capexLeads, capexParagraphs},
    {Topic::StockMove, stockHeadlines, stockLeads, stockParagraphs},
    {Topic::MarketOpen, openHeadlines, openLeads, openParagraphs},
    {Topic::MarketMidday, middayHeadlines, middayLeads, openParagraphs},
    {Topic::MarketClose, closeHeadlines, closeLeads, closeParagraphs},
    {Topic::Flows, flowHeadlines, flowLeads, flowParagraphs},
    {Topic::Bonds, bondHeadlines, bondLeads, bondParagraphs},
    {Topic::Forex, forexHeadlines, forexLeads, forexParagraphs},
    {Topic::Commodity, commodityHeadlines, commodityLeads, commodityParagraphs},
};

}  // namespace

std::span<const TopicText> chineseMarketTexts() {
    return texts;
}

}  // namespace wirepane::sample
