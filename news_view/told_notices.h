// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"

class BKQuoteInterface;

namespace wirepane {
class Outages;
class HeadlineLists;
class ListNotices;
class SearchDesk;

// What a view tells of the back end: since when it is cut off from its source, and that it is read as of an
// earlier moment.
void tellOfBackEnd(ListNotices& notices, BKQuoteInterface& backEnd, const Outages& outages);

// What a view tells of the list that it shows: a search that is narrowed to a symbol or older than an outage,
// and another list's filter.
void tellOfList(ListNotices& notices, BKQuoteInterface& backEnd, ListIndex list, const HeadlineLists& lists,
                const SearchDesk& searches, const Outages& outages);

}  // namespace wirepane
