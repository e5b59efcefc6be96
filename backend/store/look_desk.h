// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/hashed_key.h"
#include "host/contract/headline_looks.h"

#include <QHash>

#include <functional>

namespace wirepane {
class HeadlineCache;

// How headlines look, as somebody judges them: each is judged once. Interface thread.
class LookDesk {
public:
    using Judge = std::function<HeadlineLook(const CHeadline& headline)>;

    // The cache outlives this.
    explicit LookDesk(HeadlineCache& cache) : headlines(cache) {}

    // From now on; none: no headline stands out. Told.
    void judgeBy(Judge wanted);
    HeadlineLook of(const HeadlineKey& key);
    // It may say something else now.
    void forget(const HeadlineKey& key) { known.remove({key}); }
    void forgetAll() { known.clear(); }
    LookTeller& teller() { return tells; }

private:
    HeadlineCache& headlines;
    Judge judge;
    QHash<HashedKey, HeadlineLook> known;
    LookTeller tells;
};

}  // namespace wirepane
