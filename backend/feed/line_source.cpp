// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/line_source.h"

#include "backend/feed/feed_errors.h"
#include "backend/import/import_errors.h"

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {
constexpr std::size_t mostLines = 1000;   // of a batch
constexpr qint64 mostBytes = 512 * 1024;  // of a batch, about

class LineBatch : public FeedBatch {
public:
    // `before`: how many lines have gone before.
    LineBatch(std::vector<Result<QByteArray>> batchLines, Clock::time_point first, qint64 before,
              const FeedHandshake& ofSource)
        : came(first),
          lines(std::move(batchLines)),
          number(before),
          service(ofSource.service),
          hasNumbers(ofSource.isNumbered) {}

    Done read(const ItemVisitor& visit) override {
        qint64 at = number;
        for (const Result<QByteArray>& line : lines) {
            if (!visit(itemOf(line, makeError<import_errors::atLine>(++at))))
                break;
        }
        return Nothing{};
    }
    QString position() const override { return lastPosition; }
    bool isNumbered() const override { return hasNumbers; }
    Clock::time_point received() const override { return came; }

private:
    SourceItem itemOf(const Result<QByteArray>& line, const Phrase& place) {
        if (!line)
            return {line.error(), place, 0};
        FeedLine parsed = parsedFeedLine(line.value(), service);
        auto* record = std::get_if<FeedRecord>(&parsed);
        if (record == nullptr)
            return {makeError<feed_errors::greetingNotFirst>(), place, 0};
        if (!record->position.isEmpty())
            lastPosition = record->position;
        return {std::move(record->item), place, 0};
    }

    Clock::time_point came;
    std::vector<Result<QByteArray>> lines;
    qint64 number;
    unsigned char service;
    bool hasNumbers;
    QString lastPosition;
};

}  // namespace

void LineSource::add(const QByteArray& line) {
    if (!begun) {
        const FeedLine first = parsedFeedLine(line, handshake.service);
        begun = true;
        if (const auto* named = std::get_if<FeedHandshake>(&first)) {
            handshake = *named;
            isAwaiting = true;
            return;
        }
    }
    waitingBytes += line.size();
    lines.push_back({line});
}

void LineSource::addRejected(const Error& reason) {
    begun = true;
    lines.push_back({reason});
}

void LineSource::drop() {
    lines.clear();
    waitingBytes = 0;
    linesOfBatch = 0;
}

std::shared_ptr<FeedBatch> LineSource::batch() {
    std::vector<Result<QByteArray>> next;
    qint64 bytes = 0;
    while (next.size() < lines.size() && next.size() < mostLines && bytes < mostBytes) {
        next.push_back(lines[next.size()].text);
        bytes += next.back() ? next.back().value().size() : 0;
    }
    linesOfBatch = next.size();
    return std::make_shared<LineBatch>(std::move(next), lines.front().received, acknowledged, handshake);
}

void LineSource::acknowledge(const BatchOutcome& outcome) {
    const auto end = lines.begin() + static_cast<std::ptrdiff_t>(linesOfBatch);
    for (auto line = lines.begin(); line != end; ++line)
        waitingBytes -= line->text ? line->text.value().size() : 0;
    lines.erase(lines.begin(), end);
    acknowledged += static_cast<qint64>(linesOfBatch);
    linesOfBatch = 0;
    if (tell)
        tell({acknowledged, outcome});
}

}  // namespace wirepane
