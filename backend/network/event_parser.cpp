// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/event_parser.h"

#include <algorithm>
#include <utility>

namespace wirepane {

namespace {

constexpr QByteArrayView byteOrderMark("\xef\xbb\xbf");

bool endsLine(char byte) {
    return byte == '\r' || byte == '\n';
}

// What is sent back in the head of a request.
bool isSendable(QByteArrayView id) {
    return id.size() <= EventParser::longestId && std::none_of(id.begin(), id.end(), [](char byte) {
               return static_cast<unsigned char>(byte) < ' ' || byte == '\x7f';
           });
}

}  // namespace

void EventParser::feed(QByteArrayView bytes, const std::function<void(const Event&)>& event,
                       const std::function<void()>& tooLong) {
    while (!bytes.isEmpty()) {
        if (std::exchange(isBehindReturn, false) && bytes.front() == '\n') {
            bytes = bytes.sliced(1);
            continue;
        }
        const qsizetype length = std::find_if(bytes.begin(), bytes.end(), endsLine) - bytes.begin();
        keep(bytes.first(length));
        if (length == bytes.size())
            return;
        isBehindReturn = bytes[length] == '\r';
        bytes = bytes.sliced(length + 1);
        endLine(event, tooLong);
    }
}

void EventParser::keep(QByteArrayView part) {
    if (line.size() + present.data.size() + part.size() > longest) {
        isTooLong = true;
        present.data = QByteArray();
        isLineTooLong = isLineTooLong || line.size() + part.size() > longest;
    }
    if (isLineTooLong)
        line = QByteArray();
    else
        line.append(part);
}

void EventParser::endLine(const std::function<void(const Event&)>& event,
                          const std::function<void()>& tooLong) {
    const QByteArray ended = std::exchange(line, QByteArray());
    if (std::exchange(isLineTooLong, false))
        return;
    QByteArrayView text(ended);
    if (std::exchange(isAtStart, false) && text.startsWith(byteOrderMark))
        text = text.sliced(byteOrderMark.size());
    if (!text.isEmpty()) {
        const qsizetype colon = text.indexOf(':');
        const QByteArrayView value = colon < 0 ? QByteArrayView() : text.sliced(colon + 1);
        takeField(colon < 0 ? text : text.first(colon), value.startsWith(' ') ? value.sliced(1) : value);
        return;
    }
    lastId = id;
    const Event done = std::exchange(present, Event());
    const bool isWhole = std::exchange(hasData, false);
    if (std::exchange(isTooLong, false))
        tooLong();
    else if (isWhole)
        event(done);
}

void EventParser::takeField(QByteArrayView name, QByteArrayView value) {
    if (name == "data" && !isTooLong) {
        if (std::exchange(hasData, true))
            present.data.append('\n');
        present.data.append(value);
    } else if (name == "event") {
        present.type = value.toByteArray();
    } else if (name == "id" && isSendable(value)) {
        id = value.toByteArray();
    } else if (name == "retry") {
        bool isNumber = false;
        const int milliseconds = value.toByteArray().toInt(&isNumber);
        if (isNumber && milliseconds >= 0)
            wait = milliseconds;
    }
}

}  // namespace wirepane
