// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/event_parser.h"
#include "fuzz/support/fuzz_input.h"

#include <algorithm>

namespace wirepane {

namespace {

constexpr qsizetype longest = 64;

// What is told of a stream that comes in portions of this size.
QByteArray told(const QByteArray& bytes, qsizetype portion) {
    EventParser parser({}, longest);
    QByteArray all;
    for (qsizetype at = 0; at < bytes.size(); at += portion) {
        parser.feed(
            bytes.mid(at, portion),
            [&](const EventParser::Event& event) {
                promise(event.data.size() <= longest, "events keep within their limit");
                all += event.type + '|' + event.data + '\n';
            },
            [&] { all += "too long\n"; });
    }
    const QByteArray& id = parser.lastEvent();
    promise(id.size() <= EventParser::longestId && !id.contains('\n') && !id.contains('\0'),
            "ids can be sent in the head of a request");
    promise(parser.retry().value_or(0) >= 0, "nobody calls again in the past");
    return all + id + '|' + QByteArray::number(parser.retry().value_or(-1));
}

}  // namespace

// A stream of events.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const QByteArray stream = FuzzInput(bytes, size).bytes();
    const QByteArray whole = told(stream, std::max<qsizetype>(stream.size(), 1));
    promise(told(stream, 1) == whole && told(stream, 7) == whole, "portions of a stream change nothing");
    return 0;
}

}  // namespace wirepane
