// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/search/query_plan.h"
#include "host/contract/query/headline_query.h"

#include <bitset>
#include <functional>
#include <limits>

namespace wirepane {

// A query that is tried on headlines, by the rules by which the index finds titles: split and folded in the
// same way, without asking it.
class TitleQuery final : public HeadlineQuery {
public:
    // Asked only for headlines that a symbol: has to decide.
    using RelatedSymbols = std::function<std::vector<CSymbolInfo>(const CHeadline&)>;

    // Null: the query has a fault, or the store cannot be read. The planner is not needed any more then.
    static std::shared_ptr<const TitleQuery> make(const QString& query, QueryPlanner& planner,
                                                  RelatedSymbols related, QueryUse use = QueryUse::Headlines);

    bool wants(const CHeadline& headline, std::int32_t categoryId) const override;

private:
    static constexpr std::size_t serviceCount = std::numeric_limits<unsigned char>::max() + 1;
    struct Part {
        QueryNode::Kind kind = QueryNode::Kind::All;
        std::vector<QByteArray> phrases;  // one of them suffices
        std::vector<std::int32_t> topics;
        std::vector<std::int32_t> warrantTopics;  // which are numbered for themselves
        std::bitset<serviceCount> services;
        std::vector<QueryPlan::Symbol> symbols;
        std::vector<Part> parts;
    };
    struct Tried {
        const CHeadline& headline;
        std::int32_t categoryId;
        QByteArray words;
    };
    TitleQuery(Part&& itsRoot, RelatedSymbols symbols)
        : root(std::move(itsRoot)), related(std::move(symbols)) {}
    static Part partOf(const QueryNode& node, QueryPlanner& planner);
    bool holds(const Part& part, const Tried& tried) const;
    bool namesSymbol(const Part& part, const Tried& tried) const;

    const Part root;
    const RelatedSymbols related;
};

}  // namespace wirepane
