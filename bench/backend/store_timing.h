// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/store_file.h"
#include "bench/support/bench_clock.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <vector>

namespace wirepane::bench {

template <class Run>
double secondsOf(Run run) {
    const auto from = BenchClock::now();
    run();
    return secondsSince(from);
}

inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

inline std::unique_ptr<Database> opened(const QString& path) {
    Result<std::unique_ptr<Database>> store = openStore(path);
    if (!store)
        throw std::runtime_error(sentence(store.error()).toStdString());
    return std::move(store.value());
}

inline StoreConnections connectionsTo(const QString& path) {
    return std::move(withReader(opened(path)).value());
}

}  // namespace wirepane::bench
