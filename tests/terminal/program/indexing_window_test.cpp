// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/indexing_window.h"

#include "terminal/translations/languages.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace wirepane {

namespace {

QProgressDialog* shownProgress() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* progress = qobject_cast<QProgressDialog*>(window);
        if (progress != nullptr && progress->isVisible())
            return progress;
    }
    return nullptr;
}

TEST(IndexingWindow, ComesUpWhenItTakesLong) {
    Languages languages;
    ASSERT_TRUE(languages.use(QStringLiteral("zh-TW")));
    {
        IndexingWindow window;
        window.tell(1, 4);
        EXPECT_EQ(shownProgress(), nullptr) << "not at once";
        ASSERT_TRUE(QTest::qWaitFor([&] {
            window.tell(2, 4);
            return shownProgress() != nullptr;
        }));
        EXPECT_EQ(shownProgress()->value() * 2, shownProgress()->maximum());
        EXPECT_TRUE(shownProgress()->labelText().startsWith(QStringLiteral("正在重建")));
        QTest::keyClick(shownProgress(), Qt::Key_Escape);
        window.tell(3, 4);
        EXPECT_NE(shownProgress(), nullptr) << "it goes on, and there is nothing else to see";
        window.tell(4, 4);
    }
    EXPECT_EQ(shownProgress(), nullptr);

    IndexingWindow filling(TextId::FillingSample);
    ASSERT_TRUE(QTest::qWaitFor([&] {
        filling.tell(3, 4);
        return shownProgress() != nullptr;
    }));
    EXPECT_TRUE(shownProgress()->labelText().startsWith(QStringLiteral("正在準備")));
    filling.tell(6, 4);  // more than was thought
    EXPECT_EQ(shownProgress()->value(), shownProgress()->maximum());
}

}  // namespace

}  // namespace wirepane
