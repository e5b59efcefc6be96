// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/search_methods.h"

#include "backend/search/query_errors.h"
#include "host/contract/query/search_query.h"
#include "host/contract/search_choices.h"
#include "terminal/session/session.h"

#include <QJsonArray>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::int64_t mostGiven = 10'000;
constexpr std::int64_t usuallyGiven = 100;

// The value of a text that is one of a few; the first without one.
template <class Value, std::size_t Count>
Value chosen(Params& params, const QString& name,
             const std::array<std::pair<QLatin1StringView, Value>, Count>& choices) {
    const std::optional<QString> text = params.optionalText(name);
    const auto choice = std::find_if(choices.begin(), choices.end(),
                                     [&](const auto& one) { return !text || *text == one.first; });
    if (choice != choices.end())
        return choice->second;
    params.fail(u"\"%1\" knows no \"%2\""_s.arg(name, *text));
    return choices.front().second;
}

CSearch conditionOf(Params& params) {
    static constexpr std::array languages{std::pair("query"_L1, SearchLanguage::Query),
                                          std::pair("plain"_L1, SearchLanguage::Plain)};
    static constexpr std::array scopes{std::pair("both"_L1, SearchScope::Both),
                                       std::pair("headlines"_L1, SearchScope::Headlines),
                                       std::pair("stories"_L1, SearchScope::Stories)};
    CSearch condition;
    condition.keywords = {params.text(u"text"_s)};
    condition.language = chosen(params, u"language"_s, languages);
    condition.scope = numberOf(chosen(params, u"scope"_s, scopes));
    condition.method = numberOf(SearchMethod::All);
    return condition;
}

std::vector<unsigned char> servicesOf(Params& params, BKQuoteInterface& backEnd) {
    std::vector<unsigned char> services;
    const std::optional<std::vector<int>> named = params.optionalNumbers(u"services"_s);
    if (!named)
        backEnd.BKQNEWS_bGetAllNewsService(services);
    for (const int service : named.value_or(std::vector<int>())) {
        if (service < 1 || service > 255)
            params.fail(u"\"services\" are numbers from 1 to 255"_s);
        services.push_back(static_cast<unsigned char>(service));
    }
    return services;
}

}  // namespace

void SearchMethods::addTo(MethodTable& table) {
    table.addDeferred(u"search.find"_s, [this](Params& params, const Reply& reply) { find(params, reply); });
}

void SearchMethods::find(Params& params, const Reply& reply) {
    const CSearch condition = conditionOf(params);
    const std::vector<unsigned char> services = servicesOf(params, session.backEnd());
    const auto most =
        static_cast<std::size_t>(params.optionalNumber(u"limit"_s, 0, mostGiven).value_or(usuallyGiven));
    if (params.error()) {
        reply(*params.error());
        return;
    }
    const ReadQuery query = readQuery(condition.keywords.front());
    const auto* const fault = std::get_if<QueryFault>(&query);
    if (condition.language == SearchLanguage::Query && fault != nullptr) {
        reply(QJsonObject{{u"fault"_s, QJsonObject{{u"place"_s, fault->position},
                                                   {u"found"_s, fault->found},
                                                   {u"text"_s, sentence(errorOf(*fault))}}}});
        return;
    }
    const int asked = ++number;
    underWay[asked] = session.backEnd().findNews(
        {{condition, services}}, [this, asked, most, reply](EmbeddedBackEnd::Tables&& tables) {
            const std::shared_ptr<const void> done = std::move(underWay.extract(asked).mapped());
            reply(found(tables.front(), most));
        });
}

// The newest first.
QJsonObject SearchMethods::found(const std::vector<CHeadlineTable>& entries, std::size_t most) const {
    std::vector<CHeadlineTable> newest(std::min(most, entries.size()));
    std::partial_sort_copy(entries.begin(), entries.end(), newest.begin(), newest.end(),
                           [](const CHeadlineTable& a, const CHeadlineTable& b) {
                               return a.time != b.time ? a.time > b.time : a.sequence > b.sequence;
                           });
    QJsonArray headlines;
    for (const CHeadlineTable& entry : newest) {
        std::vector<CHeadline> read;
        session.backEnd().BKQNEWS_iGetHeadline(entry.service, read, {entry});
        headlines.append(QJsonObject{{u"service"_s, entry.service},
                                     {u"time"_s, static_cast<qint64>(entry.time)},
                                     {u"seq"_s, entry.sequence},
                                     {u"title"_s, read.empty() ? QString() : read.front().title}});
    }
    QJsonObject counts;
    for (const CHeadlineTable& entry : entries) {
        QJsonValueRef count = counts[QString::number(entry.service)];
        count = count.toInt() + 1;
    }
    return {{u"count"_s, static_cast<qint64>(entries.size())},
            {u"services"_s, counts},
            {u"headlines"_s, headlines}};
}

}  // namespace wirepane
