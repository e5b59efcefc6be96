// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/news_key.h"

#include <optional>

namespace wirepane {

// The text that a key set is stored as: method, news types and keywords, as in "C:1 T:3,7 K:A,B". A backslash
// makes the character behind it part of a keyword; it stands before a comma, another backslash, and the blank
// of " K:". The text of a
// key set in query form says so in front, as in "L:1 C:1 T:3 K:A -B"; others are plain. The remarks are left
// out.
QString textOfKeySet(const CNewsKey& keySet);
// Reads it back; none for any other text. A text without backslashes holds its keywords as they are.
std::optional<CNewsKey> keySetOfText(const QString& text);

}  // namespace wirepane
