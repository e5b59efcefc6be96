// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "backend/store/hashed_key.h"

#include <QSet>

#include <cstdint>
#include <vector>

namespace wirepane {

// The news that is dated after the present moment (host_clock), which a reader of an earlier moment is not to
// see before its time. Thread: that of the database, which must outlive this.
class LaterNews {
public:
    enum class Held {
        Nothing,  // news is shown whatever its date
        Stored,   // what is there when the reading begins comes at its moment; what comes live is shown
        All,      // whatever comes waits for its moment
    };

    // At first nothing is held.
    explicit LaterNews(Database& database);

    // A reading begins, at the present moment.
    void hold(Held which);
    Held held() const { return which; }

    // A headline has come: whether it is to be shown. One that is not will be due at its moment.
    bool admits(const HeadlineKey& key);
    // Takes out of a table what is held, from entry `from` on.
    void takeOut(std::vector<CHeadlineTable>& table, std::size_t from) const;
    // All news up to here is shown.
    std::int64_t shownUpTo() const;
    // So is some that is later.
    bool showsSomeLater() const { return !admitted.empty(); }
    // The headlines whose moment has come since the last call, oldest first. Only from now on are they in
    // tables.
    std::vector<HeadlineKey> due();

private:
    Statement between;
    Held which = Held::Nothing;
    std::int64_t end = 0;      // the moment up to which news is shown where some is held
    QSet<HashedKey> admitted;  // beyond it
};

}  // namespace wirepane
