// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/search_condition.h"

#include <vector>

namespace wirepane {

// The stored conditions of the warning-term search, and which of them is in force. None is without keywords.
// Rows count from 0; one out of range is ignored.
struct WarningItems {
    std::vector<CSearch> items;
    int chosen = 0;  // the number of the item in force, counted from 1; 0: none

    // The item in force; null when there is none.
    const CSearch* chosenItem() const { return itemAt(chosen - 1); }
    // Null out of range.
    const CSearch* itemAt(int row) const;

    // Appends an item, for every symbol. False, and nothing happens, for one without keywords.
    bool add(const CSearch& item);
    // An item that was edited goes to the end of the list; the number in force goes with its item. False, and
    // nothing happens, when it asks for the same or has no keywords left.
    bool replace(int row, const CSearch& edited);
    // No item is in force when it was this one.
    void remove(int row);
    // Puts an item in force: `condition` takes what the item asks for, for every symbol, except a method that
    // is not known; what results is kept as an item of its own when it asks for something new.
    void choose(int row, CSearch& condition);
};

}  // namespace wirepane
