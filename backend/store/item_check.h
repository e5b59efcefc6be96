// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"

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

// Why a cleaned item cannot be taken: a sentence; empty when it can.
QString faultOf(const NewsItem& item);
QString faultOfStory(const QString& story);
QString faultOf(const SymbolItem& item);
QString faultOf(const CategoryItem& item);
// Numbers that are none, or beyond all prices, and changes that leave less than nothing as the previous
// close.
QString faultOf(const QuoteItem& item);

}  // namespace wirepane
