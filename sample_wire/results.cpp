// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/results.h"

#include "sample_wire/random.h"

#include <algorithm>
#include <cstdlib>

namespace wirepane::sample {

namespace {

// Large sums are reported to ten millions, so that both languages can write them with two decimals.
std::int64_t rounded(std::int64_t millions) {
    return millions < 1000 ? std::max<std::int64_t>(millions, 1) : millions / 10 * 10;
}

std::int64_t salesOf(const Company& company, Month month) {
    const std::uint64_t draw = hashOf(company.seed, 11, static_cast<std::uint64_t>(month.number));
    return rounded(static_cast<std::int64_t>(company.annualRevenue) * inRange(draw, 820, 1190) / 12'000);
}

}  // namespace

int changeInTenths(std::int64_t now, std::int64_t before) {
    return static_cast<int>(std::llabs(now - before) * 1000 / std::max<std::int64_t>(before, 1));
}

QuarterResults quarterResults(const Company& company, Quarter quarter) {
    Random random(hashOf(company.seed, 12, static_cast<std::uint64_t>(quarter.number)));
    const bool up = random.chance(620);
    const int change = random.between(25, up ? 420 : 310);  // tenths of a percent
    const int sign = up ? 1 : -1;
    QuarterResults results;
    const std::int64_t base =
        static_cast<std::int64_t>(company.annualRevenue) * random.between(850, 1150) / 4000;
    results.revenue = rounded(std::max<std::int64_t>(base, 40));
    results.revenueBefore = rounded(results.revenue * 1000 / (1000 + sign * change * 2 / 5));
    results.profit = rounded(std::max<std::int64_t>(results.revenue * company.netMargin / 1000, 8));
    results.profitBefore = rounded(results.profit * 1000 / (1000 + sign * change));
    results.margin = company.grossMargin + sign * random.between(1, 12);
    results.marginBefore = results.margin - sign * random.between(3, 28);
    if (results.profitBefore == results.profit)
        results.profitBefore -= sign;
    return results;
}

MonthRevenue monthRevenue(const Company& company, Month month) {
    MonthRevenue result;
    for (int i = 1; i <= month.month(); ++i) {
        result.yearToDate += salesOf(company, {month.year() * 12 + i - 1});
        result.yearToDateBefore += salesOf(company, {(month.year() - 1) * 12 + i - 1});
    }
    result.yearToDate = rounded(result.yearToDate);
    result.yearToDateBefore = rounded(result.yearToDateBefore);
    result.revenue = salesOf(company, month);
    result.monthBefore = salesOf(company, {month.number - 1});
    result.yearBefore = salesOf(company, {month.number - 12});
    return result;
}

}  // namespace wirepane::sample
