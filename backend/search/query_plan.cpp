// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/query_plan.h"

#include "backend/search/index_phrases.h"
#include "host/contract/fixed_services.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

using Kind = QueryPlan::Kind;

constexpr std::size_t mostSymbolsOfName = 100;
// The index reads nested queries with a stack of fixed size; what lies deeper is put together from sets.
constexpr int deepestMatch = 6;

QueryPlan planOf(Kind kind) {
    QueryPlan plan;
    plan.kind = kind;
    return plan;
}

QueryPlan constant(bool everything) {
    return planOf(everything ? Kind::Everything : Kind::Nothing);
}

QueryPlan matchOf(const QString& match) {
    QueryPlan plan = planOf(match.isEmpty() ? Kind::Nothing : Kind::Matches);
    plan.matches = {match};
    return plan;
}

// A value of at most nine digits.
std::optional<std::int32_t> numberIn(const QString& value) {
    const bool isPlain =
        !value.isEmpty() && value.size() <= 9 &&
        std::all_of(value.begin(), value.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return isPlain ? std::optional(value.toInt()) : std::nullopt;
}

SearchScope scopeOf(QueryField field, SearchScope otherwise) {
    switch (field) {
        case QueryField::Title:
            return SearchScope::Headlines;
        case QueryField::Story:
            return SearchScope::Stories;
        case QueryField::Anywhere:
            break;
    }
    return otherwise;
}

QString phraseOf(const QueryNode& text) {
    const QString phrase = indexPhrase(text.text);
    return text.isCut && !phrase.isEmpty() ? phrase + u" *"_s : phrase;
}

QString nearOf(const QueryNode& node) {
    const QString first = phraseOf(node.parts.front());
    const QString second = phraseOf(node.parts.back());
    if (first.isEmpty() || second.isEmpty())
        return {};
    return u"NEAR(%1 %2, %3)"_s.arg(first, second, QString::number(node.near));
}

int depthOf(const QString& match) {
    int depth = 0;
    int deepest = 0;
    bool isQuoted = false;
    for (const QChar c : match) {
        isQuoted ^= c == u'"';
        depth += isQuoted ? 0 : c == u'(' ? 1 : c == u')' ? -1 : 0;
        deepest = std::max(deepest, depth);
    }
    return deepest;
}

QString eitherOf(const QStringList& matches) {
    return matches.size() == 1 ? matches.front() : u'(' + matches.join(u" OR "_s) + u')';
}

bool isMatch(const QueryPlan& part) {
    return part.kind == Kind::Matches && depthOf(eitherOf(part.matches)) < deepestMatch;
}
bool isExcludedMatch(const QueryPlan& part) {
    return part.kind == Kind::Not && isMatch(part.parts.front());
}

// What texts must be there, and what texts must not, is one question: the index passes over the many matches
// of one word that those of a rare one leave behind.
void joinMatches(std::vector<QueryPlan>& parts) {
    QStringList wanted;
    QStringList excluded;
    for (const QueryPlan& part : parts) {
        if (isMatch(part))
            wanted += eitherOf(part.matches);
        else if (isExcludedMatch(part))
            excluded += part.parts.front().matches;
    }
    if (wanted.isEmpty() || wanted.size() + excluded.size() < 2)
        return;
    std::erase_if(parts, [](const QueryPlan& part) { return isMatch(part) || isExcludedMatch(part); });
    QString match = u'(' + wanted.join(u" AND "_s) + u')';
    if (!excluded.isEmpty())
        match = u'(' + match + u" NOT "_s + eitherOf(excluded) + u')';
    parts.insert(parts.begin(), matchOf(match));
}

// What may be there is cheaper to put together from the sets of each.
void uniteMatches(std::vector<QueryPlan>& parts) {
    QueryPlan all = planOf(Kind::Matches);
    for (const QueryPlan& part : parts) {
        if (part.kind == Kind::Matches)
            all.matches += part.matches;
    }
    if (all.matches.isEmpty())
        return;
    std::erase_if(parts, [](const QueryPlan& part) { return part.kind == Kind::Matches; });
    parts.insert(parts.begin(), std::move(all));
}

QueryPlan inverse(QueryPlan part) {
    if (part.kind == Kind::Nothing || part.kind == Kind::Everything)
        return constant(part.kind == Kind::Nothing);
    if (part.kind == Kind::Not)
        return std::move(part.parts.front());
    QueryPlan plan = planOf(Kind::Not);
    plan.parts.push_back(std::move(part));
    return plan;
}

QString jsonList(const QStringList& texts) {
    return QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(texts)).toJson(QJsonDocument::Compact));
}

}  // namespace

QueryPlanner::QueryPlanner(Database& database)
    : topicNames(database, "SELECT id, name FROM categories WHERE space = ?"),
      serviceNames(database, "SELECT full_name, short_name FROM services WHERE id = ?"),
      namesOfCodes(database,
                   "SELECT name, english_name FROM symbols WHERE code IN (SELECT value FROM json_each(?1)) "
                   "AND (?2 < 0 OR market = ?2)"),
      allSymbols(database, "SELECT market, code, name, english_name FROM symbols ORDER BY market, code") {}

std::optional<QueryPlan> QueryPlanner::plan(const QueryNode& query, unsigned char service, SearchScope scope,
                                            QDate today) {
    hasFailed = false;
    QueryPlan plan = planned(query, {service, scope, today});
    return hasFailed ? std::nullopt : std::optional(std::move(plan));
}

QueryPlan QueryPlanner::planned(const QueryNode& node, const Asked& asked) {
    switch (node.kind) {
        case QueryNode::Kind::Text:
        case QueryNode::Kind::Near: {
            const QString match = node.kind == QueryNode::Kind::Near ? nearOf(node) : phraseOf(node);
            return matchOf(match.isEmpty() ? match : withinScope(match, scopeOf(node.field, asked.scope)));
        }
        case QueryNode::Kind::Topic:
            return plannedTopics(node.text, asked.service);
        case QueryNode::Kind::Service:
            return constant(isNamed(asked.service, node.text));
        case QueryNode::Kind::Symbol:
            return plannedSymbol(node.text);
        case QueryNode::Kind::Days: {
            QueryPlan plan = planOf(Kind::Days);
            plan.days = momentsOf(node.days, asked.today);
            return plan;
        }
        case QueryNode::Kind::State: {
            QueryPlan plan = planOf(Kind::State);
            plan.state = node.state;
            return plan;
        }
        case QueryNode::Kind::Not:
            return inverse(planned(node.parts.front(), asked));
        case QueryNode::Kind::All:
        case QueryNode::Kind::Any:
            break;
    }
    return plannedParts(node, asked);
}

QueryPlan QueryPlanner::plannedParts(const QueryNode& node, const Asked& asked) {
    const bool isAll = node.kind == QueryNode::Kind::All;
    const Kind decides = isAll ? Kind::Nothing : Kind::Everything;
    const Kind changesNothing = isAll ? Kind::Everything : Kind::Nothing;
    QueryPlan plan = planOf(isAll ? Kind::All : Kind::Any);
    for (const QueryNode& part : node.parts) {
        QueryPlan made = planned(part, asked);
        if (made.kind == decides)
            return made;
        if (made.kind != changesNothing)
            plan.parts.push_back(std::move(made));
    }
    if (isAll)
        joinMatches(plan.parts);
    else
        uniteMatches(plan.parts);
    if (plan.parts.empty())
        return planOf(changesNothing);
    if (plan.parts.size() == 1)
        return QueryPlan(std::move(plan.parts.front()));
    return plan;
}

std::vector<std::int32_t> QueryPlanner::topicsNamed(const QString& value, unsigned char service) {
    const QByteArray wanted = phraseBetweenBlanks(value);
    const std::optional<std::int32_t> number = numberIn(value);
    std::vector<std::int32_t> topics;
    Query names(topicNames, service == warrantService ? int(warrantService) : 0);
    while (names.next()) {
        if (!wanted.isEmpty() && phraseBetweenBlanks(names.text(1)) == wanted)
            topics.push_back(names.smallNumber(0));
    }
    hasFailed |= names.failed();
    // A headline may name one that has no name.
    if (number && *number > 0 && std::find(topics.begin(), topics.end(), *number) == topics.end())
        topics.push_back(*number);
    return topics;
}

QueryPlan QueryPlanner::plannedTopics(const QString& value, unsigned char service) {
    QueryPlan plan = planOf(Kind::Topics);
    plan.topics = topicsNamed(value, service);
    return plan.topics.empty() ? planOf(Kind::Nothing) : plan;
}

bool QueryPlanner::isNamed(unsigned char service, const QString& value) {
    if (numberIn(value) == service)
        return true;
    const QByteArray wanted = phraseBetweenBlanks(value);
    Query names(serviceNames, service);
    const bool isNamed =
        names.next() && !wanted.isEmpty() &&
        (phraseBetweenBlanks(names.text(0)) == wanted || phraseBetweenBlanks(names.text(1)) == wanted);
    hasFailed |= names.failed();
    return isNamed;
}

QStringList QueryPlanner::namesOf(const QuerySymbol& symbol) {
    QStringList names;
    Query rows(namesOfCodes, jsonList(symbol.codes), symbol.market ? int(*symbol.market) : -1);
    while (rows.next())
        names += {rows.text(0), rows.text(1)};
    hasFailed |= rows.failed();
    return names;
}

// Those of which one name, in whichever language, begins so.
MeantSymbols QueryPlanner::symbolsNamed(const QString& value) {
    MeantSymbols found;
    const QByteArray start = phraseBetweenBlanks(value);
    Query rows(allSymbols);
    while (!start.isEmpty() && found.coded.size() < mostSymbolsOfName && rows.next()) {
        const QStringList names{rows.text(2), rows.text(3)};
        const bool isNamed = std::any_of(names.begin(), names.end(), [&](const QString& name) {
            return phraseBetweenBlanks(name).startsWith(start);
        });
        if (isNamed) {
            found.coded.push_back({static_cast<unsigned char>(rows.number(0)), rows.text(1)});
            found.names += names;
        }
    }
    hasFailed |= rows.failed();
    return found;
}

MeantSymbols QueryPlanner::symbolsMeant(const QString& value) {
    const auto symbol = readQuerySymbol(value);
    MeantSymbols meant;
    if (!symbol)
        return meant;
    for (const QString& code : symbol->codes)
        meant.coded.push_back({symbol->market, code});
    meant.names = namesOf(*symbol);
    if (meant.names.isEmpty() && !symbol->market && !symbol->isNumber) {
        MeantSymbols named = symbolsNamed(value);
        meant.coded.insert(meant.coded.end(), named.coded.begin(), named.coded.end());
        meant.names = named.names << value;
    }
    return meant;
}

// By its code, and as it is written: a text may name a company that its feed did not.
QueryPlan QueryPlanner::plannedSymbol(const QString& value) {
    MeantSymbols meant = symbolsMeant(value);
    if (meant.coded.empty())
        return planOf(Kind::Nothing);
    QueryPlan coded = planOf(Kind::Symbols);
    coded.symbols = std::move(meant.coded);
    QueryPlan written = planOf(Kind::Matches);
    for (const QString& name : std::as_const(meant.names)) {
        if (const QString phrase = indexPhrase(name); !phrase.isEmpty())
            written.matches += phrase;
    }
    written.matches.removeDuplicates();
    if (written.matches.isEmpty())
        return coded;
    QueryPlan plan = planOf(Kind::Any);
    plan.parts = {std::move(written), std::move(coded)};
    return plan;
}

}  // namespace wirepane
