// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/headline_keys.h"

#include <algorithm>

namespace wirepane {

namespace {

// Makes room for more and a little beyond: twice the room is much for all headlines of a store.
template <class Keys>
void makeRoom(Keys& keys, std::size_t more) {
    const std::size_t needed = keys.size() + more;
    if (needed > keys.capacity())
        keys.reserve(needed + needed / 32 + 64);
}

}  // namespace

HeadlineKeys::HeadlineKeys(Database& database)
    : all(database, "SELECT service, time, sequence, id FROM headlines ORDER BY service, time, sequence"),
      newer(database, "SELECT service, time, sequence, id FROM headlines WHERE id > ? ORDER BY id"),
      firstHidden(database, "SELECT min(first) FROM import_blocks WHERE hidden"),
      one(database, "SELECT time, sequence FROM headlines WHERE id = ? AND service = ?") {}

bool HeadlineKeys::isOlder(const Key& a, const Key& b) {
    return a.time != b.time ? a.time < b.time : a.sequence < b.sequence;
}

// In the order of an index that holds all of it.
bool HeadlineKeys::loadAll() {
    Query query(all);
    while (query.next()) {
        const std::int64_t id = query.number(3);
        byService[static_cast<unsigned char>(query.number(0))].push_back(
            {query.number(1), query.smallNumber(2), std::uint32_t(id)});
        lastId = std::max(lastId, id);
    }
    for (auto& [service, keys] : byService)
        keys.shrink_to_fit();
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

bool HeadlineKeys::catchUp() {
    if (!isLoaded())
        return loadAll();
    std::map<unsigned char, Keys> added;
    {
        Query query(newer, lastId);
        while (query.next()) {
            added[static_cast<unsigned char>(query.number(0))].push_back(
                {query.number(1), query.smallNumber(2), std::uint32_t(query.number(3))});
            lastId = query.number(3);
        }
        if (query.failed())
            return false;
    }
    for (auto& [service, keys] : added)
        merge(byService[service], keys);
    return passHidden();
}

// News that was sent again in its place has another id now, and stays one key.
void HeadlineKeys::merge(Keys& known, Keys& added) {
    std::erase_if(added, [&known](const Key& key) {
        const auto place = std::lower_bound(known.begin(), known.end(), key, isOlder);
        const bool isKnown = place != known.end() && !isOlder(key, *place);
        if (isKnown)
            place->id = key.id;
        return isKnown;
    });
    if (added.empty())
        return;
    std::sort(added.begin(), added.end(), isOlder);
    const auto from = std::upper_bound(known.begin(), known.end(), added.front(), isOlder) - known.begin();
    const auto middle = std::ptrdiff_t(known.size());
    makeRoom(known, added.size());
    known.insert(known.end(), added.begin(), added.end());
    std::inplace_merge(known.begin() + from, known.begin() + middle, known.end(), isOlder);
}

std::vector<CHeadlineTable> HeadlineKeys::entries(unsigned char service, const IdSet& ids) const {
    std::vector<CHeadlineTable> found;
    const auto known = byService.find(service);
    if (known == byService.end())
        return found;
    for (auto key = known->second.rbegin(); key != known->second.rend(); ++key) {
        if (ids.contains(key->id))
            found.push_back({key->time, key->sequence, service, 0, 0});
    }
    return found;
}

std::vector<CHeadlineTable> HeadlineKeys::lookUp(unsigned char service, const IdSet& ids) {
    std::vector<CHeadlineTable> found;
    ids.forEach([&](std::int64_t id) {
        Query query(one, id, service);
        if (query.next())
            found.push_back({query.number(0), query.smallNumber(1), service, 0, 0});
    });
    std::sort(found.begin(), found.end(), [](const CHeadlineTable& a, const CHeadlineTable& b) {
        return a.time != b.time ? a.time > b.time : a.sequence > b.sequence;
    });
    return found;
}

}  // namespace wirepane
