// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/news_receiver.h"
#include "host/contract/records.h"
#include "host/contract/search_condition.h"

#include <QString>

#include <functional>
#include <vector>

namespace wirepane {

// Kinds of headline tables in the key form of BKQNEWS_iGetHeadlineTable and BKNEWS_bReRequestHeadlineTable.
enum class TableKind : int { ByDate = 0, ByCategory = 1, Search = 3, SecondSearch = 4 };

// The items of a symbol's data that the module reads.
namespace symbol_items {
inline constexpr int name = 1019;
inline constexpr int nameWithMonth = 2020;
}  // namespace symbol_items

}  // namespace wirepane

// The back end that a host gives to the news module. The module owns no news: everything it shows comes from
// here, as a synchronous look-up into what the back end has at hand, or as the later answer to a request.
//
// Thread: every operation is called on, and every answer must arrive on, the interface thread. No operation
// may run an event loop or throw. Look-ups must return at once: what is not at hand (a cache miss) is
// reported as absent.
//
// A view asks for a title or a story once and does not ask again by itself: who has missed a look-up is owed
// an answer unasked, RespHeadLine or RespStory, when it can be had, and also when it turns out that there is
// none (then the story is found, and empty, while the answer is told).
//
// A host must implement the seven operations that are pure. The others have a default that answers "nothing".
class WIREPANE_CONTRACT_EXPORT BKQuoteInterface {
public:
    BKQuoteInterface() = default;
    BKQuoteInterface(const BKQuoteInterface&) = delete;
    BKQuoteInterface& operator=(const BKQuoteInterface&) = delete;
    // Uninstalls itself when it is the installed one. All receivers must have been detached before.
    virtual ~BKQuoteInterface();

    // The back end that the host installed; null before that. Not owned.
    static BKQuoteInterface* GetBKInterface();
    // Installs the back end of this process. Call it before the first view is created; the host keeps
    // ownership and keeps it alive until the last view is gone.
    static void setBKInterface(BKQuoteInterface* backEnd);

    // --- Who is told ---

    // From Attach to Detach the receiver gets the back end's calls. Both may be called during a delivery; a
    // detached receiver is not called again. Attaching twice is attaching once.
    void attach(wirepane::NewsReceiver* receiver);
    void detach(wirepane::NewsReceiver* receiver);

    // Real-time distribution: a symbol with an empty code stands for the news of a whole service; one with a
    // code for its quotes, of which `view` then hears by the memory callbacks: later what is known (also for
    // one that is registered already), and every change from now on. `view` has been attached.
    virtual void registerSymbols(wirepane::NewsReceiver* view, const std::vector<CSymbolInfo>& added,
                                 const std::vector<CSymbolInfo>& removed);
    // Ends all registrations of `view`.
    virtual void unregisterSymbols(wirepane::NewsReceiver* view);

    // --- Services ---

    // Fills `services` with the ids of the news services, in the order in which lists and menus show them.
    // False, and `services` empty, when there are none.
    virtual bool BKQNEWS_bGetAllNewsService(std::vector<unsigned char>& services) = 0;
    // Display names. False, and `name` unchanged, for a service that BKQNEWS_bGetAllNewsService does not
    // give.
    virtual bool BKQNEWS_bGetFullNameByService(QString& name, unsigned char service) = 0;
    virtual bool BKQNEWS_bGetShortNameByService(QString& name, unsigned char service);
    // The service's current news date as yyyymmdd.
    virtual QString BKQNEWS_cszGetCurrDateByService(unsigned char service) = 0;
    // How many days back the user may page.
    virtual unsigned char BKQbyGetNewsDateRange();
    // The category ids (decimal texts) and names of a service, pairwise. False: both empty.
    virtual bool bNewsAPI_GetNewsCatId(unsigned char service, std::vector<QString>& ids,
                                       std::vector<QString>& names);
    // Non-zero when the user may see this service. Views have symbol news only where it says so of
    // service 16.
    virtual int BKQCheckAuthSupport(unsigned char service);
    // Fills `services` with the ids of all services that carry symbols. False: none. Symbol news is offered
    // of the markets 16, 122 and 22 (or the delayed one of 22) alone, see fixed_services.h.
    virtual bool bGetAllServiceID(std::vector<unsigned char>& services);
    // The id under which a service's delayed data comes. False, and `delayed` unchanged, when there is none.
    virtual bool bGetServiceID2Delay(unsigned char service, unsigned char& delayed);
    // 1 when both services fall under the same authorisation.
    virtual int bIsFromTheSameAuthServiceID(unsigned char service, unsigned char other);
    // 1 while the back end is connected to its source; pushed headlines are ignored otherwise.
    virtual int bIsConnect() = 0;

    // --- Symbols ---

    // Replaces `codes` and `names` by all symbols of a service, pairwise. False: both empty.
    virtual bool bGetSymbolID(unsigned char service, std::vector<QString>& codes,
                              std::vector<QString>& names);
    // 1 when the service has a symbol of exactly this code.
    virtual int bIsSymbolIDExist(unsigned char service, const QString& code);
    // The market's kind of a symbol. False, and `category` unchanged, for an unknown symbol.
    virtual bool bGetCategorybySymbolID(int& category, unsigned char service, const QString& code);
    // One item of a symbol's data as text, by the number of the item. False, and `value` unchanged, when it
    // is not at hand.
    virtual bool bGetItemDataByItemNo(QString& value, unsigned char market, const QString& code, int item);
    // True when the names of symbols are shown with their real month (symbol_items::nameWithMonth).
    virtual bool bSymbolNameIsShowRealMonth();
    // The id of the commodity that a symbol of a futures market is traded on. False, and `commodity`
    // unchanged, when there is none.
    virtual bool bGetCommodityIDBySymbolID(QString& commodity, unsigned char market, const QString& code);

    // --- Headlines and stories ---

    // Appends the table of `service` for a symbol, or of a kind for a key (yyyymmdd, category id text,
    // "SEARCH"), to `table`. Result: how many entries were appended. Entries may come in any order; tables
    // that come newest first are merged without being sorted again.
    virtual int BKQNEWS_iGetHeadlineTable(std::vector<CHeadlineTable>& table, unsigned char service,
                                          const CSymbolInfo& symbol);
    virtual int BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table, int kind,
                                          const QString& key) = 0;
    // Appends the headlines of those entries that belong to `service` and are at hand to `headlines`, in the
    // order of the entries. Result: how many were appended. Those that are missing are owed by RespHeadLine.
    virtual int BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                                     const std::vector<CHeadlineTable>& entries) = 0;
    // True when the story is at hand; otherwise `story` is unchanged, and it is owed by RespStory.
    virtual bool BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) = 0;
    // The symbols related to a headline. False, and `symbols` unchanged, when they are not at hand.
    virtual bool BKNEWS_GetSymbolListBySeqNo(CNewsSymLst& symbols, const CHeadlineTable& entry);

    // --- Requests: true when sent; the answer comes later ---

    // The story of an entry: NewsReceiver::RespStory.
    virtual bool BKQNews_bReRequestHeadlineStory(const CHeadlineTable& entry);
    // A table by symbol (vRecvSymHeadlineTableRecovery), by date (vRecvAllHeadlineTableRecovery) or by
    // category (vRecvCatHeadlineTableRecovery).
    virtual bool BKNEWS_bReRequestHeadlineTable(unsigned char service, const CSymbolInfo& symbol);
    virtual bool BKNEWS_bReRequestHeadlineTable(unsigned char service, int kind, const QString& key);
    // The headlines of entries after a reconnection: appended to `headlines` where they are at hand, else
    // RespHeadLine later.
    virtual bool BKQNEWS_bReCoverHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                                          const std::vector<CHeadlineTable>& entries);
    // A search in one service; `kind` is the number of the list that asks: RespSearchHeadLineTable.
    virtual bool BKQNEWS_bSearchNews(unsigned char service, int kind, const CSearch& condition);

    // --- Texts ---

    // The display text of a language key in the language in force; the key itself when there is none. The
    // default asks the translators that the application has installed.
    virtual QString LangGetLangString(const QString& key);
    // True when texts of `service` are shown converted to simplified characters.
    virtual bool LangIsConvertToSimplified(const unsigned char& service);
    // `out` becomes `in` converted; the default leaves it as it is.
    virtual void LangConvertToSimplifiedChinese(const QString& in, QString& out);

    // The folder that holds "Application.ini" and "NewsService.ini", without a separator at its end. The host
    // writes both, before a view opens; docs/embedding_reference.md gives their form. A category that neither
    // the second nor bNewsAPI_GetNewsCatId names reads as still to come. Default: the program's folder.
    virtual QString PathGetSysPath();

protected:
    // Calls `call` for every attached receiver, in the order of attaching. Interface thread only.
    void forEachReceiver(const std::function<void(wirepane::NewsReceiver&)>& call);

private:
    std::vector<wirepane::NewsReceiver*> receivers;  // null: detached during a delivery, removed after it
    int deliveries = 0;                              // depth of ForEachReceiver
};
