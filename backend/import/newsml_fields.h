// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "backend/result.h"

namespace wirepane {
class XmlSource;

// The news of the NewsML-G2 <newsItem> that `xml` stands on; goes to its end. The error says why it cannot be
// taken.
Result<NewsItem> newsmlItem(XmlSource& xml, unsigned char service);

}  // namespace wirepane
