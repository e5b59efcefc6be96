// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "terminal/automation/method_table.h"

namespace wirepane {
class Session;

// Playing the feed behind the back end: feed.*.
class FeedMethods {
public:
    // The session is not owned and outlives the table.
    explicit FeedMethods(Session& session);

    void addTo(MethodTable& table);

private:
    Answer push(Params& params);
    Answer symbols(Params& params);
    Answer quotes(Params& params);
    template <class ItemFrom>
    Answer takeList(Params& params, const QString& name, const QString& fields, ItemFrom itemFrom);
    Answer requests();
    Answer delays();
    Answer connectFeed(Params& params);
    Answer story(Params& params);
    Answer updated(Params& params);
    Answer hold(Params& params);
    Answer marketDay(Params& params);
    // Stores an item and tells the views; why not, when that fails.
    std::optional<RpcError> takeIn(const StoreItem& item);

    Session& session;
    int lastVersion;  // of a pushed headline: each push replaces what stands under its key
};

}  // namespace wirepane
