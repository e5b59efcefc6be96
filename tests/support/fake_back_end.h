// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/bk_quote_interface.h"
#include "host/contract/headline_looks.h"
#include "host/contract/news_origins.h"
#include "host/contract/news_record.h"
#include "host/contract/query/newest_found.h"
#include "host/contract/query/search_counts.h"
#include "host/contract/query/search_hits.h"
#include "host/contract/quiet_sources.h"
#include "host/contract/search_control.h"
#include "tests/support/qt_printers.h"

#include <QHash>
#include <QStringList>

#include <map>
#include <set>
#include <vector>

namespace wirepane {

// A back end for tests: holds headlines in memory, answers like a real one, and writes down what it was
// asked.
class FakeBackEnd : public BKQuoteInterface,
                    public SearchControl,
                    public NewsRecord,
                    public NewsOrigins,
                    public HeadlineLooks,
                    public QuietSources,
                    public SearchHits,
                    public SearchCounts,
                    public NewestFound {
public:
    FakeBackEnd() {
        setBKInterface(this);
        setSearchObjInterface(this);
    }

    // Adds a headline; `atHand` false: its table entry is known, its title is not.
    void add(unsigned char service, std::int64_t time, std::int32_t sequence, const QString& title,
             std::int32_t category = 0, const QString& symbol = {}, bool atHand = true);
    // Forgets a headline: it has been replaced.
    void withdraw(unsigned char service, std::int32_t sequence);
    // Forgets all headlines.
    void clear() { pieces.clear(); }
    // The headlines of pieces that were added as not at hand can be had from now on.
    void makeAllAtHand();
    // Adds the story of an entry; the one added last counts.
    void addStory(const CStory& story) { stories.push_back(story); }

    std::vector<unsigned char> services{1, 2, 16, 22, 52, 122};
    std::map<unsigned char, std::vector<std::pair<QString, QString>>> categories;  // id text, name
    std::map<unsigned char, std::vector<std::pair<QString, QString>>> symbols;     // code, name
    int hongKongCategory = 1;  // of every symbol of service 22
    std::set<unsigned char> unauthorised;
    bool simplified = false;                         // texts of every service are to be converted
    std::set<unsigned char> simplifiedServices;      // and of these
    std::map<unsigned char, unsigned char> delayed;  // service: the id of its delayed data
    bool connected = true;
    bool storyAtHand = true;                        // false: no story can be had yet
    std::map<unsigned char, QString> currentDates;  // of services that are not at 2 March 2026
    QString sysPath = QStringLiteral("/nonexistent");
    // "table 1 0 20260302", "headlines 1 [3 2]", "story 1 3", "again 1 0 20260302", "again 1 [3 2]", ...
    QStringList asked;
    std::map<NewsReceiver*, std::set<unsigned char>> registrations;
    std::map<NewsReceiver*, QStringList> followed;  // quotes: "16:2330", once for each registration
    std::map<std::pair<unsigned char, std::int32_t>, std::vector<CSymbolInfo>> related;  // service, number
    std::map<unsigned char, std::vector<CHeadlineTable>> searchTables;                   // of each service
    std::map<unsigned char, std::vector<CHeadlineTable>> secondSearchTables;             // of the other kind
    QStringList candidates;  // for whatever is typed into a symbol search

    void registerSymbols(NewsReceiver* view, const std::vector<CSymbolInfo>& added,
                         const std::vector<CSymbolInfo>& removed) override;
    void unregisterSymbols(NewsReceiver* view) override;
    bool BKQNEWS_bGetAllNewsService(std::vector<unsigned char>& out) override;
    bool BKQNEWS_bGetFullNameByService(QString& name, unsigned char service) override;
    QString BKQNEWS_cszGetCurrDateByService(unsigned char service) override;
    bool BKQNews_bReRequestHeadlineStory(const CHeadlineTable& entry) override;
    bool BKNEWS_bReRequestHeadlineTable(unsigned char service, const CSymbolInfo& symbol) override;
    bool BKNEWS_bReRequestHeadlineTable(unsigned char service, int kind, const QString& key) override;
    bool BKQNEWS_bReCoverHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                                  const std::vector<CHeadlineTable>& entries) override;
    bool bNewsAPI_GetNewsCatId(unsigned char service, std::vector<QString>& ids,
                               std::vector<QString>& names) override;
    int BKQCheckAuthSupport(unsigned char service) override {
        return unauthorised.count(service) == 0 ? 1 : 0;
    }
    bool bGetAllServiceID(std::vector<unsigned char>& out) override;
    bool bGetServiceID2Delay(unsigned char service, unsigned char& id) override;
    int bIsFromTheSameAuthServiceID(unsigned char service, unsigned char other) override;
    bool bGetSymbolID(unsigned char service, std::vector<QString>& codes,
                      std::vector<QString>& names) override;
    bool GetSymbolsByService(unsigned char service, std::vector<QString>& codes, std::vector<QString>& names,
                             int kind) override;
    bool FindSearchList(const QString& typed, std::vector<QString>& found) override;
    bool bGetItemDataByItemNo(QString& value, unsigned char market, const QString& code, int item) override;
    bool BKQNEWS_bSearchNews(unsigned char service, int kind, const CSearch& condition) override;
    int bIsSymbolIDExist(unsigned char service, const QString& code) override;
    bool bGetCategorybySymbolID(int& category, unsigned char service, const QString& code) override;
    int bIsConnect() override { return connected ? 1 : 0; }
    int BKQNEWS_iGetHeadlineTable(std::vector<CHeadlineTable>& table, unsigned char service,
                                  const CSymbolInfo& symbol) override;
    int BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table, int kind,
                                  const QString& key) override;
    int BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                             const std::vector<CHeadlineTable>& entries) override;
    bool BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) override;
    bool BKNEWS_GetSymbolListBySeqNo(CNewsSymLst& list, const CHeadlineTable& entry) override;
    QString LangGetLangString(const QString& key) override { return texts.value(key, key); }
    bool LangIsConvertToSimplified(const unsigned char& service) override {
        return simplified || simplifiedServices.count(service) != 0;
    }
    void LangConvertToSimplifiedChinese(const QString& in, QString& out) override;
    QString PathGetSysPath() override { return sysPath; }

    std::vector<QuietSource> quietSources() const override { return quiet; }
    QuietTeller& quietTeller() override { return quietTells; }
    std::vector<QuietSource> quiet;
    QuietTeller quietTells;
    // Keeps what is to be counted; the test answers it.
    std::shared_ptr<const void> findNewest(const CSearch& condition, const std::vector<unsigned char>& among,
                                           std::size_t, NewestFound::Told told) override {
        findings.push_back({condition, among, std::move(told)});
        return findings.back().kept;
    }
    struct Finding {
        CSearch condition;
        std::vector<unsigned char> services;
        NewestFound::Told told;
        std::shared_ptr<int> kept = std::make_shared<int>();
        bool isDropped() const { return kept.use_count() == 1; }
    };
    std::vector<Finding> findings;
    std::shared_ptr<const void> countFound(std::vector<CountedSearch> wanted,
                                           SearchCounts::Told told) override {
        countings.push_back({std::move(wanted), std::move(told)});
        return countings.back().kept;
    }
    struct Counting {
        std::vector<CountedSearch> searches;
        SearchCounts::Told told;
        std::shared_ptr<int> kept = std::make_shared<int>();
        // Nobody waits for it.
        bool isDropped() const { return kept.use_count() == 1; }
    };
    std::vector<Counting> countings;
    // Finds keywords as they are written, in any case.
    std::shared_ptr<const HitFinder> prepareHits(const CSearch& condition) override;
    NewsState newsState(const HeadlineKey& key) override { return states.value(key.sequence); }
    std::vector<NewsVersion> versionsOf(const HeadlineKey& key) override {
        return versions.value(key.sequence);
    }

    QStringList originsOf(const HeadlineKey& key) override { return origins.value(key.sequence); }
    HeadlineLook lookOf(const HeadlineKey& key) override { return looks.value(key.sequence); }
    LookTeller& lookTeller() override { return lookTells; }
    void proposeAlert(const QString& name, const QString& query) override {
        asked += QStringLiteral("alert %1: %2").arg(name, query);
    }

    QHash<int, QStringList> origins;  // by number
    QHash<int, HeadlineLook> looks;   // by number
    LookTeller lookTells;
    QHash<int, NewsState> states;  // by number
    QHash<int, std::vector<NewsVersion>> versions;
    QHash<QString, QString> texts;  // language texts; a key without one is its own text

private:
    struct Piece {
        CHeadline headline;
        QString symbol;
        bool atHand;
    };
    template <class Wanted>
    int append(std::vector<CHeadlineTable>& table, unsigned char service, Wanted wanted) const;

    std::vector<Piece> pieces;
    std::vector<CStory> stories;
};

// Seconds since 1970 of a local time; the tests run in UTC+8.
std::int64_t localTime(int year, int month, int day, int hour, int minute, int second = 0);

}  // namespace wirepane
