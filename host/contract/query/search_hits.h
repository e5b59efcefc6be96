// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/search_condition.h"

#include <QString>

#include <memory>
#include <vector>

class BKQuoteInterface;

namespace wirepane {

// Where a word that was searched for stands in a text, in the form in which it stands there.
struct SearchHit {
    qsizetype start = 0;  // in UTF-16 code units
    qsizetype length = 0;
    int word = 0;  // which of the condition's, from 0

    bool operator==(const SearchHit&) const = default;
};

// What is looked at: a field of a query asks for one of them.
enum class HitPlace { Title, Story };

// The words of a condition, made ready to be found in many texts. Pure; interface thread.
class WIREPANE_CONTRACT_EXPORT HitFinder {
public:
    HitFinder() = default;
    HitFinder(const HitFinder&) = delete;
    HitFinder& operator=(const HitFinder&) = delete;
    virtual ~HitFinder();

    // From the text's beginning on, so many at most; none reaches into another. Where two words begin at one
    // place, the longer is told.
    virtual std::vector<SearchHit> hitsIn(const QString& text, HitPlace place, std::size_t most) const = 0;
};

// Optional for back ends, beside BKQuoteInterface: whoever searches says where in a text its hits stand.
// Interface thread.
class WIREPANE_CONTRACT_EXPORT SearchHits {
public:
    virtual ~SearchHits();

    // Names of symbols mean what they mean now. Null: the condition looks for no words, or has a fault.
    virtual std::shared_ptr<const HitFinder> prepareHits(const CSearch& condition) = 0;
};

// What the back end makes of the condition; null also where it does not tell hits.
WIREPANE_CONTRACT_EXPORT std::shared_ptr<const HitFinder> preparedHits(BKQuoteInterface& backEnd,
                                                                       const CSearch& condition);

}  // namespace wirepane
