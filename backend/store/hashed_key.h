// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QHashFunctions>

#include <cstddef>

namespace wirepane {

// The key of a headline, for what is looked up by it.
struct HashedKey {
    HeadlineKey headline;

    bool operator==(const HashedKey&) const = default;
    friend std::size_t qHash(const HashedKey& key, std::size_t seed) {
        return qHashMulti(seed, key.headline.time, key.headline.sequence, key.headline.service);
    }
};

}  // namespace wirepane
