// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The notices and the context menu without a view: where they stand, and which lines there are.
#include "news_view/notice_board.h"

#include "host/controls/s_button.h"
#include "host/views/news_control_ids.h"
#include "host/views/virtual_base_view.h"
#include "news_view/context_menu.h"
#include "news_view/control_set.h"
#include "news_view/notice_line.h"
#include "tests/support/fake_back_end.h"

#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// A window with a control row of 400 by 20 pixels at 30, and what a view of no list has to tell.
class NoticeBoardTest : public testing::Test {
protected:
    NoticeBoardTest() {
        window.resize(400, 300);
        controls.createNotices();
        list.setFocusPolicy(Qt::StrongFocus);
    }

    template <class Control>
    Control& control(int id) {
        return *controls.find<Control>(id);
    }
    // A control that takes room in the row, or elsewhere.
    QWidget* put(const QRect& place) {
        auto* taken = new QWidget(&window);
        taken->setGeometry(place);
        taken->show();
        return taken;
    }

    FakeBackEnd backEnd;
    TRVVirtualBaseView window;
    ControlSet controls{window, backEnd};
    QLineEdit list{&window};
    bool waiting = false;
    QString hint;
    int looks = 0;
    NoticeBoard board{{window, controls, [] { return QRect(100, 30, 50, 20); },
                       [this] {
                           ++looks;
                           return NoticeBoard::Look{window.font(), Qt::black, Qt::white};
                       },
                       [this] { return waiting; }, [this] { return &list; }},
                      {[this](ListNotices& notices) { notices.tell(NoticeKind::Hint, hint); },
                       [](ListNotices& notices) { notices.tell(NoticeKind::Narrowed, u"one"_s); }}};
};

}  // namespace

TEST(WidestGap, LiesBetweenTheControlsOfTheRow) {
    const QRect row(0, 30, 400, 20);
    struct Case {
        const char* what;
        std::vector<QRect> taken;
        QRect gap;
    };
    const Case cases[] = {
        {"no control", {}, {8, 30, 384, 20}},
        {"one in the middle, more room at its right", {{100, 30, 50, 20}}, {158, 30, 234, 20}},
        {"in any order", {{300, 30, 90, 20}, {0, 30, 50, 20}}, {58, 30, 234, 20}},
        {"one over the other", {{0, 30, 300, 20}, {20, 30, 10, 20}}, {308, 30, 84, 20}},
        {"no room", {{0, 30, 400, 20}}, {}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(widestGap(row, c.taken), c.gap) << c.what;
}

TEST_F(NoticeBoardTest, StandsInTheFreePartOfTheRow) {
    QWidget* button = put({0, 30, 100, 20});
    put({0, 60, 390, 200});
    board.place();
    auto& line = control<NoticeLine>(ids::notice);
    EXPECT_EQ(line.geometry(), QRect(108, 30, 284, 20));
    EXPECT_FALSE(line.isHidden());
    EXPECT_TRUE(control<SButton>(ids::stopWaiting).isHidden());
    button->hide();
    board.place();
    EXPECT_EQ(line.geometry(), QRect(8, 30, 384, 20)) << "what is hidden takes no room";
}

TEST_F(NoticeBoardTest, TheStopButtonIsThereWhileThereIsSomethingToStop) {
    auto& stop = control<SButton>(ids::stopWaiting);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    waiting = true;
    board.place();
    EXPECT_TRUE(stop.isVisible());
    EXPECT_EQ(stop.geometry(), QRect(8, 30, 20, 20));
    EXPECT_EQ(control<NoticeLine>(ids::notice).geometry().left(), 35);
    stop.setFocus();
    waiting = false;
    board.place();
    EXPECT_FALSE(stop.isVisible());
    EXPECT_EQ(window.focusWidget(), &list) << "not whatever comes next";

    waiting = true;
    QWidget* wide = put({0, 30, 370, 20});
    board.place();
    EXPECT_FALSE(stop.isVisible()) << "no room for it";
    delete wide;
}

TEST_F(NoticeBoardTest, TellsWhatEveryPartHasToTell) {
    EXPECT_EQ(board.notices().text(), u"one"_s);
    hint = u"three"_s;
    board.setStatus(u" two "_s);
    EXPECT_EQ(board.notices().text(), u"one · two · three"_s);
    EXPECT_EQ(board.status(), u" two "_s);
    EXPECT_EQ(control<NoticeLine>(ids::notice).text(), u"one · two · three"_s) << "placed by itself";
    const int before = looks;
    board.setStatus(u" two "_s);
    EXPECT_EQ(looks, before) << "nothing has changed";
}

TEST(ContextMenu, OffersWhatThePlaceAllows) {
    FakeBackEnd backEnd;
    const MenuEntry waiting{ids::stopWaiting, u"stop"_s, {}};
    ListNotices notices;
    notices.tell(NoticeKind::Offline, u"offline"_s);
    ListNotices narrowed = notices;
    narrowed.tell(NoticeKind::Narrowed, u"A & B"_s);
    struct Case {
        const char* what;
        MenuSituation at;
        std::vector<MenuEntry> waiting;
        ListNotices notices;
        QList<int> commands;  // 0: a separator
    };
    const Case cases[] = {
        {"below the rows", {}, {}, {}, {5061, 0, 2053}},
        {"on a row", {.onRow = true}, {}, {}, {5061, 0, 2053, 2051, 9271, 9272}},
        {"stories in their window",
         {.onRow = true, .hasStoryWindow = true},
         {},
         {},
         {5061, 0, 2053, 2051, 9270, 9271, 9272}},
        {"the last list with a table", {.mode = ListIndex::Symbol}, {}, {}, {5061, 0, 2053}},
        {"the full menu on a row",
         {.onRow = true, .isFull = true},
         {waiting},
         {},
         {ids::copyRows, ids::openInWindow, 9271, 9272, 0, 2051, 2053, 5061, ids::stopWaiting}},
        {"where what is read is marked",
         {.onRow = true, .isFull = true, .hasMarks = true},
         {},
         {},
         {ids::copyRows, ids::openInWindow, 9271, 9272, 0, ids::markRead, ids::markUnread, ids::turnStar,
          ids::markAllRead, 0, 2051, 2053, 5061}},
        {"where the back end writes rows",
         {.onRow = true, .isFull = true, .canExport = true},
         {},
         {},
         {ids::copyRows, ids::openInWindow, 9271, 9272, ids::exportRows, 0, 2051, 2053, 5061}},
        {"the full menu of a search", {.mode = ListIndex::Search, .isFull = true}, {}, {}, {5061}},
        {"a search", {.mode = ListIndex::Search, .onRow = true}, {}, {}, {5061, 2051, 9271, 9272}},
        {"warrants", {.mode = ListIndex::Warrant}, {}, {}, {5061}},
        {"news that waits", {.mode = ListIndex::Search}, {waiting}, {}, {5061, ids::stopWaiting}},
        {"a notice that only tells", {.mode = ListIndex::Search}, {}, notices, {5061}},
        {"one that can be acted on", {.mode = ListIndex::Search}, {}, narrowed, {5061, ids::endNarrowing}},
    };
    for (const Case& c : cases) {
        for (const bool shown : {false, true}) {
            MenuSituation at = c.at;
            at.showsCategory = shown;
            const std::vector<MenuEntry> entries = contextMenuEntries(at, backEnd, c.waiting, c.notices);
            QList<int> commands;
            for (const MenuEntry& entry : entries)
                commands.append(entry.command);
            EXPECT_EQ(commands, c.commands) << c.what;
            const auto& category =
                entries.at(static_cast<std::size_t>(commands.indexOf(ids::changeCategoryState)));
            EXPECT_EQ(category.checked, shown) << c.what;
            EXPECT_EQ(category.caption.endsWith(u"\tCtrl+E"_s), at.isFull) << c.what;
        }
    }
    const std::vector<MenuEntry> entries = contextMenuEntries({}, backEnd, {}, narrowed);
    EXPECT_EQ(entries.back(), (MenuEntry{ids::endNarrowing, u"A && B"_s, {}})) << "no mnemonic";
}

}  // namespace wirepane
