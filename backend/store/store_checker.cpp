// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_checker.h"

#include "backend/database/statement.h"
#include "backend/search/search_index_check.h"
#include "backend/store/schema.h"
#include "backend/store/store_file.h"

#include <array>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// How many offenders a sentence names.
constexpr int namedOffenders = 3;

// What must hold: `offenders` gives the name of each row that breaks it, `sentence` says so with the names
// for %1.
struct Rule {
    const char* offenders;
    QStringView sentence;
};
constexpr std::array rules{
    Rule{"SELECT \"table\" || ' ' || coalesce(rowid, '') || ' (to ' || parent || ')' FROM "
         "pragma_foreign_key_check",
         u"These rows refer to rows that are not there: %1."},
    Rule{"SELECT name FROM sqlite_schema WHERE type = 'trigger'",
         u"These triggers are none of the store's; they never run: %1."},
    Rule{"SELECT service || '/' || identity FROM headlines "
         "WHERE typeof(title) <> 'text' OR trim(title) = '' OR length(title) > 8192",
         u"These headlines have no title, or one that is too long: %1."},
    Rule{"SELECT service || '/' || identity FROM headlines "
         "WHERE typeof(time) <> 'integer' OR time NOT BETWEEN -2208988800 AND 253402300799",
         u"The time of these headlines does not lie within the years 1900 to 9999: %1."},
    Rule{"SELECT service || '/' || day FROM headlines GROUP BY service, day HAVING max(sequence) > "
         "coalesce((SELECT last FROM numbering WHERE numbering.service = headlines.service AND "
         "numbering.day = headlines.day), 0)",
         u"The numbering of these services and days has fallen behind their headlines: %1."},
    Rule{"SELECT headlines.service || '/' || identity FROM related_symbols JOIN headlines ON id = headline "
         "WHERE related_symbols.service <> headlines.service OR related_symbols.time <> headlines.time OR "
         "related_symbols.sequence <> headlines.sequence",
         u"The related symbols of these headlines stand under another time or number: %1."},
    Rule{"SELECT headlines.service || '/' || identity FROM related_symbols JOIN headlines ON id = headline "
         "GROUP BY id HAVING count(*) <> max(position) + 1 OR min(position) <> 0 OR "
         "sum(code = '' OR length(code) > 64) > 0",
         u"The related symbols of these headlines have gaps or no proper code: %1."},
    Rule{"SELECT service || '/' || identity FROM stories JOIN headlines ON id = headline "
         "WHERE typeof(text) <> 'text' OR length(text) > 4194304",
         u"The stories of these headlines are no text, or too long: %1."},
    Rule{"SELECT space || '/' || id FROM categories "
         "WHERE name = '' OR name GLOB '*[ ,]*' OR length(name) > 64",
         u"The names of these categories are empty, too long, or hold blanks or commas: %1."},
    Rule{"SELECT market || '/' || code FROM quotes WHERE code = '' OR length(code) > 64 OR "
         "typeof(last) <> 'real' OR last NOT BETWEEN 0 AND 1e12 OR typeof(change) <> 'real' OR "
         "change NOT BETWEEN -1e12 AND last OR typeof(volume) <> 'integer' OR "
         "volume NOT BETWEEN 0 AND 9007199254740991",
         u"The quotes of these symbols hold a number that is none, or out of range: %1."},
};

QString namesOf(QStringList offenders) {
    const bool more = offenders.size() > namedOffenders;
    offenders.resize(std::min<qsizetype>(offenders.size(), namedOffenders));
    return offenders.join(u", "_s) + (more ? u" and more"_s : QString());
}

// A rule that cannot be looked at is a fault too.
void checkRule(Database& database, const Rule& rule, QStringList& faults) {
    Statement statement(database, rule.offenders);
    Query query(statement);
    QStringList offenders;
    while (offenders.size() <= namedOffenders && query.next())
        offenders += query.text(0);
    if (query.failed())
        faults += sentence(database.failure());
    else if (!offenders.isEmpty())
        faults += rule.sentence.toString().arg(namesOf(offenders));
}

QStringList structureFaults(Database& database) {
    QStringList faults;
    Statement statement(database, "PRAGMA integrity_check(10)");
    Query query(statement);
    while (query.next()) {
        if (query.text(0) != u"ok"_s)
            faults += u"The file's structure is damaged: %1."_s.arg(query.text(0));
    }
    if (query.failed())
        faults += sentence(database.failure());
    return faults;
}

void checkSearchIndex(Database& database, QStringList& faults) {
    const std::optional<QStringList> offenders = searchIndexFaults(database, namedOffenders + 1);
    if (!offenders)
        faults += u"The search index cannot be read: %1"_s.arg(sentence(database.failure()));
    else if (!offenders->isEmpty())
        faults += u"The search index does not hold the text of: %1."_s.arg(namesOf(*offenders));
}

}  // namespace

Result<QStringList> StoreChecker::check() const {
    const Result<std::unique_ptr<Database>> opened = Database::openToRead(path, StoreOptions().busyTimeout);
    if (!opened)
        return opened.error();
    Database& database = *opened.value();
    // One moment of the store, whoever writes to it meanwhile.
    if (!database.execute("PRAGMA temp_store = MEMORY; BEGIN"))
        return database.failure();
    if (std::optional<Error> fault = readingFault(database))
        return *fault;
    QStringList faults = structureFaults(database);
    if (!faults.isEmpty())
        return faults;
    for (const Rule& rule : rules)
        checkRule(database, rule, faults);
    checkSearchIndex(database, faults);
    return faults;
}

}  // namespace wirepane
