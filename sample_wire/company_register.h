// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "host/contract/fixed_services.h"
#include "sample_wire/word_tables.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace wirepane::sample {

// An invented company. Money is in millions of its market's currency.
struct Company {
    unsigned char market = stockExchangeService;
    QString code;
    QString english;
    QString chinese;
    const Sector* sector = nullptr;  // of the word tables
    int annualRevenue = 0;           // millions
    int netMargin = 0;               // tenths of a percent
    int grossMargin = 0;             // tenths of a percent
    int shares = 0;                  // millions
    int price = 0;                   // around which the share trades, in hundredths
    std::uint64_t seed = 0;

    QStringView name(Language language) const { return language == Language::English ? english : chinese; }
    CSymbolInfo symbol() const { return {market, code}; }
};

// An invented warrant on one of the companies of the exchange market.
struct Warrant {
    QString code;
    QString name;
    const Company* underlying = nullptr;
    int issuer = 0;  // index into the brokers

    CSymbolInfo symbol() const { return {warrantService, code}; }
};

// The companies and warrants of the sample wire: always the same ones, ordered by code in every market.
class CompanyRegister {
public:
    // The words must outlive it.
    explicit CompanyRegister(const WordTables& words);
    CompanyRegister(const CompanyRegister&) = delete;
    CompanyRegister& operator=(const CompanyRegister&) = delete;

    // The companies of markets 16, 22 and 122; of any other number, those of market 16.
    const std::vector<Company>& companies(unsigned char market) const;
    const std::vector<Warrant>& warrants() const { return allWarrants; }

private:
    void addTaiwan(const WordTables& words, unsigned char market, int first, int count);
    void addHongKong(const WordTables& words, int count);
    void addWarrants(const WordTables& words, int count);

    std::vector<Company> exchange;
    std::vector<Company> emerging;
    std::vector<Company> hongKong;
    std::vector<Warrant> allWarrants;
};

}  // namespace wirepane::sample
