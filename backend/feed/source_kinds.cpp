// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/source_kinds.h"

#include "backend/feed/socket_source.h"
#include "backend/feed/spool_source.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

using Opened = Result<std::shared_ptr<FeedSource>>;

Opened openSpool(const QString& folder) {
    auto spool = SpoolSource::open(folder);
    return spool ? Opened(std::shared_ptr<FeedSource>(std::move(spool.value()))) : Opened(spool.error());
}

Opened openSocket(const QString& name) {
    return std::shared_ptr<FeedSource>(std::make_shared<SocketSource>(name));
}

constexpr std::array kinds{
    SourceKind{"spool"_L1, "folder"_L1, openSpool},
    SourceKind{"feed"_L1, "name"_L1, openSocket},
};

}  // namespace

std::span<const SourceKind> sourceKinds() {
    return kinds;
}

const SourceKind* sourceKind(QStringView name) {
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [name](const SourceKind& kind) { return kind.name == name; });
    return found == kinds.end() ? nullptr : &*found;
}

}  // namespace wirepane
