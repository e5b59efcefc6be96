// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/line_source.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/news_promises.h"

#include <cmath>

namespace wirepane {

namespace {

void promiseSameLine(const QByteArray& line) {
    const FeedLine parsed = parsedFeedLine(line, 7);
    if (const auto* handshake = std::get_if<FeedHandshake>(&parsed)) {
        const FeedLine again = parsedFeedLine(handshakeLine(*handshake), 9);
        const auto* same = std::get_if<FeedHandshake>(&again);
        promise(same != nullptr && same->source == handshake->source && same->service == handshake->service,
                "a handshake arrives as it was");
        return;
    }
    const auto& record = std::get<FeedRecord>(parsed);
    if (!record.item) {
        promise(!sentence(record.item.error()).isEmpty(), "a rejection has a reason");
        return;
    }
    if (const auto* quote = std::get_if<QuoteItem>(&record.item.value()))
        promise(quote->market != 0 && std::isfinite(quote->last) && std::isfinite(quote->change) &&
                    quote->volume >= 0 && quote->volume <= mostVolume,
                "a quote's numbers are numbers");
    const StoreItem& item = record.item.value();
    const QByteArray sent = feedLine(item, record.position);
    const FeedLine again = parsedFeedLine(sent, 9);
    const auto* same = std::get_if<FeedRecord>(&again);
    promise(same != nullptr && same->item && same->position == record.position, "an item's line can be read");
    promise(
        same->item.value().index() == item.index() && feedLine(same->item.value(), same->position) == sent,
        "an item sent on again is the same");
}

}  // namespace

// A live feed, line by line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const QList<QByteArray> lines = FuzzInput(bytes, size).bytes().split('\n');
    LineSource source;
    qint64 taken = 0;
    for (const QByteArray& line : lines) {
        promiseSameLine(line);
        source.add(line);
    }
    const qint64 handshakes = source.awaitsPosition() ? 1 : 0;
    source.onAcknowledged([&](const LineSource::Acknowledgement& told) { taken = told.lines; });
    while (source.hasBatch()) {
        source.batch()->read([](SourceItem&&) { return true; });
        source.acknowledge({});
    }
    promise(handshakes + taken == lines.size() && !source.isFull(), "every line is accounted for");
    return 0;
}

}  // namespace wirepane
