// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/statement.h"
#include "backend/error.h"
#include "backend/news_item.h"

#include <QLatin1StringView>

#include <optional>

namespace wirepane {

// The name under which a store keeps how far it has followed a wire.
inline constexpr QLatin1StringView wirePosition{":wire:"};

// Which news a store may take, so that one that follows a wire stays what the wire says: all of it comes from
// there, with the moment at which the wire took it in, and the store begins without any. Thread: that of the
// database, which must outlive this.
class CopyRule {
public:
    explicit CopyRule(Database& database);

    // At the start of a transaction. False on failure, which the database then holds.
    bool load();
    // Why this news cannot be taken; nothing: it can.
    std::optional<Error> faultOf(const NewsItem& item) const;
    // Why the store cannot keep a position of this source; nothing: it can.
    std::optional<Error> faultOfSource(const QString& source) const;

private:
    Statement read;
    bool isCopy = false;
    bool hasNews = false;
};

}  // namespace wirepane
