// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QString>

#include <functional>
#include <vector>

namespace wirepane {

// Which of `count` items, texts "CODE NAME", fit what was typed: at most `most` indexes, an exact code first,
// then codes that begin with it, then names that contain it; each group in the items' order, cases alike.
// Nothing fits an empty text.
WIREPANE_HOST_EXPORT std::vector<int> symbolMatches(const QString& typed, int count,
                                                    const std::function<QString(int)>& text, int most);

}  // namespace wirepane
