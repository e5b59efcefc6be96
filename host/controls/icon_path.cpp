// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/icon_path.h"

#include <QLineF>
#include <QtMath>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <optional>

namespace wirepane {

namespace {

class PathReader {
public:
    explicit PathReader(std::string_view data) : rest(data) {}

    QPainterPath read() {
        char command = 0;
        while (skipBlanks()) {
            if (std::isalpha(static_cast<unsigned char>(rest.front())) != 0) {
                command = rest.front();
                rest.remove_prefix(1);
            }
            if (!take(command))
                break;
            // Further pairs after a move are lines.
            if (command == 'M' || command == 'm')
                command = command == 'M' ? 'L' : 'l';
        }
        return path;
    }

private:
    bool skipBlanks() {
        rest.remove_prefix(std::min(rest.find_first_not_of(" ,"), rest.size()));
        return !rest.empty();
    }

    std::optional<double> number() {
        skipBlanks();
        double value = 0;
        const auto [end, fault] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
        if (fault != std::errc())
            return std::nullopt;
        rest.remove_prefix(end - rest.data());
        return value;
    }

    // The coordinates that follow, from the present place where they are relative.
    std::optional<QPointF> point(bool relative) {
        const auto x = number();
        const auto y = number();
        if (!x || !y)
            return std::nullopt;
        return QPointF(*x, *y) + (relative ? path.currentPosition() : QPointF());
    }

    bool take(char command) {
        const bool relative = std::islower(static_cast<unsigned char>(command)) != 0;
        const QPointF from = path.currentPosition();
        switch (std::toupper(static_cast<unsigned char>(command))) {
            case 'M':
            case 'L':
                if (const auto to = point(relative)) {
                    std::toupper(static_cast<unsigned char>(command)) == 'M' ? path.moveTo(*to)
                                                                             : path.lineTo(*to);
                    return true;
                }
                return false;
            case 'H':
                if (const auto x = number()) {
                    path.lineTo(*x + (relative ? from.x() : 0), from.y());
                    return true;
                }
                return false;
            case 'V':
                if (const auto y = number()) {
                    path.lineTo(from.x(), *y + (relative ? from.y() : 0));
                    return true;
                }
                return false;
            case 'A':
                return arc(relative);
            case 'C':
                return curve(relative);
            case 'Z':
                path.closeSubpath();
                return true;
            default:
                return false;
        }
    }

    bool curve(bool relative) {
        const auto first = point(relative);
        const auto second = point(relative);
        const auto to = point(relative);
        if (!first || !second || !to)
            return false;
        path.cubicTo(*first, *second, *to);
        return true;
    }

    bool arc(bool relative) {
        const auto radius = number();
        const auto otherRadius = number();
        const auto tilt = number();
        const auto large = number();
        const auto clockwise = number();
        const auto to = point(relative);
        if (!radius || !otherRadius || !tilt || !large || !clockwise || !to)
            return false;
        addArc(*radius, *large != 0, *clockwise != 0, *to);
        return true;
    }

    // An arc of a circle: the centre lies on the line that halves the chord.
    void addArc(double radius, bool large, bool clockwise, const QPointF& to) {
        const QLineF chord(path.currentPosition(), to);
        const double half = chord.length() / 2;
        const double away = std::sqrt(std::max(0.0, radius * radius - half * half));
        const QLineF across = chord.normalVector().unitVector();
        const QPointF aside = (across.p2() - across.p1()) * away * (large == clockwise ? 1 : -1);
        const QPointF centre = chord.center() + aside;
        const double start = QLineF(centre, chord.p1()).angle();
        double sweep = QLineF(centre, to).angle() - start;
        if (clockwise && sweep > 0)
            sweep -= 360;
        else if (!clockwise && sweep < 0)
            sweep += 360;
        path.arcTo(QRectF(centre - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)), start, sweep);
    }

    std::string_view rest;
    QPainterPath path;
};

}  // namespace

QPainterPath iconPath(std::string_view data) {
    return PathReader(data).read();
}

}  // namespace wirepane
