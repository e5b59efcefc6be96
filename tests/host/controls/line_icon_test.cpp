// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/line_icon.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace wirepane {

namespace {

// The rectangle of what is drawn, in units of the icons' grid.
QRectF inkOf(LineIcon icon) {
    constexpr int scale = 10;
    QImage picture(16 * scale, 16 * scale, QImage::Format_ARGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    drawLineIcon(painter, icon, picture.rect(), Qt::black, 0.4);
    painter.end();
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < 128)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return {ink.x() / qreal(scale), ink.y() / qreal(scale), ink.width() / qreal(scale),
            ink.height() / qreal(scale)};
}

TEST(LineIconTest, EachPathIsReadToItsEndAndStaysOnTheGrid) {
    for (int i = 0; i < static_cast<int>(LineIcon::Count); ++i) {
        const QRectF ink = inkOf(static_cast<LineIcon>(i));
        EXPECT_FALSE(ink.isEmpty()) << i;
        EXPECT_TRUE(QRectF(1.5, 1.5, 13, 13).contains(ink)) << i;
    }
    // One of each kind: arcs that turn right and left, lines alone, a curve.
    const std::pair<LineIcon, QRectF> cases[] = {
        {LineIcon::Search, {2.55, 2.55, 11.15, 11.15}}, {LineIcon::Connect, {4.05, 2.3, 7.9, 11.65}},
        {LineIcon::Print, {2.55, 2.55, 10.9, 10.9}},    {LineIcon::Bell, {3.05, 3.55, 9.9, 10.15}},
        {LineIcon::Feed, {2.55, 3.55, 9.9, 9.9}},
    };
    for (const auto& [icon, expected] : cases) {
        const QRectF ink = inkOf(icon);
        EXPECT_NEAR(ink.left(), expected.left(), 0.15) << static_cast<int>(icon);
        EXPECT_NEAR(ink.top(), expected.top(), 0.15) << static_cast<int>(icon);
        EXPECT_NEAR(ink.right(), expected.right(), 0.15) << static_cast<int>(icon);
        EXPECT_NEAR(ink.bottom(), expected.bottom(), 0.15) << static_cast<int>(icon);
    }
}

TEST(LineIconTest, AnIconFollowsThePalette) {
    const QPalette before = QGuiApplication::palette();
    const QIcon icon = lineIcon(LineIcon::Add);
    for (const QColor colour : {QColor(200, 0, 0), QColor(0, 0, 200)}) {
        QPalette palette;
        palette.setColor(QPalette::ButtonText, colour);
        QGuiApplication::setPalette(palette);
        EXPECT_EQ(icon.pixmap(QSize(64, 64)).toImage().pixelColor(32, 32), colour);
    }
    QGuiApplication::setPalette(before);
}

}  // namespace

}  // namespace wirepane
