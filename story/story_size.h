// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// How large stories are, in hundredths of the size that follows from the font of views.
inline constexpr int plainStorySize = 100;
inline constexpr int smallestStorySize = 60;
inline constexpr int largestStorySize = 300;
// One step larger (1), smaller (-1), or the plain size again (0).
int steppedStorySize(int size, int step);

// How story displays set stories, beyond their plain texts. A value.
struct StorySetting {
    bool typeset = false;
    int size = plainStorySize;
    bool tellsChanges = false;  // with heads: what was corrected or withdrawn
    bool marksHits = false;     // what was searched for; else it is selected

    bool operator==(const StorySetting&) const = default;
};

}  // namespace wirepane
