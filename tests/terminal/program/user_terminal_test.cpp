// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/clock.h"
#include "host/controls/super_sheet_wnd.h"
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

TEST(TourTest, LeavesAPictureOfEachScene) {
    const Scratch scratch;
    const ProgramOutcome tour = runProgram({u"--tour"_s, scratch.path(u"out"_s)});
    ASSERT_EQ(tour.status, 0) << tour.err.toStdString();
    EXPECT_TRUE(tour.err.contains(scratch.path(u"out"_s))) << tour.err.toStdString();
    const QStringList pictures = QDir(scratch.path(u"out"_s)).entryList(QDir::Files, QDir::Name);
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
