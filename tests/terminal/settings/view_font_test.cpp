// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/settings_file.h"
#include "terminal/settings/terminal_settings.h"

#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <numeric>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// How much light the strokes of a text give on black.
int inkOf(const QString& text, const QFont& font) {
    QImage picture(800, 60, QImage::Format_Grayscale8);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.setPen(Qt::white);
    painter.setFont(font);
    painter.drawText(picture.rect(), Qt::AlignCenter, text);
    painter.end();
    int sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const uchar* line = picture.constScanLine(y);
        sum = std::accumulate(line, line + picture.width(), sum);
    }
    return sum;
}

TEST(ViewFontTest, OnADarkGroundChineseAloneIsDrawnLighterWhereThereIsAFace) {
    const QTemporaryDir folder;
    SettingsFile file(folder.filePath(u"wirepane.json"_s));
    TerminalSettings settings(file);
    const QFont onLight = settings.SYS_fntGetViewFont();
    const QString letters = u"Quarterly figures 1234"_s;
    const QString chinese = u"營收創新高半導體"_s;
    for (const ColourScheme dark : {ColourScheme::Dark, ColourScheme::HighContrast}) {
        SCOPED_TRACE(schemeName(dark).toStdString());
        settings.setScheme(dark);
        const QFont onDark = settings.SYS_fntGetViewFont();
        EXPECT_EQ(inkOf(letters, onDark), inkOf(letters, onLight));
        if (QFontDatabase::styles(u"Noto Sans CJK TC"_s).contains(u"DemiLight"_s))
            EXPECT_LT(inkOf(chinese, onDark), inkOf(chinese, onLight));
        else
            EXPECT_EQ(inkOf(chinese, onDark), inkOf(chinese, onLight));
    }
}

}  // namespace

}  // namespace wirepane
