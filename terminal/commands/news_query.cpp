// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/news_query.h"

#include "backend/search/query_errors.h"
#include "backend/store/import_upkeep.h"
#include "backend/store/index_renewal.h"
#include "host/contract/search_choices.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/console/console.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

CSymbolInfo symbolOf(const QString& text, CommandArguments& arguments) {
    bool isNumber = false;
    const uint market = text.section(u':', 0, 0).toUInt(&isNumber);
    const QString code = text.section(u':', 1);
    if (!isNumber || market > lastNewsService || code.isEmpty())
        arguments.fail(u"\"%1\" is not a symbol such as 16:2330."_s.arg(text));
    return {static_cast<unsigned char>(market), code};
}

void addChoices(QCommandLineParser& parser, const auto& table) {
    for (const auto& choice : table) {
        if (!choice.option.isEmpty())
            parser.addOption({QString(choice.option), QString(choice.help)});
    }
}

// The choice whose option is given; `otherwise` without one and where two are.
template <class Number>
Number chosen(const QCommandLineParser& parser, const auto& table, Number otherwise) {
    std::vector<Number> given;
    for (const auto& choice : table) {
        if (!choice.option.isEmpty() && parser.isSet(choice.option))
            given.push_back(choice.number);
    }
    return given.size() == 1 ? given.front() : otherwise;
}

// Several arguments are one query: shells take them apart at blanks.
void makeQuery(CSearch& condition, const QString& text, CommandArguments& arguments) {
    if (const auto query = readQuery(text); const auto* fault = std::get_if<QueryFault>(&query))
        arguments.fail(sentence(errorOf(*fault)));
    condition.language = SearchLanguage::Query;
    condition.keywords = {text};
}

}  // namespace

void addQueryOptions(QCommandLineParser& parser) {
    parser.addOption({u"service"_s, u"News of this service only."_s, u"id"_s});
    addChoices(parser, searchScopes);
    addChoices(parser, searchMethods);
    parser.addOption({u"symbol"_s, u"Only news that names this symbol, such as 16:2330; may be repeated."_s,
                      u"market:code"_s});
    parser.addOption(
        {u"query"_s,
         u"The keywords are a query (docs/search.md): \"a phrase\", -word, a | b, title:word."_s});
}

CSearch conditionOf(CommandArguments& arguments, const QStringList& keywords) {
    const QCommandLineParser& parser = arguments.parser;
    CSearch condition;
    condition.keywords.assign(keywords.begin(), keywords.end());
    condition.method = numberOf(chosen(parser, searchMethods, SearchMethod::All));
    if (parser.isSet(u"query"_s) && !keywords.isEmpty())
        makeQuery(condition, keywords.join(u' '), arguments);
    condition.scope = numberOf(chosen(parser, searchScopes, SearchScope::Both));
    for (const QString& symbol : parser.values(u"symbol"_s))
        condition.symbols.push_back(symbolOf(symbol, arguments));
    return condition;
}

std::int64_t latestOf(const CommandArguments& arguments) {
    constexpr std::int64_t never = std::numeric_limits<std::int64_t>::max();
    return momentOf(arguments.parser.value(u"now"_s)).value_or(never);
}

void dropLater(std::vector<CHeadlineTable>& news, std::int64_t latest) {
    std::erase_if(news, [latest](const CHeadlineTable& entry) { return entry.time > latest; });
}

void noteBacklog(Database& store) {
    if (const std::int64_t left = unindexedHeadlines(store).value_or(0); left > 0)
        printNote(
            u"%1 headlines of an import are not in the search index yet, and not searched."_s.arg(left));
    if (const std::optional<int> percent = renewalPercent(store))
        printNote(
            u"The search index is being made anew (%1 %); until then searches follow earlier rules."_s.arg(
                *percent));
}

}  // namespace wirepane
