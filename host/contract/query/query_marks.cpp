// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/query/query_marks.h"

#include "host/contract/query/search_query.h"

namespace wirepane {

namespace {

void collect(const QueryNode& node, std::vector<QString>& texts) {
    if (node.kind == QueryNode::Kind::Text)
        texts.push_back(node.text);
    if (node.kind == QueryNode::Kind::Not)
        return;
    for (const QueryNode& part : node.parts)
        collect(part, texts);
}

}  // namespace

std::vector<QString> textsToMark(const CSearch& condition) {
    if (!condition.isQuery())
        return condition.keywords;
    std::vector<QString> texts;
    const ReadQuery read = readQuery(condition.query());
    if (const auto* query = std::get_if<QueryNode>(&read))
        collect(*query, texts);
    return texts;
}

}  // namespace wirepane
