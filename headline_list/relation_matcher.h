// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/news_key.h"
#include "headline_list/word_finder.h"
#include "host/contract/query/headline_query.h"
#include "host/contract/records.h"

#include <QHash>
#include <QVarLengthArray>

#include <map>
#include <span>
#include <vector>

namespace wirepane {

// The key sets of the relation-search list, made ready to be tried on many headlines: it is built once when
// they change, and a headline then costs about the same whether there are ten of them or ten thousand. May be
// read on several threads at once, unless there are queries among them: those are tried on the interface
// thread.
class RelationMatcher {
public:
    // No key set: wants nothing.
    RelationMatcher() = default;
    // How keywords are compared with titles, which are taken in upper case.
    enum class Case {
        AsWritten,  // as they stand: one with small letters hits no title
        Any,        // in upper case, too
    };
    // `keySets` need not outlive the call. Without `queries`, or with a fault, a key set in query form wants
    // nothing.
    explicit RelationMatcher(std::span<const CNewsKey> keySets, Case letters = Case::AsWritten,
                             HeadlineQueries* queries = nullptr);

    bool empty() const { return isEmpty; }

    // True when at least one key set wants the headline. `symbolText` is the code of its symbol (empty:
    // none). A key set looks at the headlines of its news types alone. Its keyword hits when the title in
    // upper case contains it (an empty one always), or when it equals the symbol, ignoring case.
    // With the method "all" every keyword must hit, and a key set without keywords wants all; else one hit
    // suffices.
    bool CheckIsRelationSearch(const CHeadline& headline, std::int32_t categoryId,
                               const QString& symbolText) const;

private:
    using Word = std::uint32_t;
    using Words = std::vector<Word>;

    // The news types that some key sets look at.
    struct NewsTypes {
        bool every = false;
        std::vector<std::int32_t> ids;  // rising, once the matcher is built

        void add(const CNewsKey& keySet);
        void sort();
        bool has(std::int32_t id) const;
    };
    // Keywords of which all must hit, and the news types of the key sets that ask for them.
    struct Group {
        Words words;
        NewsTypes types;
    };
    struct WordUse {
        NewsTypes aloneSuffices;    // for headlines of these types a hit of the word is enough
        std::vector<Group> groups;  // which hold this word; those of few words first
    };
    using Hits = QVarLengthArray<Word, 64>;
    using Together = std::map<Words, NewsTypes>;

    void take(const CNewsKey& keySet, Together& together);
    void prepare(std::span<const CNewsKey> keySets, HeadlineQueries& queries);
    void takeGroups(Together& together);
    Words numbersOf(const CNewsKey& keySet) const;
    bool allHit(const Hits& hits, std::int32_t categoryId) const;

    bool isEmpty = true;
    std::shared_ptr<const HeadlineQuerySet> prepared;  // null: there are no queries
    std::vector<NewsTypes> typesOfQuery;               // by its number in `prepared`
    NewsTypes unconditional;     // headlines of these types are wanted whatever they say
    std::vector<QString> words;  // rising, each once
    std::vector<WordUse> uses;   // by word
    WordFinder finder;
    QHash<QString, Words> wordsOfSymbol;  // by the word without its case
};

}  // namespace wirepane
