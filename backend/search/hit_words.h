// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/search/query_plan.h"
#include "host/contract/query/search_hits.h"

#include <QByteArray>

#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace wirepane {

// Finds the words of a condition in texts by the rules by which the index finds news: split and folded in the
// same way, without asking it.
class HitWords final : public HitFinder {
public:
    // Null: there is nothing to be found. The planner is not needed any more then.
    static std::shared_ptr<const HitWords> make(const CSearch& condition, QueryPlanner& planner);
    // Of a query only what it looks for in stories alone.
    static std::shared_ptr<const HitWords> makeOfStories(const QString& query, QueryPlanner& planner);

    std::vector<SearchHit> hitsIn(const QString& text, HitPlace place, std::size_t most) const override;

private:
    struct Phrase {
        std::vector<QByteArray> words;
        QueryField field = QueryField::Anywhere;
        bool isCut = false;  // its last word may go on
        int word = 0;
    };
    // A word of a text, with its place in characters.
    struct Token {
        qsizetype from;
        qsizetype length;  // of the folded word, in bytes from `from` of all of them
        qsizetype start;
        qsizetype end;
    };
    struct SplitText;

    HitWords() = default;
    static std::shared_ptr<const HitWords> made(const std::shared_ptr<HitWords>& found);
    void collect(const QueryNode& node, QueryPlanner& planner);
    void add(const QString& text, QueryField field, bool isCut, int word);
    bool stands(const Phrase& phrase, const SplitText& text, std::size_t at) const;
    const Phrase* longestAt(const SplitText& text, std::size_t at, HitPlace place) const;

    std::vector<Phrase> phrases;
    std::unordered_map<std::string_view, std::vector<std::size_t>> byFirstWord;  // of those with a whole one
    std::vector<std::size_t> withCutFirstWord;
    int words = 0;
};

}  // namespace wirepane
