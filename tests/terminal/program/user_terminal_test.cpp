// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/clock.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "terminal/automation/user_input.h"
#include "terminal/session/frame_commands.h"
#include "terminal/session/session.h"
#include "tests/terminal/program/program_runner.h"

#include <QDir>
#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane;
using namespace wirepane::test;

namespace {

class UserTerminalTest : public testing::Test {
protected:
    UserTerminalTest() { host_clock::startAt(moment(u"2026-03-02T12:00:00"_s)); }

    static std::int64_t moment(const QString& text) {
        return QDateTime::fromString(text, Qt::ISODate).toSecsSinceEpoch();
    }
    std::unique_ptr<Session> open() {
        auto session =
            Session::open({scratch.path(u"news.wirepane"_s), scratch.path(u"config"_s), u"en"_s, true});
        EXPECT_TRUE(session) << (session ? "" : session.error().toStdString());
        if (!session)
            return nullptr;
        session.value()->frame().show();
        const Done opened = session.value()->keeper().restore();
        EXPECT_TRUE(opened) << (opened ? "" : opened.error().toStdString());
        return std::move(session.value());
    }
    static QVariantMap stateOf(Session& session) { return session.workspace().newest()->access->State(); }

    Scratch scratch;
};

TEST_F(UserTerminalTest, OpensAsItWasClosed) {
    {
        const auto session = open();
        ASSERT_NE(session, nullptr);
        const FrameCommands commands(*session);
        ASSERT_EQ(stateOf(*session)[u"mode"_s].toInt(), 0);
        auto* tabs = qobject_cast<QTabBar*>(GetDlgItem(session->workspace().newest()->view, 3100));
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
    EXPECT_EQ(session->settings().fontSize(), 10);
}

TEST_F(UserTerminalTest, ReadAsOfAnotherDayShowsThatDay) {
    const auto session = open();
    ASSERT_NE(session, nullptr);
    EXPECT_EQ(stateOf(*session)[u"pickedDate"_s].toInt(), 20260302);
    EXPECT_GT(session->workspace().newest()->access->Sheet(0)->iGetRowCount(), 0);
    ASSERT_TRUE(session->readAsOf(moment(u"2026-02-27T10:00:00"_s)));
    ASSERT_EQ(session->workspace().views().size(), 1U);
    EXPECT_EQ(stateOf(*session)[u"pickedDate"_s].toInt(), 20260227);
}

TEST_F(UserTerminalTest, ADamagedSettingsFileDoesNotKeepTheTerminalShut) {
    ASSERT_TRUE(QDir().mkpath(scratch.path(u"config"_s)));
    scratch.write(u"config/wirepane.ini"_s, "[view\n\0\0garbage");
    const auto session = open();
    ASSERT_NE(session, nullptr);
    EXPECT_TRUE(session->settingsMessage().contains(u"wirepane.ini.damaged-1"_s))
        << session->settingsMessage().toStdString();
}

TEST(TourTest, LeavesAPictureOfEachSceneAndThePrintedAndSavedNews) {
    const Scratch scratch;
    const ProgramOutcome tour = runProgram({u"--tour"_s, scratch.path(u"out"_s)});
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
