// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/bulk_marks.h"
#include "backend/store/mark_book.h"
#include "backend/store/store_intake.h"
#include "host/contract/reading_marks.h"

#include <QCache>
#include <QHash>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace wirepane {

// The marks of the news for those who show it: what they change holds at once, and is written to the store on
// its thread, a moment later and together. What could not be written is tried again with what is written
// next. Memory is taken for the marks that were looked up last and for those that are still to be written.
// Those of long lists hold a portion after the other, in the order given, as they are written.
// Interface thread.
class MarkingDesk {
public:
    // Does the work on the store's thread, and calls back when look-ups see what it has written.
    using Ask = std::function<void(StoreIntake::Work, StoreIntake::Then)>;

    using Told = std::function<void(const std::vector<HeadlineKey>&)>;

    // The position of the last arrival that look-ups see.
    using Heard = std::function<std::int64_t()>;

    // The database is the one that reads. Without `ask` nothing is marked. What is given outlives this.
    MarkingDesk(Database& database, Ask ask, Heard heard);

    bool canMark() const { return bool(ask); }
    ReadingMark markOf(const HeadlineKey& key);
    void change(std::vector<HeadlineKey> keys, const MarkChange& change);
    // As ReadingMarks::findUnread.
    void findUnread(std::vector<HeadlineKey> keys, std::size_t most, QObject* asker, Told tell);
    MarkTeller& teller() { return tells; }
    // The news has been sent again, or has gone.
    void forget(const HeadlineKey& key) { known.remove({key}); }
    // Any news may have changed.
    void forgetAll();
    // Gives what is still to be written to the store's thread, ahead of news that may correct what was
    // marked. True: there was something.
    bool writeNow();
    // The same, with all that is left of long lists. True: something waits, or is under way.
    bool writeAll();

private:
    struct Waiting {
        MarkChange change;
        std::int64_t moment = 0;
        std::int64_t heard = 0;
        bool isUnderWay = false;
    };
    struct Writing {
        MarkedKey key;
        Waiting what;
    };
    struct Finding;
    void findFurther(const std::shared_ptr<Finding>& finding);
    void hold(const DueMark& due);
    // The next ones of a long list hold, and are given to be written. False: there are none.
    bool takeNext();
    void noteWritten(const std::vector<Writing>& batch, bool isWritten);

    MarkBook book;
    Ask ask;
    Heard heard;
    QCache<MarkedKey, ReadingMark> known;
    QHash<MarkedKey, Waiting> waiting;
    BulkMarks bulk;
    bool isAnyLeft = false;  // that is not under way
    bool isBulkUnderWay = false;
    MarkTeller tells;
    QTimer soon;
};

}  // namespace wirepane
