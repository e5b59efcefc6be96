// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/translations/shown_time.h"

#include "host/contract/clock.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace wirepane {

QString shownTime(std::int64_t moment) {
    const QDateTime time = QDateTime::fromSecsSinceEpoch(moment);
    const QDate today = host_clock::today();
    if (time.date() == today)
        return time.toString(u"HH:mm:ss"_s);
    return time.toString(time.date().year() == today.year() ? u"MM/dd HH:mm:ss"_s : u"yyyy/MM/dd HH:mm:ss"_s);
}

}  // namespace wirepane
