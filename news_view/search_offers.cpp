// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/search_offers.h"

#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/query/search_counts.h"
#include "host/contract/search_choices.h"
#include "search/condition_parts.h"

#include <QLocale>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::size_t mostWords = 6;

QString textOf(const SearchOffer& offer, BKQuoteInterface& backEnd) {
    const QString count = QLocale(QLocale::English).toString(offer.count);
    switch (offer.kind) {
        case SearchOffer::Kind::OtherServices:
            return langText(backEnd, keys::offerServices).arg(count);
        case SearchOffer::Kind::StoriesToo:
            return langText(backEnd, keys::offerStories).arg(count);
        case SearchOffer::Kind::OtherDays:
            return langText(backEnd, keys::offerDays).arg(count);
        case SearchOffer::Kind::WithoutWord:
        case SearchOffer::Kind::WithoutSymbol:
            break;
    }
    // Whatever stands in the part is text.
    return langText(backEnd, keys::offerWithout).arg(offer.part, count);
}

}  // namespace

std::vector<SearchOffer> possibleOffers(const CSearch& condition, bool hasOthers) {
    using Kind = SearchOffer::Kind;
    std::vector<SearchOffer> offers;
    if (hasOthers)
        offers.push_back({Kind::OtherServices, {}, condition});
    if (scopeOf(condition.scope) == SearchScope::Headlines) {
        CSearch both = condition;
        both.scope = numberOf(SearchScope::Both);
        offers.push_back({Kind::StoriesToo, {}, both});
    }
    if (const auto onAllDays = withoutDays(condition))
        offers.push_back({Kind::OtherDays, {}, *onAllDays});
    for (std::size_t i = 0; i < condition.symbols.size(); ++i)
        offers.push_back({Kind::WithoutSymbol, condition.symbols[i].code, withoutSymbol(condition, i)});
    const std::vector<QString> words = wordsOf(condition);
    // Where any of them is enough, none is in the way.
    if (words.size() < 2 || isAnyEnough(condition))
        return offers;
    for (std::size_t i = 0; i < std::min(words.size(), mostWords); ++i) {
        SearchOffer offer{Kind::WithoutWord, words[i], withoutWord(condition, i)};
        // A day that stands alone goes with the days already.
        const bool isOffered = std::any_of(offers.begin(), offers.end(), [&offer](const SearchOffer& other) {
            return other.kind == Kind::OtherDays && other.condition == offer.condition;
        });
        if (!isOffered)
            offers.push_back(std::move(offer));
    }
    return offers;
}

void SearchOffers::offerFor(const CSearch& condition, const Services& services) {
    if (!(offered == condition) || !(offeredIn == services)) {
        forget();
        offered = condition;
        offeredIn = services;
        ask();
    }
}

void SearchOffers::ask() {
    auto* counts = dynamic_cast<SearchCounts*>(&backEnd);
    if (counts == nullptr)
        return;
    std::vector<SearchOffer> possible = possibleOffers(offered, !offeredIn.others.empty());
    std::vector<CountedSearch> searches;
    for (const SearchOffer& offer : possible) {
        const bool elsewhere = offer.kind == SearchOffer::Kind::OtherServices;
        searches.push_back({offer.condition, elsewhere ? offeredIn.others : offeredIn.asked});
    }
    if (searches.empty())
        return;
    counting = counts->countFound(
        std::move(searches), [this, possible = std::move(possible)](const std::vector<int>& found) mutable {
            for (std::size_t i = 0; i < std::min(found.size(), possible.size()); ++i)
                possible[i].count = found[i];
            std::erase_if(possible, [](const SearchOffer& offer) { return offer.count <= 0; });
            counted = std::move(possible);
            if (!counted.empty())
                tellCounted();
        });
}

QStringList SearchOffers::texts() const {
    QStringList texts;
    for (const SearchOffer& offer : counted)
        texts += textOf(offer, backEnd);
    return texts;
}

void SearchOffers::forget() {
    counting.reset();
    counted.clear();
    offered = {};
    offeredIn = {};
}

}  // namespace wirepane
