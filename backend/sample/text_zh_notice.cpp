// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/topic.h"

namespace wirepane::sample {

namespace {

// Announcements are forms: the lead and every paragraph is a numbered item, and all of them are sent.
constexpr Phrase revenueHeadlines[] = {
    {u"{co}：公告本公司{rocmonth}合併營業收入"},
    {u"{co}：{rocmonth}自結合併營收{rev}"},
    {u"{co}：公告{rocmonth}營業額資訊"},
};
constexpr Phrase revenueLeads[] = {{u"1.事實發生日：{rocdate}"}};
constexpr Phrase revenueParagraphs[] = {
    {u"2.公司名稱：{cofull}"},
    {u"3.發生緣由：公告本公司{rocmonth}自結合併營業收入{rev}，去年同期{revprev}，年{up}{chg}%。"},
    {u"4.累計營業收入：{ytd}，較去年同期{ytdup}{ytdchg}%。"},
    {u"5.因應措施：無。"},
    {u"6.其他應敘明事項：上述數字為自結數，未經會計師核閱，實際數字以公開資訊為準。"},
};

constexpr Phrase boardHeadlines[] = {
    {u"{co}：公告本公司{role}異動"},
    {u"{co}：董事會決議委任{role}"},
    {u"{co}：公告本公司新任{role}"},
    {u"{co}：公告{role}辭任暨新任人選"},
};
constexpr Phrase boardLeads[] = {{u"1.人員變動別：{role}"}};
constexpr Phrase boardParagraphs[] = {
    {u"2.發生變動日期：{rocdate}"},
    {u"3.舊任者姓名：{leaver}"},
    {u"4.新任者姓名：{newcomer}，於本公司服務{years}年"},
    {u"5.異動情形：辭任"},
    {u"6.異動原因：個人生涯規劃"},
    {u"7.生效日期：{roceffective}"},
    {u"8.其他應敘明事項：業經本公司董事會決議通過。"},
};

constexpr Phrase meetingHeadlines[] = {
    {u"{co}：公告董事會決議召開股東常會"},
    {u"{co}：召開股東常會日期、地點及議案"},
    {u"{co}：公告股東會召集事由新增議案"},
    {u"{co}：公告股東常會地點及召集事由"},
};
constexpr Phrase meetingLeads[] = {{u"1.董事會決議日期：{rocdate}"}};
constexpr Phrase meetingParagraphs[] = {
    {u"2.股東會召開日期：{rocmeeting}"},
    {u"3.股東會召開地點：本公司{site}廠會議室"},
    {u"4.召集事由一、報告事項：營業報告、審計委員會審查報告"},
    {u"5.召集事由二、承認事項：營業報告書及財務報表案、盈餘分配案，每股配發現金{cash}"},
    {u"6.召集事由三、討論事項：修訂公司章程案"},
    {u"7.其他應敘明事項：無。"},
};

constexpr Phrase dividendHeadlines[] = {
    {u"{co}：公告除息基準日"},
    {u"{co}：董事會決議每股配發現金{cash}"},
    {u"{co}：公告現金股利發放日"},
    {u"{co}：公告配息基準日相關事宜"},
};
constexpr Phrase dividendLeads[] = {{u"1.董事會決議日期：{rocdate}"}};
constexpr Phrase dividendParagraphs[] = {
    {u"2.除權、息類別：除息"},
    {u"3.發放股利種類及金額：現金股利每股{cash}"},
    {u"4.除息交易日：{rocexdate}"},
    {u"5.現金股利發放日：{rocpaydate}"},
    {u"6.其他應敘明事項：股東名簿所載通訊地址如有變更，請向本公司股務代理機構辦理。"},
};

constexpr Phrase assetHeadlines[] = {
    {u"{co}：公告取得{site}廠機器設備"},
    {u"{co}：公告取得{site}土地及廠房"},
    {u"{co}：董事會通過{site}廠資本支出案"},
    {u"{co}：公告{site}新建廠房工程發包"},
};
constexpr Phrase assetLeads[] = {{u"1.標的物之名稱及性質：{site}廠之土地、廠房及機器設備"}};
constexpr Phrase assetParagraphs[] = {
    {u"2.事實發生日：{rocdate}"},
    {u"3.交易總金額：{deal}"},
    {u"4.交易相對人：非關係人"},
    {u"5.付款條件：依合約約定分{count}期支付"},
    {u"6.取得之具體目的：配合{product}業務長期規劃"},
    {u"7.其他應敘明事項：無。"},
};

constexpr Phrase clarifyHeadlines[] = {
    {u"{co}：澄清媒體報導"},
    {u"{co}：說明媒體有關{product}接單之報導"},
    {u"{co}：針對{rocdate}媒體報導說明"},
    {u"{co}：說明網路媒體對本公司財務預測之報導"},
};
constexpr Phrase clarifyLeads[] = {{u"1.事實發生日：{rocdate}"}};
constexpr Phrase clarifyParagraphs[] = {
    {u"2.公司名稱：{cofull}"},
    {u"3.報導內容：「……{co}{product}接單暢旺，明年營收可望達{guidehigh}……」"},
    {u"4.發生緣由：該報導係媒體自行推估。"},
    {u"5.因應措施：本公司並未發布任何財務預測，請以本公司公告為準。"},
    {u"6.其他應敘明事項：無。"},
};

constexpr Phrase attentionHeadlines[] = {
    {u"{co}：有價證券達公布注意交易資訊標準"},
    {u"{co}：應主管機關要求公布{month}自結損益"},
    {u"{co}：股價波動異常 公布相關財務資訊"},
};
constexpr Phrase attentionLeads[] = {{u"1.事實發生日：{rocdate}"}};
constexpr Phrase attentionParagraphs[] = {
    {u"2."
     u"發生緣由：本公司有價證券近期多次達公布注意交易資訊標準，爰公布相關財務業務資訊，以利投資人區別瞭解。"},
    {u"3.財務業務資訊：{month}營業收入{rev}，較去年同期{up}{chg}%；最近一季稅後淨利{profit}，每股盈餘{eps}"
     u"。"},
    {u"4.有無重大訊息：無。"},
    {u"5.其他應敘明事項：投資人應審慎判斷，注意投資風險。"},
};

constexpr Phrase briefingHeadlines[] = {
    {u"{co}：受邀參加{broker}舉辦之法人說明會"},
    {u"{co}：召開{quarter}線上法人說明會"},
    {u"{co}：公告法人說明會時間異動"},
};
constexpr Phrase briefingLeads[] = {{u"1.召開法人說明會之日期：{rocnextdate}"}};
constexpr Phrase briefingParagraphs[] = {
    {u"2.召開法人說明會之時間：14時30分"},
    {u"3.召開法人說明會之地點：線上會議"},
    {u"4.法人說明會擇要訊息：由{broker}主辦，說明本公司{quarter}營運概況及{product}市場展望"},
    {u"5.其他應敘明事項：簡報檔案於會後上傳。"},
};

constexpr Phrase guaranteeHeadlines[] = {
    {u"{co}：公告背書保證達應公告標準"},
    {u"{co}：公告資金貸與子公司"},
    {u"{co}：公告代子公司取得銀行授信額度"},
};
constexpr Phrase guaranteeLeads[] = {{u"1.事實發生日：{rocdate}"}};
constexpr Phrase guaranteeParagraphs[] = {
    {u"2.對象：本公司{abroad}子公司，持股100%"},
    {u"3.本次金額：{deal}"},
    {u"4.期間：{years}年"},
    {u"5.原因：子公司{product}業務營運週轉"},
    {u"6.占本公司最近期財務報表淨值比率：{stake}%"},
    {u"7.其他應敘明事項：無。"},
};

constexpr Phrase emergingHeadlines[] = {
    {u"{co}：興櫃股票申請上市，{broker}為主辦輔導券商"},
    {u"{co}：申請轉上市 {product}業務占營收{share}%"},
    {u"{co}：興櫃登錄輔導契約更新"},
    {u"{co}：公告初次上市前現金增資{deal}"},
    {u"{co}：上市審議委員會通過本公司申請案"},
    {u"{co}：公告推薦證券商異動"},
};
constexpr Phrase emergingLeads[] = {{u"1.事實發生日：{rocdate}"}};
constexpr Phrase emergingParagraphs[] = {
    {u"2.公司名稱：{cofull}"},
    {u"3.發生緣由：本公司興櫃股票輔導及申請上市相關事宜，主辦輔導推薦證券商為{broker}"},
    {u"4.主要業務：{product}、{product2}，最近年度營業收入{annual}"},
    {u"5.預計辦理現金增資金額：{deal}"},
    {u"6.其他應敘明事項：實際時程依主管機關核准為準。"},
};

constexpr TopicText texts[] = {
    {Topic::NoticeRevenue, revenueHeadlines, revenueLeads, revenueParagraphs},
    {Topic::NoticeBoard, boardHeadlines, boardLeads, boardParagraphs},
    {Topic::NoticeMeeting, meetingHeadlines, meetingLeads, meetingParagraphs},
    {Topic::NoticeDividend, dividendHeadlines, dividendLeads, dividendParagraphs},
    {Topic::NoticeAsset, assetHeadlines, assetLeads, assetParagraphs},
    {Topic::NoticeClarify, clarifyHeadlines, clarifyLeads, clarifyParagraphs},
    {Topic::NoticeAttention, attentionHeadlines, attentionLeads, attentionParagraphs},
    {Topic::NoticeBriefing, briefingHeadlines, briefingLeads, briefingParagraphs},
    {Topic::NoticeGuarantee, guaranteeHeadlines, guaranteeLeads, guaranteeParagraphs},
    {Topic::NoticeEmerging, emergingHeadlines, emergingLeads, emergingParagraphs},
};

}  // namespace

std::span<const TopicText> chineseNoticeTexts() {
    return texts;
}

}  // namespace wirepane::sample
