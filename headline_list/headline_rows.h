// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/packed_entries.h"
#include "host/contract/records.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <vector>

namespace wirepane {

// The entries of a headline list in their order; row 0 is the top. They stand in pages: a row that comes or
// goes anywhere costs a page and a number for each page above it, not each row. A row has a ticket from its
// coming to its going, whatever comes and goes around it.
class HeadlineRows {
public:
    enum class Ticket : std::uint32_t {};  // small numbers; one whose row has gone is given out again

    HeadlineRows() = default;
    // `next` hands out `count` entries from the top down.
    template <class Next>
    HeadlineRows(int count, Next next);

    int size() const { return rowCount; }
    bool empty() const { return rowCount == 0; }

    // Rows in [0, size()) and tickets of rows that are here.
    CHeadlineTable at(int row) const;
    Ticket ticketOf(int row) const;
    int rowOf(Ticket ticket) const;
    CHeadlineTable entryOf(Ticket ticket) const;

    // Puts an entry in before `row`, in [0, size()].
    void insert(int row, const CHeadlineTable& entry);
    // Takes out a row in [0, size()).
    void remove(int row);

    // The first row from the top that is earlier than `time`; size() when there is none.
    int firstEarlierThan(std::int64_t time) const;
    // The first row in [from, end) that is wanted, of rows in [0, size()); -1 when there is none. Reads the
    // rows on its way.
    template <class Wanted>
    int firstWithin(int from, int end, Wanted wanted) const;
    // From the top down: use(ticket, entry).
    template <class Use>
    void forEach(Use use) const;

private:
    // Pages grow and shrink by doubling their room, so one that is filled half has room for as much again.
    static constexpr int fullPage = 256;
    static constexpr int freshPage = fullPage / 2;

    static std::size_t numberOf(Ticket ticket) { return static_cast<std::size_t>(ticket); }

    // What stands further up comes later, so that the top grows at the end of its page. A position in the
    // list counts from the bottom in the same way.
    struct Page {
        PackedEntries entries;
        Ticket first{};               // of the entries, which have the next ones in turn, unless:
        std::vector<Ticket> tickets;  // of each entry, in a page that has changed

        Ticket ticketAt(std::size_t offset) const {
            return tickets.empty() ? Ticket(numberOf(first) + offset) : tickets[offset];
        }
        std::size_t offsetOf(Ticket ticket) const;
        // From here on each entry has its own.
        void giveTickets();
    };
    struct Spot {
        std::size_t place;
        std::size_t offset;
    };

    std::size_t placeOf(int position) const;
    Spot spotOf(int row) const;
    Spot spotOf(Ticket ticket) const;
    Page& pageAt(std::size_t place) { return pages[order[place]]; }
    const Page& pageAt(std::size_t place) const { return pages[order[place]]; }
    int rowAt(std::size_t place, std::size_t offset) const {
        return rowCount - 1 - below[place] - static_cast<int>(offset);
    }
    Ticket takeTicket();
    void openPage(std::size_t place);
    void closePage(std::size_t place);
    void split(std::size_t place);
    void joinWithNeighbour(std::size_t place);
    void moveEntries(std::size_t from, std::size_t firstOffset, std::size_t to);
    void shiftAbove(std::size_t place, int by);
    void renumberFrom(std::size_t place);
    void findEarliest(std::size_t place);

    int rowCount = 0;
    // By place, the bottom first:
    std::vector<std::uint32_t> order;    // the page that stands there, by number
    std::vector<int> below;              // how many entries stand below it
    std::vector<std::int64_t> earliest;  // its earliest time
    // By number, which a page keeps:
    std::vector<Page> pages;
    std::vector<std::size_t> places;
    std::vector<std::uint32_t> freePages;
    // By ticket:
    std::vector<std::uint32_t> pageOfTicket;
    std::vector<Ticket> freeTickets;
};

template <class Next>
HeadlineRows::HeadlineRows(int count, Next next) : rowCount(count) {
    const int pageCount = (count + freshPage - 1) / freshPage;
    const auto wanted = static_cast<std::size_t>(pageCount);
    order.resize(wanted);
    std::iota(order.begin(), order.end(), 0U);
    places.assign(order.begin(), order.end());
    below.resize(wanted);
    earliest.resize(wanted);
    pages.resize(wanted);
    pageOfTicket.resize(static_cast<std::size_t>(count));
    for (int number = pageCount; number-- > 0;) {
        const auto place = static_cast<std::size_t>(number);
        below[place] = number * freshPage;
        const auto length = static_cast<std::size_t>(std::min(freshPage, count - below[place]));
        Page& page = pages[place];
        page.entries.resize(length);
        for (std::size_t offset = length; offset-- > 0;)
            page.entries.set(offset, next());
        page.first = Ticket(below[place]);
        std::fill_n(pageOfTicket.begin() + below[place], length, static_cast<std::uint32_t>(number));
        findEarliest(place);
    }
}

template <class Wanted>
int HeadlineRows::firstWithin(int from, int end, Wanted wanted) const {
    for (int row = from; row < end;) {
        const auto [place, offset] = spotOf(row);
        const PackedEntries& entries = pageAt(place).entries;
        for (std::size_t left = offset + 1; left-- > 0 && row < end; ++row) {
            if (wanted(entries[left]))
                return row;
        }
    }
    return -1;
}

template <class Use>
void HeadlineRows::forEach(Use use) const {
    for (std::size_t place = order.size(); place-- > 0;) {
        const Page& page = pageAt(place);
        for (std::size_t offset = page.entries.size(); offset-- > 0;)
            use(page.ticketAt(offset), page.entries[offset]);
    }
}

}  // namespace wirepane
