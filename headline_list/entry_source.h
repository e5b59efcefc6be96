// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <vector>

namespace wirepane {

// What story, output and search ask of the owner of the headline lists. Interface thread only.
class EntrySource {
public:
    virtual ~EntrySource() = default;

    // The number of entries of list 0..6; -1 for a list above 6.
    virtual int iGetHeadlineTableSize(int list) const = 0;
    // Copies an entry. False, and `entry` unchanged, when list or row is outside.
    virtual bool bGetHeadlineTable(CHeadlineTable& entry, int list, int row) const = 0;
    // Replaces `services` by the ids of the services that the current mode looks at.
    virtual void vGetNewsActiveService(std::vector<unsigned char>& services) const = 0;
};

}  // namespace wirepane
