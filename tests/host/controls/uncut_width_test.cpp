// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/uncut_width.h"

#include <QFontMetrics>
#include <QGuiApplication>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

TEST(UncutWidthTest, NoTextIsCutAtAnySize) {
    QFont font = QGuiApplication::font();
    font.setHintingPreference(QFont::PreferNoHinting);
    QStringList texts{u"+1.04"_s, u"Ranhe Semiconductor"_s, u"苒禾半導體"_s, u"Wave…"_s};
    for (int code = 1000; code < 1100; ++code)
        texts.append(QString::number(code));
    int roundedDown = 0;
    for (int quarter = 24; quarter <= 120; ++quarter) {
        font.setPointSizeF(quarter / 4.0);
        const QFontMetrics metrics(font);
        for (const QString& text : texts) {
            const auto cut = [&](int width) {
                return metrics.elidedText(text, Qt::ElideRight, width) != text;
            };
            EXPECT_FALSE(cut(uncutWidth(metrics, text))) << qPrintable(text) << quarter / 4.0;
            roundedDown += cut(metrics.horizontalAdvance(text)) ? 1 : 0;
        }
    }
    EXPECT_GT(roundedDown, 0) << "the sizes hold no case that matters";
    EXPECT_EQ(uncutWidth(QFontMetrics(font), {}), 0);
}

}  // namespace

}  // namespace wirepane
