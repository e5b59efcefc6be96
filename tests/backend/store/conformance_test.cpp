// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"
#include "host/conformance/back_end_check.h"
#include "host/conformance/replacing_check.h"
#include "host/contract/clock.h"
#include "tests/backend/store/store_fixture.h"

using namespace Qt::StringLiterals;

namespace wirepane {

TEST(EmbeddedBackEndConformance, KeepsEveryDuty) {
    const QTemporaryDir folder;
    auto opened = EmbeddedBackEnd::open(folder.filePath(u"news"_s));
    ASSERT_TRUE(opened) << sentence(opened.error()).toStdString();
    EmbeddedBackEnd& backEnd = *opened.value();
    host_clock::startAt(at(12, 0));
    for (int i = 0; i < 12; ++i) {
        const auto service = static_cast<unsigned char>(i % 2 == 0 ? 1 : 52);
        NewsItem item = newsItem(service, u"n%1"_s.arg(i), at(9, i), u"Tea \"prices\" AND rates %1"_s.arg(i));
        item.story = i % 3 == 0 ? QString() : u"A story of %1 lines."_s.arg(i);  // some have none
        ASSERT_TRUE(backEnd.takeIn(item));
    }
    for (const QString& code : {u"2330"_s, u"2317"_s}) {
        ASSERT_TRUE(backEnd.takeIn(SymbolItem{16, code, u"Tea"_s}));
        ASSERT_TRUE(backEnd.takeIn(QuoteItem{16, code, 12.5, 0.5, 100}));
    }
    std::vector<CHeadlineTable> day;
    ASSERT_EQ(backEnd.BKQNEWS_iGetHeadlineTable(1, day, 0, u"20260302"_s), 6) << "nothing to check";
    const std::vector<QString> broken = brokenDuties(backEnd);
    EXPECT_EQ(QStringList(broken.begin(), broken.end()).join(u'\n').toStdString(), "");
}

TEST(EmbeddedBackEndConformance, TellsEveryKeyThatIsGone) {
    const QTemporaryDir folder;
    auto opened = EmbeddedBackEnd::open(folder.filePath(u"news"_s));
    ASSERT_TRUE(opened) << sentence(opened.error()).toStdString();
    EmbeddedBackEnd& backEnd = *opened.value();
    host_clock::startAt(at(12, 0));
    std::vector<NewsItem> items;
    for (int i = 0; i < 4; ++i)
        items.push_back(newsItem(1, u"n%1"_s.arg(i), at(9, i), u"Tea"_s));
    const auto takeAll = [&] {
        for (NewsItem& item : items) {
            ASSERT_TRUE(backEnd.takeIn(item));
            ++item.version;
        }
    };
    takeAll();
    const std::vector<QString> broken = brokenDutiesOfReplacing(backEnd, [&] {
        items[0].title = u"Coffee"_s;  // the same key
        items[1].time = at(11, 0);
        items[2].time -= 86400;
        std::swap(items[1], items[3]);
        takeAll();
    });
    EXPECT_EQ(QStringList(broken.begin(), broken.end()).join(u'\n').toStdString(), "");
}

}  // namespace wirepane
