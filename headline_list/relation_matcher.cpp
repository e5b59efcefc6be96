// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/relation_matcher.h"

#include <algorithm>

namespace wirepane {

namespace {

template <class Values>
void sortOut(Values& values) {
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
}

// Two texts have one such form exactly when QString compares them as equal without regard to case, which goes
// by single characters; QString::toCaseFolded does not (it makes "ss" of a sharp s).
QString withoutCase(const QString& text) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const char32_t character =
            pair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : char32_t(text[i].unicode());
        result += QChar::fromUcs4(QChar::toCaseFolded(character));
        if (pair)
            ++i;
    }
    return result;
}

std::vector<CNewsKey> inCapitals(std::span<const CNewsKey> keySets) {
    std::vector<CNewsKey> capitals(keySets.begin(), keySets.end());
    for (CNewsKey& keySet : capitals) {
        for (QString& word : keySet.keywords) {
            if (!keySet.isQuery())
                word = word.toUpper();
        }
    }
    return capitals;
}

std::vector<QString> distinctWords(std::span<const CNewsKey> keySets) {
    std::vector<QString> words;
    for (const CNewsKey& keySet : keySets)
        std::copy_if(keySet.keywords.begin(), keySet.keywords.end(), std::back_inserter(words),
                     [&](const QString& word) { return !keySet.isQuery() && !word.isEmpty(); });
    sortOut(words);
    return words;
}

}  // namespace

void RelationMatcher::NewsTypes::add(const CNewsKey& keySet) {
    const auto& types = keySet.newsTypes;
    if (types.size() == 1 && types.front() == CNewsKey::everyNewsType)
        every = true;
    ids.insert(ids.end(), types.begin(), types.end());
}

void RelationMatcher::NewsTypes::sort() {
    sortOut(ids);
}

bool RelationMatcher::NewsTypes::has(std::int32_t id) const {
    return every || std::binary_search(ids.begin(), ids.end(), id);
}

RelationMatcher::RelationMatcher(std::span<const CNewsKey> keySets, Case letters, HeadlineQueries* queries)
    : isEmpty(keySets.empty()) {
    std::vector<CNewsKey> capitals;
    if (letters == Case::Any) {
        capitals = inCapitals(keySets);
        keySets = capitals;
    }
    words = distinctWords(keySets);
    uses.resize(words.size());
    finder = WordFinder(words);
    Together together;
    for (const CNewsKey& keySet : keySets) {
        if (!keySet.isQuery())
            take(keySet, together);
    }
    if (queries != nullptr)
        prepare(keySets, *queries);
    takeGroups(together);
    unconditional.sort();
    for (Word word = 0; word < words.size(); ++word) {
        uses[word].aloneSuffices.sort();
        wordsOfSymbol[withoutCase(words[word])].push_back(word);
    }
}

void RelationMatcher::prepare(std::span<const CNewsKey> keySets, HeadlineQueries& queries) {
    std::vector<QString> texts;
    for (const CNewsKey& keySet : keySets) {
        if (!keySet.isQuery())
            continue;
        texts.push_back(keySet.query());
        NewsTypes& types = typesOfQuery.emplace_back();
        types.add(keySet);
        types.sort();
    }
    if (!texts.empty())
        prepared = queries.prepareQueries(texts);
}

RelationMatcher::Words RelationMatcher::numbersOf(const CNewsKey& keySet) const {
    Words numbers;
    for (const QString& word : keySet.keywords) {
        if (!word.isEmpty())
            numbers.push_back(
                static_cast<Word>(std::lower_bound(words.begin(), words.end(), word) - words.begin()));
    }
    sortOut(numbers);
    return numbers;
}

void RelationMatcher::take(const CNewsKey& keySet, Together& together) {
    Words numbers = numbersOf(keySet);
    const bool mustAllHit = keySet.method == CNewsKey::all;
    const bool hasEmptyWord = std::any_of(keySet.keywords.begin(), keySet.keywords.end(),
                                          [](const QString& word) { return word.isEmpty(); });
    if (mustAllHit ? numbers.empty() : hasEmptyWord)
        unconditional.add(keySet);
    else if (mustAllHit && numbers.size() > 1)
        together[std::move(numbers)].add(keySet);
    else
        for (const Word word : numbers)
            uses[word].aloneSuffices.add(keySet);
}

// A group stands with that word of its which fewest groups share: the others are looked at when it hits.
void RelationMatcher::takeGroups(Together& together) {
    std::vector<std::size_t> sharers(words.size());
    for (const auto& [numbers, types] : together) {
        for (const Word word : numbers)
            ++sharers[word];
    }
    for (auto& [numbers, types] : together) {
        types.sort();
        const Word rarest = *std::min_element(numbers.begin(), numbers.end(),
                                              [&](Word a, Word b) { return sharers[a] < sharers[b]; });
        uses[rarest].groups.push_back({numbers, std::move(types)});
    }
    for (WordUse& use : uses)
        std::stable_sort(use.groups.begin(), use.groups.end(),
                         [](const Group& a, const Group& b) { return a.words.size() < b.words.size(); });
}

bool RelationMatcher::allHit(const Hits& hits, std::int32_t categoryId) const {
    for (const Word hit : hits) {
        for (const Group& group : uses[hit].groups) {
            if (group.words.size() > static_cast<std::size_t>(hits.size()))
                break;
            if (group.types.has(categoryId) &&
                std::includes(hits.begin(), hits.end(), group.words.begin(), group.words.end()))
                return true;
        }
    }
    return false;
}

bool RelationMatcher::CheckIsRelationSearch(const CHeadline& headline, std::int32_t categoryId,
                                            const QString& symbolText) const {
    if (unconditional.has(categoryId))
        return true;
    const auto isOfItsTypes = [&](std::size_t query) { return typesOfQuery[query].has(categoryId); };
    if (prepared && prepared->findWanting(headline, categoryId, isOfItsTypes))
        return true;
    Hits hits;
    // True when the word is enough.
    const auto take = [&](Word word) {
        hits.push_back(word);
        return uses[word].aloneSuffices.has(categoryId);
    };
    if (!symbolText.isEmpty()) {
        const auto equal = wordsOfSymbol.constFind(withoutCase(symbolText));
        if (equal != wordsOfSymbol.cend() && std::any_of(equal->begin(), equal->end(), take))
            return true;
    }
    if (words.empty())
        return false;
    if (finder.find(headline.title.toUpper(), take))
        return true;
    sortOut(hits);
    return allHit(hits, categoryId);
}

}  // namespace wirepane
