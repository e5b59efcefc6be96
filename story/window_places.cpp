// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/window_places.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int gap = 8;

QString screenOf(const QString& text) {
    return text.section(u' ', 1);
}

}  // namespace

QRect placeBeside(const QRect& other, const QSize& size, const QRect& screen) {
    QRect place(QPoint(other.right() + 1 + gap, other.top()), size.boundedTo(screen.size()));
    if (place.right() > screen.right())
        place.moveRight(other.left() - 1 - gap);
    if (place.left() < screen.left())
        place.moveRight(screen.right());
    place.moveTop(std::clamp(place.top(), screen.top(), screen.bottom() + 1 - place.height()));
    return place;
}

std::optional<QRect> placeOn(const QStringList& places, const QString& screen) {
    for (const QString& text : places) {
        const QStringList numbers = text.section(u' ', 0, 0).split(u',');
        if (screenOf(text) != screen || numbers.size() != 4)
            continue;
        const QRect place(numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt());
        if (place.isValid())
            return place;
    }
    return std::nullopt;
}

void keepPlace(QStringList& places, const QString& screen, const QRect& place) {
    places.removeIf([&screen](const QString& text) { return screenOf(text) == screen; });
    places.append(
        u"%1,%2,%3,%4 %5"_s.arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height()).arg(screen));
}

}  // namespace wirepane
