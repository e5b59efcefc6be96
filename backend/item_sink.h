// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "backend/result.h"

namespace wirepane {

enum class Take {
    TakenIn,       // new, or a later version of what was there
    AlreadyThere,  // nothing changed
    Rejected,      // this item cannot be taken; the others can
};

struct TakeOutcome {
    Take take = Take::TakenIn;
    std::optional<Error> reason;  // for Rejected
};

// What takes items in. An error (a full disk, a damaged store) ends the taking in; nothing since the last
// begin() stays then.
class ItemSink {
public:
    virtual ~ItemSink() = default;

    // Between begin() and commit() items are taken in all or nothing.
    virtual Done begin() = 0;
    virtual Result<TakeOutcome> take(const StoreItem& item) = 0;
    virtual Done commit() = 0;
    virtual void rollback() = 0;
};

// A sink that also remembers how far each source has been taken, in the same transactions as the items: what
// is after the position that is kept has not been taken, and nothing before it is missing.
class FeedSink : public ItemSink {
public:
    // Between begin() and commit(). `source` names the source for good; `position` is the source's own text.
    virtual Done keepPosition(const QString& source, const QString& position) = 0;
};

}  // namespace wirepane
