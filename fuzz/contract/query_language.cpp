// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "fuzz/support/fuzz_input.h"
#include "host/contract/query/search_query.h"

namespace wirepane {

namespace {

void promisePlaces(const QueryNode& node, const QString& query) {
    promise(node.position >= 0 && node.length > 0 && node.position + node.length <= query.size(),
            "a part stands in its query");
    for (const QueryNode& part : node.parts)
        promisePlaces(part, query);
}

}  // namespace

// A query. What is read can be taken apart by its characters, and each part but a sign reads again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    const QString query = input.text();
    const ReadQuery read = readQuery(query);
    if (const auto* fault = std::get_if<QueryFault>(&read)) {
        promise(fault->position >= 0 && fault->position <= query.size(), "a fault names a place");
        promise(!keyOf(fault->kind).isEmpty(), "a fault has a sentence");
        return 0;
    }
    const QueryNode& root = std::get<QueryNode>(read);
    promisePlaces(root, query);
    for (const QueryNode& part : root.parts)
        promise(std::holds_alternative<QueryNode>(readQuery(query.sliced(part.position, part.length))) ||
                    root.kind == QueryNode::Kind::Near || root.kind == QueryNode::Kind::Not,
                "a part is a query");
    return 0;
}

}  // namespace wirepane
