// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"
#include "terminal/automation/method_table.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace wirepane {
class Session;

// Searches of the store that no view has sent: search.*.
class SearchMethods {
public:
    // The session is not owned and outlives the table.
    explicit SearchMethods(Session& terminal) : session(terminal) {}

    void addTo(MethodTable& table);

private:
    void find(Params& params, const Reply& reply);
    QJsonObject found(const std::vector<CHeadlineTable>& entries, std::size_t most) const;

    Session& session;
    int number = 0;
    std::unordered_map<int, std::shared_ptr<const void>> underWay;
};

}  // namespace wirepane
