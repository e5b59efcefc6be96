// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_wire/topic.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <vector>

namespace wirepane::sample {

// A word in both languages of the wire.
struct Word {
    QString english;
    QString chinese;

    const QString& in(Language language) const { return language == Language::English ? english : chinese; }
};

// An industry: how its companies are called and what they make.
struct Sector {
    Word name;    // "steel"
    Word suffix;  // ends the company names
    std::array<Word, 4> products;
    bool makesGoods = true;  // in plants of its own
};

struct Currency {
    Word name;         // "the yen"
    QString unit;      // English, after a number: "yen"
    int level = 0;     // units per US dollar, in ten-thousandths
    int decimals = 0;  // 0 to 4
};

struct Commodity {
    Word name;
    Word unit;      // English: "a barrel"; Chinese: the unit of the price
    int level = 0;  // US dollars, in hundredths
};

struct Indicator {
    Word name;
    int low = 0;  // tenths
    int high = 0;
    int decimals = 1;
    bool percent = false;
};

struct CentralBank {
    Word name;
    QString rate;
};

struct Incident {
    Word name;
    QString withArticle;
};

struct Country {
    Word name;
    QString withArticle;
};

struct Broker {
    Word name;
    QString issuer;  // as names of its warrants begin
};

// A category of news. Ids are unique over all services; a category that several services share has one id.
struct Category {
    std::int32_t id = 0;
    QString name;
    QString colour;  // "#rrggbb", readable on light and on dark
};

// The words of the sample wire, in the order of their data files: what is drawn is drawn by its place. No
// list is empty.
struct WordTables {
    // Reads the files that the program carries. Where something is wrong with them, that is added to the
    // faults, and the words must not be used.
    static WordTables load(QStringList& faults);

    std::vector<Word> taiwanFirstSyllables;
    std::vector<Word> taiwanSecondSyllables;
    std::vector<Word> hongKongFirstSyllables;
    std::vector<Word> hongKongSecondSyllables;
    std::vector<Sector> taiwanSectors;
    std::vector<Sector> hongKongSectors;

    std::vector<Word> surnames;
    std::vector<Word> givenNames;
    std::vector<QString> foreignCompanies;
    std::vector<Broker> brokers;
    std::vector<Word> taiwanSites;
    std::vector<Word> hongKongSites;
    std::vector<Word> taiwanCities;
    std::vector<Word> hongKongCities;
    std::vector<Word> citiesAbroad;
    std::vector<Word> roles;
    std::vector<Incident> incidents;
    std::vector<Word> ruleAreas;
    std::vector<Word> breaches;
    std::vector<Country> countries;
    std::vector<Indicator> indicators;
    std::vector<CentralBank> centralBanks;
    std::vector<Currency> currencies;    // the Taiwan dollar first, the yuan third
    std::vector<Commodity> commodities;  // oil first, gold second
    std::vector<Category> categories;
};

}  // namespace wirepane::sample
