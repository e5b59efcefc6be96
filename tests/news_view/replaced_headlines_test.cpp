// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Headlines that are replaced while views show them: which lists they leave, and what stays in place then.
#include "host/controls/my_rich_edit.h"
#include "host/controls/s_date_time_ctrl.h"
#include "host/views/news_control_ids.h"
#include "search/news_key_search_dlg.h"
#include "search/search_ids.h"
#include "story/news_story_view.h"
#include "story/story_ids.h"
#include "tests/news_view/view_fixture.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Headline 1 of service 1 concerns every list: topic 1, symbol 2330 of market 16, "Gold" in its title.
class ReplacedHeadlines : public NewsViewTest {
protected:
    struct Version {
        QString title = u"Gold up"_s;
        std::int32_t topic = 1;
        QString symbol = u"2330"_s;
        std::int64_t time = localTime(2026, 3, 2, 9, 0);
    };

    ReplacedHeadlines() {
        writeFile(u"Application.ini"_s, "[NewsCtrlSearchView]\nShowNormalSearch=1\n");
        publish({});
        for (const int number : {2, 3})
            backEnd.add(1, localTime(2026, 3, 2, 9, number), number, u"Gold %1"_s.arg(number), 1, u"2330"_s);
    }

    void publish(const Version& version) {
        backEnd.withdraw(1, 1);
        backEnd.add(1, version.time, 1, version.title, version.topic, version.symbol);
    }
    // As a back end replaces the headline: it has the new version, and then pushes it.
    void replace(const Version& version) {
        publish(version);
        const CHeadline headline{1, version.time, 1, version.title, 0, version.topic, 0};
        view->RecvNewHeadLine(&headline, QString::number(version.topic), version.symbol);
    }
    void gone(std::int64_t time, std::int32_t sequence = 1) { tellGoneHeadline(*view, {time, sequence, 1}); }

    // Shows every list once, with headlines 3, 2 and 1.
    void openLists() {
        openActive(
            {{u"EnabledFunctions"_s, 0x7F}, {u"SymbolID"_s, u"2330"_s}, {u"Sheet0ServiceCheck1"_s, true}});
        for (const int mode : {1, 2, 4})
            view->SwitchFunction(mode);
        tickKeySet(u"GOLD"_s);
        view->SwitchFunction(0);
        settle();
        for (const int list : {0, 1, 2, 4})
            ASSERT_EQ(titles(list), all(list)) << list;
    }
    void tickKeySet(const QString& word) {
        runDialog<CNewsKeySearchDlg>(ids::relationSearchButton, [&word](CNewsKeySearchDlg& dialog) {
            press(dialog, search_ids::allNewsTypes);
            qobject_cast<QLineEdit*>(dlgItem(&dialog, search_ids::keywordEdit))->setText(word);
            press(dialog, search_ids::addTyped);
            press(dialog, search_ids::saveKeySet);
            press(dialog, search_ids::ok);
        });
    }
    QStringList all(int) const { return {u"Gold 3"_s, u"Gold 2"_s, u"Gold up"_s}; }
    QString story() const {
        auto* pane = dlgItem(view.get(), ids::firstChildView + ids::storyPane);
        return static_cast<MyRichEdit*>(dlgItem(pane, story_ids::storyText))->literalText();
    }
    const QStringList others{u"Gold 3"_s, u"Gold 2"_s};
};

}  // namespace

TEST_F(ReplacedHeadlines, LeaveTheListsThatTheyNoLongerConcern) {
    openLists();
    const auto front = [this](const QString& title) { return QStringList{title} + others; };
    struct Step {
        const char* what;
        Version version;
        std::vector<CSymbolInfo> named;  // besides the main symbol
        QStringList byTopic, bySymbol, related;
    };
    const QString up = u"Gold up"_s;
    const Step steps[] = {
        {"the topic", {up, 2, u"2330"_s}, {}, others, front(up), front(up)},
        {"and back", {up, 1, u"2330"_s}, {}, others + QStringList{up}, front(up), front(up)},
        {"the words", {u"Tin up"_s, 1, u"2330"_s}, {}, front(u"Tin up"_s), front(u"Tin up"_s), others},
        {"the main symbol, which it still names",
         {u"Tin up"_s, 1, u"6214"_s},
         {{16, u"6214"_s}, {16, u"2330"_s}},
         front(u"Tin up"_s),
         front(u"Tin up"_s),
         others},
        {"a symbol of that code elsewhere",
         {u"Tin up"_s, 1, u"6214"_s},
         {{16, u"6214"_s}, {22, u"2330"_s}},
         front(u"Tin up"_s),
         others,
         others},
        {"everything", {u"Oil up"_s, 2, u"6214"_s}, {}, others, others, others},
    };
    for (const Step& step : steps) {
        if (!step.named.empty())
            backEnd.related[{1, 1}] = step.named;
        replace(step.version);
        settle();
        EXPECT_EQ(titles(0), front(step.version.title)) << step.what;
        EXPECT_EQ(titles(1), step.byTopic) << step.what;
        EXPECT_EQ(titles(2), step.bySymbol) << step.what;
        EXPECT_EQ(titles(4), step.related) << step.what;
    }
    // A list that they never concerned, and a headline that nobody has, are left alone.
    const CHeadline unknown{1, localTime(2026, 3, 2, 9, 9), 9, u"Oil"_s, 0, 2, 0};
    view->RecvNewHeadLine(&unknown, u"2"_s, {});
    EXPECT_EQ(titles(1), others);
}

TEST_F(ReplacedHeadlines, LeaveEveryListWithTheKeyThatTheyHad) {
    openLists();
    const std::int64_t nine = localTime(2026, 3, 2, 9, 0);
    backEnd.searchTables[1] = {{nine, 1, 1, 0, 0}, {localTime(2026, 3, 2, 9, 2) - 86400, 2, 1, 0, 0}};
    view->SwitchFunction(3);
    quickSearch(u"gold"_s);
    ASSERT_EQ(view->iGetHeadlineTableSize(3), 2);
    view->SwitchFunction(0);
    // It is yesterday's: the back end does not push it, it only says that the key is gone.
    publish({.time = nine - 86400});
    gone(nine);
    settle();
    for (const int list : {0, 1, 2, 4})
        EXPECT_EQ(titles(list), others) << list;
    EXPECT_EQ(view->iGetHeadlineTableSize(3), 1);
    gone(nine);
    EXPECT_EQ(titles(0), others) << "told twice";
}

TEST_F(ReplacedHeadlines, KeepTheirRowUnderANewTimeWhereTheyAreNotPushed) {
    openLists();
    auto* picker = qobject_cast<SDateTimeCtrl*>(dlgItem(view.get(), ids::datePicker));
    ASSERT_NE(picker, nullptr);
    // A day later the reader pages back to this one.
    const CMarketStatus next{1, 20260303};
    host_clock::startAt(localTime(2026, 3, 3, 9, 30));
    view->vRecvNewMarketStatus(&next);
    ASSERT_TRUE(view->bChangeDate(QDate(2026, 3, 2)));
    settle();
    const std::int64_t nine = localTime(2026, 3, 2, 9, 0);
    replace({.title = u"Gold down"_s, .time = nine - 60});
    gone(nine);
    settle();
    EXPECT_EQ(titles(0), others + QStringList{u"Gold down"_s});
    EXPECT_EQ(view->keysOf(0, 2, 1), (std::vector<HeadlineKey>{{nine - 60, 1, 1}}));
    EXPECT_EQ(titles(1), QStringList{u"Gold down"_s} + others) << "this list takes it in, at its top";
    EXPECT_EQ(view->iGetHeadlineTableSize(1), 3) << "and has it once";
}

TEST_F(ReplacedHeadlines, AreAskedForAlsoWhenTheyAreOfAnotherDayAndNotPushed) {
    openLists();
    publish({u"Oil up"_s, 2, u"2330"_s});
    const CHeadline headline{1, localTime(2026, 3, 2, 9, 0), 1, u"Oil up"_s, 0, 2, 0};
    tellReplacedHeadline(*view, headline, u"2"_s, u"2330"_s);
    settle();
    EXPECT_EQ(titles(0), others + QStringList{u"Oil up"_s}) << "in its place";
    EXPECT_EQ(titles(1), others);
    EXPECT_EQ(titles(4), others);
    view->SwitchFunction(2);
    settle();
    EXPECT_EQ(titles(2), others + QStringList{u"Oil up"_s});
    const CHeadline never{1, localTime(2026, 3, 2, 9, 30), 30, u"Gold"_s, 0, 1, 0};
    tellReplacedHeadline(*view, never, u"1"_s, u"2330"_s);
    for (const int list : {1, 2, 4})
        EXPECT_FALSE(titles(list).contains(u"Gold"_s)) << "nothing is taken in";
}

TEST_F(ReplacedHeadlines, LeaveTheStoryTheFocusAndTheSelectionWhereTheyAre) {
    for (const int number : {1, 2, 3}) {
        const CHeadlineTable entry{localTime(2026, 3, 2, 9, number == 1 ? 0 : number), number, 1, 0, 0};
        backEnd.addStory({entry.time, u"story %1"_s.arg(number), entry});
    }
    openLists();
    view->SwitchFunction(1);
    settle();
    focusGrid();
    for (int row = 0; row < 3; ++row)
        QTest::keyClick(view->sheetOf(1), Qt::Key_Down);
    ASSERT_TRUE(story().contains(u"story 1"_s)) << story().toStdString();
    const auto focused = [this] { return view->sheetOf(1)->cptGetFocusNdx().y(); };
    // One above the focus goes.
    const CHeadline other{1, localTime(2026, 3, 2, 9, 3), 3, u"Gold 3"_s, 0, 2, 0};
    view->RecvNewHeadLine(&other, u"2"_s, {});
    settle();
    ASSERT_EQ(titles(1), (QStringList{u"Gold 2"_s, u"Gold up"_s}));
    EXPECT_EQ(focused(), 1);
    EXPECT_TRUE(story().contains(u"story 1"_s));
    view->RespStory({localTime(2026, 3, 2, 9, 0), 1, 1, 0, 0});
    EXPECT_TRUE(story().contains(u"story 1"_s));
    // Then the one on show.
    gone(localTime(2026, 3, 2, 9, 0));
    settle();
    ASSERT_EQ(titles(1), QStringList{u"Gold 2"_s});
    EXPECT_TRUE(story().contains(u"story 1"_s)) << "it stays on show";
    push(1, 9, 20, 20);
    view->RespStory({localTime(2026, 3, 2, 9, 2), 2, 1, 0, 0});
    EXPECT_TRUE(story().contains(u"story 1"_s)) << "another headline's story is not its";
    QTest::keyClick(view->sheetOf(1), Qt::Key_Up);
    QTest::keyClick(view->sheetOf(1), Qt::Key_Down);
    EXPECT_TRUE(story().contains(u"story 2"_s)) << "until the reader goes on";
}

}  // namespace wirepane
