// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/item_sink.h"
#include "backend/store/store_writer.h"
#include "wire/news_digest.h"
#include "wire/wire_driver.h"
#include "wire/wire_position.h"

#include <set>
#include <utility>

namespace wirepane {

// An ingest point: takes items into a store by its rules, and appends what came of them to a wire. A
// transaction begins with what others have appended, so that the store is level with the wire, and locks the
// wire until its end. It is committed on the wire first; where the store fails to follow, or the answer is
// lost, the next transaction finds it there as what others have appended. Any one thread.
class PublishSink : public FeedSink {
public:
    // Both outlive the sink.
    PublishSink(Database& store, WireServer& wire);

    Done begin() override;
    Result<TakeOutcome> take(const StoreItem& item) override;
    Done keepPosition(const QString& source, const QString& position) override;
    Done commit() override;
    void rollback() override;

private:
    Result<WireHead> catchUp();
    Result<TakeOutcome> takeNews(const NewsItem& given);
    Done note(const NewsItem& item, const StoredNews& stored);
    Done noteCategory(const NewsItem& item, std::int32_t id);
    Done add(int service, const QString& kind, const StoreItem& item);
    Done flush();
    bool loadLinks();

    Database& store;
    WireServer& server;
    StoreWriter writer;
    NewsDigest digest;
    Statement readLinks;
    WirePosition position;
    std::int64_t moment = 0;                        // of the transaction
    std::set<std::pair<int, std::int32_t>> linked;  // categories that services have
    WirePortion portion;
    std::map<std::pair<int, QString>, WireIdentity> identities;  // of the portion
};

}  // namespace wirepane
