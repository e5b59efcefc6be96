// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/headline_cache.h"

namespace wirepane {

HeadlineCache::HeadlineCache(StoreReader& reader, qsizetype mostHeadlines)
    : store(reader), headlines(mostHeadlines) {}

const CHeadline* HeadlineCache::find(const HeadlineKey& key) {
    if (const CHeadline* const known = headlines.object({key}))
        return known;
    std::optional<CHeadline> read = store.headline(key);
    if (!read)
        return nullptr;
    headlines.insert({key}, new CHeadline(*std::move(read)));
    return headlines.object({key});
}

void HeadlineCache::forget(const HeadlineKey& key) {
    headlines.remove({key});
}

void HeadlineCache::clear() {
    headlines.clear();
}

}  // namespace wirepane
