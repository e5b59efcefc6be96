// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <QObject>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace wirepane {

enum class ReadingState : std::uint8_t {
    New,   // nobody has been shown it, or it has been marked unread
    Seen,  // its story was shown by itself
    Read   // it was opened by hand, or its story stood there long enough to be read
};

// What the user has done with a piece of news. Moments are in seconds since 1970, UTC; 0: not yet.
struct ReadingMark {
    ReadingState state = ReadingState::New;
    bool isStarred = false;
    bool wasRead = false;     // before it was corrected: it is new again since then
    std::int64_t shown = 0;   // when its story was shown first
    std::int64_t opened = 0;  // when it was read first; of news that was corrected since: its present version

    bool operator==(const ReadingMark&) const = default;
};

// What is to become of a mark; what is left out stays.
struct MarkChange {
    std::optional<ReadingState> state = {};
    std::optional<bool> isStarred = {};
};

// The mark after the change at the moment `now`. What was read is not seen only, unless it is marked unread.
WIREPANE_CONTRACT_EXPORT ReadingMark changedMark(ReadingMark mark, const MarkChange& change,
                                                 std::int64_t now);
// Both changes in one, the later one behind the earlier one.
WIREPANE_CONTRACT_EXPORT MarkChange joined(MarkChange earlier, const MarkChange& later);

// Tells that marks have changed, whoever changed them.
class WIREPANE_CONTRACT_EXPORT MarkTeller : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~MarkTeller() override;

Q_SIGNALS:
    // These, or any where there are none.
    void changed(const std::vector<wirepane::HeadlineKey>& keys);
};

// Optional for back ends, beside BKQuoteInterface: what the user has read and starred, equal in all views and
// kept with the news. A mark follows its news when that is sent again; news that is corrected after it was
// read is new again. Interface thread.
class WIREPANE_CONTRACT_EXPORT ReadingMarks {
public:
    virtual ~ReadingMarks();

    // False: what is kept can only be read, and nothing is marked.
    virtual bool canMark() const = 0;
    // Asked for each row that is drawn: answered from memory or an index. New where nothing is known.
    virtual ReadingMark markOf(const HeadlineKey& key) = 0;
    // Holds from now on, and is told; what keeps it does so a moment later. Thousands at once hold a portion
    // after the other, in this order, each of which is told.
    virtual void changeMarks(std::vector<HeadlineKey> keys, const MarkChange& change) = 0;
    // Finds the first `most` of the keys whose news is new, off this thread, and tells them in their order
    // from the event loop, as long as `asker` is there.
    virtual void findUnread(std::vector<HeadlineKey> keys, std::size_t most, QObject* asker,
                            std::function<void(const std::vector<HeadlineKey>&)> tell) = 0;
    // Lives as long as this.
    virtual MarkTeller& markTeller() = 0;
};

}  // namespace wirepane
