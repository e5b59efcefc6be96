// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class BKQuoteInterface;

namespace wirepane {

// Another search in the place of one that finds nothing.
struct SearchOffer {
    enum class Kind { OtherServices, StoriesToo, OtherDays, WithoutWord, WithoutSymbol };
    Kind kind = Kind::WithoutWord;
    QString part;  // what goes; empty for others
    CSearch condition;
    int count = 0;  // of headlines that it finds
};

// What could be offered, nothing counted yet. `hasOthers`: some services were not asked.
std::vector<SearchOffer> possibleOffers(const CSearch& condition, bool hasOthers);

// What would find something where a search finds nothing, as the back end counts it. Interface thread only.
class SearchOffers {
public:
    // `whenCounted` is called from the event loop when there is something to offer.
    SearchOffers(BKQuoteInterface& newsBackEnd, std::function<void()> whenCounted)
        : backEnd(newsBackEnd), tellCounted(std::move(whenCounted)) {}

    // The services that searches go to, and those that they do not.
    struct Services {
        std::vector<unsigned char> asked;
        std::vector<unsigned char> others;

        bool operator==(const Services&) const = default;
    };
    // Offers are for this search from here on; another one than before is counted.
    void offerFor(const CSearch& condition, const Services& services);
    // As far as it is counted; in the language in force.
    const std::vector<SearchOffer>& offers() const { return counted; }
    QStringList texts() const;
    // Nothing is offered any more; what is being counted is nobody's.
    void forget();

private:
    void ask();

    BKQuoteInterface& backEnd;
    const std::function<void()> tellCounted;
    CSearch offered;
    Services offeredIn;
    std::vector<SearchOffer> counted;
    std::shared_ptr<const void> counting;
};

}  // namespace wirepane
