// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/feed_methods.h"

#include "terminal/session/session.h"

#include <QDateTime>
#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::int64_t lastSecond = 253402300799;  // of the year 9999
constexpr std::int64_t lastId = 255;

// The kinds of symbols that views show news for where a market has several, and another one.
constexpr int supportedCategory = 1;
constexpr int unsupportedCategory = 0;

std::vector<SymbolRef> symbolsFrom(Params& params) {
    std::vector<SymbolRef> symbols;
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
void putFirst(std::vector<SymbolRef>& symbols, const QString& code, unsigned char service) {
    const auto known = std::find_if(symbols.begin(), symbols.end(),
                                    [&code](const SymbolRef& symbol) { return symbol.code == code; });
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
    const bool supported = fields.optionalBool(u"supported"_s).value_or(true);
    symbol.category = static_cast<int>(fields.optionalNumber(u"category"_s, 0)
                                           .value_or(supported ? supportedCategory : unsupportedCategory));
    if (fields.error())
        params.fail(fields.error()->message);
    return symbol;
}

}  // namespace

FeedMethods::FeedMethods(Session& terminal)
    : session(terminal), lastVersion(static_cast<int>(QDateTime::currentSecsSinceEpoch() & 0x7fffffff)) {}

void FeedMethods::addTo(MethodTable& table) {
    table.addModal(u"feed.push"_s, [this](Params& params) { return push(params); });
    table.addWithList(u"feed.symbols"_s, u"symbols"_s, [this](Params& params) { return symbols(params); });
    table.add(u"feed.requests"_s, [this](Params&) { return requests(); });
    table.add(u"feed.connect"_s, [this](Params& params) { return connectFeed(params); });
}

Answer FeedMethods::push(Params& params) {
    NewsItem item;
    item.service = static_cast<unsigned char>(params.number(u"service"_s, 1, lastId));
    item.time = params.number(u"time"_s, 0, lastSecond);
    item.sequence = static_cast<std::int32_t>(params.number(u"seq"_s, 0));
    item.title = params.text(u"title"_s);
    item.categoryId = static_cast<std::int32_t>(params.optionalNumber(u"category"_s).value_or(0));
    item.related = symbolsFrom(params);
    item.story = params.optionalText(u"story"_s);
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
    const auto taken = session.backEnd().takeIn(item);
    if (!taken)
        return RpcError{RpcCode::Refused, taken.error()};
    if (taken.value().take == Take::Rejected)
        return RpcError{RpcCode::BadParameters, taken.value().reason};
    return std::nullopt;
}

Answer FeedMethods::symbols(Params& params) {
    std::vector<SymbolItem> table;
    if (!params.value(u"symbols"_s).isArray())
        params.fail(u"\"symbols\" must be a list of {market, code, name, supported, category}"_s);
    const QJsonArray items = params.value(u"symbols"_s).toArray();
    for (const auto& item : items)
        table.push_back(symbolFrom(params, item));
    if (params.error())
        return {};
    for (const SymbolItem& symbol : table) {
        if (const auto refusal = takeIn(symbol))
            return *refusal;
    }
    return {};
}

Answer FeedMethods::requests() {
    QJsonArray requests;
    for (const auto& request : session.backEnd().takeRequests())
        requests.append(QJsonObject{{u"operation"_s, request.operation},
                                    {u"arguments"_s, QJsonArray::fromVariantList(request.arguments)}});
    return requests;
}

Answer FeedMethods::connectFeed(Params& params) {
    const bool on = params.boolean(u"on"_s);
    if (!params.error())
        session.setConnected(on);
    return {};
}

}  // namespace wirepane
