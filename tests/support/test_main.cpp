// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QFontInfo>

#include <cstdio>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // Times are shown in local time; the tests work out theirs for this zone (UTC+8, no daylight saving).
    qputenv("TZ", "Asia/Taipei");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Started by hand, too, tests see their own fonts and not the desktop's.
    if (qEnvironmentVariableIsEmpty("FONTCONFIG_FILE"))
        qputenv("FONTCONFIG_FILE", WIREPANE_TEST_FONTS);
    QApplication application(argc, argv);
    const QString wanted = qEnvironmentVariable("WIREPANE_TEST_FONT");
    const QString family = QFontInfo(QApplication::font()).family();
    if (!wanted.isEmpty() && family != wanted) {
        std::fprintf(stderr, "The default font is \"%s\" and not \"%s\": is its package installed?\n",
                     qUtf8Printable(family), qUtf8Printable(wanted));
        return 1;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
