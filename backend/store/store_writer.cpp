// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/store_writer.h"

#include "backend/clean_text.h"
#include "backend/database/database_failure.h"
#include "backend/store/day_bounds.h"
#include "backend/store/item_check.h"
#include "backend/store/store_errors.h"
#include "host/contract/clock.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

StoredNews rejected(const Error& reason) {
    StoredNews stored;
    stored.outcome = {Take::Rejected, reason};
    return stored;
}

HeadlineKey keyOf(const NewsItem& item, const KnownNews& known) {
    return {known.time, known.sequence, item.service};
}

bool isLater(const NewsItem& item, const KnownNews& known) {
    return item.version > known.version || (item.version == known.version && item.time > known.time);
}

bool isWithdrawing(const NewsItem& item, const KnownNews& known) {
    return item.withdrawn && (isLater(item, known) || (!known.isWithdrawn && item.version >= known.version));
}

Error numberTaken(const NewsItem& item) {
    if (!item.sequence)
        return makeError<store_errors::noNumberLeft>();
    return makeError<store_errors::numberTaken>(*item.sequence);
}

Error tooOld(std::int64_t horizon) {
    return makeError<store_errors::beyondRetention>(
        QDateTime::fromSecsSinceEpoch(horizon).toString(u"yyyy/MM/dd HH:mm"_s));
}

}  // namespace

StoreWriter::StoreWriter(Database& owner)
    : database(owner),
      blocks(owner),
      news(owner, blocks),
      numbers(owner),
      categories(owner),
      arrivals(owner),
      positions(owner),
      copying(owner),
      origins(owner),
      trimmer(owner, news, arrivals),
      quotes(owner),
      insertService(owner,
                    "INSERT INTO services(id, full_name, short_name, position) "
                    "SELECT ?1, ?2, ?2, coalesce(max(position), 0) + 1 FROM services WHERE true "
                    "ON CONFLICT(id) DO UPDATE SET position = excluded.position WHERE services.position = 0"),
      insertHiddenService(owner,
                          "INSERT OR IGNORE INTO services(id, full_name, short_name, position) "
                          "VALUES(?1, ?2, ?2, 0)"),
      noteAside(
          owner,
          "INSERT INTO set_aside(headline, identity) SELECT id, identity FROM all_headlines WHERE id = ?"),
      // No identity of a source begins with such a character.
      renameAside(owner, "UPDATE all_headlines SET identity = char(1) || id WHERE id = ?"),
      findSymbol(owner, "SELECT name, category, english_name FROM symbols WHERE market = ? AND code = ?"),
      writeSymbol(owner,
                  "REPLACE INTO symbols(market, code, name, category, english_name) VALUES(?, ?, ?, ?, ?)") {}

Done StoreWriter::begin() {
    return beginAs(false);
}

Done StoreWriter::beginHidden() {
    return beginAs(true);
}

Done StoreWriter::beginAs(bool isHidden) {
    if (database.wasTakenAway())
        return takenAwayError(database.path());
    if (!database.begin())
        return database.failure();
    numbers.restart();
    categories.restart();
    services.clear();
    days = {};
    horizon = trimmer.horizon();
    begun = true;
    isHiding = isHidden;
    categories.holdLinks(isHidden);
    if (!copying.load() || !blocks.load() || !news.begin() || (isHidden && !blocks.hideNew()))
        return fail();
    return Nothing{};
}

Done StoreWriter::showHidden() {
    if (!database.execute(
            "INSERT INTO arrivals(headline, only_story) SELECT id, 0 FROM import_blocks "
            "CROSS JOIN all_headlines ON id BETWEEN first AND last WHERE hidden ORDER BY first, id;"
            "UPDATE services SET position = (SELECT max(position) FROM services) + 1 WHERE position = 0") ||
        !categories.showHeld() || !blocks.show())
        return fail();
    return Nothing{};
}

Done StoreWriter::commit() {
    if (!begun)
        return makeError<store_errors::nothingToKeep>();
    if (!news.finish() || !numbers.save() || (isHiding ? !blocks.keepNew() : !arrivals.trim()) ||
        !database.commit())
        return fail();
    begun = false;
    keptSymbols = changedSymbols.size();
    return Nothing{};
}

void StoreWriter::rollback() {
    // SQLite itself takes back what a full disk stopped.
    if (begun && database.inTransaction())
        database.execute("ROLLBACK");
    begun = false;
    changedSymbols.resize(keptSymbols);
}

std::vector<SymbolItem> StoreWriter::takeChangedSymbols() {
    keptSymbols = 0;
    return std::exchange(changedSymbols, {});
}

Error StoreWriter::fail() {
    const Error error = database.failure();
    rollback();
    return error;
}

Result<TakeOutcome> StoreWriter::take(const StoreItem& item) {
    if (isStopped) {
        rollback();
        return makeError<store_errors::stopped>();
    }
    if (const auto* symbol = std::get_if<SymbolItem>(&item))
        return takeSymbol(cleaned(*symbol));
    if (const auto* category = std::get_if<CategoryItem>(&item))
        return takeCategory(cleaned(*category));
    if (const auto* quote = std::get_if<QuoteItem>(&item))
        return takeQuote(cleaned(*quote));
    const Result<StoredNews> stored = takeNews(std::get<NewsItem>(item));
    if (!stored)
        return stored.error();
    return stored.value().outcome;
}

Result<StoredNews> StoreWriter::takeNews(const NewsItem& given) {
    if (!begun)
        return makeError<store_errors::nothingBegun>(makeError<store_errors::news>());
    const NewsItem item = cleaned(given);
    if (const auto fault = faultOf(item))
        return rejected(*fault);
    if (const auto fault = copying.faultOf(item))
        return rejected(*fault);
    bool failed = false;
    std::optional<KnownNews> known = news.find(item.service, item.identity, failed);
    if (failed)
        return fail();
    if (known && !isHiding && blocks.isHidden(known->id)) {
        if (!setAside(known->id))
            return fail();
        known.reset();
    }
    if (!known && item.title.isEmpty())
        return rejected(makeError<store_errors::withdrawsUnknown>());
    if (!known)
        return horizon && item.time < *horizon && !item.day ? rejected(tooOld(*horizon)) : add(item);
    const bool isNewer = item.withdrawn ? isWithdrawing(item, *known) : isLater(item, *known);
    const bool bringsStory = !isNewer && item.version == known->version &&
                             !item.story.value_or(QString()).isEmpty() && !known->hasStory;
    StoredNews stored;
    if (isHiding && (isNewer || bringsStory) && !blocks.isHidden(known->id)) {
        stored.outcome.take = Take::PutOff;
        return stored;
    }
    if (isNewer)
        return item.title.isEmpty() ? withdraw(item, *known) : replace(item, *known);
    if (bringsStory)
        return addStory(item, *known);
    if (item.day)
        return rejected(makeError<store_errors::copyDiffers>(item.identity));
    stored.outcome.take = Take::AlreadyThere;
    stored.key = keyOf(item, *known);
    stored.categoryId = known->category;
    return stored;
}

bool StoreWriter::noteArrival(std::int64_t id, bool onlyStory, const std::optional<HeadlineKey>& gone) {
    return isHiding || arrivals.add(id, onlyStory, gone);
}

bool StoreWriter::setAside(std::int64_t id) {
    return Query(noteAside, id).run() && Query(renameAside, id).run();
}

Result<StoredNews> StoreWriter::add(const NewsItem& item) {
    NewsPlace place{.day = dayOf(item)};
    const Result<std::optional<std::int32_t>> number = numberFor(item, place.day, nullptr);
    if (!number)
        return number.error();
    if (!number.value())
        return rejected(numberTaken(item));
    place.sequence = *number.value();
    if (!ensureService(item.service) || !findCategory(item, place.category) || !news.insert(item, place) ||
        !noteArrival(news.writtenId(), false))
        return fail();
    StoredNews stored;
    stored.key = {item.time, place.sequence, item.service};
    stored.categoryId = place.category;
    return stored;
}

Result<StoredNews> StoreWriter::replace(const NewsItem& item, const KnownNews& known) {
    NewsPlace place{.day = dayOf(item)};
    const Result<std::optional<std::int32_t>> number = numberFor(item, place.day, &known);
    if (!number)
        return number.error();
    if (!number.value())
        return rejected(numberTaken(item));
    place.sequence = *number.value();
    StoredNews stored;
    stored.key = {item.time, place.sequence, item.service};
    stored.before = keyOf(item, known);
    const std::optional<HeadlineKey> gone = stored.before == stored.key ? std::nullopt : stored.before;
    if (!findCategory(item, place.category) || !news.replace(known.id, item, place) ||
        !noteArrival(news.writtenId(), false, gone))
        return fail();
    stored.categoryId = place.category;
    return stored;
}

Result<StoredNews> StoreWriter::withdraw(const NewsItem& item, const KnownNews& known) {
    if (!news.withdraw(known.id, item) || !noteArrival(known.id, false))
        return fail();
    StoredNews stored;
    stored.key = keyOf(item, known);
    stored.before = stored.key;
    stored.categoryId = known.category;
    return stored;
}

Result<StoredNews> StoreWriter::addStory(const NewsItem& item, const KnownNews& known) {
    if (!news.putStory(known.id, *item.story) || !noteArrival(known.id, true))
        return fail();
    StoredNews stored;
    stored.onlyStory = true;
    stored.key = keyOf(item, known);
    stored.before = stored.key;
    stored.categoryId = known.category;
    return stored;
}

Result<TakeOutcome> StoreWriter::takeStory(const HeadlineKey& key, const QString& given) {
    if (!begun)
        return makeError<store_errors::nothingBegun>(makeError<store_errors::story>());
    const QString story = cleanStory(given);
    if (const auto fault = faultOfStory(story))
        return TakeOutcome{Take::Rejected, fault};
    bool failed = false;
    const std::optional<KnownNews> known = news.find(key, failed);
    if (failed)
        return fail();
    if (!known)
        return TakeOutcome{Take::Rejected, makeError<store_errors::noHeadline>()};
    if (!news.putStory(known->id, story) || !noteArrival(known->id, true))
        return fail();
    return TakeOutcome{};
}

Result<TrimStep> StoreWriter::trim(const Retention& keep, std::int64_t now) {
    if (const Done opened = begin(); !opened)
        return opened.error();
    if (isStopped) {
        rollback();
        return makeError<store_errors::stopped>();
    }
    const std::optional<TrimStep> step = trimmer.step(keep, now);
    // News that came before the horizon has left, but for what was dated ahead: that is known by its
    // identity.
    const std::optional<std::int64_t> before = step && step->isDone ? trimmer.horizon() : std::nullopt;
    if (!step || (before && !origins.forget(*before)))
        return fail();
    if (const Done kept = commit(); !kept)
        return kept.error();
    return *step;
}

Done StoreWriter::takeAnyAge() {
    if (const Done opened = begin(); !opened)
        return opened;
    if (!trimmer.lift())
        return fail();
    return commit();
}

Result<TakeOutcome> StoreWriter::takeFrom(const QString& source, const StoreItem& item) {
    if (!std::holds_alternative<NewsItem>(item))
        return take(item);
    NewsItem named = std::get<NewsItem>(item);
    bool failed = false;
    const ItemOrigins::Known known = origins.find(named, source, failed);
    if (failed)
        return fail();
    const bool isRenamed = known.identity != named.identity || known.service != named.service;
    const bool isAnothers = !known.identity.isEmpty() && isRenamed && !known.isBySource;
    if (!known.identity.isEmpty()) {
        named.identity = known.identity;
        named.service = known.service;
    }
    const Result<TakeOutcome> taken = isAnothers ? TakeOutcome{Take::AlreadyThere, {}} : take(named);
    const bool isThere = taken && taken.value().take != Take::Rejected;
    if (isThere && !origins.note(named, source, host_clock::now()))
        return fail();
    return taken;
}

Done StoreWriter::keepPosition(const QString& source, const QString& position) {
    if (!begun)
        return makeError<store_errors::nothingBegun>(makeError<store_errors::position>());
    if (const auto fault = copying.faultOfSource(source))
        return *fault;
    if (!positions.keep(source, position))
        return fail();
    return Nothing{};
}

Result<QString> StoreWriter::positionOf(const QString& source) {
    bool failed = false;
    QString position = positions.of(source, failed);
    if (failed)
        return database.failure();
    return position;
}

Result<std::optional<std::int32_t>> StoreWriter::numberFor(const NewsItem& item, std::int32_t day,
                                                           const KnownNews* known) {
    const std::int64_t own = known != nullptr ? known->id : 0;
    const bool keeps = known != nullptr && known->day == day && !item.day;
    std::optional<std::int32_t> number = keeps ? known->sequence : item.sequence;
    bool failed = false;
    if (number) {
        const bool isFree = news.isFree(item, day, *number, own, failed);
        if (failed || (isFree && !numbers.use(item.service, day, *number)))
            return fail();
        // A kept number can only be in the way of the moved time's, and then a new one is as good.
        if (isFree || !keeps)
            return isFree ? number : std::nullopt;
    }
    do {
        number = numbers.next(item.service, day, failed);
    } while (!failed && number && !news.isFree(item, day, *number, own, failed) && !failed);
    if (failed)
        return fail();
    return number;
}

std::int32_t StoreWriter::dayOf(const NewsItem& item) {
    return item.day ? *item.day : dayNumber(days.dateOf(item.time));
}

bool StoreWriter::ensureService(unsigned char service) {
    if (services.contains(service))
        return true;
    Statement& insert = isHiding ? insertHiddenService : insertService;
    if (!Query(insert, service, u"Service %1"_s.arg(service)).run())
        return false;
    services.insert(service);
    return true;
}

bool StoreWriter::findCategory(const NewsItem& item, std::int32_t& id) {
    id = item.categoryId.value_or(0);
    if (item.categoryId || item.category.isEmpty())
        return true;
    const std::optional<std::int32_t> found = categories.idOf(item.service, item.category);
    id = found.value_or(0);
    return found.has_value();
}

Result<TakeOutcome> StoreWriter::takeSymbol(const SymbolItem& item) {
    if (!begun)
        return makeError<store_errors::nothingBegun>(makeError<store_errors::symbol>());
    if (const auto fault = faultOf(item))
        return TakeOutcome{Take::Rejected, fault};
    SymbolItem symbol = item;
    {
        Query query(findSymbol, item.market, item.code);
        const bool isThere = query.next();
        const QString english = isThere ? query.text(2) : QString();
        if (symbol.englishName.isEmpty())
            symbol.englishName = english;
        if (isThere && query.text(0) == symbol.name && query.number(1) == symbol.category &&
            symbol.englishName == english)
            return TakeOutcome{Take::AlreadyThere, {}};
    }
    if (!Query(writeSymbol, symbol.market, symbol.code, symbol.name, symbol.category, symbol.englishName)
             .run())
        return fail();
    changedSymbols.push_back(std::move(symbol));
    return TakeOutcome{};
}

Result<TakeOutcome> StoreWriter::takeCategory(const CategoryItem& item) {
    if (!begun)
        return makeError<store_errors::nothingBegun>(makeError<store_errors::category>());
    if (const auto fault = faultOf(item))
        return TakeOutcome{Take::Rejected, fault};
    if (!ensureService(item.service))
        return fail();
    Result<TakeOutcome> outcome = categories.take(item);
    if (!outcome)
        rollback();
    return outcome;
}

Result<TakeOutcome> StoreWriter::takeQuote(const QuoteItem& item) {
    if (!begun)
        return makeError<store_errors::nothingBegun>(makeError<store_errors::quote>());
    if (const auto fault = faultOf(item))
        return TakeOutcome{Take::Rejected, fault};
    bool changed = false;
    if (!quotes.put(item, host_clock::now(), changed))
        return fail();
    return TakeOutcome{changed ? Take::TakenIn : Take::AlreadyThere, {}};
}

}  // namespace wirepane
