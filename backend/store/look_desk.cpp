// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/look_desk.h"

#include "backend/store/headline_cache.h"

#include <utility>

namespace wirepane {

namespace {

constexpr qsizetype mostKnown = 4096;

}  // namespace

void LookDesk::judgeBy(Judge wanted) {
    judge = std::move(wanted);
    known.clear();
    emit tells.changed();
}

HeadlineLook LookDesk::of(const HeadlineKey& key) {
    if (!judge)
        return {};
    if (const auto found = known.constFind({key}); found != known.cend())
        return *found;
    const CHeadline* const headline = headlines.find(key);
    if (headline == nullptr)
        return {};
    if (known.size() >= mostKnown)
        known.clear();
    return *known.insert({key}, judge(*headline));
}

}  // namespace wirepane
