// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/line_icon.h"

#include "host/controls/icon_path.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>

#include <algorithm>
#include <array>
#include <string_view>

namespace wirepane {

namespace {

constexpr std::size_t iconCount = static_cast<std::size_t>(LineIcon::Count);
constexpr qreal gridSide = 16;

// Path data in the order of LineIcon.
constexpr std::array<std::string_view, iconCount> iconData{
    "M2 4h12M4.5 8h7M6.75 12h2.5",                                                // services
    "M2.75 4.25h10.5v9h-10.5zM2.75 7.25h10.5M5.5 2.25v3M10.5 2.25v3",             // calendar
    "M7 2.75a4.25 4.25 0 1 1 0 8.5a4.25 4.25 0 1 1 0-8.5M10.25 10.25L13.5 13.5",  // search
    "M2.5 5h6M12 5h1.5M2.5 11h1.5M7.5 11h6M10.25 3.25a1.75 1.75 0 1 1 0 3.5a1.75 1.75 0 1 1 0-3.5M5.75 "
    "9.25a1.75 1.75 0 1 1 0 3.5a1.75 1.75 0 1 1 0-3.5",  // advanced
    "M4.5 2.75a1.75 1.75 0 1 1 0 3.5a1.75 1.75 0 1 1 0-3.5M11.5 9.75a1.75 1.75 0 1 1 0 3.5a1.75 1.75 0 1 1 "
    "0-3.5M4.5 6.25v5.25h5.25M11.5 9.75V4.5H6.25",                           // relation
    "M2.25 3.25h11.5v9.5h-11.5zM4.75 6h6.5M4.75 8h6.5M4.75 10h6.5",          // layout-list
    "M2.25 3.25h11.5v9.5h-11.5zM8.25 3.25v9.5M4.25 6h2M4.25 8h2M4.25 10h2",  // layout-right
    "M2.25 3.25h11.5v9.5h-11.5zM2.25 8.75h11.5M4.75 6h6.5",                  // layout-below
    "M3.5 6l4.5 4.5L12.5 6",                                                 // next
    "M3.5 10L8 5.5l4.5 4.5",                                                 // prev
    "M8 2.25v7.5M4.75 6.75L8 10l3.25-3.25M2.75 11v2.5h10.5V11",              // save
    "M4.75 6V2.75h6.5V6M4.75 11.5h-2V6h10.5v5.5h-2M4.75 9.25h6.5v4h-6.5z",   // print
    "M5.75 5.75h7.5v7.5h-7.5zM3.5 10.25h-.75v-7.5h7.5v.75",                  // copy
    "M2.75 5.75h7.5v7.5h-7.5zM5.75 3.5v-.75h7.5v7.5h-.75",                   // window
    "M4 4l8 8M12 4l-8 8",                                                    // close
    "M5.5 2.5h5M6.25 2.5v4.25L4 9.5h8L9.75 6.75V2.5M8 9.5v4.25",             // pin
    "M3.25 11.5h9.5c-1-1-1.25-2.25-1.25-4.25a3.5 3.5 0 0 0-7 0c0 2-.25 3.25-1.25 4.25M6.75 13.5h2.5",  // bell
    "M3.25 11.5h9.5c-1-1-1.25-2.25-1.25-4.25a3.5 3.5 0 0 0-7 0c0 2-.25 3.25-1.25 4.25M6.75 13.5h2.5M2.5 "
    "2.5l11 11",                                                                    // bell-off
    "M8 2.5l1.7 3.5 3.8.5-2.75 2.7.65 3.8L8 11.2l-3.4 1.8.65-3.8L2.5 6.5l3.8-.5z",  // star
    "M8 2.25v7M5 6.5l3 3 3-3M2.75 8.5v5h10.5v-5",                                   // import
    "M6 2.5v3M10 2.5v3M4.25 5.5h7.5v2a3.75 3.75 0 0 1-7.5 0zM8 11.25v2.5",          // connect
    "M5.75 3.5v9M10.25 3.5v9",                                                      // pause
    "M5 3.25l7.25 4.75L5 12.75z",                                                   // play
    "M12.9 6.75a5.1 5.1 0 1 0 .1 2.25M13.25 3.25v3.5h-3.5",                         // refresh
    "M3 13l.5-2.75L10.75 3 13 5.25 5.75 12.5zM9.25 4.5l2.25 2.25",                  // edit
    "M3 4.5h10M6.25 4.5V2.75h3.5V4.5M4.25 4.5l.5 8.75h6.5l.5-8.75",                 // remove
    "M8 3v10M3 8h10",                                                               // add
    "M3.25 8.5l3 3 6.5-7",                                                          // check
    "M4.5 6.5L8 10l3.5-3.5",                                                        // down
    "M9.75 4L5.75 8l4 4",                                                           // left
    "M6.25 4l4 4-4 4",                                                              // right
    "M2 12.5l3.5-9 3.5 9M3.25 9.5h4.5M12 5v4M10 7h4",                               // larger
    "M2 12.5l3.5-9 3.5 9M3.25 9.5h4.5M10 7h4",                                      // smaller
    "M8 2.5a5.5 5.5 0 1 1 0 11a5.5 5.5 0 1 1 0-11M8 5v3.25l2.25 1.5",               // clock
    "M8 2.75L14 13.25H2zM8 6.5v3.25M8 11.4v.1",                                     // warning
    "M2.75 3.25h8.5v9.5h-7.25a1.25 1.25 0 0 1-1.25-1.25zM11.25 6h2v5.5a1.25 1.25 0 0 1-1.25 1.25h-1M5 6h4M5 "
    "8.25h4M5 10.5h2.5",                                                               // news
    "M2.5 13.25h11M4.5 11V7M8 11V3M11.5 11V5.5",                                       // quotes
    "M4 12.75v-.01M2.75 8a5.25 5.25 0 0 1 5.25 5.25M2.75 3.75a9.5 9.5 0 0 1 9.5 9.5",  // feed
    "M2.25 4h4l1.5 1.75h6v7h-11.5z",                                                   // folder
    "M2 5.5h6v5H2M8 8h6M11.75 5.75L14 8l-2.25 2.25",                                   // pipe
    "M4 8v.01M8 8v.01M12 8v.01",                                                       // more
};

const QPainterPath& pathOf(LineIcon icon) {
    static const auto paths = [] {
        std::array<QPainterPath, iconCount> read;
        std::transform(iconData.begin(), iconData.end(), read.begin(), iconPath);
        return read;
    }();
    return paths.at(static_cast<std::size_t>(icon));
}

class LineIconEngine : public QIconEngine {
public:
    LineIconEngine(LineIcon drawnIcon, QPalette::ColorRole colourRole) : icon(drawnIcon), role(colourRole) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State /*state*/) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        drawLineIcon(*painter, icon, place, QGuiApplication::palette().color(group, role));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new LineIconEngine(*this); }

private:
    LineIcon icon;
    QPalette::ColorRole role;
};

}  // namespace

QIcon lineIcon(LineIcon icon, QPalette::ColorRole role) {
    return QIcon(new LineIconEngine(icon, role));
}

void drawLineIcon(QPainter& painter, LineIcon icon, const QRectF& place, const QColor& colour, qreal stroke) {
    const qreal side = std::min(place.width(), place.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.center() - QPointF(side / 2, side / 2));
    painter.scale(side / gridSide, side / gridSide);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(pathOf(icon));
    painter.restore();
}

}  // namespace wirepane
