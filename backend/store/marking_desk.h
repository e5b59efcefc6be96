// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/mark_book.h"
#include "backend/store/store_intake.h"
#include "host/contract/reading_marks.h"

#include <QCache>
#include <QHash>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <vector>

namespace wirepane {

// The marks of the news for those who show it: what they change holds at once, and is written to the store on
// its thread, a moment later and together. What could not be written is tried again with what is written
// next. Memory is taken for the marks that were looked up last and for those that are still to be written.
// Interface thread.
class MarkingDesk {
public:
    // Does the work on the store's thread, and calls back when look-ups see what it has written.
    using Ask = std::function<void(StoreIntake::Work, StoreIntake::Then)>;

    // The position of the last arrival that look-ups see.
    using Heard = std::function<std::int64_t()>;

    // The database is the one that reads. Without `ask` nothing is marked. What is given outlives this.
    MarkingDesk(Database& database, Ask ask, Heard heard);

    bool canMark() const { return bool(ask); }
    ReadingMark markOf(const HeadlineKey& key);
    void change(const std::vector<HeadlineKey>& keys, const MarkChange& change);
    MarkTeller& teller() { return tells; }
    // The news has been sent again, or has gone.
    void forget(const HeadlineKey& key) { known.remove({key}); }
    // Any news may have changed.
    void forgetAll();
    // Gives what is still to be written to the store's thread, ahead of news that may correct what was
    // marked. True: there was something.
    bool writeNow();

private:
    struct Key {
        HeadlineKey headline;

        bool operator==(const Key&) const = default;
        friend std::size_t qHash(const Key& key, std::size_t seed) {
            return qHashMulti(seed, key.headline.time, key.headline.sequence, key.headline.service);
        }
    };
    struct Waiting {
        MarkChange change;
        std::int64_t moment = 0;
        std::int64_t heard = 0;
        bool isUnderWay = false;
    };
    struct Writing {
        Key key;
        Waiting what;
    };
    void noteWritten(const std::vector<Writing>& batch, bool isWritten);

    MarkBook book;
    Ask ask;
    Heard heard;
    QCache<Key, ReadingMark> known;
    QHash<Key, Waiting> waiting;
    bool isAnyLeft = false;  // that is not under way
    MarkTeller tells;
    QTimer soon;
};

}  // namespace wirepane
