// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/unread_set.h"

using namespace Qt::StringLiterals;

namespace wirepane {

void UnreadSet::settle(const std::vector<HeadlineKey>& changed, const Test& isUnread) {
    for (const HeadlineKey& key : changed) {
        if (keys.contains({key})) {
            if (!isUnread(key))
                keys.remove({key});
        } else if (keys.size() > mostCounted) {
            // Looked at when there is room for it.
            isMore = true;
        } else if (isUnread(key)) {
            keys.insert({key});
        }
    }
}

void UnreadSet::settleAll(const Test& isUnread) {
    erase_if(keys, [&](const Key& key) { return !isUnread(key.headline); });
}

QString UnreadSet::text() const {
    if (keys.size() > mostCounted)
        return u"%1+"_s.arg(mostCounted);
    return keys.isEmpty() ? QString() : QString::number(keys.size());
}

}  // namespace wirepane
