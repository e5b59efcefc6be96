// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <ctime>

namespace wirepane {

// Runs with the local time of another place.
class TimeZone {
public:
    explicit TimeZone(const char* name) : before(qgetenv("TZ")) { set(name); }
    ~TimeZone() { set(before); }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

private:
    static void set(const QByteArray& name) {
        qputenv("TZ", name);
        tzset();
    }
    QByteArray before;
};

}  // namespace wirepane
