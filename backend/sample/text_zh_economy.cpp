// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/topic.h"

namespace wirepane::sample {

namespace {

constexpr Mood good = Mood::Good;
constexpr Mood bad = Mood::Bad;

constexpr Phrase macroHeadlines[] = {
    {u"《數據》{country}{month}{indicator}{value} 前值{prior}"},
    {u"{country}{indicator}升至{value} 優於預期", good},
    {u"{country}{indicator}降至{value} 不如預期", bad},
    {u"快訊：{country}{month}{indicator}{value} 市場預估{forecast}"},
};
constexpr Phrase macroLeads[] = {
    {u"{country}統計機關{todaydate}公布，{month}{indicator}為{value}，前月為{prior}，市場預估為{forecast}。"},
};
constexpr Phrase macroParagraphs[] = {
    {u"細項顯示升幅廣泛，多數地區同步走高。", good},
    {u"細項顯示下滑主要來自波動較大的項目，其餘大致持穩。", bad},
    {u"{broker}經濟學家{analyst}表示，單月數據不足以構成趨勢，但方向與企業訪談結果一致。"},
    {u"{centralbank}下次會議訂於{meeting}，目前政策利率為{rate}%。"},
};

constexpr Phrase bankHeadlines[] = {
    {u"{centralbank}利率維持{rate}%不變"},
    {u"{centralbank}總裁：利率調整不急於一時"},
    {u"{centralbank}按兵不動 關注{indicator}"},
    {u"調查：{majority}%經濟學家預期{centralbank}按兵不動"},
    {u"{centralbank}會議紀錄：對下一步時點看法分歧"},
};
constexpr Phrase bankLeads[] = {
    {u"{centralbank}{todaydate}發布聲明指出，目前{rate}%的政策利率水準適當，措辭與上次會議相同。"},
};
constexpr Phrase bankParagraphs[] = {
    {u"聲明指出，物價漲幅接近目標，{lastquarter}以來經濟成長大致符合潛在水準。"},
    {u"{broker}分析師{analyst}認為聲明中性，無論升息或降息門檻都高。"},
    {u"針對{count}位經濟學家的調查顯示，{majority}%預期年底前利率不變。"},
    {u"聲明公布後，美元兌{curname}報{fx}。"},
};

constexpr Phrase regulationHeadlines[] = {
    {u"{breach} {broker}遭主管機關罰{fine}"},     {u"主管機關擬強化{rulearea}規範"},
    {u"{rulearea}草案預告{days}天 各界可提意見"}, {u"{rulearea}新制{effective}上路"},
    {u"主管機關啟動{rulearea}專案檢查"},
};
constexpr Phrase regulationLeads[] = {
    {u"金融主管機關{todaydate}說明{rulearea}新規範，預計{effective}施行；另{broker}因{breach}，遭罰{fine}。"},
};
constexpr Phrase regulationParagraphs[] = {
    {u"草案預告期{days}天，業者有六個月的系統調整期。"},
    {u"官員在記者會上表示，新規範旨在補足前次檢查發現的缺口。"},
    {u"{broker}表示，相關缺失在檢查結束前即已改善，客戶權益未受影響。"},
    {u"業者估計，中型券商每年增加的法遵成本在{cost}以內。"},
};

constexpr Phrase weatherHeadlines[] = {
    {u"強風特報 {city}港暫停作業 股市照常交易"},    {u"豪雨襲{city} 園區廠商：生產正常"},
    {u"{city}供水水庫蓄水率{share}% 產業用水無虞"}, {u"風雨過後 {city}工業區陸續復電"},
    {u"高溫推升用電 {city}備轉容量率{rnd}%"},
};
constexpr Phrase weatherLeads[] = {
    {u"{city}市政府{todaydate}表示，天候不佳，但轄內工業區生產大致正常。"},
};
constexpr Phrase weatherParagraphs[] = {
    {u"氣象單位預期，天氣將在{days}天內好轉，學校與機關照常上班上課。"},
    {u"供應當地的水庫蓄水率為{share}%，可支應產業用水至下一個雨季。"},
    {u"電力公司表示，尖峰備轉容量率為{rnd}%。"},
    {u"在當地設廠的{co}（{code}）表示，{product}出貨如期進行。"},
};

constexpr Phrase transportHeadlines[] = {
    {u"亞歐線貨櫃運價週{up}{rnd}%"},
    {u"{city}港{month}貨櫃量年{up}{rnd}%"},
    {u"{city}機場{month}貨運量年{up}{rnd}%"},
    {u"散裝運價指數{rise}{rnd}% 大型船帶動"},
    {u"{city}外海等泊船舶{count}艘 塞港{shortens}"},
};
constexpr Phrase transportLeads[] = {
    {u"{city}航運經紀商數據顯示，最新一週亞歐線運價{up}{rnd}%。"},
};
constexpr Phrase transportParagraphs[] = {
    {u"港務資料顯示，{city}外海等候靠泊的船舶為{count}艘。"},
    {u"承攬業者表示，下月中旬以前艙位多已訂滿，之後仍待觀察。", good},
    {u"承攬業者表示，航商以取消航次的方式避免運價進一步下滑。", bad},
    {u"原油每桶{oil}美元，船用燃油成本變動不大。"},
};

constexpr Phrase labourHeadlines[] = {
    {u"{city}碼頭工會評估加薪{rnd}%方案"},    {u"{city}工業區工會擬停工{days}天"},
    {u"{country}{month}失業率{jobless}%"},    {u"基本工資審議 勞方提案調升{rnd}%"},
    {u"徵才調查：{city}企業增聘意願{more2}"},
};
constexpr Phrase labourLeads[] = {
    {u"勞資議題{todaydate}受關注，{city}碼頭資方提出加薪{rnd}%，鄰近工業區工會則規劃停工{days}天。"},
};
constexpr Phrase labourParagraphs[] = {
    {u"{country}{month}失業率為{jobless}%，企業反映技術人員仍然難找。"},
    {u"若協商破局，{days}天的停工將影響碼頭與兩處工業區。"},
    {u"市府指派的調解人表示，雙方在{meeting}前仍有達成協議的空間。"},
    {u"{broker}經濟學家估計，此次加薪對物價的影響約0.1個百分點。"},
};

constexpr Phrase digestHeadlines[] = {
    {u"《產業彙整》電子、傳產一日要聞"},    {u"《一週前瞻》財報、{indicator}、{centralbank}動向"},
    {u"{todaydate}上市櫃公司重點新聞彙總"}, {u"《專題》上市櫃公司如何布局{nextquarter}"},
    {u"《盤後彙整》法人動向與個股消息"},
};
constexpr Phrase digestLeads[] = {
    {u"以下為截至{todaydate}{clock}的上市櫃公司與市場重點新聞，整理自公司公告、法人說明會與記者採訪。"},
};
constexpr Phrase digestParagraphs[] = {
    {u"市場方面，加權指數報{level}點，美元兌新台幣{twd}，原油每桶{oil}美元，黃金每盎司{gold}美元。"},
};

constexpr TopicText texts[] = {
    {Topic::Macro, macroHeadlines, macroLeads, macroParagraphs},
    {Topic::CentralBank, bankHeadlines, bankLeads, bankParagraphs},
    {Topic::Regulation, regulationHeadlines, regulationLeads, regulationParagraphs},
    {Topic::Weather, weatherHeadlines, weatherLeads, weatherParagraphs},
    {Topic::Transport, transportHeadlines, transportLeads, transportParagraphs},
    {Topic::Labour, labourHeadlines, labourLeads, labourParagraphs},
    {Topic::Digest, digestHeadlines, digestLeads, digestParagraphs},
};

}  // namespace

std::span<const TopicText> chineseEconomyTexts() {
    return texts;
}

}  // namespace wirepane::sample
