// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // Times are shown in local time; the tests work out theirs for this zone (UTC+8, no daylight saving).
    qputenv("TZ", "Asia/Taipei");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
