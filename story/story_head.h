// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QString>

#include <vector>

namespace wirepane {

// A symbol that a story is about, with the name that is shown of it.
struct RelatedSymbol {
    CSymbolInfo symbol;
    QString name;

    bool operator==(const RelatedSymbol&) const = default;
};

// What is known of a story besides its text, as it is shown.
struct StoryHead {
    QString headline;
    QString source;
    QString topic;
    QString time;  // to the second
    std::vector<RelatedSymbol> symbols;
    QString remark = {};   // what became of it; empty: nothing
    QString changes = {};  // what the link to its changes, or back from them, says; empty: there is none

    bool operator==(const StoryHead&) const = default;
};

}  // namespace wirepane
