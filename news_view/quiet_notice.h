// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

class BKQuoteInterface;

namespace wirepane {
class ListNotices;

// Which sources nothing comes from though something should, where the back end knows.
void tellOfSources(ListNotices& notices, BKQuoteInterface& backEnd);

}  // namespace wirepane
