// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/arrival_log.h"

#include <QObject>

#include <cstddef>
#include <deque>
#include <functional>

namespace wirepane {

// Hands what comes into a store on to whoever shall hear of it, each arrival once, whoever wrote it. Many
// arrivals are handed on in batches, with the event loop running between them. Interface thread.
class NewsDelivery : public QObject {
    Q_OBJECT

public:
    // What is in the store already is not handed on. `log` outlives this.
    NewsDelivery(ArrivalLog& log, std::function<void(const Arrival&)> tell);

    // While closed nothing is handed on and nothing is lost.
    void close() { isOpen = false; }
    // Hands on what came while it was closed, oldest first. Result: how many headlines.
    int open();
    // What has come into the log since the last call, in the order of coming.
    void add(const std::vector<Arrival>& arrivals);
    // The same for what came at once in thousands, as an import shows it: after one position of the log and
    // up to another. It lets all else pass, and is not read before its turn.
    void addRange(std::int64_t after, std::int64_t last);
    // Hands on what has come.
    void run();
    bool isDone() const { return waiting.empty() && ranges.empty(); }
    // So much waits that more would only wait, too.
    bool isBehind() const { return waiting.size() >= mostWaiting; }

private:
    static constexpr std::size_t mostWaiting = 2000;

    // Positions of the log.
    struct Range {
        std::int64_t after;
        std::int64_t last;
    };
    void readOn();

    ArrivalLog& arrivals;
    std::function<void(const Arrival&)> tell;
    std::int64_t position;  // of the last arrival that was taken from the log
    std::deque<Arrival> waiting;
    std::deque<Range> ranges;  // looked at when nothing else waits
    bool isOpen = true;
    bool isBusy = false;    // inside `tell`
    bool isPosted = false;  // the event loop will go on
};

}  // namespace wirepane
