// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QString>

#include <cstdint>
#include <span>
#include <vector>

// One condition of the relation-search list: which headlines it wants.
struct RelationCondition {
    unsigned char matchMode = 1;            // 1: every word must hit; anything else: one hit suffices
    std::vector<std::int32_t> categoryIds;  // the single value everyCategory stands for all
    std::vector<QString> words;  // as stored; titles are compared in upper case, words are not folded

    static constexpr std::int32_t everyCategory = -999;

    bool operator==(const RelationCondition&) const = default;
};

// True when at least one condition wants the headline. `symbolText` is the code of its symbol (empty: none);
// a word that equals it, ignoring case, is a hit.
bool CheckIsRelationSearch(std::span<const RelationCondition> conditions, const CHeadline& headline,
                           std::int32_t categoryId, const QString& symbolText);
