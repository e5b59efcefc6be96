// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/company_register.h"

#include "sample_wire/random.h"

#include <algorithm>
#include <initializer_list>

namespace wirepane::sample {

namespace {

constexpr std::uint64_t registerSeed = 0x57495245;
constexpr int exchangeCompanies = 360;
constexpr int emergingCompanies = 240;
constexpr int hongKongCompanies = 260;
constexpr int warrantCount = 420;

// The code that the documentation's examples use.
constexpr int exampleCode = 6214;

// Walks through all pairs of syllables so that neighbours share neither: the stride and the number of pairs
// have no common divisor.
struct NameWalk {
    std::span<const Word> first;
    std::span<const Word> second;
    int stride;

    std::pair<const Word&, const Word&> at(int index) const {
        const int pair = static_cast<int>(static_cast<std::int64_t>(index) * stride %
                                          static_cast<std::int64_t>(first.size() * second.size()));
        const int columns = static_cast<int>(second.size());
        return {first[pair / columns], second[pair % columns]};
    }
};

// Distinct codes in ascending order, spread over the range.
std::vector<int> codes(int count, int low, int high, std::uint64_t stream) {
    std::vector<int> result;
    for (int i = 0; i < count; ++i) {
        const int from = low + static_cast<int>(static_cast<std::int64_t>(high - low) * i / count);
        const int to = low + static_cast<int>(static_cast<std::int64_t>(high - low) * (i + 1) / count) - 1;
        result.push_back(inRange(hashOf(registerSeed, stream, static_cast<std::uint64_t>(i)), from, to));
    }
    return result;
}

QString joined(std::initializer_list<QStringView> parts) {
    QString text;
    for (QStringView part : parts)
        text += part;
    return text;
}

void setFinances(Company& company) {
    Random random(company.seed);
    static constexpr int scales[] = {600, 1'500, 4'000, 9'000, 25'000, 80'000};
    const int scale = scales[random.between(0, 5)];
    company.annualRevenue = random.between(scale, scale * 3);
    company.netMargin = random.between(30, 210);
    company.grossMargin = company.netMargin + random.between(80, 220);
    const bool cheap = company.market == hongKongService;
    const int earningsPerShare = cheap ? random.between(9, 280) : random.between(90, 1'600);  // hundredths
    const std::int64_t profit = static_cast<std::int64_t>(company.annualRevenue) * company.netMargin / 1000;
    company.shares = static_cast<int>(std::max<std::int64_t>(profit * 100 / earningsPerShare, 10));
    company.price = earningsPerShare * random.between(11, 26);
}

}  // namespace

CompanyRegister::CompanyRegister(const WordTables& words) {
    addTaiwan(words, stockExchangeService, 0, exchangeCompanies);
    addTaiwan(words, emergingBoardService, exchangeCompanies, emergingCompanies);
    addHongKong(words, hongKongCompanies);
    addWarrants(words, warrantCount);
}

const std::vector<Company>& CompanyRegister::companies(unsigned char market) const {
    if (market == hongKongService)
        return hongKong;
    return market == emergingBoardService ? emerging : exchange;
}

void CompanyRegister::addTaiwan(const WordTables& words, unsigned char market, int first, int count) {
    const NameWalk walk{words.taiwanFirstSyllables, words.taiwanSecondSyllables, 31 * 7};
    std::vector<int> numbers = codes(count, 1201, 9958, market);
    if (market == stockExchangeService) {
        *(std::upper_bound(numbers.begin(), numbers.end(), exampleCode) - 1) = exampleCode;
    } else {  // the two boards share one range of codes
        for (int& number : numbers)
            while (std::any_of(exchange.begin(), exchange.end(),
                               [number](const Company& company) { return company.code.toInt() == number; }))
                ++number;
        std::sort(numbers.begin(), numbers.end());
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    }
    std::vector<Company>& companies = market == stockExchangeService ? exchange : emerging;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto& [front, back] = walk.at(first + static_cast<int>(i));
        Company company;
        company.market = market;
        company.seed = hashOf(registerSeed, market, static_cast<std::uint64_t>(numbers[i]));
        company.code = QString::number(numbers[i]);
        company.sector = &words.taiwanSectors[hashOf(company.seed) % words.taiwanSectors.size()];
        company.english = joined({front.english, back.english, u" ", company.sector->suffix.english});
        company.chinese = joined({front.chinese, back.chinese, company.sector->suffix.chinese});
        setFinances(company);
        companies.push_back(std::move(company));
    }
}

void CompanyRegister::addHongKong(const WordTables& words, int count) {
    const NameWalk walk{words.hongKongFirstSyllables, words.hongKongSecondSyllables, 35};
    const std::vector<int> numbers = codes(count, 11, 9890, hongKongService);
    for (int i = 0; i < count; ++i) {
        const auto& [front, back] = walk.at(i);
        Company company;
        company.market = hongKongService;
        company.seed = hashOf(registerSeed, hongKongService, static_cast<std::uint64_t>(numbers[i]));
        company.code = QString::number(numbers[i]).rightJustified(5, u'0');
        company.sector = &words.hongKongSectors[hashOf(company.seed) % words.hongKongSectors.size()];
        const QString second = back.english.front().toUpper() + back.english.mid(1);
        company.english = joined({front.english, u" ", second, u" ", company.sector->suffix.english});
        company.chinese = joined({front.chinese, back.chinese, company.sector->suffix.chinese});
        setFinances(company);
        hongKong.push_back(std::move(company));
    }
}

void CompanyRegister::addWarrants(const WordTables& words, int count) {
    const std::vector<int> numbers = codes(count, 30'001, 39'999, warrantService);
    for (int i = 0; i < count; ++i) {
        Random random(hashOf(registerSeed, warrantService, static_cast<std::uint64_t>(i)));
        Warrant warrant;
        warrant.code = QString::number(numbers[i]).rightJustified(6, u'0');
        warrant.underlying =
            &exchange[random.between(0, static_cast<int>(exchange.size()) / 3) * 3 % exchange.size()];
        warrant.issuer = random.between(0, static_cast<int>(words.brokers.size()) - 1);
        // A warrant is named after its underlying's first two characters, its issuer, its kind and a serial
        // number.
        const QString serial = QString::number(i / 10 + 1).rightJustified(2, u'0');
        warrant.name = joined({warrant.underlying->chinese.left(2), words.brokers[warrant.issuer].issuer,
                               random.chance(800) ? u"購" : u"售", serial});
        allWarrants.push_back(std::move(warrant));
    }
}

}  // namespace wirepane::sample
