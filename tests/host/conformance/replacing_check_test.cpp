// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/conformance/replacing_check.h"

#include "host/contract/gone_headlines.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace wirepane {

namespace {

enum class Fault { None, NothingReplaced, NeverTold, ToldBefore, ToldAndKept, ToldTwice };

// Has one headline, and moves it by a second, rightly but for one fault.
class ReplacingBackEnd : public BKQuoteInterface {
public:
    explicit ReplacingBackEnd(Fault its) : fault(its) {}

    bool BKQNEWS_bGetAllNewsService(std::vector<unsigned char>& services) override {
        services = {1};
        return true;
    }
    bool BKQNEWS_bGetFullNameByService(QString&, unsigned char) override { return false; }
    QString BKQNEWS_cszGetCurrDateByService(unsigned char) override { return u"20260302"_s; }
    int bIsConnect() override { return 1; }
    using BKQuoteInterface::BKQNEWS_iGetHeadlineTable;
    int BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table, int,
                                  const QString&) override {
        table.push_back({time, 1, service, 0, 0});
        return 1;
    }
    int BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                             const std::vector<CHeadlineTable>& entries) override {
        int count = 0;
        for (const CHeadlineTable& entry : entries) {
            if (entry.time != time && !(fault == Fault::ToldAndKept && entry.time == first))
                continue;
            headlines.push_back({service, entry.time, 1, u"Title"_s});
            ++count;
        }
        return count;
    }
    bool BKQNEWS_bGetStory(CStory&, const CHeadlineTable&) override { return false; }

    void replace() {
        if (fault == Fault::NothingReplaced)
            return;
        time = first + 1;
        const CHeadline headline{1, time, 1, u"Title"_s};
        if (fault == Fault::ToldBefore)
            tellGone();
        forEachReceiver([&](NewsReceiver& view) { view.RecvNewHeadLine(&headline, {}, {}); });
        if (fault != Fault::ToldBefore && fault != Fault::NeverTold)
            tellGone();
        if (fault == Fault::ToldTwice)
            tellGone();
    }

private:
    static constexpr std::int64_t first = 1772413200;
    void tellGone() {
        forEachReceiver([](NewsReceiver& view) { tellGoneHeadline(view, {first, 1, 1}); });
    }

    const Fault fault;
    std::int64_t time = first;
};

}  // namespace

TEST(ReplacingCheck, TellsWhichDutyIsBroken) {
    const struct {
        Fault fault;
        const char* told;  // empty: nothing
    } cases[] = {
        {Fault::None, ""},
        {Fault::NothingReplaced, "nothing was checked"},
        {Fault::NeverTold, "number 1: has no headline any more, and nobody is told."},
        {Fault::ToldBefore, "its former key is told as gone before the headline is told."},
        {Fault::ToldAndKept, "number 1: is told as gone and has a headline."},
        {Fault::ToldTwice, "number 1: is told as gone twice."},
    };
    for (const auto& c : cases) {
        ReplacingBackEnd backEnd(c.fault);
        const std::vector<QString> broken = brokenDutiesOfReplacing(
            backEnd, [&] { backEnd.replace(); }, 50ms);
        const QString told = QStringList(broken.begin(), broken.end()).join(u'\n');
        EXPECT_TRUE(told.contains(QString::fromUtf8(c.told)) && told.isEmpty() == (c.fault == Fault::None))
            << c.told << "\nnot in:\n"
            << told.toStdString();
    }
}

}  // namespace wirepane
