// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"

namespace wirepane {
class EmbeddedBackEnd;

// The news that other programs put into the store. It is there already and need not be taken: it is only
// told. Fails as long as the store takes nothing in.
class StoreWatch : public FeedSource {
public:
    // The back end is not owned and outlives the watch.
    explicit StoreWatch(EmbeddedBackEnd& store) : backEnd(store) {}

    QString name() const override;
    void poll() override;
    void setOnline(bool on) override;

private:
    EmbeddedBackEnd& backEnd;
    bool isOnline = true;
};

}  // namespace wirepane
