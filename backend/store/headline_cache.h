// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/hashed_key.h"
#include "backend/store/store_reader.h"

#include <QCache>

#include <cstddef>

namespace wirepane {

// The headlines that were looked up last, and what became of them, in front of the store. Thread: that of the
// reader, which must outlive it.
class HeadlineCache {
public:
    explicit HeadlineCache(StoreReader& reader, qsizetype mostHeadlines = 4096);

    // The headline, from memory (a cache hit) or from the store; null when there is none. Valid until the
    // next call.
    const CHeadline* find(const HeadlineKey& key);
    NewsState state(const HeadlineKey& key);
    void forget(const HeadlineKey& key);
    void clear();

private:
    StoreReader& store;
    QCache<HashedKey, CHeadline> headlines;
    QCache<HashedKey, NewsState> states;
};

}  // namespace wirepane
