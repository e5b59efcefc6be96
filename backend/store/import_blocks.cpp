// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/import_blocks.h"

#include <algorithm>
#include <limits>

namespace wirepane {

ImportBlocks::ImportBlocks(Database& database)
    : read(database, "SELECT first, last, hidden FROM import_blocks ORDER BY first"),
      newest(database, "SELECT coalesce(max(id), 0) FROM all_headlines"),
      put(database, "REPLACE INTO import_blocks(first, last, hidden) VALUES(?, ?, ?)"),
      remove(database, "DELETE FROM import_blocks WHERE first = ?"),
      showAll(database, "UPDATE import_blocks SET hidden = 0") {}

bool ImportBlocks::load() {
    blocks.clear();
    Query query(read);
    while (query.next())
        blocks.push_back({query.number(0), query.number(1), query.number(2) != 0});
    return !query.failed();
}

bool ImportBlocks::hideNew() {
    const std::optional<std::int64_t> last = newestId();
    if (last)
        blocks.push_back({*last + 1, std::numeric_limits<std::int64_t>::max(), true});
    return last.has_value();
}

// One that goes on where another ended is the same one.
bool ImportBlocks::keepNew() {
    ImportBlock added = blocks.back();
    blocks.pop_back();
    const std::optional<std::int64_t> last = newestId();
    if (!last || *last < added.first)
        return last.has_value();
    added.last = *last;
    if (!blocks.empty() && blocks.back().isHidden && blocks.back().last + 1 == added.first) {
        added.first = blocks.back().first;
        blocks.pop_back();
    }
    blocks.push_back(added);
    return write(added);
}

bool ImportBlocks::show() {
    for (ImportBlock& block : blocks)
        block.isHidden = false;
    return Query(showAll).run();
}

bool ImportBlocks::advance(std::int64_t first, std::int64_t indexed) {
    return replace(first, indexed + 1, find(first)->last);
}

bool ImportBlocks::shorten(std::int64_t first, std::int64_t from) {
    return replace(first, first, from - 1);
}

bool ImportBlocks::replace(std::int64_t first, std::int64_t newFirst, std::int64_t newLast) {
    const auto block = std::find_if(blocks.begin(), blocks.end(),
                                    [first](const ImportBlock& one) { return one.first == first; });
    if (!Query(remove, first).run())
        return false;
    block->first = newFirst;
    block->last = newLast;
    if (newFirst <= newLast)
        return write(*block);
    blocks.erase(block);
    return true;
}

bool ImportBlocks::isHidden(std::int64_t id) const {
    const ImportBlock* const block = find(id);
    return block != nullptr && block->isHidden;
}

const ImportBlock* ImportBlocks::find(std::int64_t id) const {
    const auto next =
        std::upper_bound(blocks.begin(), blocks.end(), id,
                         [](std::int64_t one, const ImportBlock& block) { return one < block.first; });
    return next != blocks.begin() && id <= std::prev(next)->last ? &*std::prev(next) : nullptr;
}

std::optional<std::int64_t> ImportBlocks::newestId() {
    Query query(newest);
    return query.next() ? std::optional(query.number(0)) : std::nullopt;
}

bool ImportBlocks::write(const ImportBlock& block) {
    return Query(put, block.first, block.last, block.isHidden ? 1 : 0).run();
}

}  // namespace wirepane
