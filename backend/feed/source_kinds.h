// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"

#include <QLatin1StringView>

#include <memory>
#include <span>

namespace wirepane {

// A kind of live source that the user can name, as KIND:VALUE.
struct SourceKind {
    QLatin1StringView name;
    QLatin1StringView value;  // what the value is
    // A source that is there but cannot be used yet may also come with the state Failed.
    Result<std::shared_ptr<FeedSource>> (*open)(const QString& value);
};

std::span<const SourceKind> sourceKinds();
// Null: there is no such kind.
const SourceKind* sourceKind(QStringView name);

}  // namespace wirepane
