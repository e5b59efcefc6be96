// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_rows.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace wirepane {

namespace {

// A plain list to compare with: every row has the ticket that it got when it came.
struct PlainRow {
    CHeadlineTable entry;
    HeadlineRows::Ticket ticket{};
};
using PlainRows = std::vector<PlainRow>;

void expectSameRows(const HeadlineRows& rows, const PlainRows& plain) {
    ASSERT_EQ(rows.size(), static_cast<int>(plain.size()));
    int row = 0;
    rows.forEach([&](HeadlineRows::Ticket ticket, const CHeadlineTable& entry) {
        const PlainRow& expected = plain[static_cast<std::size_t>(row)];
        ASSERT_EQ(entry.sequence, expected.entry.sequence) << "row " << row;
        ASSERT_EQ(ticket, expected.ticket) << "row " << row;
        ASSERT_EQ(rows.at(row).sequence, expected.entry.sequence);
        ASSERT_EQ(std::pair(entry.second, entry.last), std::pair(expected.entry.second, expected.entry.last))
            << "row " << row;
        ASSERT_EQ(rows.ticketOf(row), ticket);
        ASSERT_EQ(rows.rowOf(ticket), row);
        ASSERT_EQ(rows.entryOf(ticket).sequence, expected.entry.sequence);
        ++row;
    });
    ASSERT_EQ(row, rows.size());
}

void expectSameAnswers(const HeadlineRows& rows, const PlainRows& plain, int from, int end,
                       std::int64_t time) {
    const auto earlier = [&](const PlainRow& row) { return row.entry.time < time; };
    const auto firstOf = std::find_if(plain.begin(), plain.end(), earlier);
    ASSERT_EQ(rows.firstEarlierThan(time), firstOf - plain.begin());
    const auto wanted = std::find_if(plain.begin() + from, plain.begin() + end, earlier);
    ASSERT_EQ(rows.firstWithin(from, end, [&](const CHeadlineTable& entry) { return entry.time < time; }),
              wanted == plain.begin() + end ? -1 : wanted - plain.begin());
}

}  // namespace

// The list grows, shrinks to nothing and grows again: at the top, at the bottom and in between.
TEST(HeadlineRows, AreThoseOfAPlainList) {
    std::mt19937 random(20260302);
    const auto below = [&](std::size_t limit) { return static_cast<int>(random() % limit); };
    int sequence = 0;
    // Few hosts hand over what breaks ties, and then with few rows.
    const auto newEntry = [&] {
        const bool breaksTies = below(300) == 0;
        return CHeadlineTable{1000 - below(100) * below(10), ++sequence, 1, breaksTies ? below(9) : 0,
                              breaksTies ? below(9) : 0};
    };
    PlainRows plain;
    for (int i = 0; i < 1500; ++i)
        plain.push_back({newEntry(), {}});
    HeadlineRows rows(1500, [row = plain.begin()]() mutable { return row++->entry; });
    for (std::size_t row = 0; row < plain.size(); ++row)
        plain[row].ticket = rows.ticketOf(static_cast<int>(row));

    for (const int growth : {8, 1, 1, 7, 2}) {
        for (int step = 0; step < 4000; ++step) {
            const bool atEnd = below(3) == 0;
            if (below(10) < growth || plain.empty()) {
                const int row = atEnd ? below(2) * rows.size() : below(plain.size() + 1);
                const CHeadlineTable entry = newEntry();
                rows.insert(row, entry);
                plain.insert(plain.begin() + row, {entry, rows.ticketOf(row)});
            } else {
                const int row = atEnd ? below(2) * (rows.size() - 1) : below(plain.size());
                rows.remove(row);
                plain.erase(plain.begin() + row);
            }
            const int from = below(plain.size() + 1);
            const int end = from + below(plain.size() - static_cast<std::size_t>(from) + 1);
            ASSERT_NO_FATAL_FAILURE(expectSameAnswers(rows, plain, from, end, below(1100)));
            if (step % 400 == 0) {
                ASSERT_NO_FATAL_FAILURE(expectSameRows(rows, plain))
                    << "growth " << growth << " step " << step;
            }
        }
    }
}

}  // namespace wirepane
