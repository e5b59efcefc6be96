// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/mapping.h"
#include "backend/news_item.h"

#include <QHash>

namespace wirepane {

// The values of one row by the names of their columns, blanks around both left out.
using MappedRow = QHash<QString, QString>;

// The row as a piece of news; `service` is its service where the mapping states none. The error says what is
// missing or cannot be read.
Result<NewsItem> mappedItem(const Mapping& mapping, const MappedRow& row, unsigned char service);

}  // namespace wirepane
