// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/news_control_ids.h"
#include "terminal/settings/settings_file.h"
#include "terminal/settings/workspace_layout.h"
#include "tests/terminal/program/program_runner.h"
#include "tests/terminal/program/script_client.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

class OrderlyEndTest : public testing::TestWithParam<int> {
protected:
    QStringList arguments(const QStringList& more) const {
        return QStringList{u"--store"_s, scratch.path(u"news.wirepane"_s), u"--config"_s,
                           scratch.path(u"config"_s)} +
               more;
    }
    std::size_t keptViews() const {
        const SettingsFile file(scratch.path(u"config/wirepane.json"_s));
        return WorkspaceLayout::read(file).views.size();
    }

    Scratch scratch;
};

TEST_P(OrderlyEndTest, KeepsTheSettingsAndLeavesNoSockets) {
    const QString feed = scratch.path(u"feed"_s);
    const QString automation = scratch.path(u"script"_s);
    ScriptClient script(
        arguments({u"--workspace"_s, u"--feed"_s, feed, u"--automation-socket"_s, automation}));
    // A modal dialog is open, and the last change is not two seconds old.
    script.result(u"view.open"_s, QJsonObject{{u"docked"_s, true}});
    script.result(u"control.choose"_s,
                  QJsonObject{{u"view"_s, 2}, {u"id"_s, ids::tabStrip}, {u"index"_s, 3}});
    script.result(u"view.command"_s, QJsonObject{{u"view"_s, 2}, {u"id"_s, ids::dealsSearchButton}});
    ASSERT_FALSE(script.result(u"dialog.state"_s).isNull());
    ASSERT_TRUE(QFileInfo::exists(feed) && QFileInfo::exists(automation));
    EXPECT_EQ(script.end(GetParam()), 0) << script.notes().toStdString();
    EXPECT_FALSE(QFileInfo::exists(feed));
    EXPECT_FALSE(QFileInfo::exists(automation));
    EXPECT_EQ(keptViews(), 2U);
    for (const QFileInfo& file : QDir(scratch.path(u"config"_s)).entryInfoList(QDir::Files))
        EXPECT_EQ(file.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions())
            << file.fileName().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Signals, OrderlyEndTest, testing::Values(SIGTERM, SIGHUP, SIGINT));

TEST_F(OrderlyEndTest, AReplayTakesItsTerminalAndItsFolderWithIt) {
    const QString when = u"2026-03-02T09:00:00"_s;
    const QString later = u"2026-03-02T21:00:00"_s;
    const QByteArray day = ninjsItem(u"u:1"_s, u"Early"_s, u"Body"_s, when) + '\n' +
                           ninjsItem(u"u:2"_s, u"Late"_s, u"Body"_s, later);
    const QString store = scratch.path(u"day.wirepane"_s);
    ASSERT_EQ(runProgram({u"import"_s, u"--store"_s, store, scratch.write(u"day.jsonl"_s, day)}).status, 0);
    QDir temporary(scratch.path(u"temporary"_s));
    ASSERT_TRUE(temporary.mkpath(u"."_s));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TMPDIR"_s, temporary.path());
    // As on a desktop: without one the terminal would play its tour.
    environment.insert(u"DISPLAY"_s, u":0"_s);
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    QProcess replay;
    replay.setProcessEnvironment(environment);
    replay.start(programFile(),
                 {u"replay"_s, u"--open"_s, u"--store"_s, store, u"--date"_s, u"2026-03-02"_s});
    ASSERT_TRUE(replay.waitForStarted());
    const auto foldersLeft = [&temporary] { return temporary.entryList({u"wirepane*"_s}, QDir::Dirs); };
    const auto isOpen = [&temporary, &foldersLeft] {
        const QStringList folders = foldersLeft();
        return std::any_of(folders.begin(), folders.end(), [&temporary](const QString& folder) {
            return QFileInfo::exists(temporary.filePath(folder + u"/config/NewsService.ini"_s));
        });
    };
    ASSERT_TRUE(QTest::qWaitFor(isOpen, 30000));
    replay.terminate();
    ASSERT_TRUE(replay.waitForFinished(30000));
    EXPECT_EQ(replay.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(replay.exitCode(), 1);
    EXPECT_EQ(foldersLeft(), QStringList());
}

}  // namespace

}  // namespace wirepane
