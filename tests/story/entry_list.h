// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/entry_source.h"

namespace wirepane {

// An owner of one headline list, number 3, whose mode looks at services 1 and 2.
class EntryList : public EntrySource {
public:
    static constexpr int number = 3;

    int iGetHeadlineTableSize(int list) const override {
        return list == number ? static_cast<int>(entries.size()) : 0;
    }
    bool bGetHeadlineTable(CHeadlineTable& entry, int list, int row) const override {
        if (row < 0 || row >= iGetHeadlineTableSize(list))
            return false;
        entry = entries[static_cast<std::size_t>(row)];
        return true;
    }
    void vGetNewsActiveService(std::vector<unsigned char>& services) const override { services = active; }

    std::vector<CHeadlineTable> entries;
    std::vector<unsigned char> active{1, 2};
};

}  // namespace wirepane
