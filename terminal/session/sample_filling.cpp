// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/sample_filling.h"

#include "backend/store/store_defaults.h"
#include "backend/store/store_writer.h"

#include <optional>
#include <variant>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::int64_t progressEvery = 1000;  // items

// The wire numbers its categories for itself; the store may know their names under numbers of its own.
void leaveCategoriesToTheStore(StoreItem& item) {
    if (auto* news = std::get_if<NewsItem>(&item))
        news->categoryId.reset();
}

// Takes items into a store, and counts.
class Filling {
public:
    explicit Filling(Database& store) : writer(store) {}

    Done begin() { return writer.begin(); }
    Done commit() { return writer.commit(); }
    void rollback() { writer.rollback(); }

    Done take(const StoreItem& item) {
        const auto outcome = writer.take(item);
        if (!outcome)
            return outcome.error();
        const bool named = std::holds_alternative<CategoryItem>(item);
        if (outcome.value().take == Take::Rejected && !named)
            return Error{
                u"The sample wire does not fit into this store: %1"_s.arg(sentence(*outcome.value().reason))};
        ++(outcome.value().take == Take::TakenIn ? totals.takenIn : totals.alreadyThere);
        return Nothing{};
    }

    SampleTotals totals;

private:
    StoreWriter writer;
};

}  // namespace

Result<SampleTotals> fillWithSample(Database& store, const SampleOptions& options,
                                    const std::function<bool(std::int64_t)>& progress) {
    Filling filling(store);
    if (const Done begun = filling.begin(); !begun)
        return begun.error();
    // The wire brings categories of its own; what it has no news in would be an empty list to choose.
    if (!removeDefaultCategories(store)) {
        filling.rollback();
        return Error{u"The categories of the store could not be changed: %1"_s.arg(store.failure())};
    }
    std::int64_t seen = 0;
    std::optional<Error> failure;
    const bool whole = SampleWire(options).run([&](StoreItem&& item) {
        leaveCategoriesToTheStore(item);
        const Done taken = filling.take(item);
        if (!taken)
            failure = taken.error();
        return !failure && (++seen % progressEvery != 0 || !progress || progress(seen));
    });
    if (!whole) {
        filling.rollback();
        return failure.value_or(Error{u"Stopped; nothing of the sample was kept."_s});
    }
    if (const Done committed = filling.commit(); !committed)
        return committed.error();
    return filling.totals;
}

}  // namespace wirepane
