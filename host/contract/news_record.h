// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/records.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace wirepane {

// What a piece of news was before it was sent again with another title or story. Moments are in seconds since
// 1970, UTC.
struct NewsVersion {
    std::int64_t time = 0;      // as its publisher dated it
    std::int64_t received = 0;  // when it was taken in
    QString title;
    std::optional<QString> story;  // in wire form; none: it was still to come when the next version came
    std::int64_t replaced = 0;     // when the next one was taken in
    std::int64_t shown = 0;        // when the user was shown it first; 0: never
    std::int64_t opened = 0;       // when he read it first; 0: never
};

// That its publisher has taken a piece of news back.
struct Withdrawal {
    std::int64_t moment = 0;  // as its publisher dated it, in seconds since 1970, UTC
    QString reason;           // plain text; empty: none was given
};

struct NewsState {
    int corrections = 0;  // versions before this one
    std::optional<Withdrawal> withdrawal = {};

    bool isAsFirstSent() const { return corrections == 0 && !withdrawal; }
};

// Optional for back ends, beside BKQuoteInterface: what became of a piece of news since it was first sent. A
// change of it is announced as the headline or the story that is sent again. Interface thread.
class WIREPANE_CONTRACT_EXPORT NewsRecord {
public:
    virtual ~NewsRecord();

    // Asked for each row that is drawn: answered from memory or an index. As first sent where nothing is
    // known.
    virtual NewsState newsState(const HeadlineKey& key) = 0;
    // The versions before this one, oldest first; a back end may have kept the first and the last ones only.
    virtual std::vector<NewsVersion> versionsOf(const HeadlineKey& key) = 0;
};

}  // namespace wirepane
