// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/item_sink.h"
#include "tests/support/qt_printers.h"

#include <map>
#include <utility>
#include <vector>

namespace wirepane {

inline constexpr ErrorCode diskFull{"", u"The disk is full."};
inline constexpr ErrorCode diskGone{"", u"The disk is gone."};
inline constexpr ErrorCode notThisOne{"", u"Not this one."};

// A store in memory: what is committed stays, and the same piece of news is taken once per version. It fails
// or refuses where a test tells it to.
class RecordingSink : public ItemSink {
public:
    Done begin() override {
        pending = stored;
        ++begun;
        return Nothing{};
    }

    Result<TakeOutcome> take(const StoreItem& item) override {
        if (takesBeforeFailing == 0)
            return makeError<diskFull>();
        --takesBeforeFailing;
        const auto* news = std::get_if<NewsItem>(&item);
        if (news == nullptr) {
            pending.others.push_back(item);
            return TakeOutcome{};
        }
        if (news->title == refusedTitle)
            return TakeOutcome{Take::Rejected, makeError<notThisOne>()};
        const auto known = pending.news.find(news->identity);
        if (known != pending.news.end() && known->second.version >= news->version)
            return TakeOutcome{Take::AlreadyThere, {}};
        pending.news[news->identity] = *news;
        return TakeOutcome{};
    }

    Done commit() override {
        if (failsToCommit)
            return makeError<diskGone>();
        stored = std::exchange(pending, {});
        return Nothing{};
    }

    void rollback() override {
        pending = {};
        ++rolledBack;
    }

    struct Content {
        std::map<QString, NewsItem> news;  // by identity
        std::vector<StoreItem> others;
    };
    Content stored;
    int begun = 0;
    int rolledBack = 0;

    int takesBeforeFailing = -1;  // negative: never fails
    bool failsToCommit = false;
    QString refusedTitle = QStringLiteral("refused");

private:
    Content pending;
};

}  // namespace wirepane
