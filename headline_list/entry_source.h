// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QString>

#include <optional>
#include <vector>

namespace wirepane {
enum class ListIndex : int;

// What story, output and search ask of the owner of the headline lists. Interface thread only.
class EntrySource {
public:
    virtual ~EntrySource() = default;

    virtual int entryCount(ListIndex list) const = 0;
    // The entry at a row; nothing when the row is outside.
    virtual std::optional<CHeadlineTable> entryOf(ListIndex list, int row) const = 0;
    // Replaces `services` by the ids of the services that the current mode looks at.
    virtual void vGetNewsActiveService(std::vector<unsigned char>& services) const = 0;
    // What a category of a service is called beside a story; empty: nothing is said of it.
    virtual QString topicOf(unsigned char service, int category) {
        Q_UNUSED(service);
        Q_UNUSED(category);
        return {};
    }
};

}  // namespace wirepane
