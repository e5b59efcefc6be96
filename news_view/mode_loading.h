// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"

#include <array>

namespace wirepane {
struct ApplicationSwitches;

// Decides what a switch to a mode reads, and remembers what has been read once.
class ModeLoading {
public:
    // The mode whose list a switch to `mode` reads. With both search switches on it is always the search
    // list, and with the warning switch on the warning-term mode reads the search list: hosts rely on it.
    static ListIndex loadingMode(ListIndex mode, const ApplicationSwitches& switches);

    // True when the list is to be read now; a list that is read once only is marked as read.
    bool takeLoad(ListIndex loading);
    // Each is true at its first call only.
    bool takeCategoryCatalogue() { return takeOnce(categoryCatalogueLoaded); }
    bool takeSymbolInformation() { return takeOnce(symbolInformationLoaded); }
    // Whether each has been called.
    bool hasCategoryCatalogue() const { return categoryCatalogueLoaded; }
    bool hasSymbolInformation() const { return symbolInformationLoaded; }

    // A list that has never been shown takes no pushed headlines.
    bool wasShown(ListIndex list) const { return shown[static_cast<std::size_t>(list)]; }

private:
    static bool takeOnce(bool& done);

    std::array<bool, listCount> shown{};
    bool categoryCatalogueLoaded = false;
    bool symbolInformationLoaded = false;
};

}  // namespace wirepane
