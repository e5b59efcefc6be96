// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/publish_sink.h"

#include "backend/database/database.h"
#include "backend/packed_text.h"
#include "backend/store/item_check.h"
#include "wire/wire_batch.h"
#include "wire/wire_errors.h"

namespace wirepane {

namespace {

constexpr std::size_t mostRows = 1000;  // of a portion

QString kindOf(const NewsItem& item, const StoredNews& stored) {
    if (stored.onlyStory)
        return wire_kinds::story;
    if (item.withdrawn)
        return wire_kinds::withdrawal;
    return stored.before ? wire_kinds::version : wire_kinds::news;
}

}  // namespace

PublishSink::PublishSink(Database& database, WireServer& wire)
    : store(database),
      server(wire),
      writer(database),
      digest(database),
      readLinks(database, "SELECT service, category FROM service_categories") {}

Done PublishSink::begin() {
    portion = {};
    identities.clear();
    const Result<WireHead> head = catchUp();
    if (!head) {
        server.rollback();
        return head.error();
    }
    moment = head.value().moment;
    if (const Done begun = writer.begin(); !begun) {
        server.rollback();
        return begun;
    }
    if (!loadLinks()) {
        rollback();
        return store.failure();
    }
    return Nothing{};
}

// Nobody appends from here on until this transaction ends.
Result<WireHead> PublishSink::catchUp() {
    const Result<WireHead> head = server.lockHead();
    if (!head)
        return head;
    const Result<QString> kept = writer.positionOf(wirePosition);
    if (!kept)
        return kept.error();
    const Result<WirePosition> read = WirePosition::of(kept.value());
    if (!read)
        return read.error();
    position = read.value();
    bool isLevel = false;
    while (!isLevel) {
        const Result<WirePage> page = server.pageAfter(position.sequence());
        if (!page)
            return page.error();
        if (const Done followed = position.follow(page.value()); !followed)
            return followed.error();
        WireBatch batch(page.value().rows, position.text());
        const Result<BatchOutcome> taken = takeBatch(batch, wirePosition, writer);
        if (!taken)
            return taken.error();
        if (taken.value().fault)
            return *taken.value().fault;
        isLevel = position.sequence() == head.value().last || page.value().rows.empty();
    }
    return head;
}

bool PublishSink::loadLinks() {
    linked.clear();
    Query query(readLinks);
    while (query.next())
        linked.emplace(query.smallNumber(0), query.smallNumber(1));
    return !query.failed();
}

Result<TakeOutcome> PublishSink::take(const StoreItem& item) {
    if (std::holds_alternative<QuoteItem>(item))
        return TakeOutcome{Take::Rejected, makeError<wire_errors::noQuotes>()};
    if (const auto* const news = std::get_if<NewsItem>(&item))
        return takeNews(*news);
    const Result<TakeOutcome> taken = writer.take(item);
    if (!taken || taken.value().take != Take::TakenIn)
        return taken;
    Done added = Nothing{};
    if (const auto* const category = std::get_if<CategoryItem>(&item)) {
        const CategoryItem clean = cleaned(*category);
        linked.emplace(clean.service, clean.id);
        added = add(clean.service, wire_kinds::category, clean);
    } else {
        added = add(0, wire_kinds::symbol, cleaned(std::get<SymbolItem>(item)));
    }
    return added ? taken : Result<TakeOutcome>(added.error());
}

Result<TakeOutcome> PublishSink::takeNews(const NewsItem& given) {
    NewsItem item = cleaned(given);
    item.received = moment;
    item.day.reset();
    if (item.story)
        item.packedStory = {*item.story, packedText(item.story->toUtf8())};
    const Result<StoredNews> stored = writer.takeNews(item);
    if (!stored)
        return stored.error();
    if (stored.value().outcome.take != Take::TakenIn)
        return stored.value().outcome;
    if (const Done noted = note(item, stored.value()); !noted)
        return noted.error();
    return stored.value().outcome;
}

Done PublishSink::note(const NewsItem& item, const StoredNews& stored) {
    const std::optional<WireIdentity> known = digest.of(item.service, item.identity);
    if (!known)
        return store.failure();
    if (const Done named = noteCategory(item, stored.categoryId); !named)
        return named;
    NewsItem decided = item;
    decided.day = known->day;
    decided.sequence = stored.key.sequence;
    decided.categoryId = stored.categoryId;
    decided.category.clear();
    identities[{item.service, item.identity}] = *known;
    return add(item.service, kindOf(item, stored), decided);
}

// The name of a category travels once for each service that has it.
Done PublishSink::noteCategory(const NewsItem& item, std::int32_t id) {
    if (item.categoryId || item.category.isEmpty() || !linked.emplace(item.service, id).second)
        return Nothing{};
    return add(item.service, wire_kinds::category, CategoryItem{item.service, id, item.category, {}});
}

Done PublishSink::add(int service, const QString& kind, const StoreItem& item) {
    const WireRow row{position.sequence() + 1, service, position.lastOf(service), kind, bodyOf(item)};
    position.append(row);
    portion.rows.push_back(row);
    return portion.rows.size() < mostRows ? Done(Nothing{}) : flush();
}

Done PublishSink::flush() {
    for (const auto& [name, identity] : identities)
        portion.identities.push_back(identity);
    identities.clear();
    const Done appended = server.append(portion);
    portion.rows.clear();
    portion.identities.clear();
    return appended;
}

Done PublishSink::keepPosition(const QString& source, const QString& text) {
    portion.source = source;
    portion.position = text;
    return writer.keepPosition(source, text);
}

Done PublishSink::commit() {
    if (const Done appended = flush(); !appended)
        return appended;
    if (const Done kept = writer.keepPosition(wirePosition, position.text()); !kept)
        return kept;
    if (const Done committed = server.commit(); !committed)
        return committed;
    return writer.commit();
}

void PublishSink::rollback() {
    server.rollback();
    writer.rollback();
}

}  // namespace wirepane
