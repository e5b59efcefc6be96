// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <QString>

#include <vector>

namespace wirepane {

// What decides whether a headline stands in a list of a news view, in the order in which it is asked.
enum class StandingCheck {
    Told,     // the back end gives it out: not what it holds back as dated after the present moment
    Service,  // its service is ticked, or is the one that the list is of
    Day,      // it is of the list's day, yyyymmdd
    Topic,    // it is of the list's category, an id
    Symbol,   // it names the list's symbol, a code
    KeySets,  // a ticked key set wants it
    Filter,   // a ticked key set wants it, under which another list than theirs was read
    Search,   // the last search found it
};

struct CheckedStanding {
    StandingCheck check;
    bool passed;
    QString wanted;  // what the list is of; empty: nothing is chosen, ticked or searched for
    QString has;     // the same of the headline; empty: not known, or no matter

    bool operator==(const CheckedStanding&) const = default;
};

// Why a headline stands where it stands in a list, or why it does not.
struct HeadlineStanding {
    int list = 0;         // 0 to 6
    int row = -1;         // -1: it does not stand there
    bool wasRead = true;  // false: the list has not been read yet, as before it is shown
    // All of a headline that stands there, else up to the first that it did not pass. All passed without a
    // row: nothing keeps it out, and the next reading of the list brings it.
    std::vector<CheckedStanding> checks;
};

// What a news view can say about its headlines. It implements it beside its base class: dynamic_cast from
// TRVQuoteBaseView. Interface thread only.
class WIREPANE_HOST_EXPORT HeadlineExplainer {
public:
    virtual ~HeadlineExplainer();

    // Shows one list after another, and then the one that was on show: a list is read when it is shown.
    virtual void showEachList() = 0;
    // By the lists that the view has, in their order. Changes nothing, but reads tables of the back end.
    virtual std::vector<HeadlineStanding> explain(const HeadlineKey& key) const = 0;
};

}  // namespace wirepane
