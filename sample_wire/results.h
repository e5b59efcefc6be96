// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_wire/company_register.h"
#include "sample_wire/local_time.h"

#include <cstdint>

namespace wirepane::sample {

// What a company earned in a quarter and in the same quarter of the year before. Money in millions.
struct QuarterResults {
    std::int64_t revenue = 0;
    std::int64_t revenueBefore = 0;
    std::int64_t profit = 0;
    std::int64_t profitBefore = 0;
    int margin = 0;  // gross, tenths of a percent
    int marginBefore = 0;

    bool up() const { return profit >= profitBefore; }
};

// What a company sold in a month, the month before and the same month of the year before. Millions.
struct MonthRevenue {
    std::int64_t revenue = 0;
    std::int64_t monthBefore = 0;
    std::int64_t yearBefore = 0;
    std::int64_t yearToDate = 0;
    std::int64_t yearToDateBefore = 0;

    bool up() const { return revenue >= yearBefore; }
};

// Each is a function of the company and the period alone: every report of the same period gives the same
// figures.
QuarterResults quarterResults(const Company& company, Quarter quarter);
MonthRevenue monthRevenue(const Company& company, Month month);

// How much larger the first is than the second, in tenths of a percent, as a size.
int changeInTenths(std::int64_t now, std::int64_t before);

}  // namespace wirepane::sample
