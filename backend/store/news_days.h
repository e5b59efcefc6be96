// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/day_bounds.h"

#include <cstdint>
#include <map>

namespace wirepane {

// The news day that each service is in, as yyyymmdd: the one that it has reported, while that is not over;
// else the present day (host_clock). Interface thread.
class NewsDays {
public:
    NewsDays() { forget(); }

    // No service has reported anything, and none has to report the present day.
    void forget();
    void report(unsigned char service, std::int32_t day);

    std::int32_t of(unsigned char service) const;
    bool hasReported(unsigned char service) const { return reports.contains(service); }
    // News of this day is the first of the present one in its service: the day is to be reported.
    bool begins(unsigned char service, std::int32_t day) const;

private:
    struct Report {
        std::int32_t day;
        std::int32_t made;  // the day on which it came
    };
    std::map<unsigned char, Report> reports;
    std::int32_t start = 0;  // the day that needs no report
};

}  // namespace wirepane
