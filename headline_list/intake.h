// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "headline_list/relation_matcher.h"
#include "headline_list/service_entry.h"
#include "host/contract/records.h"

#include <QDate>
#include <QString>

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace wirepane {

// A headline as the back end pushes it.
struct PushedHeadline {
    const CHeadline& headline;
    const QString& categoryId;
    const QString& symbolCode;
};

// The symbols that a headline names; nothing: they are not at hand.
using NamedSymbols = std::optional<std::vector<CSymbolInfo>>;

// What decides where a pushed headline goes.
struct IntakeState {
    bool connected = false;  // to the back end
    bool hasDatePicker = false;
    QDate pickedDate;
    QDate newsDay;
    std::span<const ServiceEntry> services;     // the saved copy: the user's own choice
    std::array<bool, listCount> exists{};       // the list has a grid
    std::array<bool, listCount> shown{};        // the list has been shown: until then it takes no pushes
    std::optional<QString> categoryId;          // of the chosen category; none: nothing is chosen
    std::optional<QString> symbolCode;          // of the chosen symbol
    unsigned char symbolMarket = 0;             // its service
    const RelationMatcher* relation = nullptr;  // the ticked key sets; null: there are none
};

// A list that takes the headline, and whether its row shows the date beside the time.
struct IntakeTarget {
    ListIndex list;
    bool showDate;

    bool operator==(const IntakeTarget&) const = default;
};

// The lists that a pushed headline belongs to, in the order in which they take it. Search results are not
// among them: they are merged from the back end's answers.
std::vector<IntakeTarget> listsFor(const PushedHeadline& pushed, const IntakeState& state);

// Whether a list that holds a headline may keep it now that it has been replaced by `pushed`. By the test by
// which lists take headlines; the symbol list, which is read with every news that names its symbol, also
// keeps what names it among others. A list whose choice is not known keeps it.
bool keeps(ListIndex list, const PushedHeadline& pushed, const NamedSymbols& symbols,
           const IntakeState& state);

}  // namespace wirepane
