// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/source_list.h"

#include "backend/clean_text.h"
#include "backend/database/database.h"
#include "backend/database/transaction.h"
#include "backend/import/built_in_mappings.h"
#include "backend/network/network_errors.h"
#include "host/contract/fixed_services.h"

#include <QJsonDocument>

#include <algorithm>
#include <bitset>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString written(const QJsonObject& json) {
    return json.isEmpty() ? QString() : QString::fromUtf8(QJsonDocument(json).toJson(QJsonDocument::Compact));
}

QJsonObject object(const QString& text) {
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

// Its name stands in the table alone, so that no definition can claim another's.
QString definitionOf(NetworkSource source) {
    source.name.clear();
    return written(toJson(source));
}

// A definition that a later version wrote, or somebody by hand, is an error like any other.
Result<NetworkSource> definition(const QString& name, const QString& text) {
    Result<NetworkSource> source = networkSource(object(text));
    if (source)
        source.value().name = name;
    return source;
}

QString stemOf(const NetworkSource& source) {
    const QString host = source.address.host();
    return host.isEmpty() ? source.address.fileName() : host;
}

constexpr qsizetype longestServiceName = 40;

}  // namespace

SourceList::SourceList(Database& owner)
    : database(owner),
      readServices(owner, "SELECT id FROM services"),
      writeService(owner,
                   "INSERT INTO services(id, full_name, short_name, position) "
                   "SELECT ?1, ?2, ?2, coalesce(max(position), 0) + 1 FROM services"),
      readAll(owner, "SELECT name, definition FROM sources ORDER BY position"),
      readOne(owner, "SELECT definition FROM sources WHERE name = ?"),
      append(owner,
             "INSERT INTO sources(name, position, definition) "
             "SELECT ?, coalesce(max(position), 0) + 1, ? FROM sources"),
      replace(owner, "UPDATE sources SET definition = ?2 WHERE name = ?1"),
      erase(owner, "DELETE FROM sources WHERE name = ?"),
      erasePosition(owner, "DELETE FROM feed_positions WHERE source = ?"),
      place(owner, "UPDATE sources SET position = ?2 WHERE name = ?1"),
      raise(owner, "UPDATE source_list SET revision = revision + 1"),
      readRevision(owner, "SELECT revision FROM source_list"),
      readStanding(owner,
                   "SELECT last_try, last_success, next_try, day, items, delay, fault, gaps "
                   "FROM source_states WHERE source = ?"),
      writeStanding(owner,
                    "REPLACE INTO source_states(source, last_try, last_success, next_try, day, items, delay, "
                    "fault, gaps) SELECT name, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9 FROM sources WHERE name = ?1"),
      eraseStanding(owner, "DELETE FROM source_states WHERE source = ?") {}

Result<std::vector<NetworkSource>> SourceList::sources() {
    std::vector<NetworkSource> all;
    Query query(readAll);
    while (query.next()) {
        const auto source = definition(query.text(0), query.text(1));
        if (!source)
            return source.error();
        all.push_back(source.value());
    }
    if (query.failed())
        return failure();
    return all;
}

Result<NetworkSource> SourceList::source(const QString& name) {
    Query query(readOne, name);
    if (query.next())
        return definition(name, query.text(0));
    return query.failed() ? failure() : makeError<network_errors::noSource>(name);
}

Result<QString> SourceList::add(NetworkSource source) {
    if (const Done sound = checkedSource(source); !sound)
        return sound.error();
    const Done added = inTransaction([&]() -> Done {
        const auto all = sources();
        if (!all)
            return all.error();
        if (std::ssize(all.value()) >= mostSources)
            return makeError<network_errors::listFull>(mostSources);
        source.name = freeName(source);
        if (const Done given = giveService(source); !given)
            return given;
        return ran(Query(append, source.name, definitionOf(source)).run());
    });
    if (!added)
        return added.error();
    return source.name;
}

Done SourceList::change(NetworkSource changed) {
    if (const Done sound = checkedSource(changed); !sound)
        return sound;
    return inTransaction([&]() -> Done {
        const auto before = source(changed.name);
        if (!before)
            return before.error();
        if (const Done given = giveService(changed); !given)
            return given;
        const bool startsAnew =
            before.value().address != changed.address || before.value().kind != changed.kind;
        return ran(Query(replace, changed.name, definitionOf(changed)).run() &&
                   (!startsAnew || Query(erasePosition, changed.name).run()));
    });
}

Done SourceList::pause(const QString& name, bool isPaused) {
    auto paused = source(name);
    if (!paused)
        return paused.error();
    paused.value().isPaused = isPaused;
    return change(paused.value());
}

Done SourceList::remove(const QString& name) {
    return inTransaction([&]() -> Done {
        if (!Query(erase, name).run())
            return failure();
        if (database.changes() == 0)
            return makeError<network_errors::noSource>(name);
        return ran(Query(erasePosition, name).run() && Query(eraseStanding, name).run());
    });
}

Done SourceList::move(const QString& name, int to) {
    return inTransaction([&]() -> Done {
        auto all = sources();
        if (!all)
            return all.error();
        std::vector<NetworkSource>& order = all.value();
        const auto from = std::find_if(order.begin(), order.end(),
                                       [&](const NetworkSource& source) { return source.name == name; });
        if (from == order.end())
            return makeError<network_errors::noSource>(name);
        const NetworkSource moved = *from;
        order.erase(from);
        order.insert(order.begin() + std::clamp<std::ptrdiff_t>(to, 0, std::ssize(order)), moved);
        for (std::size_t i = 0; i < order.size(); ++i) {
            if (!Query(place, order[i].name, i + 1).run())
                return failure();
        }
        return Nothing{};
    });
}

Result<std::int64_t> SourceList::revision() {
    Query query(readRevision);
    if (!query.next())
        return failure();
    return query.number(0);
}

Result<SourceStanding> SourceList::standing(const QString& name) {
    Query query(readStanding, name);
    if (!query.next())
        return query.failed() ? Result<SourceStanding>(failure()) : SourceStanding{};
    return SourceStanding{query.number(0),      query.number(1),      query.number(2),       query.number(3),
                          query.smallNumber(4), query.smallNumber(5), object(query.text(6)), query.text(7)};
}

Done SourceList::keepStandings(const std::vector<std::pair<QString, SourceStanding>>& standings) {
    Transaction transaction(database);
    bool kept = transaction.hasBegun();
    for (const auto& [name, standing] : standings) {
        kept = kept &&
               Query(writeStanding, name, standing.lastTry, standing.lastSuccess, standing.nextTry,
                     standing.day, standing.items, standing.delay, written(standing.fault), standing.gaps)
                   .run();
    }
    return ran(kept && transaction.commit());
}

// The host's name, with a number where another source has it; names of removed sources may come again, since
// nothing is kept under them.
QString SourceList::freeName(const NetworkSource& source) {
    const QString stem = stemOf(source);
    const auto isFree = [this](const QString& name) {
        Query query(readOne, name);
        return !query.next();
    };
    QString name = u"net:"_s + stem;
    for (int number = 2; !isFree(name); ++number)
        name = u"net:%1/%2"_s.arg(stem).arg(number);
    return name;
}

// Where all numbers are given away, several share one.
Done SourceList::giveService(NetworkSource& source) {
    if (source.service != ownService || source.isPaused)
        return Nothing{};
    if (!source.mapping.isEmpty()) {
        if (const auto mapping = mappingNamed(source.mapping))
            source.service = fixedServiceOf(mapping.value());
    }
    if (source.service != ownService)
        return Nothing{};
    const auto free = freeService();
    if (!free)
        return free.error();
    source.service = free.value();
    if (source.service == NetworkSource().service)
        return Nothing{};
    const QString name = cleanTitle(source.title.isEmpty() ? stemOf(source) : source.title);
    return ran(Query(writeService, source.service, name.left(longestServiceName)).run());
}

// From the last one on, as people and programs that choose a number begin with the first. Markets have
// numbers of services, and news keeps its service when its source has left.
Result<unsigned char> SourceList::freeService() {
    std::bitset<256> taken;
    for (const unsigned char market : {stockExchangeService, hongKongService, delayedHongKongService,
                                       warrantService, emergingBoardService})
        taken.set(market);
    const auto all = sources();
    if (!all)
        return all.error();
    for (const NetworkSource& source : all.value())
        taken.set(source.service);
    Query query(readServices);
    while (query.next())
        taken.set(static_cast<std::size_t>(query.number(0)) % taken.size());
    if (query.failed())
        return failure();
    for (auto service = taken.size() - 1; service > 0; --service) {
        if (!taken[service])
            return static_cast<unsigned char>(service);
    }
    return NetworkSource().service;
}

Done SourceList::inTransaction(const std::function<Done()>& work) {
    Transaction transaction(database);
    if (!transaction.hasBegun())
        return failure();
    const Done done = work();
    if (!done)
        return done;
    return ran(Query(raise).run() && transaction.commit());
}

Done SourceList::ran(bool isRun) const {
    return isRun ? Done(Nothing{}) : Done(failure());
}

Error SourceList::failure() const {
    return database.failure();
}

}  // namespace wirepane
