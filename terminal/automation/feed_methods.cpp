// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/feed_methods.h"

#include "terminal/automation/headline_params.h"
#include "terminal/session/session.h"

#include <QDateTime>
#include <QHash>
#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::int64_t lastId = 255;

// The kinds of symbols that views show news for where a market has several, and another one.
constexpr int supportedCategory = 1;
constexpr int unsupportedCategory = 0;

std::vector<CSymbolInfo> symbolsFrom(Params& params) {
    std::vector<CSymbolInfo> symbols;
    if (params.has(u"related"_s) && !params.value(u"related"_s).isArray())
        params.fail(u"\"related\" must be a list of {market, code}"_s);
    const QJsonArray items = params.value(u"related"_s).toArray();
    for (const auto& item : items) {
        Params symbol(item.toObject());
        symbols.push_back(
            {static_cast<unsigned char>(symbol.number(u"market"_s, 0, lastId)), symbol.text(u"code"_s)});
        if (symbol.error())
            params.fail(u"\"related\": "_s + symbol.error()->message);
    }
    return symbols;
}

// The main symbol stands first. Its market is the one that the related symbols name for its code, else the
// news service itself.
void putFirst(std::vector<CSymbolInfo>& symbols, const QString& code, unsigned char service) {
    const auto known = std::find_if(symbols.begin(), symbols.end(),
                                    [&code](const CSymbolInfo& symbol) { return symbol.code == code; });
    if (known == symbols.end())
        symbols.insert(symbols.begin(), {service, code});
    else
        std::rotate(symbols.begin(), known, known + 1);
}

SymbolItem symbolFrom(Params& params, const QJsonValue& value) {
    Params fields(value.toObject());
    SymbolItem symbol;
    symbol.market = static_cast<unsigned char>(fields.number(u"market"_s, 1, lastId));
    symbol.code = fields.text(u"code"_s);
    symbol.name = fields.text(u"name"_s);
    symbol.englishName = fields.optionalText(u"english"_s).value_or(QString());
    const bool supported = fields.optionalBool(u"supported"_s).value_or(true);
    symbol.category = static_cast<int>(fields.optionalNumber(u"category"_s, 0)
                                           .value_or(supported ? supportedCategory : unsupportedCategory));
    if (fields.error())
        params.fail(fields.error()->message);
    return symbol;
}

QuoteItem quoteFrom(Params& params, const QJsonValue& value) {
    Params fields(value.toObject());
    QuoteItem quote;
    quote.market = static_cast<unsigned char>(fields.number(u"market"_s, 1, lastId));
    quote.code = fields.text(u"code"_s);
    quote.last = fields.real(u"last"_s);
    quote.change = fields.real(u"change"_s);
    quote.volume = fields.number(u"volume"_s, 0, mostVolume);
    if (fields.error())
        params.fail(fields.error()->message);
    return quote;
}

std::optional<RpcError> refusalOf(const Result<TakeOutcome>& taken) {
    if (!taken)
        return RpcError{RpcCode::Refused, sentence(taken.error())};
    if (taken.value().take == Take::Rejected)
        return RpcError{RpcCode::BadParameters, sentence(*taken.value().reason)};
    return std::nullopt;
}

std::optional<Held> heldFrom(Params& params) {
    static const QHash<QString, Held> kinds{{u"headlines"_s, Held::Headlines},
                                            {u"stories"_s, Held::Stories},
                                            {u"tables"_s, Held::Tables},
                                            {u"search"_s, Held::Search}};
    const auto found = kinds.constFind(params.text(u"what"_s));
    if (found != kinds.constEnd())
        return *found;
    params.fail(u"\"what\" must be headlines, stories, tables or search"_s);
    return std::nullopt;
}

}  // namespace

FeedMethods::FeedMethods(Session& terminal)
    : session(terminal), lastVersion(static_cast<int>(QDateTime::currentSecsSinceEpoch() & 0x7fffffff)) {}

void FeedMethods::addTo(MethodTable& table) {
    table.addModal(u"feed.push"_s, [this](Params& params) { return push(params); });
    table.addWithList(u"feed.symbols"_s, u"symbols"_s, [this](Params& params) { return symbols(params); });
    table.addWithList(u"feed.quotes"_s, u"quotes"_s, [this](Params& params) { return quotes(params); });
    table.add(u"feed.delays"_s, [this](Params&) { return delays(); });
    table.add(u"feed.requests"_s, [this](Params&) { return requests(); });
    table.addModal(u"feed.connect"_s, [this](Params& params) { return connectFeed(params); });
    table.addModal(u"feed.story"_s, [this](Params& params) { return story(params); });
    table.addModal(u"feed.updated"_s, [this](Params& params) { return updated(params); });
    table.addModal(u"feed.hold"_s, [this](Params& params) { return hold(params); });
    table.addModal(u"feed.marketDay"_s, [this](Params& params) { return marketDay(params); });
}

Answer FeedMethods::push(Params& params) {
    NewsItem item;
    item.service = static_cast<unsigned char>(params.number(u"service"_s, 1, lastId));
    item.time = params.number(u"time"_s, 0, lastNewsTime);
    item.sequence = static_cast<std::int32_t>(params.number(u"seq"_s, 0));
    item.title = params.text(u"title"_s);
    item.categoryId = static_cast<std::int32_t>(params.optionalNumber(u"category"_s).value_or(0));
    item.related = symbolsFrom(params);
    item.story = params.optionalText(u"story"_s);  // without one it is still to come
    const QString symbol = params.optionalText(u"symbol"_s).value_or(QString());
    if (params.error())
        return {};
    if (!symbol.isEmpty())
        putFirst(item.related, symbol, item.service);
    item.identity = u"feed:%1:%2"_s.arg(item.time).arg(*item.sequence);
    item.version = ++lastVersion;
    const auto refusal = takeIn(item);
    return refusal ? Answer(*refusal) : Answer();
}

std::optional<RpcError> FeedMethods::takeIn(const StoreItem& item) {
    return refusalOf(session.backEnd().takeIn(item));
}

// Stores the entries of a list, as `itemFrom` reads them, once all of them could be read.
template <class ItemFrom>
Answer FeedMethods::takeList(Params& params, const QString& name, const QString& fields, ItemFrom itemFrom) {
    if (!params.value(name).isArray())
        params.fail(u"\"%1\" must be a list of %2"_s.arg(name, fields));
    std::vector<StoreItem> list;
    const QJsonArray items = params.value(name).toArray();
    for (const auto& item : items)
        list.emplace_back(itemFrom(params, item));
    if (params.error())
        return {};
    for (const StoreItem& item : list) {
        if (const auto refusal = takeIn(item))
            return *refusal;
    }
    return {};
}

Answer FeedMethods::symbols(Params& params) {
    return takeList(params, u"symbols"_s, u"{market, code, name, supported, category}"_s, symbolFrom);
}

Answer FeedMethods::quotes(Params& params) {
    return takeList(params, u"quotes"_s, u"{market, code, last, change, volume}"_s, quoteFrom);
}

Answer FeedMethods::requests() {
    QJsonArray requests;
    for (const auto& request : session.backEnd().takeRequests())
        requests.append(QJsonObject{{u"operation"_s, request.operation},
                                    {u"arguments"_s, QJsonArray::fromVariantList(request.arguments)}});
    return requests;
}

Answer FeedMethods::delays() {
    const auto inMs = [](const DelayWindow::Figures& figures) {
        constexpr double microsOfMs = 1000;
        return QJsonObject{{u"p50"_s, double(figures.half) / microsOfMs},
                           {u"p99"_s, double(figures.most) / microsOfMs},
                           {u"longest"_s, double(figures.longest) / microsOfMs}};
    };
    QJsonArray all;
    for (const SourceDelays& source : session.feed().delays())
        all.append(QJsonObject{{u"source"_s, source.name},
                               {u"news"_s, qint64(source.toStore.count)},
                               {u"toReceipt"_s, inMs(source.toReceipt)},
                               {u"toStore"_s, inMs(source.toStore)}});
    return all;
}

Answer FeedMethods::connectFeed(Params& params) {
    const bool on = params.boolean(u"on"_s);
    if (!params.error())
        session.setConnected(on);
    return {};
}

Answer FeedMethods::story(Params& params) {
    const HeadlineKey key = headlineFrom(params);
    const QString story = params.text(u"story"_s);
    if (params.error())
        return {};
    const auto refusal = refusalOf(session.backEnd().takeStory(key, story));
    return refusal ? Answer(*refusal) : Answer();
}

Answer FeedMethods::updated(Params& params) {
    const HeadlineKey key = headlineFrom(params);
    if (!params.error())
        session.backEnd().announceStoryChange(key);
    return {};
}

Answer FeedMethods::hold(Params& params) {
    const std::optional<Held> what = heldFrom(params);
    const bool on = params.boolean(u"on"_s);
    if (!params.error())
        session.backEnd().hold(*what, on);
    return {};
}

Answer FeedMethods::marketDay(Params& params) {
    const auto service = static_cast<unsigned char>(params.number(u"service"_s, 1, lastId));
    const auto date = static_cast<std::int32_t>(params.number(u"date"_s));
    if (!params.error())
        session.backEnd().startNewsDay({service, date});
    return {};
}

}  // namespace wirepane
