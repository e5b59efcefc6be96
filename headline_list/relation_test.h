// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/news_key.h"
#include "host/contract/records.h"

#include <span>

// True when at least one key set wants the headline. `symbolText` is the code of its symbol (empty: none);
// a keyword that equals it, ignoring case, is a hit.
bool CheckIsRelationSearch(std::span<const CNewsKey> keySets, const CHeadline& headline,
                           std::int32_t categoryId, const QString& symbolText);
