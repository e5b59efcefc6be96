// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/headline_table.h"
#include "host/controls/super_sheet_wnd.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace wirepane {

// What a reader looks at in a list, told by keys, so that it is found again when the list was read anew. A
// value.
class ReadingPlace {
public:
    // The place in a grid, row i of which stands for entry i of the table.
    ReadingPlace(const HeadlineTable& table, const CSuperSheetWnd& sheet);

    // Brings the grid, whose rows are those of `table` now and none of them selected, to the place: the rows
    // that were on screen keep their height, what was selected and current is so again, as far as it is
    // listed still. A list that stood at its top shows what has come there.
    void restore(const HeadlineTable& table, CSuperSheetWnd& sheet) const;

private:
    // Beyond it the first ones stay selected, unless all rows were.
    static constexpr std::size_t mostSelected = 10000;

    std::vector<HeadlineKey> onScreen;  // from the top; empty: the list stands at its top
    std::vector<HeadlineKey> selected;
    std::optional<HeadlineKey> current;
    bool allSelected = false;
};

}  // namespace wirepane
