// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/stream_reading.h"

#include "backend/network/answer_reading.h"
#include "backend/network/network_errors.h"

#include <algorithm>
#include <array>
#include <utility>

namespace wirepane {

namespace {

// By these types of events servers show that they are there; what they hold is no news.
bool isBeat(const QByteArray& type) {
    static constexpr std::array<QByteArrayView, 5> beats{"ping", "beat", "heartbeat", "keepalive",
                                                         "keep-alive"};
    return std::find(beats.begin(), beats.end(), type.toLower()) != beats.end();
}

}  // namespace

StreamReading::StreamReading(NetworkSource definition, const QByteArray& lastEvent)
    : source(std::move(definition)), parser(lastEvent) {}

SourceAnswer StreamReading::begun() {
    SourceAnswer read;
    read.isAlive = read.isOpen = true;
    return read;
}

std::optional<std::int64_t> StreamReading::wish() const {
    constexpr std::int64_t longest = 86'400;
    return parser.retry() ? std::optional(std::min(longest, (std::int64_t(*parser.retry()) + 999) / 1000))
                          : std::nullopt;
}

SourceAnswer StreamReading::takeBytes(const QByteArray& bytes, std::int64_t now) {
    SourceAnswer read = begun();
    read.isRead = true;
    parser.feed(
        bytes,
        [&](const EventParser::Event& event) {
            if (!isBeat(event.type) && !event.data.trimmed().isEmpty())
                readRecords(source, event.data, now, read);
        },
        [&] {
            read.isRead = false;
            read.fault = makeError<network_errors::eventTooLong>(EventParser::longestEvent >> 20);
        });
    read.validators.event = parser.lastEvent();
    return read;
}

SourceAnswer StreamReading::takeMessage(const QByteArray& text, std::int64_t now) {
    SourceAnswer read = begun();
    read.isRead = true;
    if (!text.trimmed().isEmpty())
        readRecords(source, text, now, read);
    return read;
}

SourceAnswer StreamReading::end(const HttpAnswer& answer, bool hasStood, std::int64_t now) const {
    SourceAnswer read;
    if (hasStood) {
        const bool isCut = answer.fault && answer.fault->code == &network_errors::cutOff;
        read.fault = isCut ? makeError<network_errors::streamBroke>(source.address.host()) : answer.fault;
        read.isAlive = answer.isAlive && !answer.fault;
        read.isRead = !answer.fault;
        read.wish = wish();
    } else {
        read = readAnswer(source, answer, now);
        read.items.clear();
        read.isRead = false;
        if (!answer.fault && (!read.fault || read.fault->code != &network_errors::pageInstead) &&
            (!read.fault || read.fault->code != &network_errors::portalInstead))
            read.fault = makeError<network_errors::noStream>(
                source.address.host(), QString::fromLatin1(answer.contentType.left(80)));
    }
    read.validators.event = parser.lastEvent();
    return read;
}

}  // namespace wirepane
