// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/headline_keys.h"

#include "backend/database/database.h"

#include <algorithm>

namespace wirepane {

namespace {

// So many are looked up sooner than found in memory, and sooner than memory is filled.
constexpr std::size_t fewMatches = 64;
constexpr std::size_t fewBeforeLoading = 4096;
constexpr std::size_t packedAtOnce = 4096;  // keys

}  // namespace

HeadlineKeys::HeadlineKeys(Database& database, std::int64_t mostKeys)
    : store(database),
      all(database, "SELECT service, time, sequence, id FROM headlines ORDER BY service, time, sequence"),
      newer(database, "SELECT service, time, sequence, id FROM headlines WHERE id > ? ORDER BY id"),
      firstHidden(database, "SELECT min(first) FROM import_blocks WHERE hidden"),
      ofService(
          database,
          "SELECT time, sequence, id FROM headlines WHERE service = ? ORDER BY time DESC, sequence DESC"),
      one(database, "SELECT time, sequence FROM headlines WHERE id = ? AND service = ?"),
      most(mostKeys) {}

std::size_t HeadlineKeys::size() const {
    std::size_t keys = 0;
    for (const auto& [service, blocks] : byService)
        keys += blocks.size();
    return keys;
}

void HeadlineKeys::pack(Keys& gathered) {
    for (auto& [service, keys] : gathered)
        byService[service].add(std::move(keys));
    gathered.clear();
}

bool HeadlineKeys::load() {
    byService.clear();
    lastId = 0;
    std::int64_t newestId = 0;
    if (!store.readNumber("SELECT coalesce(max(id), 0) FROM all_headlines", newestId))
        return false;
    oldestId = std::max<std::int64_t>(0, newestId - most);
    Keys gathered;
    Query query(all);
    while (query.next()) {
        const std::int64_t id = query.number(3);
        if (id <= oldestId)
            continue;
        std::vector<StoredKey>& keys = gathered[static_cast<unsigned char>(query.number(0))];
        keys.push_back({query.number(1), query.smallNumber(2), std::uint32_t(id)});
        if (keys.size() == packedAtOnce)
            pack(gathered);
        lastId = std::max(lastId, id);
    }
    pack(gathered);
    hasLoaded = !query.failed() && passHidden();
    if (!hasLoaded)
        byService.clear();
    return hasLoaded;
}

// What an import hides shows later, among the ids that are here already.
bool HeadlineKeys::passHidden() {
    Query query(firstHidden);
    if (query.next() && !query.isNull(0))
        lastId = std::min(lastId, query.number(0) - 1);
    return !query.failed();
}

bool HeadlineKeys::addNewer() {
    Keys added;
    Query query(newer, std::max(lastId, oldestId));
    while (query.next()) {
        added[static_cast<unsigned char>(query.number(0))].push_back(
            {query.number(1), query.smallNumber(2), std::uint32_t(query.number(3))});
        lastId = query.number(3);
    }
    pack(added);
    return !query.failed() && passHidden();
}

// What has grown far beyond its bound, or holds much that is gone, is read anew.
bool HeadlineKeys::catchUp() {
    if (!isLoaded())
        return load();
    if (!addNewer())
        return false;
    return std::int64_t(size()) <= most + most / 4 || load();
}

bool HeadlineKeys::areFew(const IdSet& ids) const {
    return ids.hasAtMost(isLoaded() ? fewMatches : fewBeforeLoading);
}

std::optional<std::vector<CHeadlineTable>> HeadlineKeys::entries(unsigned char service, const IdSet& ids) {
    if (areFew(ids))
        return lookUp(service, ids);
    if (!catchUp())
        return std::nullopt;
    std::vector<CHeadlineTable> found;
    if (const auto known = byService.find(service); known != byService.end())
        found = known->second.entriesOf(ids, service);
    if (oldestId > 0 && ids.mayHoldAny(0, oldestId))
        appendOlder(found, service, ids);
    return found;
}

std::optional<KeyBlocks> HeadlineKeys::packed(unsigned char service, const IdSet& ids) {
    const bool areInMemory = !areFew(ids) && catchUp() && (oldestId == 0 || !ids.mayHoldAny(0, oldestId));
    if (!areInMemory) {
        const auto found = entries(service, ids);
        return found ? std::optional(KeyBlocks(*found)) : std::nullopt;
    }
    const auto known = byService.find(service);
    return known != byService.end() ? known->second.only(ids) : KeyBlocks();
}

void HeadlineKeys::appendOlder(std::vector<CHeadlineTable>& found, unsigned char service, const IdSet& ids) {
    const auto kept = std::ptrdiff_t(found.size());
    Query query(ofService, service);
    while (query.next()) {
        if (const std::int64_t id = query.number(2); id <= oldestId && ids.contains(id))
            found.push_back({query.number(0), query.smallNumber(1), service, 0, 0});
    }
    std::inplace_merge(found.begin(), found.begin() + kept, found.end(), isNewer);
}

std::vector<CHeadlineTable> HeadlineKeys::lookUp(unsigned char service, const IdSet& ids) {
    std::vector<CHeadlineTable> found;
    ids.forEach([&](std::int64_t id) {
        Query query(one, id, service);
        if (query.next())
            found.push_back({query.number(0), query.smallNumber(1), service, 0, 0});
    });
    std::sort(found.begin(), found.end(), isNewer);
    return found;
}

}  // namespace wirepane
