// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_defaults.h"

#include "backend/database/statement.h"
#include "backend/store/schema.h"
#include "host/contract/clock.h"
#include "host/contract/fixed_services.h"

#include <array>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

struct DefaultService {
    unsigned char id;
    QLatin1StringView fullName;
    QLatin1StringView shortName;
    int categories;  // it has the categories 1 to this
};
constexpr std::array services{
    DefaultService{1, "General News"_L1, "General"_L1, 6},
    DefaultService{2, "Market News"_L1, "Market"_L1, 6},
    DefaultService{stockExchangeService, "Stock Exchange"_L1, "Exchange"_L1, 5},
    DefaultService{hongKongService, "Hong Kong Market"_L1, "Hong Kong"_L1, 5},
    DefaultService{warrantService, "Warrants"_L1, "Warrants"_L1, 4},
    DefaultService{emergingBoardService, "Emerging Board"_L1, "Emerging"_L1, 4},
};

struct DefaultCategory {
    int space;
    int id;
    QLatin1StringView name;
    QLatin1StringView colour;
};
constexpr std::array categories{
    DefaultCategory{0, 1, "Markets"_L1, "#2f7fd0"_L1},
    DefaultCategory{0, 2, "Companies"_L1, "#2e9e5b"_L1},
    DefaultCategory{0, 3, "Announcements"_L1, "#c07a1a"_L1},
    DefaultCategory{0, 4, "Results"_L1, "#b0508f"_L1},
    DefaultCategory{0, 5, "Economy"_L1, "#7a68c8"_L1},
    DefaultCategory{0, 6, "Policy"_L1, "#b8574a"_L1},
    DefaultCategory{warrantService, 1, "Issue"_L1, "#2e9e5b"_L1},
    DefaultCategory{warrantService, 2, "Expiry"_L1, "#b8574a"_L1},
    DefaultCategory{warrantService, 3, "Adjustment"_L1, "#c07a1a"_L1},
    DefaultCategory{warrantService, 4, "Trading"_L1, "#2f7fd0"_L1},
};

bool addCategories(Database& database) {
    Statement insert(database, "INSERT INTO categories(space, id, name, colour) VALUES(?, ?, ?, ?)");
    for (const DefaultCategory& category : categories) {
        if (!Query(insert, category.space, category.id, QString(category.name), QString(category.colour))
                 .run())
            return false;
    }
    return true;
}

bool addServices(Database& database) {
    Statement insert(database,
                     "INSERT INTO services(id, full_name, short_name, position) VALUES(?, ?, ?, ?)");
    Statement link(database, "INSERT INTO service_categories(service, category, space) VALUES(?, ?, ?)");
    int position = 0;
    for (const DefaultService& service : services) {
        if (!Query(insert, service.id, QString(service.fullName), QString(service.shortName), ++position)
                 .run())
            return false;
        for (int category = 1; category <= service.categories; ++category) {
            if (!Query(link, service.id, category, categorySpaceOf(service.id)).run())
                return false;
        }
    }
    return true;
}

}  // namespace

bool addDefaults(Database& database) {
    Statement begin(database, "UPDATE marks_begin SET moment = ?");
    return addCategories(database) && addServices(database) && Query(begin, host_clock::now()).run();
}

bool removeDefaultCategories(Database& database) {
    std::int64_t news = 0;
    if (!database.readNumber("SELECT EXISTS(SELECT 1 FROM headlines)", news))
        return false;
    return news != 0 || database.execute("DELETE FROM service_categories; DELETE FROM categories");
}

}  // namespace wirepane
