// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QSet>
#include <QString>

#include <functional>
#include <vector>

namespace wirepane {

// What is unread of a list, as far as it can be told apart at a glance: more is only known to be there. A
// value.
class UnreadSet {
public:
    static constexpr int mostCounted = 999;

    using Test = std::function<bool(const HeadlineKey&)>;

    // Takes the keys in that are unread, and out that are not.
    void settle(const std::vector<HeadlineKey>& keys, const Test& isUnread);
    // Looks at each that is in it again.
    void settleAll(const Test& isUnread);
    // All that is unread was looked for; `found`: how many, up to one more than are counted.
    void noteFound(std::size_t found) { isMore = found > mostCounted; }
    // Others than those in it may be unread, and have room.
    bool isToBeFilled() const { return isMore && keys.size() <= mostCounted; }
    // The count as it is shown; empty for none.
    QString text() const;

private:
    struct Key {
        HeadlineKey headline;

        bool operator==(const Key&) const = default;
        friend std::size_t qHash(const Key& key, std::size_t seed) {
            return qHashMulti(seed, key.headline.time, key.headline.sequence, key.headline.service);
        }
    };
    QSet<Key> keys;
    bool isMore = false;
};

}  // namespace wirepane
