// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_entry.h"

namespace wirepane {

AlertWords AlertEntry::wordsByPlace() const {
    AlertWords places;
    for (const QString& word : words) {
        if (word.startsWith(storyField))
            places.story << word.mid(storyField.size());
        else
            places.title << word;
    }
    return places;
}

}  // namespace wirepane
