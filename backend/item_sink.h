// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "backend/result.h"

#include <optional>
#include <vector>

namespace wirepane {

enum class Take {
    TakenIn,       // new, or a later version of what was there
    AlreadyThere,  // nothing changed
    Rejected,      // this item cannot be taken; the others can
    PutOff,        // what becomes of it commit() decides
};

struct TakeOutcome {
    Take take = Take::TakenIn;
    std::optional<Error> reason;  // for Rejected
};

// What commit() has decided of the items that had been put off, in their order; and how many of those that
// were said to be taken in turned out to be there already, since others brought them meanwhile.
struct LateOutcomes {
    std::vector<TakeOutcome> putOff;
    qint64 overtaken = 0;
};

// What takes items in. An error (a full disk, a damaged store) ends the taking in; nothing since the last
// begin() stays then.
class ItemSink {
public:
    virtual ~ItemSink() = default;

    // Between begin() and commit() items are taken in all or nothing.
    virtual Done begin() = 0;
    // As begin(), for so many items that others should not have to wait for them all: a sink may let others
    // have their turn in between, and put items off.
    virtual Done beginMany() { return begin(); }
    // The next item is not there yet: who waits for a turn may have it.
    virtual void pause() {}
    virtual Result<TakeOutcome> take(const StoreItem& item) = 0;
    virtual Done commit() = 0;
    virtual LateOutcomes takeLateOutcomes() { return {}; }
    virtual void rollback() = 0;
};

// A sink that also remembers how far each source has been taken, in the same transactions as the items: what
// is after the position that is kept has not been taken, and nothing before it is missing.
class FeedSink : public ItemSink {
public:
    // As take(), of a source whose news others may bring, too: what is known by its link is there already,
    // whatever it is called by this source.
    virtual Result<TakeOutcome> takeFrom(const QString&, const StoreItem& item) { return take(item); }
    // Between begin() and commit(). `source` names the source for good; `position` is the source's own text.
    virtual Done keepPosition(const QString& source, const QString& position) = 0;
};

}  // namespace wirepane
