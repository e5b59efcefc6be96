// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"

#include <functional>

namespace wirepane {

// What hands over to a visitor what a source holds.
using Reader = std::function<Done(const ItemVisitor&)>;

// Runs the reader on a thread of its own, so that it reads on while what it has read is taken, finishes on
// another what it has left to be done, and packs stories on a third: `visit` is called on the thread that
// calls this, in the order of the source. Who is faster waits: the largest items and three million characters
// of others are in memory.
// Returns once the reader has, with what it said; it is stopped as soon as `visit` has answered false and it
// hands over the next items. `pause` is called before the next item is waited for any longer than a moment.
Done readAhead(const Reader& read, const ItemVisitor& visit, const std::function<void()>& pause = {});

}  // namespace wirepane
