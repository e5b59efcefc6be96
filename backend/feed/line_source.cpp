// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/line_source.h"

#include "backend/feed/feed_errors.h"
#include "backend/import/import_errors.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {
constexpr std::size_t mostLines = 1000;   // of a batch
constexpr qint64 mostBytes = 512 * 1024;  // of a batch, about
}  // namespace

void LineSource::add(const QByteArray& line) {
    if (!begun) {
        const FeedLine first = parsedFeedLine(line, hello.service);
        begun = true;
        if (const auto* handshake = std::get_if<FeedHello>(&first)) {
            hello = *handshake;
            isAwaiting = true;
            return;
        }
    }
    waitingBytes += line.size();
    lines.emplace_back(line);
}

void LineSource::addRejected(const Error& reason) {
    begun = true;
    lines.emplace_back(reason);
}

void LineSource::drop() {
    lines.clear();
    waitingBytes = 0;
    batch = 0;
}

Done LineSource::read(const ItemVisitor& visit) {
    batch = 0;
    lastPosition.clear();
    qint64 bytes = 0;
    const auto begin = std::chrono::steady_clock::now();
    const auto isEnough = [&] {
        return batch >= mostLines || bytes >= mostBytes ||
               std::chrono::steady_clock::now() - begin >= longest;
    };
    while (batch < lines.size() && (batch == 0 || !isEnough())) {
        const Result<QByteArray>& line = lines[batch];
        ++batch;
        const Phrase place = makeError<import_errors::atLine>(acknowledged + static_cast<qint64>(batch));
        if (!line) {
            if (!visit({line.error(), place, 0}))
                break;
            continue;
        }
        bytes += line.value().size();
        FeedLine parsed = parsedFeedLine(line.value(), hello.service);
        auto* record = std::get_if<FeedRecord>(&parsed);
        if (record == nullptr) {
            if (!visit({makeError<feed_errors::greetingNotFirst>(), place, 0}))
                break;
            continue;
        }
        if (!record->position.isEmpty())
            lastPosition = record->position;
        if (!visit({std::move(record->item), place, 0}))
            break;
    }
    return Nothing{};
}

void LineSource::acknowledge(const BatchOutcome& outcome) {
    const auto end = lines.begin() + static_cast<std::ptrdiff_t>(batch);
    for (auto line = lines.begin(); line != end; ++line)
        waitingBytes -= *line ? line->value().size() : 0;
    lines.erase(lines.begin(), end);
    acknowledged += static_cast<qint64>(batch);
    batch = 0;
    if (tell)
        tell({acknowledged, outcome});
}

}  // namespace wirepane
