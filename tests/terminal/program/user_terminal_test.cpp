// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/feed_name.h"
#include "backend/lines/own_socket.h"
#include "host/contract/clock.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "terminal/automation/user_input.h"
#include "terminal/session/frame_commands.h"
#include "terminal/session/session.h"
#include "tests/terminal/program/program_runner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QLocalSocket>
#include <QStatusBar>
#include <QTest>

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

class UserTerminalTest : public testing::Test {
protected:
    UserTerminalTest() { host_clock::startAt(moment(u"2026-03-02T12:00:00"_s)); }

    static std::int64_t moment(const QString& text) {
        return QDateTime::fromString(text, Qt::ISODate).toSecsSinceEpoch();
    }
    std::unique_ptr<Session> open(bool followsSample = false) {
        auto session = Session::open({scratch.path(u"news.wirepane"_s),
                                      scratch.path(u"config"_s),
                                      u"en"_s,
                                      true,
                                      {},
                                      false,
                                      followsSample});
        EXPECT_TRUE(session) << (session ? "" : sentence(session.error()).toStdString());
        if (!session)
            return nullptr;
        session.value()->frame().show();
        const Done opened = session.value()->keeper().restore();
        EXPECT_TRUE(opened) << (opened ? "" : sentence(opened.error()).toStdString());
        return std::move(session.value());
    }
    static QVariantMap stateOf(Session& session) { return session.workspace().newest()->access->state(); }

    Scratch scratch;
};

TEST_F(UserTerminalTest, OpensAsItWasClosed) {
    {
        const auto session = open();
        ASSERT_NE(session, nullptr);
        const FrameCommands commands(*session);
        ASSERT_EQ(stateOf(*session)[u"mode"_s].toInt(), 0);
        auto* tabs = qobject_cast<QTabBar*>(dlgItem(session->workspace().newest()->view, ids::tabStrip));
        ASSERT_NE(tabs, nullptr);
        clickTab(*tabs, 1);
        emit session->frame().schemeChosen(u"dark"_s);
        emit session->frame().commanded(FrameCommand::FontLarger);
        session->frame().close();
    }
    const auto session = open();
    ASSERT_NE(session, nullptr);
    EXPECT_EQ(stateOf(*session)[u"mode"_s].toInt(), 1);
    EXPECT_EQ(session->settings().scheme(), ColourScheme::Dark);
    EXPECT_EQ(session->settings().fontSize(), TerminalSettings::usualFont + 1);
}

TEST_F(UserTerminalTest, ATerminalWhoseCommonFeedNameIsTakenOpensAndSaysSoWhereThatMatters) {
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(scratch.path(u""_s)));
    const QString path = socketPath(defaultFeedName).value();
    const auto other = OwnSocket::listen(path);
    ASSERT_TRUE(other) << sentence(other.error()).toStdString();
    SessionOptions options{scratch.path(u"news.wirepane"_s), scratch.path(u"config"_s), u"en"_s, false};
    options.sources = {{u"feed"_s, defaultFeedName}};
    options.stores = UserStores{scratch.path(u"own"_s), scratch.path(u"sample"_s)};
    for (const StoreKind kind : {StoreKind::Own, StoreKind::Sample}) {
        options.storeKind = kind;
        const auto quiet = Session::open(options);
        ASSERT_TRUE(quiet) << sentence(quiet.error()).toStdString();
        EXPECT_EQ(quiet.value()->frame().notices(), QString()) << "the store brings what the other one takes";
    }
    options.stores.reset();
    options.storeKind.reset();
    const auto session = Session::open(options);
    qputenv("XDG_RUNTIME_DIR", before);
    ASSERT_TRUE(session) << sentence(session.error()).toStdString();
    EXPECT_EQ(session.value()->frame().notices(),
              u"The local socket %1 cannot be opened: it is in use by another program."_s.arg(path));
    const auto labels = session.value()->frame().statusBar()->findChildren<QLabel*>();
    const bool isShown = std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->toolTip().contains(u"wirepane-feed: Failed since "_s);
    });
    EXPECT_TRUE(isShown) << "beside the other sources, over the state of the feed";
}

TEST_F(UserTerminalTest, FeedsAndTheUserHimselfLeadFromTheSampleToHisOwnNews) {
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(scratch.path(u""_s)));
    SessionOptions options{{}, scratch.path(u"config"_s), u"en"_s, false};
    options.stores = UserStores{scratch.path(u"own"_s), scratch.path(u"sample"_s)};
    options.sources = {{u"feed"_s, defaultFeedName}};
    const auto leave = [&](const std::function<void(Session&)>& how) {
        auto session = Session::open(options);
        EXPECT_TRUE(session) << (session ? "" : sentence(session.error()).toStdString());
        session.value()->frame().show();
        const QString store = QFileInfo(session.value()->storePath()).fileName();
        how(*session.value());
        EXPECT_TRUE(QTest::qWaitFor([&] { return !session.value()->frame().isVisible(); }));
        const auto& onward = session.value()->onward();
        options.storeKind = onward ? std::optional(onward->kind) : std::nullopt;
        return store + (onward && onward->kind == StoreKind::Own ? u" to own"_s : u" to sample"_s);
    };
    EXPECT_EQ(leave([](Session& session) {
                  FrameCommands(session).importFiles({u"a file"_s});
                  EXPECT_EQ(session.onward()->files, QStringList(u"a file"_s));
              }),
              u"sample to own"_s);
    EXPECT_EQ(leave([](Session& session) {
                  const FrameCommands commands(session);
                  emit session.frame().commanded(FrameCommand::OtherStore);
              }),
              u"own to sample"_s);
    EXPECT_EQ(leave([](Session& session) {
                  QLocalSocket feed;
                  feed.connectToServer(socketPath(defaultFeedName).value());
                  EXPECT_TRUE(feed.waitForConnected());
                  QTest::qWait(50);
                  EXPECT_FALSE(session.onward()) << "who says nothing only asks whether somebody is there";
                  feed.write("{}\n");
                  feed.flush();
                  EXPECT_TRUE(QTest::qWaitFor([&] { return session.onward().has_value(); }));
              }),
              u"sample to own"_s);
    qputenv("XDG_RUNTIME_DIR", before);
}

// Run a second time where no font has Chinese.
TEST_F(UserTerminalTest, SaysThatChineseCannotBeShown) {
    const bool without = qEnvironmentVariableIsSet("WIREPANE_TEST_WITHOUT_CHINESE");
    const auto session = open();
    ASSERT_NE(session, nullptr);
    EXPECT_EQ(session->frame().notices().contains(u"fonts-noto-cjk"_s), without)
        << session->frame().notices().toStdString();
}

TEST_F(UserTerminalTest, ReadAsOfAnotherDayShowsThatDay) {
    const auto session = open();
    ASSERT_NE(session, nullptr);
    EXPECT_EQ(stateOf(*session)[u"pickedDate"_s].toInt(), 20260302);
    EXPECT_GT(session->workspace().newest()->access->sheetOf(0)->rowCount(), 0);
    ASSERT_TRUE(session->readAsOf(moment(u"2026-02-27T10:00:00"_s)));
    ASSERT_EQ(session->workspace().views().size(), 1U);
    EXPECT_EQ(stateOf(*session)[u"pickedDate"_s].toInt(), 20260227);
}

TEST_F(UserTerminalTest, ReadingAsOfAMomentEndsThereAndGoesOnAsTheClockRuns) {
    const auto session = open();
    ASSERT_NE(session, nullptr);
    const auto rows = [&] { return session->workspace().newest()->access->sheetOf(0)->rowCount(); };
    const auto newest = [&] { return session->workspace().newest()->access->keysOf(0, 0, 1).front().time; };
    const auto clock = [&] {
        QStringList shown;
        for (const QLabel* label : session->frame().statusBar()->findChildren<QLabel*>()) {
            if (label->text().startsWith(u"As of "_s))
                shown.append(label->text());
        }
        return shown.join(u'|');
    };
    const auto isTold = [&] {
        const QVariant notice = session->workspace().newest()->access->state()[u"notice"_s];
        return notice.toString().contains(u"As of an earlier moment"_s);
    };
    const int whole = rows();
    NewsItem live;
    live.service = 1;
    live.title = u"Ahead of the clock"_s;
    live.identity = u"ahead"_s;
    live.time = moment(u"2026-03-02T12:30:00"_s);
    ASSERT_TRUE(session->backEnd().takeIn(live));
    EXPECT_EQ(rows(), whole + 1) << "the clock that was set at the start does not hold live news back";

    ASSERT_TRUE(session->readAsOf(moment(u"2026-03-02T10:00:00"_s)));
    const int atTen = rows();
    EXPECT_LT(atTen, whole);
    EXPECT_LE(newest(), moment(u"2026-03-02T10:00:00"_s));
    EXPECT_EQ(clock(), u"As of 2026/03/02 10:00"_s);
    EXPECT_TRUE(isTold());
    live.identity = u"meanwhile"_s;
    ASSERT_TRUE(session->backEnd().takeIn(live));
    EXPECT_EQ(rows(), atTen) << "somebody reads the past while the wire goes on";

    host_clock::startAt(moment(u"2026-03-02T11:30:00"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return rows() > atTen && clock() == u"As of 2026/03/02 11:30"_s; }));
    EXPECT_LE(newest(), moment(u"2026-03-02T11:30:00"_s) + 5);
    host_clock::startAt(moment(u"2026-03-02T12:30:10"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return rows() == whole + 2; })) << rows() << " of " << whole + 2;
    ASSERT_TRUE(session->readAsOf(QDateTime::currentSecsSinceEpoch()));
    EXPECT_EQ(clock(), QString());
    EXPECT_FALSE(isTold());
    EXPECT_EQ(session->frame().notices(), QString());
    live.identity = u"later"_s;
    live.time = QDateTime::currentSecsSinceEpoch() + 3600;
    ASSERT_TRUE(session->backEnd().takeIn(live));
    EXPECT_TRUE(session->frame().notices().contains(u"is dated ahead"_s))
        << session->frame().notices().toStdString();
}

TEST_F(UserTerminalTest, TheSampleWireGoesOnUntilTheStoreHoldsOtherNews) {
    const auto statusSaysInvented = [](Session& session) {
        const auto labels = session.frame().statusBar()->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [](const QLabel* label) { return label->text().contains(u"invented news"_s); });
    };
    const auto sampleState = [](Session& session) {
        for (const SourceReport& source : session.feed().sources()) {
            if (source.name == u"wirepane-sample-wire"_s)
                return static_cast<int>(source.state.kind);
        }
        return -1;
    };
    {
        const auto session = open(true);
        ASSERT_NE(session, nullptr);
        EXPECT_TRUE(QTest::qWaitFor([&] { return sampleState(*session) == SourceState::Live; }));
        EXPECT_TRUE(QTest::qWaitFor([&] { return statusSaysInvented(*session); }));
        NewsItem real;
        real.identity = u"real"_s;
        real.title = u"Real"_s;
        real.time = host_clock::now();
        ASSERT_TRUE(session->backEnd().takeIn(real));
    }
    const auto session = open(true);
    ASSERT_NE(session, nullptr);
    EXPECT_EQ(sampleState(*session), -1);
    EXPECT_FALSE(statusSaysInvented(*session));
}

TEST_F(UserTerminalTest, ADamagedSettingsFileDoesNotKeepTheTerminalShut) {
    ASSERT_TRUE(QDir().mkpath(scratch.path(u"config"_s)));
    scratch.write(u"config/wirepane.json"_s, "[view\n\0\0garbage");
    const auto session = open();
    ASSERT_NE(session, nullptr);
    EXPECT_TRUE(session->settingsMessage().contains(u"wirepane.json.damaged-1"_s))
        << session->settingsMessage().toStdString();
}

TEST(TourTest, LeavesAPictureOfEachSceneAndThePrintedAndSavedNews) {
    const Scratch scratch;
    const QStringList arguments{u"--tour"_s,   scratch.path(u"out"_s),
                                u"--store"_s,  scratch.path(u"store"_s),
                                u"--config"_s, scratch.path(u"config"_s)};
    ASSERT_EQ(runProgram(arguments).status, 0);
    // Again, over what the first one has left behind.
    const ProgramOutcome tour = runProgram(arguments);
    ASSERT_EQ(tour.status, 0) << tour.err.toStdString();
    EXPECT_TRUE(tour.err.contains(scratch.path(u"out"_s))) << tour.err.toStdString();
    QFile pages(scratch.path(u"out/news.pdf"_s));
    QFile text(scratch.path(u"out/news.txt"_s));
    ASSERT_TRUE(pages.open(QIODevice::ReadOnly) && text.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pages.read(5) == "%PDF-");
    EXPECT_EQ(text.readAll().count(" News No. "), 3);
    const QStringList pictures =
        QDir(scratch.path(u"out"_s)).entryList({u"*.png"_s}, QDir::Files, QDir::Name);
    ASSERT_GE(pictures.size(), 3);
    QList<QImage> images;
    for (const QString& name : pictures) {
        const QImage image(QDir(scratch.path(u"out"_s)).filePath(name));
        EXPECT_GT(image.width(), 600) << name.toStdString();
        EXPECT_FALSE(images.contains(image)) << name.toStdString();
        images.append(image);
    }
}

}  // namespace

}  // namespace wirepane
