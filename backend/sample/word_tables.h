// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/sample/topic.h"

#include <QStringView>

#include <array>
#include <span>

namespace wirepane::sample {

// A word in both languages of the wire.
struct Word {
    QStringView english;
    QStringView chinese;

    QStringView in(Language language) const { return language == Language::English ? english : chinese; }
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
    QStringView unit;  // English, after a number: "yen"
    int level = 0;     // units per US dollar, in ten-thousandths
    int decimals = 0;
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
    QStringView rate;
};

struct Incident {
    Word name;
    QStringView withArticle;
};

struct Country {
    Word name;
    QStringView withArticle;
};

std::span<const Word> taiwanFirstSyllables();
std::span<const Word> taiwanSecondSyllables();
std::span<const Word> hongKongFirstSyllables();
std::span<const Word> hongKongSecondSyllables();
std::span<const Sector> taiwanSectors();
std::span<const Sector> hongKongSectors();

std::span<const Word> surnames();
std::span<const Word> givenNames();
std::span<const QStringView> foreignCompanies();
std::span<const Word> brokers();
std::span<const QStringView> issuerNames();  // of the brokers, as warrant names begin; in the same order
std::span<const Word> taiwanSites();
std::span<const Word> hongKongSites();
std::span<const Word> taiwanCities();
std::span<const Word> hongKongCities();
std::span<const Word> citiesAbroad();
std::span<const Word> roles();
std::span<const Incident> incidents();
std::span<const Word> ruleAreas();
std::span<const Word> breaches();
std::span<const Country> countries();
std::span<const Indicator> indicators();
std::span<const CentralBank> centralBanks();
std::span<const Currency> currencies();
std::span<const Commodity> commodities();

}  // namespace wirepane::sample
