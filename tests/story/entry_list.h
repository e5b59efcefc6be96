// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/entry_source.h"
#include "headline_list/list_index.h"

namespace wirepane {

// An owner of one headline list whose mode looks at services 1 and 2.
class EntryList : public EntrySource {
public:
    static constexpr ListIndex number = ListIndex::Search;

    int entryCount(ListIndex list) const override {
        return list == number ? static_cast<int>(entries.size()) : 0;
    }
    std::optional<CHeadlineTable> entryOf(ListIndex list, int row) const override {
        if (row < 0 || row >= entryCount(list))
            return std::nullopt;
        return entries[static_cast<std::size_t>(row)];
    }
    void vGetNewsActiveService(std::vector<unsigned char>& services) const override { services = active; }

    std::vector<CHeadlineTable> entries;
    std::vector<unsigned char> active{1, 2};
};

}  // namespace wirepane
