// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/reading_marks.h"

namespace wirepane {

namespace {

ReadingState stateAfter(ReadingState before, ReadingState wanted) {
    return wanted == ReadingState::Seen && before == ReadingState::Read ? before : wanted;
}

}  // namespace

ReadingMark changedMark(ReadingMark mark, const MarkChange& change, std::int64_t now) {
    mark.isStarred = change.isStarred.value_or(mark.isStarred);
    if (!change.state)
        return mark;
    mark.state = stateAfter(mark.state, *change.state);
    if (mark.state != ReadingState::New && mark.shown == 0)
        mark.shown = now;
    if (mark.state == ReadingState::Read && mark.opened == 0)
        mark.opened = now;
    if (mark.state == ReadingState::Read)
        mark.wasRead = false;
    return mark;
}

MarkChange joined(MarkChange earlier, const MarkChange& later) {
    if (later.state)
        earlier.state = earlier.state ? stateAfter(*earlier.state, *later.state) : later.state;
    if (later.isStarred)
        earlier.isStarred = later.isStarred;
    return earlier;
}

MarkTeller::~MarkTeller() = default;
ReadingMarks::~ReadingMarks() = default;

}  // namespace wirepane
