// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/copy_rule.h"

#include "backend/store/store_errors.h"

namespace wirepane {

CopyRule::CopyRule(Database& database)
    : read(database,
           "SELECT EXISTS(SELECT 1 FROM feed_positions WHERE source = ?), EXISTS(SELECT 1 FROM "
           "all_headlines)") {}

bool CopyRule::load() {
    Query query(read, QString(wirePosition));
    if (!query.next())
        return false;
    isCopy = query.number(0) != 0;
    hasNews = query.number(1) != 0;
    return true;
}

std::optional<Error> CopyRule::faultOf(const NewsItem& item) const {
    if (isCopy && !item.received)
        return makeError<store_errors::ofWireAlone>();
    if (!isCopy && hasNews && item.received)
        return makeError<store_errors::newsOfItsOwn>();
    return std::nullopt;
}

std::optional<Error> CopyRule::faultOfSource(const QString& source) const {
    if (source == wirePosition && !isCopy && hasNews)
        return makeError<store_errors::newsOfItsOwn>();
    return std::nullopt;
}

}  // namespace wirepane
