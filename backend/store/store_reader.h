// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/database/data_version.h"
#include "backend/database/statement.h"
#include "backend/store/day_bounds.h"
#include "host/contract/news_record.h"
#include "host/contract/records.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace wirepane {

struct StoredCategory {
    std::int32_t id = 0;
    QString name;
    QString colour;  // "#rrggbb"; empty: none of its own
};

struct StoredService {
    QString fullName;
    QString shortName;
    bool authorised = false;
};

// A story that a source has promised is waited for a day: that of a headline that was taken in before this
// moment, in seconds since 1970, will not come.
std::int64_t awaitedSince();

// The look-ups into an open store, each answered from an index. What cannot be read counts as not there.
// Thread: that of the database, which must outlive the reader.
class StoreReader {
public:
    explicit StoreReader(Database& database);

    // True when another program has written since the last call (the first call: true).
    bool changedElsewhere() { return version.hasChanged(); }

    // In the order of display.
    std::vector<unsigned char> serviceIds();
    std::optional<StoredService> service(unsigned char id);
    // By id.
    std::vector<StoredCategory> categories(unsigned char service);
    // The time of the service's newest headline within these bounds; nothing where it has none.
    std::optional<std::int64_t> newestTime(unsigned char service, const DayBounds& bounds);
    // The category with an id of this service's numbering (see categorySpaceOf).
    std::optional<StoredCategory> category(unsigned char service, std::int32_t id);

    // Append the entries of a category, or of a symbol, within `bounds` to `table`, newest first. A related
    // symbol whose market is not known (0) counts for its code in every market. Result: how many.
    int appendCategory(std::vector<CHeadlineTable>& table, unsigned char service, std::int32_t category,
                       const DayBounds& bounds);
    int appendSymbol(std::vector<CHeadlineTable>& table, unsigned char service, const CSymbolInfo& symbol,
                     const DayBounds& bounds);

    std::optional<CHeadline> headline(const HeadlineKey& key);
    // When it was taken in, in seconds since 1970.
    std::optional<std::int64_t> received(const HeadlineKey& key);
    // Empty: there is none, as for an unknown headline. Nothing: it is still to come.
    std::optional<QString> story(const HeadlineKey& key);
    NewsState state(const HeadlineKey& key);
    // Before the present one, oldest first.
    std::vector<NewsVersion> versions(const HeadlineKey& key);
    // What the sources of the list are called that have brought it, in the order of coming.
    QStringList origins(const HeadlineKey& key);
    // Nothing for an unknown headline; the main symbol first.
    std::optional<std::vector<CSymbolInfo>> relatedSymbols(const HeadlineKey& key);

private:
    DataVersion version;
    Statement allServices;
    Statement oneService;
    Statement allCategories;
    Statement oneCategory;
    Statement newestHeadline;
    Statement byCategory;
    Statement bySymbol;
    Statement oneHeadline;
    Statement oneReceived;
    Statement oneStory;
    Statement allRelated;
    Statement oneState;
    Statement allVersions;
    Statement allOrigins;
};

}  // namespace wirepane
