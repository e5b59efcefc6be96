// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What taking a file in costs, from its first byte to its last word in the index. shown_per_s: until readers
// see it, which for a large file is before that. of_plain: the rate as a share of that of
// bare inserts of the same rows into the same tables and index, in one transaction.
#include "backend/import/import_job.h"
#include "backend/store/staged_import.h"
#include "bench/backend/news_file.h"
#include "bench/backend/plain_inserts.h"
#include "bench/backend/store_timing.h"
#include "bench/support/run_benchmarks.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <map>

using namespace Qt::StringLiterals;

namespace wirepane::bench {

namespace {

void importFile(benchmark::State& state, Format format) {
    const int count = int(state.range(0));
    const NewsFile file(format, count);
    const PlainInserts plain(file.items());
    std::vector<double> shown;
    std::vector<double> own;
    std::vector<double> bare;
    for (auto unused : state) {
        QTemporaryDir folder;
        const auto store = opened(folder.filePath(u"own.db"_s));
        StagedImport staged(*store);
        ImportJob job({file.path}, staged, file.options);
        shown.push_back(secondsOf([&] {
            if (job.run().totals.takenIn != count)
                throw std::runtime_error("the file was not taken in whole");
        }));
        own.push_back(shown.back() + secondsOf([&] {
                          while (staged.indexSome().value()) {
                          }
                      }));
        state.SetIterationTime(own.back());
        const auto other = opened(folder.filePath(u"plain.db"_s));
        bare.push_back(secondsOf([&] { plain.run(*other); }));
    }
    state.counters["shown_per_s"] = double(count) / median(shown);
    state.counters["items_per_s"] = double(count) / median(own);
    state.counters["of_plain"] = median(bare) / median(own);
}

}  // namespace

}  // namespace wirepane::bench

namespace wirepane {

using bench::Format;
using bench::importFile;

BENCHMARK_CAPTURE(importFile, rss, Format::Rss)
    ->Arg(1000)
    ->Arg(20'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(importFile, ninjs, Format::Ninjs)
    ->Arg(1000)
    ->Arg(20'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(importFile, table, Format::Table)
    ->Arg(1000)
    ->Arg(20'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<QCoreApplication>(argc, argv);
}
