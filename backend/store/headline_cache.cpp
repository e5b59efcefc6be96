// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/headline_cache.h"

namespace wirepane {

HeadlineCache::HeadlineCache(StoreReader& reader, qsizetype mostHeadlines)
    : store(reader), headlines(mostHeadlines), states(mostHeadlines) {}

const CHeadline* HeadlineCache::find(const HeadlineKey& key) {
    if (const CHeadline* const known = headlines.object({key}))
        return known;
    std::optional<CHeadline> read = store.headline(key);
    if (!read)
        return nullptr;
    headlines.insert({key}, new CHeadline(*std::move(read)));
    return headlines.object({key});
}

NewsState HeadlineCache::state(const HeadlineKey& key) {
    if (const NewsState* const known = states.object({key}))
        return *known;
    const NewsState read = store.state(key);
    states.insert({key}, new NewsState(read));
    return read;
}

void HeadlineCache::forget(const HeadlineKey& key) {
    headlines.remove({key});
    states.remove({key});
}

void HeadlineCache::clear() {
    headlines.clear();
    states.clear();
}

}  // namespace wirepane
