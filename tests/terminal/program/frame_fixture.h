// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/clock.h"
#include "terminal/session/frame_commands.h"
#include "terminal/session/session.h"
#include "tests/terminal/program/program_runner.h"

#include <QApplication>
#include <QDateTime>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>

namespace wirepane::test {

// The whole desk in this process, at noon of a fixed day, on a sample store or, as a user begins, on an empty
// one whose list of sources is read.
class FrameFixture : public testing::Test {
protected:
    explicit FrameFixture(int width, bool isEmpty = false) {
        const QDateTime noon(QDate(2026, 3, 2), QTime(12, 0));
        host_clock::startAt(noon.toSecsSinceEpoch());
        SessionOptions options{scratch.path(QStringLiteral("news.wirepane")),
                               scratch.path(QStringLiteral("config")), QStringLiteral("en"), !isEmpty};
        options.readsSources = isEmpty;
        auto opened = Session::open(options);
        session = std::move(opened.value());
        commands = std::make_unique<FrameCommands>(*session);
        session->frame().resize(width, 800);
        session->frame().show();
        session->frame().activateWindow();
        EXPECT_TRUE(session->keeper().restore());
        EXPECT_TRUE(QTest::qWaitFor([this] { return session->frame().isActiveWindow(); }));
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QWidget* target = QApplication::focusWidget();
        QTest::keyClick(target != nullptr ? target : &session->frame(), static_cast<Qt::Key>(key), modifiers);
        QCoreApplication::processEvents();
    }

    Scratch scratch;
    std::unique_ptr<Session> session;
    std::unique_ptr<FrameCommands> commands;
};

}  // namespace wirepane::test
