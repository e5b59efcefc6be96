// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/wire_position.h"

#include "wire/wire_errors.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace wirepane {

Result<WirePosition> WirePosition::of(const QString& text) {
    WirePosition position;
    if (text.isEmpty())
        return position;
    const QStringList parts = text.split(u' ');
    bool isRight = false;
    position.epoch = parts.constFirst().section(u':', 0, 0);
    position.last = parts.constFirst().section(u':', 1).toLongLong(&isRight);
    for (const QString& part : parts.mid(1)) {
        bool hasService = false;
        bool hasSequence = false;
        const int service = part.section(u'=', 0, 0).toInt(&hasService);
        position.services[service] = part.section(u'=', 1).toLongLong(&hasSequence);
        isRight = isRight && hasService && hasSequence;
    }
    if (!isRight || position.epoch.isEmpty())
        return makeError<wire_errors::positionUnreadable>(text);
    return position;
}

QString WirePosition::text() const {
    QString text = u"%1:%2"_s.arg(epoch).arg(last);
    for (const auto& [service, sequence] : services)
        text += u" %1=%2"_s.arg(service).arg(sequence);
    return text;
}

std::int64_t WirePosition::lastOf(int service) const {
    const auto found = services.find(service);
    return found == services.end() ? 0 : found->second;
}

std::optional<Error> WirePosition::faultOf(const WireHead& head) const {
    if (head.format != wireFormat)
        return makeError<wire_errors::unknownFormat>(head.format);
    if (!epoch.isEmpty() && head.epoch != epoch)
        return makeError<wire_errors::otherEpoch>(head.epoch, epoch);
    if (head.last < last)
        return makeError<wire_errors::wentBack>(head.last, last);
    return std::nullopt;
}

Done WirePosition::follow(const WirePage& page) {
    if (const auto fault = faultOf(page.head))
        return *fault;
    WirePosition next = *this;
    next.epoch = page.head.epoch;
    for (const WireRow& row : page.rows) {
        const std::int64_t here = next.lastOf(row.service);
        if (row.prev != here || row.sequence <= next.last || row.sequence > page.head.last)
            return makeError<wire_errors::hole>(row.sequence, row.service, row.prev, here);
        next.append(row);
    }
    *this = next;
    return Nothing{};
}

void WirePosition::append(const WireRow& row) {
    last = row.sequence;
    services[row.service] = row.sequence;
}

}  // namespace wirepane
