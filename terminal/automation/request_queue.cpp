// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/request_queue.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {
constexpr qsizetype requestBytes = 256;  // that a request takes beside its text, about
}

RequestQueue::RequestQueue(const MethodTable& table, QObject* parent) : QObject(parent), methods(table) {}

void RequestQueue::listenTo(LineChannel* channel) {
    connect(channel, &LineChannel::lineReceived, this, [this, channel](const QByteArray& line) {
        enqueue({channel, line.size() + requestBytes, parseRequest(line)});
    });
    connect(channel, &QObject::destroyed, this, [this, channel] { waitingBytes.remove(channel); });
    connect(channel, &LineChannel::lineTooLong, this, [this, channel] {
        enqueue({channel, requestBytes,
                 RejectedLine{QJsonValue::Null,
                              {RpcCode::InvalidRequest,
                               u"the line is longer than %1 MiB"_s.arg(LineSplitter::longestLine >> 20)}}});
    });
}

// A client that asks faster than it is answered waits with what more it has to ask.
void RequestQueue::holdWhenFull(LineChannel* channel) {
    channel->setHeld(waitingBytes.value(channel) >= mostWaiting);
}

void RequestQueue::enqueue(Entry entry) {
    waitingBytes[entry.channel] += entry.bytes;
    holdWhenFull(entry.channel);
    waiting.push_back(std::move(entry));
    schedule();
}

void RequestQueue::schedule() {
    if (scheduled || running || waiting.empty())
        return;
    scheduled = true;
    QMetaObject::invokeMethod(this, &RequestQueue::runNext, Qt::QueuedConnection);
}

void RequestQueue::runNext() {
    scheduled = false;
    if (running || waiting.empty())
        return;
    running = true;
    const Entry entry = std::move(waiting.front());
    waiting.pop_front();
    if (entry.channel) {
        waitingBytes[entry.channel] -= entry.bytes;
        holdWhenFull(entry.channel);
    }
    if (const auto* rejected = std::get_if<RejectedLine>(&entry.request)) {
        answer(entry.channel, rejected->id, Answer(rejected->error));
        return;
    }
    const auto& request = std::get<RpcRequest>(entry.request);
    methods.call(request, [this, channel = entry.channel, id = request.id](const Answer& result) {
        answer(channel, id, result);
    });
}

void RequestQueue::answer(const QPointer<LineChannel>& channel, const QJsonValue& id, const Answer& answer) {
    if (channel && !id.isUndefined()) {
        channel->send(answer.error ? errorLine(id, *answer.error) : resultLine(id, answer.result));
    }
    running = false;
    schedule();
    if (isIdle())
        emit becameIdle();
}

}  // namespace wirepane
