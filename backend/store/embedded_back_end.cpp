// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"

#include "backend/database/database_errors.h"
#include "backend/database/database_failure.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "host/contract/fixed_services.h"
#include "host/contract/gone_headlines.h"

#include <QScopedValueRollback>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

CHeadlineTable entryOf(const HeadlineKey& key) {
    return {key.time, key.sequence, key.service, 0, 0};
}

}  // namespace

Result<std::unique_ptr<EmbeddedBackEnd>> EmbeddedBackEnd::open(const QString& storePath,
                                                               const IndexProgress& onIndexing) {
    Result<std::unique_ptr<Database>> store = openStore(storePath, {.onIndexing = onIndexing});
    // One that others write to for long would be read alone for as long as this lives.
    if (!store && store.error().code == &database_errors::inUse)
        return store.error();
    if (!store) {
        Result<std::unique_ptr<Database>> read = openStoreToRead(storePath, {.onIndexing = onIndexing});
        if (!read)
            return store.error();
        store = std::move(read);
    }
    Result<StoreConnections> connections = withReader(std::move(store));
    if (!connections)
        return connections.error();
    return std::make_unique<EmbeddedBackEnd>(std::move(connections.value()));
}

EmbeddedBackEnd::EmbeddedBackEnd(StoreConnections opened)
    : connections(std::move(opened)),
      onlyRead(connections.writing->isReadOnly()),
      disk(*connections.writing),
      arrivals(*connections.reading),
      snapshot(*connections.reading, arrivals),
      seen(snapshot.position()),
      reader(*connections.reading),
      days(*connections.reading),
      headlineCache(reader),
      looks(headlineCache),
      marks(
          *connections.reading,
          onlyRead ? MarkingDesk::Ask()
                   : [this](StoreIntake::Work work,
                            StoreIntake::Then then) { intake.ask(std::move(work), std::move(then)); },
          [this] { return snapshot.position(); }),
      laterNews(*connections.reading),
      quotes(*connections.reading),
      prices(*connections.reading,
             [this](const HeadlineKey& key) -> std::optional<CSymbolInfo> {
                 const auto related = reader.relatedSymbols(key);
                 return related && !related->empty() ? std::optional(related->front()) : std::nullopt;
             }),
      toldRevision(quotes.lastRevision()),
      quoteDesk([this](const CSymbolInfo& symbol) { return quotes.find(symbol); }),
      delivery(arrivals, [this](const Arrival& arrival) { tell(arrival); }),
      announcements([this] { return !delivery.isDone(); },
                    [this](const AnnouncedTables& tables) { announce(tables); }),
      rowFiles(connections.reading->path()),
      rehearsals(connections.reading->path()),
      searches(
          connections.reading->path(),
          [this](const CSearch& condition, unsigned char service) {
              forEachReceiver(
                  [&](NewsReceiver& receiver) { receiver.RespSearchHeadLineTable(condition, service); });
          },
          [this](const std::function<void()>& answer) {
              // It may hold news that came after the present moment of the look-ups.
              moveOn();
              answers.give(Held::Search, answer);
              tellNews();
          }),
      intake(*connections.writing, disk, [this](const WorkReport& report) { note(report); }) {}

EmbeddedBackEnd::~EmbeddedBackEnd() {
    if (marks.writeAll())
        intake.finish();
}

void EmbeddedBackEnd::moveOn() {
    // So much is read again sooner than followed, and the log may not reach back.
    constexpr std::int64_t mostFollowed = 10'000;
    snapshot.moveOn();
    if (snapshot.position() - seen > mostFollowed) {
        delivery.addRange(seen, snapshot.position());
        seen = snapshot.position();
        forgetNews();
        return;
    }
    const std::vector<Arrival> fresh = arrivals.after(seen);
    delivery.add(fresh);
    for (const Arrival& arrival : fresh) {
        headlineCache.forget(arrival.key);
        looks.forget(arrival.key);
        marks.forget(arrival.key);
        prices.forget(arrival.key);
        if (arrival.isGone)
            days.remove(arrival.key);
        else if (!arrival.onlyStory)
            days.add(arrival.key);
    }
}

void EmbeddedBackEnd::forgetNews() {
    days.clear();
    headlineCache.clear();
    looks.forgetAll();
    marks.forgetAll();
    prices.forgetAll();
}

void EmbeddedBackEnd::note(const WorkReport& report) {
    moveOn();
    // What another program did to news stands in the log of arrivals; symbols have none.
    if (report.byOthers)
        symbolsRead = false;
    // Nor have marks, which the user's other terminal may have changed.
    if (report.byOthers)
        marks.forgetAll();
    symbolsToTell.insert(symbolsToTell.end(), report.symbols.begin(), report.symbols.end());
    if (report.damage)
        damageOfWork = report.damage;
}

void EmbeddedBackEnd::tellNews() {
    delivery.run();
    tellOf(std::exchange(symbolsToTell, {}));
    tellQuotes();
}

// --- Taking in ---

void EmbeddedBackEnd::ask(StoreIntake::Work work, const std::function<void()>& then) {
    marks.writeNow();
    intake.ask(std::move(work), [this, then] {
        tellNews();
        if (then)
            then();
    });
}

void EmbeddedBackEnd::run(const StoreIntake::Work& work) {
    ask(work, {});
    intake.finish();
}

Result<TakeOutcome> EmbeddedBackEnd::takeIn(const StoreItem& item) {
    return takeOne([&item](StoreWriter& writer) { return writer.take(item); });
}

Result<TakeOutcome> EmbeddedBackEnd::takeStory(const HeadlineKey& key, const QString& story) {
    return takeOne([&key, &story](StoreWriter& writer) { return writer.takeStory(key, story); });
}

Result<TakeOutcome> EmbeddedBackEnd::takeOne(const std::function<Result<TakeOutcome>(StoreWriter&)>& take) {
    Result<TakeOutcome> outcome = TakeOutcome();
    run([&](StoreWriter& writer) {
        Done done = writer.begin();
        if (done)
            outcome = take(writer);
        if (done && outcome)
            done = writer.commit();
        if (!done)
            outcome = done.error();
    });
    return outcome;
}

void EmbeddedBackEnd::tellOf(const std::vector<SymbolItem>& symbols) {
    if (symbols.empty())
        return;
    std::vector<CSymbolUpdateInfo> updates;
    for (const SymbolItem& symbol : symbols) {
        symbolTable.put(symbol);
        updates.push_back({symbol.market, symbol.code});
    }
    forEachReceiver([&](NewsReceiver& receiver) { receiver.vDoSymbolUpdate(updates); });
}

std::optional<Error> EmbeddedBackEnd::storeTrouble() const {
    if (onlyRead)
        return onlyReadError(storePath());
    return connections.reading->wasTakenAway() ? std::optional(takenAwayError(storePath())) : std::nullopt;
}

std::optional<Error> EmbeddedBackEnd::storeDamage() const {
    const std::optional<Error>& ofReading = connections.reading->damage();
    return ofReading ? ofReading : damageOfWork;
}

// --- Telling ---

void EmbeddedBackEnd::checkForNews() {
    moveOn();
    // Whether it was another program only the store's own thread can tell.
    if (reader.changedElsewhere()) {
        ++changes;
        intake.ask({});
    }
    tellNews();
    tellDue();
    followIndex();
}

void EmbeddedBackEnd::tellDue() {
    if (!connected)
        return;
    const std::int64_t position = readPosition();
    for (const HeadlineKey& key : laterNews.due())
        tellHeadline(key, position);
}

void EmbeddedBackEnd::tellQuotes() {
    if (!connected || tellingQuotes)
        return;
    // A receiver may take quotes in meanwhile: they are told behind those that came before.
    tellingQuotes = true;
    for (auto fresh = quotes.after(toldRevision); !fresh.empty(); fresh = quotes.after(toldRevision)) {
        for (const CQuoteMemory& quote : fresh) {
            prices.noteQuote(quote.symbol);
            quoteDesk.tell(quote);
        }
    }
    tellingQuotes = false;
}

void EmbeddedBackEnd::setConnected(bool on) {
    if (on == connected)
        return;
    connected = on;
    forEachReceiver([on](NewsReceiver& receiver) { receiver.connectionChanged(on); });
    if (!on) {
        delivery.close();
        announcements.close();
        return;
    }
    moveOn();
    lastMissed = delivery.open();
    announcements.open();
    tellQuotes();
}

void EmbeddedBackEnd::tell(const Arrival& arrival) {
    if (arrival.onlyStory) {
        const CHeadlineTable entry = entryOf(arrival.key);
        answers.give(Held::Stories, [this, entry] { tellStory(entry); });
        return;
    }
    if (arrival.isGone) {
        // What has come back to a key, or another headline that has it now, is not gone.
        if (headlineCache.find(arrival.key) == nullptr)
            forEachReceiver([&](NewsReceiver& receiver) { tellGoneHeadline(receiver, arrival.key); });
        return;
    }
    if (!laterNews.admits(arrival.key))
        return;
    constexpr std::int64_t aheadSeconds = 120;
    if (datedAhead && laterNews.held() == LaterNews::Held::Nothing &&
        arrival.key.time > host_clock::now() + aheadSeconds)
        datedAhead(arrival.key.service, arrival.key.time);
    tellHeadline(arrival.key, arrival.position);
}

void EmbeddedBackEnd::tellHeadline(const HeadlineKey& key, std::int64_t position) {
    const CHeadline* const read = headlineCache.find(key);
    if (read == nullptr)
        return;
    // A receiver may look other headlines up meanwhile.
    const CHeadline headline = *read;
    const auto symbols = reader.relatedSymbols(key).value_or(std::vector<CSymbolInfo>());
    const std::int32_t day = dayNumber(localDays.dateOf(headline.time));
    if (newsDays.begins(headline.service, day))
        startNewsDay({headline.service, day});
    if (newsDays.of(headline.service) == day) {
        push(headline, symbols, position);
        return;
    }
    const QString code = symbols.empty() ? QString() : symbols.front().code;
    const QString category = QString::number(headline.categoryId);
    forEachReceiver(
        [&](NewsReceiver& receiver) { tellReplacedHeadline(receiver, headline, category, code); });
    announcements.add(key, headline.categoryId, symbols, newsRange().contains(headline.time));
}

void EmbeddedBackEnd::push(const CHeadline& headline, const std::vector<CSymbolInfo>& symbols,
                           std::int64_t position) {
    const QString code = symbols.empty() ? QString() : symbols.front().code;
    const QString category = QString::number(headline.categoryId);
    toldPosition = position;
    forEachReceiver([&](NewsReceiver& receiver) { receiver.RecvNewHeadLine(&headline, category, code); });
    toldPosition = 0;
}

void EmbeddedBackEnd::respStory(const CHeadlineTable& entry) {
    const QScopedValueRollback telling(tellingOf, std::optional(keyOf(entry)));
    forEachReceiver([&](NewsReceiver& receiver) { receiver.RespStory(entry); });
}

void EmbeddedBackEnd::tellStory(const CHeadlineTable& entry) {
    respStory(entry);
    const auto related = reader.relatedSymbols(keyOf(entry));
    if (!related)
        return;
    const CNewsSymlistInfo info{keyOf(entry), {*related}};
    forEachReceiver([&](NewsReceiver& receiver) { receiver.vRecvNewsRelateSymbolListRecovery(&info); });
}

void EmbeddedBackEnd::announceStoryChange(const HeadlineKey& key) {
    const CHeadlineTable entry = entryOf(key);
    forEachReceiver([&](NewsReceiver& receiver) { receiver.StoryUpdateNotify(&entry); });
}

void EmbeddedBackEnd::startNewsDay(const CMarketStatus& status) {
    if (dayOfText(QString::number(status.date)).isValid())
        newsDays.report(status.service, status.date);
    forEachReceiver([&](NewsReceiver& receiver) { receiver.vRecvNewMarketStatus(&status); });
}

// --- Registration ---

void EmbeddedBackEnd::registerSymbols(NewsReceiver* view, const std::vector<CSymbolInfo>& added,
                                      const std::vector<CSymbolInfo>& removed) {
    std::set<unsigned char>& services = registrations[view];
    for (const CSymbolInfo& symbol : added) {
        if (symbol.code.isEmpty() && services.insert(symbol.market).second)
            tellNewsDay(view, symbol.market);
    }
    for (const CSymbolInfo& symbol : removed) {
        if (symbol.code.isEmpty())
            services.erase(symbol.market);
    }
    quoteDesk.leave(view, removed);
    quoteDesk.follow(view, added);
}

void EmbeddedBackEnd::tellNewsDay(NewsReceiver* view, unsigned char service) {
    const auto tellIt = [this, view, service] {
        const auto registered = registrations.find(view);
        if (!connected || registered == registrations.end() || !registered->second.contains(service))
            return;
        const CMarketStatus status{service, newsDays.of(service)};
        view->vRecvNewMarketStatus(&status);
    };
    if (newsDays.hasReported(service))
        QMetaObject::invokeMethod(&delivery, tellIt, Qt::QueuedConnection);
}

void EmbeddedBackEnd::unregisterSymbols(NewsReceiver* view) {
    registrations.erase(view);
    quoteDesk.leaveAll(view);
}

std::vector<unsigned char> EmbeddedBackEnd::registeredServices(NewsReceiver* receiver) const {
    const auto found = registrations.find(receiver);
    if (found == registrations.end())
        return {};
    return {found->second.begin(), found->second.end()};
}

// --- Services ---

bool EmbeddedBackEnd::BKQNEWS_bGetAllNewsService(std::vector<unsigned char>& services) {
    services = reader.serviceIds();
    return !services.empty();
}

bool EmbeddedBackEnd::BKQNEWS_bGetFullNameByService(QString& name, unsigned char service) {
    const std::optional<StoredService> found = reader.service(service);
    if (found)
        name = nameOf(found->fullName);
    return found.has_value();
}

bool EmbeddedBackEnd::BKQNEWS_bGetShortNameByService(QString& name, unsigned char service) {
    const std::optional<StoredService> found = reader.service(service);
    if (found)
        name = nameOf(found->shortName);
    return found.has_value();
}

QString EmbeddedBackEnd::BKQNEWS_cszGetCurrDateByService(unsigned char service) {
    return QString::number(newsDays.of(service));
}

bool EmbeddedBackEnd::bNewsAPI_GetNewsCatId(unsigned char service, std::vector<QString>& ids,
                                            std::vector<QString>& names) {
    ids.clear();
    names.clear();
    const std::vector<StoredCategory> categories = reader.categories(service);
    QSet<QString> taken;
    for (const StoredCategory& category : categories)
        taken.insert(category.name);
    for (const StoredCategory& category : categories) {
        const QString shown = nameOf(category.name);
        ids.push_back(QString::number(category.id));
        names.push_back(taken.contains(shown) ? category.name : shown);
        taken.insert(shown);
    }
    return !ids.empty();
}

int EmbeddedBackEnd::BKQCheckAuthSupport(unsigned char service) {
    const std::optional<StoredService> found = reader.service(service);
    return found && found->authorised ? 1 : 0;
}

bool EmbeddedBackEnd::hasNewsOn(unsigned char service, const QDate& day) {
    return reader.newestTime(service, boundsOf(day)).has_value();
}

std::int64_t EmbeddedBackEnd::newestTime() {
    std::int64_t newest = 0;
    for (const unsigned char service : reader.serviceIds())
        newest =
            std::max(newest, reader.newestTime(service, {firstNewsTime, host_clock::now() + 1}).value_or(0));
    return newest;
}

std::optional<StoredCategory> EmbeddedBackEnd::category(std::int32_t id, unsigned char service) {
    return reader.category(service, id);
}

// --- Texts ---

bool EmbeddedBackEnd::LangIsConvertToSimplified(const unsigned char&) {
    return simplified;
}

void EmbeddedBackEnd::LangConvertToSimplifiedChinese(const QString& in, QString& out) {
    out = chinese.convert(in);
}

QString EmbeddedBackEnd::PathGetSysPath() {
    return sysPath.isEmpty() ? BKQuoteInterface::PathGetSysPath() : sysPath;
}

}  // namespace wirepane
