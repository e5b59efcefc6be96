// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "bench/backend/big_store.h"

#include "backend/store/day_bounds.h"
#include "backend/store/store_file.h"

#include <map>
#include <memory>
#include <stdexcept>
#include <string>

using namespace Qt::StringLiterals;

namespace wirepane::bench {

BigStore::BigStore(int headlines) : file(folder.filePath(u"big.db"_s)) {
    const auto store = openStore(file);
    if (!store)
        throw std::runtime_error(sentence(store.error()).toStdString());
    const DayBounds bounds = boundsOf(newsDay);
    const std::string count = std::to_string(headlines);
    const std::string services = std::to_string(serviceCount);
    const std::string time =
        std::to_string(bounds.begin) + " + i * " + std::to_string(bounds.end - bounds.begin) + " / " + count;
    const std::string sql =
        "PRAGMA synchronous = OFF; BEGIN;"
        "WITH ids(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM ids WHERE i < " +
        services +
        ") "
        "INSERT OR IGNORE INTO services SELECT i, 'Service ' || i, 'S' || i, 10 + i, 1 FROM ids;"
        "WITH ids(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM ids WHERE i < " +
        count +
        " - 1) "
        "INSERT INTO all_headlines(service, time, sequence, day, category, version, received, identity, "
        "title) "
        "SELECT i % " +
        services + " + 1, " + time + ", i / " + services +
        " + 1, 20260302, i % 5 + 1, 0, 0, "
        "'urn:bench:' || i, 'Headline ' || i || ': shipping lines firm as freight rates recover' FROM ids;"
        "INSERT INTO numbering SELECT service, day, max(sequence) FROM headlines GROUP BY service;"
        "COMMIT; PRAGMA wal_checkpoint(TRUNCATE)";
    if (!store.value()->execute(sql.c_str()))
        throw std::runtime_error(sentence(store.value()->failure()).toStdString());
}

const BigStore& BigStore::of(int headlines) {
    static std::map<int, std::unique_ptr<BigStore>> made;
    std::unique_ptr<BigStore>& store = made[headlines];
    if (!store)
        store = std::make_unique<BigStore>(headlines);
    return *store;
}

}  // namespace wirepane::bench
