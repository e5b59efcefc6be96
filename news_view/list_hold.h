// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"

#include <functional>
#include <map>
#include <optional>

namespace wirepane {
class RelationMatcher;
class ViewContext;
struct CommonParts;
struct PushedHeadline;

// Lists that the reader holds still. What comes meanwhile is put into them as ever; only what is on screen
// stays there. Interface thread only.
class ListHold {
public:
    // All that is referred to outlives this. `keySets`: the ticked ones.
    ListHold(ViewContext& view, const CommonParts& parts, std::function<const RelationMatcher&()> keySets,
             std::function<void()> changed);

    // How many of what came into a held list the key sets want, or alert rules of the host; nothing: the list
    // is not held.
    std::optional<int> heldAt(ListIndex list) const;
    bool isHeld(ListIndex list) const { return held.contains(list); }
    void noteCome(ListIndex list, const PushedHeadline& pushed);
    // The list goes on; one that stood at its top goes there.
    void letGo(ListIndex list);
    // Whether it is its command.
    bool carryOut(int command);

private:
    struct Held {
        bool stoodAtTop = false;
        int matching = 0;
    };

    ViewContext& view;
    const CommonParts& parts;
    const std::function<const RelationMatcher&()> keySets;
    const std::function<void()> changed;
    std::map<ListIndex, Held> held;
};

}  // namespace wirepane
