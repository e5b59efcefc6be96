// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/sample_filling.h"

#include "backend/store/store_defaults.h"
#include "backend/store/store_errors.h"
#include "backend/store/store_writer.h"
#include "terminal/session/sample_process.h"
#include "terminal/session/session_errors.h"

#include <variant>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::int64_t progressEvery = 250;  // items

// Takes items into a store, and counts.
class Filling {
public:
    explicit Filling(Database& store) : writer(store) {}

    Done begin() { return writer.begin(); }
    Done commit() { return writer.commit(); }
    void rollback() { writer.rollback(); }

    Done take(const Result<StoreItem>& item) { return item ? take(item.value()) : Done(unfit(item.error())); }

    StoreWriter writer;
    SampleTotals totals;

private:
    static Error unfit(const Error& reason) { return makeError<session_errors::sampleNotTaken>(reason); }
    Done take(const StoreItem& item) {
        const auto outcome = writer.take(item);
        if (!outcome)
            return outcome.error();
        const bool named = std::holds_alternative<CategoryItem>(item);
        const bool isRejected = outcome.value().take == Take::Rejected && !named;
        const bool isTooOld = isRejected && outcome.value().reason->code == &store_errors::beyondRetention;
        if (isRejected && !isTooOld)
            return unfit(*outcome.value().reason);
        ++(isTooOld                                ? totals.tooOld
           : outcome.value().take == Take::TakenIn ? totals.takenIn
                                                   : totals.alreadyThere);
        return Nothing{};
    }
};

Done takeAll(Filling& filling, const SampleOptions& options,
             const std::function<bool(std::int64_t)>& progress) {
    const Error stopped = makeError<session_errors::sampleStopped>();
    SampleProcess wire(options);
    std::int64_t seen = 0;
    while (const auto item = wire.nextItem()) {
        if (const Done taken = filling.take(*item); !taken)
            return taken;
        if (++seen % progressEvery == 0 && progress && !progress(seen))
            return stopped;
    }
    // What stops the terminal may end the wire at the same time.
    const Done whole = wire.end();
    return !whole && progress && !progress(seen) ? Done(stopped) : whole;
}

}  // namespace

Result<SampleTotals> fillWithSample(Database& store, const SampleOptions& options,
                                    const std::function<bool(std::int64_t)>& progress,
                                    const std::function<Result<bool>(StoreWriter&)>& isWanted) {
    Filling filling(store);
    if (const Done begun = filling.begin(); !begun)
        return begun.error();
    if (isWanted) {
        const Result<bool> wanted = isWanted(filling.writer);
        if (!wanted || !wanted.value()) {
            filling.rollback();
            return wanted ? Result<SampleTotals>(filling.totals) : wanted.error();
        }
    }
    // The wire brings categories of its own; what it has no news in would be an empty list to choose.
    if (!removeDefaultCategories(store)) {
        filling.rollback();
        return makeError<session_errors::categoriesNotChanged>(store.failure());
    }
    if (const Done taken = takeAll(filling, options, progress); !taken) {
        filling.rollback();
        return taken.error();
    }
    if (const Done committed = filling.commit(); !committed)
        return committed.error();
    return filling.totals;
}

}  // namespace wirepane
