// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/news_key.h"
#include "headline_list/relation_matcher.h"
#include "host/contract/query/key_set_rehearsal.h"

#include <vector>

namespace wirepane {

// A key set as it is rehearsed: plain ones with the matcher of the live lists.
KeySetRehearsal::KeySet rehearsedKeySet(const CNewsKey& keySet, RelationMatcher::Case letters,
                                        std::vector<unsigned char> services);

}  // namespace wirepane
