// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"
#include "backend/news_item.h"
#include "backend/result.h"
#include "sample_wire/sample_options.h"

#include <QByteArray>
#include <QProcess>

#include <memory>
#include <optional>

namespace wirepane {

// The program of the sample wire, which stands beside the terminal's. It is ended with this. Any one thread;
// no event loop is needed.
class SampleProcess {
public:
    // Of the options it is told seed, now, days, leftOut and headlinesPerDay.
    explicit SampleProcess(const SampleOptions& options);
    SampleProcess(const SampleProcess&) = delete;
    SampleProcess& operator=(const SampleProcess&) = delete;
    ~SampleProcess();

    // Waits for the next item; nothing at the end.
    std::optional<Result<StoreItem>> nextItem();
    // After the last item: whether the wire was whole.
    Done end();

private:
    std::optional<QByteArray> nextLine();

    QProcess process;
};

// The same wire as a live source: goes on behind what the store has of it, at most options.days back, and
// then as the clock runs.
std::shared_ptr<FeedSource> followedSample(const SampleOptions& options);

}  // namespace wirepane
