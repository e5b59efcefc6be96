// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <unordered_map>

namespace wirepane {

// Ideographs that stand for one another in OpenCC's tables, each with the one that stands for all of them:
// what some phrase or some character becomes in Simplified Chinese (計畫 and 計劃 are both 计划, so 畫, 劃,
// 划 and 画 are one), and the variants of Hong Kong and Taiwan. Characters that stand alone are left out.
// Empty where the tables are not installed. The one is of the Basic Multilingual Plane wherever one of them
// is, and then Simplified wherever one is.
std::unordered_map<char32_t, char32_t> chineseVariants();

}  // namespace wirepane
