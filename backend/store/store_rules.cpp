// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_rules.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// What must hold: `offenders` gives the name of each row that breaks it, `sentence` says so with the names
// for %1. Rules of news look at the ids from ?1 to before ?2.
struct Rule {
    const char* offenders;
    QStringView sentence;
};

constexpr QStringView referToNothing = u"These rows refer to rows that are not there: %1.";

constexpr std::array tableRules{
    Rule{"SELECT \"table\" || ' ' || coalesce(rowid, '') || ' (to ' || parent || ')' "
         "FROM pragma_foreign_key_check('service_categories') UNION ALL "
         "SELECT \"table\" || ' ' || coalesce(rowid, '') || ' (to ' || parent || ')' "
         "FROM pragma_foreign_key_check('numbering')",
         referToNothing},
    Rule{"SELECT name FROM sqlite_schema WHERE type = 'trigger'",
         u"These triggers are none of the store's; they never run: %1."},
    Rule{"SELECT space || '/' || id FROM categories "
         "WHERE name = '' OR name GLOB '*[ ,]*' OR length(name) > 64",
         u"The names of these categories are empty, too long, or hold blanks or commas: %1."},
    Rule{"SELECT market || '/' || code FROM quotes WHERE code = '' OR length(code) > 64 OR "
         "typeof(last) <> 'real' OR last NOT BETWEEN 0 AND 1e12 OR typeof(change) <> 'real' OR "
         "change NOT BETWEEN -1e12 AND last OR typeof(volume) <> 'integer' OR "
         "volume NOT BETWEEN 0 AND 9007199254740991",
         u"The quotes of these symbols hold a number that is none, or out of range: %1."},
};

constexpr std::array newsRules{
    Rule{"SELECT 'headlines ' || id || ' (to services)' FROM all_headlines "
         "WHERE id >= ?1 AND id < ?2 AND service NOT IN (SELECT id FROM services) UNION ALL "
         "SELECT 'stories ' || headline || ' (to headlines)' FROM stories "
         "WHERE headline >= ?1 AND headline < ?2 AND headline NOT IN "
         "(SELECT id FROM all_headlines WHERE id >= ?1 AND id < ?2) UNION ALL "
         "SELECT 'related_symbols ' || headline || ' (to headlines)' FROM related_symbols "
         "WHERE headline >= ?1 AND headline < ?2 AND headline NOT IN "
         "(SELECT id FROM all_headlines WHERE id >= ?1 AND id < ?2)",
         referToNothing},
    Rule{"SELECT service || '/' || identity FROM headlines "
         "WHERE id >= ?1 AND id < ?2 AND (typeof(title) <> 'text' OR trim(title) = '' OR length(title) > "
         "8192)",
         u"These headlines have no title, or one that is too long: %1."},
    Rule{"SELECT service || '/' || identity FROM headlines WHERE id >= ?1 AND id < ?2 AND "
         "(typeof(time) <> 'integer' OR time NOT BETWEEN -2208988800 AND 253402300799)",
         u"The time of these headlines does not lie within the years 1900 to 9999: %1."},
    Rule{"SELECT DISTINCT service || '/' || day FROM headlines WHERE id >= ?1 AND id < ?2 AND sequence > "
         "coalesce((SELECT last FROM numbering WHERE numbering.service = headlines.service AND "
         "numbering.day = headlines.day), 0)",
         u"The numbering of these services and days has fallen behind their headlines: %1."},
    Rule{"SELECT DISTINCT headlines.service || '/' || identity FROM related_symbols "
         "JOIN headlines ON id = headline WHERE headline >= ?1 AND headline < ?2 AND "
         "(related_symbols.service <> headlines.service OR related_symbols.time <> headlines.time OR "
         "related_symbols.sequence <> headlines.sequence)",
         u"The related symbols of these headlines stand under another time or number: %1."},
    Rule{"SELECT headlines.service || '/' || identity FROM related_symbols JOIN headlines ON id = headline "
         "WHERE headline >= ?1 AND headline < ?2 "
         "GROUP BY headline HAVING count(*) <> max(position) + 1 OR min(position) <> 0 OR "
         "sum(code = '' OR length(code) > 64) > 0",
         u"The related symbols of these headlines have gaps or no proper code: %1."},
    Rule{"SELECT service || '/' || identity FROM stories JOIN headlines ON id = headline "
         "WHERE headline >= ?1 AND headline < ?2 AND coalesce(length(unpacked_or_null(text)) > 4194304, 1)",
         u"The stories of these headlines are no text, or too long: %1."},
};

constexpr Rule indexRule{
    "SELECT service || '/' || identity FROM all_headlines AS news WHERE id >= ?1 AND id < ?2 AND NOT ("
    "EXISTS(SELECT 1 FROM all_headlines INDEXED BY headlines_by_identity WHERE service = news.service AND "
    "identity = news.identity AND id = news.id) AND "
    "EXISTS(SELECT 1 FROM all_headlines INDEXED BY headlines_by_time WHERE service = news.service AND "
    "time = news.time AND sequence = news.sequence AND id = news.id) AND "
    "EXISTS(SELECT 1 FROM all_headlines INDEXED BY headlines_by_number WHERE service = news.service AND "
    "day = news.day AND sequence = news.sequence AND id = news.id))",
    u"These headlines are missing in an index: %1."};

constexpr const char* nextWithRows =
    "SELECT min(id) FROM (SELECT min(id) AS id FROM all_headlines WHERE id >= ?1 UNION ALL "
    "SELECT min(headline) FROM stories WHERE headline >= ?1 UNION ALL "
    "SELECT min(headline) FROM related_symbols WHERE headline >= ?1)";

// In the order of their numbers.
const Rule& ruleAt(std::size_t number) {
    if (number < tableRules.size())
        return tableRules[number];
    number -= tableRules.size();
    return number < newsRules.size() ? newsRules[number] : indexRule;
}

}  // namespace

QString namingSome(QStringView sentence, QStringList offenders) {
    const bool more = offenders.size() > namedOffenders;
    offenders.resize(std::min<qsizetype>(offenders.size(), namedOffenders));
    return sentence.toString().arg(offenders.join(u", "_s) + (more ? u" and more"_s : QString()));
}

StoreRules::StoreRules(Database& database)
    : store(database), offenders(tableRules.size() + newsRules.size() + 1), nextId(database, nextWithRows) {}

template <class... Values>
void StoreRules::look(std::size_t rule, const char* sql, const Values&... values) {
    QStringList& found = offenders[rule];
    Statement statement(store, sql);
    Query query(statement, values...);
    while (found.size() <= namedOffenders && query.next())
        found += query.text(0);
    if (const QString failure = query.failed() ? sentence(store.failure()) : QString();
        !failure.isEmpty() && !failures.contains(failure))
        failures += failure;
}

void StoreRules::checkTables() {
    for (std::size_t i = 0; i < tableRules.size(); ++i)
        look(i, ruleAt(i).offenders);
}

void StoreRules::checkPage(std::int64_t first, std::int64_t end) {
    for (std::size_t i = 0; i < newsRules.size(); ++i)
        look(tableRules.size() + i, newsRules[i].offenders, first, end);
}

void StoreRules::checkIndexes(std::int64_t first, std::int64_t end) {
    look(tableRules.size() + newsRules.size(), indexRule.offenders, first, end);
}

std::optional<std::int64_t> StoreRules::idFrom(std::int64_t id) {
    Query query(nextId, id);
    return query.next() && !query.isNull(0) ? std::optional(query.number(0)) : std::nullopt;
}

QStringList StoreRules::faults() const {
    QStringList found = failures;
    for (std::size_t i = 0; i < offenders.size(); ++i) {
        if (!offenders[i].isEmpty())
            found += namingSome(ruleAt(i).sentence, offenders[i]);
    }
    return found;
}

}  // namespace wirepane
