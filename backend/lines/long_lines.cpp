// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/lines/long_lines.h"

namespace wirepane {

bool LongLines::admit(const void* sender) {
    if (admitted.contains(sender))
        return true;
    if (admitted.size() >= mostAtOnce) {
        waiting.insert(sender);
        return false;
    }
    waiting.erase(sender);
    admitted[sender].start();
    return true;
}

void LongLines::heard(const void* sender) {
    if (const auto found = admitted.find(sender); found != admitted.end())
        found->second.start();
}

void LongLines::leave(const void* sender) {
    admitted.erase(sender);
    waiting.erase(sender);
}

std::set<const void*> LongLines::silent() const {
    std::set<const void*> found;
    for (const auto& [sender, since] : admitted) {
        if (anybodyWaits() && since.hasExpired(longestSilence.count()))
            found.insert(sender);
    }
    return found;
}

}  // namespace wirepane
