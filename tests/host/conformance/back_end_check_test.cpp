// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/conformance/back_end_check.h"

#include <QStringList>
#include <QTimer>

#include <gtest/gtest.h>
#include <set>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace wirepane {

namespace {

enum class Fault {
    None,
    ServicesTwice,
    NameChanged,
    NamesAny,
    DayWithDashes,
    CategoriesUnpaired,
    SymbolUnknown,
    SymbolsOfNoAnswer,
    TableReplaced,
    TableMiscounted,
    TableWithTwins,
    TableOfAnother,
    AnyKeyFinds,
    HeadlinesOutOfOrder,
    HeadlinesOfAnother,
    HeadlineInvented,
    HeadlineNeverTold,
    StoryChanged,
    StoryInvented,
    StoryNeverTold,
    StoryOfAnother,
    AnswersAtOnce,
    AnswersNever,
    SearchFindsAll,
    QuoteAtOnce,
    QuoteOfNothing,
    QuoteToAll,
    QuoteOnce,
    QuoteAfterLeaving,
    QuoteAfterUnregistering,
    QuoteNotAfterReturning,
};

// Keeps every duty but one.
class FaultyBackEnd : public BKQuoteInterface {
public:
    explicit FaultyBackEnd(Fault its) : fault(its) {}

    bool BKQNEWS_bGetAllNewsService(std::vector<unsigned char>& services) override {
        services = {1, 2};
        if (is(Fault::ServicesTwice))
            services.push_back(2);
        return true;
    }
    bool BKQNEWS_bGetFullNameByService(QString& name, unsigned char service) override {
        const bool known = service == 1 || service == 2;
        if (known || is(Fault::NameChanged))
            name = u"Wire"_s;
        return known || is(Fault::NamesAny);
    }
    QString BKQNEWS_cszGetCurrDateByService(unsigned char) override {
        return is(Fault::DayWithDashes) ? u"2026-03-02"_s : u"20260302"_s;
    }
    bool bNewsAPI_GetNewsCatId(unsigned char, std::vector<QString>& ids,
                               std::vector<QString>& names) override {
        ids = {u"7"_s};
        names.assign(is(Fault::CategoriesUnpaired) ? 2 : 1, u"Markets"_s);
        return true;
    }
    bool bGetAllServiceID(std::vector<unsigned char>& services) override {
        services = {1};
        return true;
    }
    bool bGetSymbolID(unsigned char, std::vector<QString>& codes, std::vector<QString>& names) override {
        codes = {u"2330"_s};
        names.clear();
        if (is(Fault::SymbolsOfNoAnswer))
            return false;
        names = {u"Tea"_s};
        return true;
    }
    int bIsSymbolIDExist(unsigned char, const QString& code) override {
        return code == u"2330"_s && !is(Fault::SymbolUnknown) ? 1 : 0;
    }
    int bIsConnect() override { return 1; }

    using BKQuoteInterface::BKQNEWS_iGetHeadlineTable;
    int BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table, int kind,
                                  const QString& key) override {
        const bool ofDay = kind == 0 && (key == u"20260302"_s || is(Fault::AnyKeyFinds));
        if (!ofDay && !(kind == 3 && is(Fault::SearchFindsAll)))
            return 0;
        if (is(Fault::TableReplaced))
            table.clear();
        for (std::int32_t sequence = 3; sequence > 0; --sequence)
            table.push_back({sequence * 60, sequence, service, 0, 0});
        if (is(Fault::TableOfAnother))
            table.back().service = 9;
        if (is(Fault::TableWithTwins))
            table.back() = table[table.size() - 2];
        return is(Fault::TableMiscounted) ? 2 : 3;
    }
    int BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                             const std::vector<CHeadlineTable>& entries) override {
        const std::size_t before = headlines.size();
        for (const CHeadlineTable& entry : entries) {
            if (entry.service != service && !is(Fault::HeadlinesOfAnother))
                continue;
            if (!stands(entry) && !is(Fault::HeadlineInvented))
                continue;
            if (isAtHand(entry, lateHeadline, Fault::HeadlineNeverTold))
                headlines.push_back({entry.service, entry.time, entry.sequence, u"Title"_s});
        }
        if (is(Fault::HeadlinesOutOfOrder))
            std::reverse(headlines.begin() + static_cast<std::ptrdiff_t>(before), headlines.end());
        return static_cast<int>(headlines.size() - before);
    }
    bool BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) override {
        const bool known = entry.service != 0 && (stands(entry) || is(Fault::StoryInvented)) &&
                           isAtHand(entry, lateStory, Fault::StoryNeverTold);
        if (known || is(Fault::StoryChanged))
            story = {entry.time, u"Story"_s, is(Fault::StoryOfAnother) ? CHeadlineTable() : entry};
        return known;
    }
    bool BKQNews_bReRequestHeadlineStory(const CHeadlineTable& entry) override {
        return answer([this, entry] { forEachReceiver([&](NewsReceiver& view) { view.RespStory(entry); }); });
    }
    bool BKQNEWS_bSearchNews(unsigned char service, int, const CSearch& condition) override {
        return answer([this, service, condition] {
            forEachReceiver([&](NewsReceiver& view) { view.RespSearchHeadLineTable(condition, service); });
        });
    }

    void registerSymbols(NewsReceiver* view, const std::vector<CSymbolInfo>& added,
                         const std::vector<CSymbolInfo>& removed) override {
        if (!removed.empty())
            leave(view, Fault::QuoteAfterLeaving);
        if (added.empty() || (is(Fault::QuoteNotAfterReturning) && gone.contains(view)))
            return;
        if (!followers.insert(view).second && is(Fault::QuoteOnce))
            return;
        if (is(Fault::QuoteAtOnce))
            tell(view);
        else if (!is(Fault::AnswersNever))
            QTimer::singleShot(0, &events, [this, view] { tell(view); });
    }
    void unregisterSymbols(NewsReceiver* view) override { leave(view, Fault::QuoteAfterUnregistering); }

private:
    static constexpr std::int32_t lateHeadline = 1;
    static constexpr std::int32_t lateStory = 2;

    bool is(Fault one) const { return fault == one; }
    static bool stands(const CHeadlineTable& entry) {
        return entry.time == std::int64_t{entry.sequence} * 60;
    }
    // All is at hand but one of each service, which comes when it has been missed.
    bool isAtHand(const CHeadlineTable& entry, std::int32_t late, Fault silent) {
        if (entry.sequence != late || came.contains({entry.service, late}))
            return true;
        if (!is(silent)) {
            QTimer::singleShot(0, &events, [this, entry, late] {
                came.insert({entry.service, late});
                forEachReceiver([&](NewsReceiver& view) {
                    if (late == lateStory)
                        view.RespStory(entry);
                    else
                        view.RespHeadLine({entry});
                });
            });
        }
        return false;
    }
    template <class Call>
    bool answer(Call call) {
        if (is(Fault::AnswersAtOnce))
            call();
        else if (!is(Fault::AnswersNever))
            QTimer::singleShot(0, &events, call);
        return true;
    }

    void leave(NewsReceiver* view, Fault forgotten) {
        if (!is(forgotten) && followers.erase(view) > 0)
            gone.insert(view);
    }
    void tell(NewsReceiver* view) {
        const CQuoteMemory quote{{1, u"2330"_s}, 12.5, 0.5, 100};
        const CQuoteMemory* told = is(Fault::QuoteOfNothing) ? nullptr : &quote;
        if (is(Fault::QuoteToAll))
            forEachReceiver([&](NewsReceiver& receiver) { receiver.vRecvMemoryRecovery(told); });
        else if (followers.contains(view))
            view->vRecvMemoryRecovery(told);
    }

    const Fault fault;
    QObject events;
    std::set<std::pair<unsigned char, std::int32_t>> came;
    std::set<NewsReceiver*> followers;
    std::set<NewsReceiver*> gone;
};

QString brokenBy(Fault fault) {
    FaultyBackEnd backEnd(fault);
    const bool isSilent = fault == Fault::AnswersNever || fault == Fault::QuoteOfNothing ||
                          fault == Fault::HeadlineNeverTold || fault == Fault::StoryNeverTold ||
                          fault == Fault::QuoteOnce || fault == Fault::QuoteNotAfterReturning;
    const std::vector<QString> broken = brokenDuties(backEnd, isSilent ? 50ms : 10s);
    return QStringList(broken.begin(), broken.end()).join(u'\n');
}

}  // namespace

TEST(BackEndCheck, TellsWhichDutyIsBroken) {
    EXPECT_EQ(brokenBy(Fault::None).toStdString(), "");
    const struct {
        Fault fault;
        const char* told;
    } cases[] = {
        {Fault::ServicesTwice, "gives a service twice"},
        {Fault::NameChanged, "BKQNEWS_bGetFullNameByService, service 0: answers false and changes the name."},
        {Fault::NamesAny, "BKQNEWS_bGetFullNameByService, service 0: there is a name, and no such service."},
        {Fault::DayWithDashes, "\"2026-03-02\" is no day"},
        {Fault::CategoriesUnpaired, "there are 1 ids and 2 names."},
        {Fault::SymbolUnknown, "bIsSymbolIDExist, service 1: \"2330\" is listed and unknown."},
        {Fault::SymbolsOfNoAnswer, "bGetSymbolID, service 1: answers false and gives something."},
        {Fault::TableReplaced, "key \"20260302\": what was in the table before is gone."},
        {Fault::TableMiscounted, "says 2 and appends 3 entries."},
        {Fault::TableWithTwins, "two entries have one key."},
        {Fault::TableOfAnother, "an entry belongs to another service."},
        {Fault::AnyKeyFinds, "there is news of kind 0 under the key \"99999999\"."},
        {Fault::HeadlinesOutOfOrder, "out of the order of the entries."},
        {Fault::HeadlinesOfAnother, "was not asked for"},
        {Fault::HeadlineInvented, "there is a headline of an entry that stands for nothing."},
        {Fault::HeadlineNeverTold,
         "BKQNEWS_iGetHeadline, service 1, number 1: not at hand, and no RespHeadLine"},
        {Fault::StoryInvented, "BKQNEWS_bGetStory, service 1: there is a story of an entry that stands for"},
        {Fault::StoryNeverTold, "BKQNEWS_bGetStory, service 2, number 2: not at hand, and no RespStory"},
        {Fault::StoryChanged, "answers false and changes the story."},
        {Fault::StoryOfAnother, "gives the story of another headline."},
        {Fault::AnswersAtOnce, "the answer comes before the request returns."},
        {Fault::AnswersNever, "BKQNEWS_bSearchNews, service 1: true, and no answer in time."},
        {Fault::SearchFindsAll, "finds news that nobody wrote."},
        {Fault::QuoteAtOnce, "RegisterSymbols: the answer comes before the request returns."},
        {Fault::QuoteOfNothing, "a view is told of no quote."},
        {Fault::QuoteToAll, "a quote of \"2330\" comes to a view that is not registered for it."},
        {Fault::QuoteOnce, "a view that is registered already is not told what is known."},
        {Fault::QuoteAfterLeaving, "comes to a view that is not registered for it."},
        {Fault::QuoteAfterUnregistering, "comes to a view that is not registered for it."},
        {Fault::QuoteNotAfterReturning, "a view that has left and registers again is not told"},
    };
    for (const auto& c : cases) {
        const QString told = brokenBy(c.fault);
        EXPECT_TRUE(told.contains(QString::fromUtf8(c.told))) << c.told << "\nnot in:\n"
                                                              << told.toStdString();
    }
}

}  // namespace wirepane
