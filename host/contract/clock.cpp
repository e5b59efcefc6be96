// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/clock.h"

#include <QDateTime>

#include <atomic>

namespace wirepane {

namespace {
std::atomic<std::int64_t> shift{0};
}

std::int64_t host_clock::now() {
    return QDateTime::currentSecsSinceEpoch() + shift.load();
}

QDate host_clock::today() {
    return QDateTime::fromSecsSinceEpoch(now()).date();
}

void host_clock::startAt(std::int64_t secondsSince1970) {
    shift = secondsSince1970 - QDateTime::currentSecsSinceEpoch();
}

}  // namespace wirepane
