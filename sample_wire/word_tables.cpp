// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/word_tables.h"

#include "sample_wire/data_table.h"

using namespace Qt::StringLiterals;

namespace wirepane::sample {

namespace {

constexpr int mostDecimals = 4;
constexpr std::size_t leastCurrencies = 3;  // those that texts name
constexpr std::size_t leastCommodities = 2;

struct WordList {
    QLatin1StringView name;
    std::vector<Word> WordTables::*words;
};
constexpr WordList wordLists[] = {
    {"taiwan_first_syllable"_L1, &WordTables::taiwanFirstSyllables},
    {"taiwan_second_syllable"_L1, &WordTables::taiwanSecondSyllables},
    {"hong_kong_first_syllable"_L1, &WordTables::hongKongFirstSyllables},
    {"hong_kong_second_syllable"_L1, &WordTables::hongKongSecondSyllables},
    {"surname"_L1, &WordTables::surnames},
    {"given_name"_L1, &WordTables::givenNames},
    {"taiwan_site"_L1, &WordTables::taiwanSites},
    {"hong_kong_site"_L1, &WordTables::hongKongSites},
    {"taiwan_city"_L1, &WordTables::taiwanCities},
    {"hong_kong_city"_L1, &WordTables::hongKongCities},
    {"city_abroad"_L1, &WordTables::citiesAbroad},
    {"role"_L1, &WordTables::roles},
    {"rule_area"_L1, &WordTables::ruleAreas},
    {"breach"_L1, &WordTables::breaches},
};

Word nameOf(const DataRow& row) {
    return {row.text("english"_L1), row.text("chinese"_L1)};
}

Word wordOf(const DataRow& row, const char* what) {
    const QByteArray column(what);
    return {row.text(QLatin1StringView(column + "_english")),
            row.text(QLatin1StringView(column + "_chinese"))};
}

int decimalsOf(const DataRow& row) {
    const int decimals = row.number("decimals"_L1);
    if (decimals > mostDecimals)
        row.fail(u"more than %1 decimals"_s.arg(mostDecimals));
    return decimals;
}

template <class Entry>
std::vector<Entry> entries(const QString& file, QStringList& faults, Entry (*entryOf)(const DataRow&)) {
    std::vector<Entry> result;
    for (const DataRow& row : carriedTable(file, faults))
        result.push_back(entryOf(row));
    return result;
}

void readWords(WordTables& tables, QStringList& faults) {
    std::vector<QLatin1StringView> names;
    for (const WordList& list : wordLists)
        names.push_back(list.name);
    for (const DataRow& row : carriedTable(u"words.tsv"_s, faults))
        (tables.*wordLists[row.choice("list"_L1, names)].words).push_back(nameOf(row));
    for (const WordList& list : wordLists)
        if ((tables.*list.words).empty())
            faults.append(u"words.tsv: no word is a “%1”"_s.arg(list.name));
}

Sector sectorOf(const DataRow& row) {
    return {
        nameOf(row),
        wordOf(row, "suffix"),
        {wordOf(row, "product1"), wordOf(row, "product2"), wordOf(row, "product3"), wordOf(row, "product4")},
        row.flag("makes_goods"_L1)};
}

void readSectors(WordTables& tables, QStringList& faults) {
    static constexpr QLatin1StringView places[] = {"taiwan"_L1, "hong_kong"_L1};
    std::vector<Sector>* const sectors[] = {&tables.taiwanSectors, &tables.hongKongSectors};
    for (const DataRow& row : carriedTable(u"sectors.tsv"_s, faults))
        sectors[row.choice("place"_L1, places)]->push_back(sectorOf(row));
    if (tables.taiwanSectors.empty() || tables.hongKongSectors.empty())
        faults.append(u"sectors.tsv: a place has no sectors"_s);
}

Indicator indicatorOf(const DataRow& row) {
    const Indicator entry{nameOf(row), row.number("low"_L1), row.number("high"_L1), decimalsOf(row),
                          row.flag("percent"_L1)};
    if (entry.low > entry.high)
        row.fail(u"“low” is above “high”"_s);
    return entry;
}

}  // namespace

WordTables WordTables::load(QStringList& faults) {
    WordTables tables;
    readWords(tables, faults);
    readSectors(tables, faults);
    tables.foreignCompanies = entries<QString>(u"foreign_companies.tsv"_s, faults,
                                               [](const DataRow& row) { return row.text("name"_L1); });
    tables.brokers = entries<Broker>(u"brokers.tsv"_s, faults, [](const DataRow& row) {
        return Broker{nameOf(row), row.text("issuer"_L1)};
    });
    tables.incidents = entries<Incident>(u"incidents.tsv"_s, faults, [](const DataRow& row) {
        return Incident{nameOf(row), row.text("with_article"_L1)};
    });
    tables.countries = entries<Country>(u"countries.tsv"_s, faults, [](const DataRow& row) {
        return Country{nameOf(row), row.text("with_article"_L1)};
    });
    tables.indicators = entries<Indicator>(u"indicators.tsv"_s, faults, &indicatorOf);
    tables.centralBanks = entries<CentralBank>(u"central_banks.tsv"_s, faults, [](const DataRow& row) {
        return CentralBank{nameOf(row), row.text("rate"_L1)};
    });
    tables.currencies = entries<Currency>(u"currencies.tsv"_s, faults, [](const DataRow& row) {
        return Currency{nameOf(row), row.text("unit"_L1), row.number("level"_L1), decimalsOf(row)};
    });
    tables.commodities = entries<Commodity>(u"commodities.tsv"_s, faults, [](const DataRow& row) {
        return Commodity{nameOf(row), wordOf(row, "unit"), row.number("level"_L1)};
    });
    tables.categories = entries<Category>(u"categories.tsv"_s, faults, [](const DataRow& row) {
        return Category{row.number("id"_L1), row.text("name"_L1), row.text("colour"_L1)};
    });
    if (tables.currencies.size() < leastCurrencies || tables.commodities.size() < leastCommodities)
        faults.append(u"currencies.tsv, commodities.tsv: what texts name is missing"_s);
    return tables;
}

}  // namespace wirepane::sample
