// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/sources/opml.h"
#include "terminal/sources/source_desk.h"

#include <functional>
#include <optional>

namespace wirepane {

Result<OpmlReading> readOpmlFile(const QString& path);
// Without secrets, and without what is no web address. The file is replaced as a whole.
Done writeOpmlFile(const QString& path, const std::vector<ListedSource>& sources);

struct ListedFeedsAdded {
    int added = 0;
    int known = 0;  // by their address, which was in the list
    int leftOut = 0;
    std::optional<Error> fault;  // why it stopped
};

// Adds the feeds of a list, paused, as the user has typed none of their addresses; what is secret in these is
// kept with the secrets. The answer comes once, from the event loop; the desk outlives it.
void addListedFeeds(SourceDesk& desk, const OpmlReading& feeds,
                    const std::function<void(const ListedFeedsAdded&)>& finished);

}  // namespace wirepane
