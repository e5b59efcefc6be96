// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"
#include "backend/news_item.h"

#include <optional>

// What is asked of an item before it reaches the store (see limits.h).
namespace wirepane {

// The name as the file of category names can carry it: blanks and commas become one '-',
// and an over-long name is cut. Empty when nothing is left.
QString cleanCategoryName(const QString& name);

// The item with clean texts (see clean_text.h) and without repeated related symbols.
NewsItem cleaned(const NewsItem& item);
SymbolItem cleaned(const SymbolItem& item);
CategoryItem cleaned(const CategoryItem& item);
QuoteItem cleaned(const QuoteItem& item);

// Why a cleaned item cannot be taken; nothing when it can.
std::optional<Error> faultOf(const NewsItem& item);
std::optional<Error> faultOfStory(const QString& story);
std::optional<Error> faultOf(const SymbolItem& item);
std::optional<Error> faultOf(const CategoryItem& item);
// Prices that are NaN or beyond all prices, and changes that leave less than nothing as the previous
// close.
std::optional<Error> faultOf(const QuoteItem& item);

}  // namespace wirepane
