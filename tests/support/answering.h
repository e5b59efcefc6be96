// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>

namespace wirepane {

// Does `work`, which opens a modal window now or soon, and lets `reply` see to that window.
template <class Window>
void answering(const std::function<void()>& work, const std::function<void(Window&)>& reply) {
    bool answered = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
        if (window == nullptr)
            return;
        look.stop();
        answered = true;
        reply(*window);
    });
    look.start(5);
    work();
    EXPECT_TRUE(QTest::qWaitFor([&] { return answered; }));
}

}  // namespace wirepane
