// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/reading.h"

#include "host/contract/cfg_io.h"
#include "host/contract/reading_marks.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "news_view/unread_counts.h"
#include "tests/news_view/fake_view.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

class MarkingBackEnd : public FakeBackEnd, public ReadingMarks {
public:
    bool canMark() const override { return isWritable; }
    ReadingMark markOf(const HeadlineKey& key) override { return kept.value(key.sequence); }
    void changeMarks(std::vector<HeadlineKey> keys, const MarkChange& change) override {
        for (const HeadlineKey& key : keys)
            kept[key.sequence] = changedMark(kept[key.sequence], change, 1);
        emit teller.changed(keys);
    }
    void findUnread(std::vector<HeadlineKey> keys, std::size_t most, QObject* asker,
                    std::function<void(const std::vector<HeadlineKey>&)> tell) override {
        std::vector<HeadlineKey> found;
        for (const HeadlineKey& key : keys) {
            if (markOf(key).state == ReadingState::New && found.size() < most)
                found.push_back(key);
        }
        QMetaObject::invokeMethod(
            asker, [found, tell] { tell(found); }, Qt::QueuedConnection);
    }
    MarkTeller& markTeller() override { return teller; }

    bool isWritable = true;
    QHash<int, ReadingMark> kept;  // by number
    MarkTeller teller;
};

class ReadingTest : public testing::Test {
protected:
    ReadingTest() {
        for (int number = 1; number <= 3; ++number)
            view.add(number);
        setOption(true);
        view.read();
        view.listOf(ListIndex::All).vFillHeadline();
    }
    void setOption(bool on) {
        MemoryCfgIO stored;
        stored.setViewInfo({}, u"UnreadCounts"_s, on);
        stored.setViewInfo({}, u"ReadingMarks"_s, on);
        view.settings.options = ViewOptions::read(stored, {});
        view.listOf(ListIndex::All).setOptions(view.settings.options);
    }
    ReadingState state(int number) { return backEnd.kept.value(number).state; }
    // What is read out of the titles.
    QStringList spoken() {
        QStringList told;
        for (int row = 0; row < 3; ++row)
            told += view.grid()->model()->index(row, 2).data(Qt::AccessibleTextRole).toString();
        return told;
    }

    MarkingBackEnd backEnd;
    FakeView view{backEnd};
    std::vector<CHeadlineTable> selected;
    std::optional<CHeadlineTable> inPane;
    const CommonParts parts = view.parts();
    QStringList sentences;
    Reading reading{view,
                    parts,
                    {[this] { return selected; }, [this] { return inPane; },
                     [this](const QString& sentence) { sentences += sentence; }}};
};

TEST_F(ReadingTest, WhatAHandOpensIsReadAndWhatStandsIsSeenAndThenRead) {
    const CHeadlineTable first = view.entryAt(ListIndex::All, 0);
    const CHeadlineTable second = view.entryAt(ListIndex::All, 1);
    reading.noteShown(first, true);
    EXPECT_EQ(state(first.sequence), ReadingState::Read);

    view.window.show();
    view.window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view.window));
    inPane = second;
    reading.noteShown(second, false);
    EXPECT_EQ(state(second.sequence), ReadingState::New);
    EXPECT_TRUE(QTest::qWaitFor([&] { return state(second.sequence) == ReadingState::Seen; }, 3000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return state(second.sequence) == ReadingState::Read; }, 6000));
}

TEST_F(ReadingTest, WhatNobodyLooksAtStaysNew) {
    const CHeadlineTable first = view.entryAt(ListIndex::All, 0);
    inPane = first;
    reading.noteShown(first, false);
    QTest::qWait(1200);
    EXPECT_EQ(state(first.sequence), ReadingState::New) << "no window is active";
}

TEST_F(ReadingTest, CommandsChangeTheSelectedRowsAndAllOfThem) {
    selected = {view.entryAt(ListIndex::All, 0), view.entryAt(ListIndex::All, 2)};
    EXPECT_TRUE(reading.carryOut(ids::markRead));
    EXPECT_EQ(spoken().filter(u"STATE_UNREAD"_s).size(), 1);
    EXPECT_TRUE(reading.carryOut(ids::turnStar));
    EXPECT_TRUE(reading.isStarred());
    EXPECT_EQ(spoken().filter(u"STATE_STARRED"_s).size(), 2);
    EXPECT_EQ(view.listOf(ListIndex::All).mark(0, 2), u"\u2605"_s);
    EXPECT_TRUE(reading.carryOut(ids::turnStar));
    EXPECT_TRUE(reading.carryOut(ids::markUnread));
    EXPECT_EQ(spoken().filter(u"STATE_UNREAD"_s).size(), 3);
    EXPECT_TRUE(reading.carryOut(ids::markAllRead));
    EXPECT_EQ(spoken().filter(u"STATE"_s), QStringList());
    EXPECT_FALSE(reading.carryOut(ids::copyRows));
}

TEST_F(ReadingTest, ATabCountsWhatIsUnreadInItsList) {
    view.controls.createTabStrip({0, 0, 600, 30});
    view.controls.addTab(ListIndex::All);
    const auto* strip = view.controls.find<CXTPTabControl>(ids::tabStrip);
    UnreadCounts counts(view, parts);
    const auto says = [&](const QString& count) {
        return QTest::qWaitFor([&] { return strip->badge(0) == count; }, 2000);
    };
    counts.forget(ListIndex::All);
    EXPECT_TRUE(says(u"3"_s));
    const CHeadlineTable first = view.entryAt(ListIndex::All, 0);
    backEnd.changeMarks({keyOf(first)}, {.state = ReadingState::Read});
    EXPECT_TRUE(says(u"2"_s));
    const CHeadline fresh{1, first.time + 1, 9, u"Fresh"_s, 0, 1, 0};
    counts.noteMoved(ListIndex::All, view.listOf(ListIndex::All).vProcessNewHeadline(fresh, false));
    EXPECT_TRUE(says(u"3"_s));
    // Sent again it moves, and counts once.
    counts.noteMoved(ListIndex::All, view.listOf(ListIndex::All).vProcessNewHeadline(fresh, false));
    QTest::qWait(300);
    EXPECT_EQ(strip->badge(0), u"3"_s);
    counts.noteMoved(ListIndex::All, view.listOf(ListIndex::All).takeOut(0));
    EXPECT_TRUE(says(u"2"_s));
    for (int number = 10; number < 1100; ++number)
        view.add(number);
    view.read();
    counts.forget(ListIndex::All);
    EXPECT_TRUE(says(u"999+"_s));
    // More than were counted have gone; the others are found.
    for (int row = 0; backEnd.kept.size() < 201; ++row)
        backEnd.changeMarks({keyOf(view.entryAt(ListIndex::All, row))}, {.state = ReadingState::Read});
    EXPECT_TRUE(says(u"892"_s));
    setOption(false);
    counts.showAgain();
    EXPECT_EQ(strip->badge(0), QString());
}

TEST_F(ReadingTest, NothingIsMarkedUnasked) {
    const struct {
        const char* what;
        bool isOn;
        bool isWritable;
    } cases[] = {{"a bare view", false, true}, {"what can only be read", true, false}};
    for (const auto& one : cases) {
        setOption(one.isOn);
        backEnd.isWritable = one.isWritable;
        selected = {view.entryAt(ListIndex::All, 0)};
        reading.noteShown(selected.front(), true);
        reading.carryOut(ids::turnStar);
        reading.carryOut(ids::markAllRead);
        EXPECT_TRUE(backEnd.kept.isEmpty()) << one.what;
        EXPECT_FALSE(reading.isOn()) << one.what;
    }
    EXPECT_EQ(sentences, QStringList(2, u"IDS_NEWSCTRLVIEW_NOTHING_MARKED"_s)) << "once for each command";
    setOption(false);
    EXPECT_EQ(view.listOf(ListIndex::All).tone(0), SheetCells::Tone::Plain);
    EXPECT_EQ(spoken().filter(u"STATE"_s), QStringList());
}

}  // namespace
}  // namespace wirepane
