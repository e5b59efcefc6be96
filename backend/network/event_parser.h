// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <functional>
#include <optional>

namespace wirepane {

// Cuts a stream of server-sent events (text/event-stream, UTF-8) into events and keeps none that is longer
// than the limit. Lines end with CR, LF or both.
class EventParser {
public:
    struct Event {
        QByteArray type;  // empty: none was named
        QByteArray data;  // its lines, with a line feed between two
    };
    static constexpr qsizetype longestEvent = qsizetype(16) << 20;  // bytes
    static constexpr qsizetype longestId = 1024;

    // `last`: the id of the last event before the stream.
    explicit EventParser(QByteArray last = {}, qsizetype limit = longestEvent)
        : id(last), lastId(std::move(last)), longest(limit) {}

    // Calls `event` for each event with data that the bytes complete, `tooLong` for each that has passed the
    // limit.
    void feed(QByteArrayView bytes, const std::function<void(const Event&)>& event,
              const std::function<void()>& tooLong);

    // Of the last event that was completed, also one without data: behind it a new connection goes on.
    const QByteArray& lastEvent() const { return lastId; }
    // How long the server wants a new connection to wait, milliseconds.
    std::optional<int> retry() const { return wait; }

private:
    void keep(QByteArrayView part);
    void endLine(const std::function<void(const Event&)>& event, const std::function<void()>& tooLong);
    void takeField(QByteArrayView name, QByteArrayView value);

    QByteArray line;
    Event present;
    bool hasData = false;
    bool isTooLong = false;      // the event
    bool isLineTooLong = false;  // and by this line alone
    bool isAtStart = true;
    bool isBehindReturn = false;  // a line feed that follows ends no line
    QByteArray id;                // that holds from the next event that is completed on
    QByteArray lastId;
    std::optional<int> wait;
    qsizetype longest;
};

}  // namespace wirepane
