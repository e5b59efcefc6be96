// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_rows.h"

#include <algorithm>
#include <limits>

namespace wirepane {

namespace {

constexpr auto atOffset = [](auto& content, std::size_t offset) {
    return content.begin() + static_cast<std::ptrdiff_t>(offset);
};

}  // namespace

std::size_t HeadlineRows::Page::offsetOf(Ticket ticket) const {
    if (tickets.empty())
        return numberOf(ticket) - numberOf(first);
    const auto found = std::find(tickets.rbegin(), tickets.rend(), ticket);
    return static_cast<std::size_t>(tickets.rend() - found - 1);
}

void HeadlineRows::Page::giveTickets() {
    if (!tickets.empty())
        return;
    for (std::size_t offset = 0; offset < entries.size(); ++offset)
        tickets.push_back(Ticket(numberOf(first) + offset));
}

CHeadlineTable HeadlineRows::at(int row) const {
    const Spot spot = spotOf(row);
    return pageAt(spot.place).entries[spot.offset];
}

HeadlineRows::Ticket HeadlineRows::ticketOf(int row) const {
    const Spot spot = spotOf(row);
    return pageAt(spot.place).ticketAt(spot.offset);
}

int HeadlineRows::rowOf(Ticket ticket) const {
    const Spot spot = spotOf(ticket);
    return rowAt(spot.place, spot.offset);
}

CHeadlineTable HeadlineRows::entryOf(Ticket ticket) const {
    const Spot spot = spotOf(ticket);
    return pageAt(spot.place).entries[spot.offset];
}

void HeadlineRows::insert(int row, const CHeadlineTable& entry) {
    const int position = rowCount - row;
    if (order.empty())
        openPage(0);
    std::size_t place = placeOf(std::max(position - 1, 0));
    if (pageAt(place).entries.size() >= fullPage) {
        if (row == 0)
            openPage(order.size());
        else
            split(place);
        place = row == 0 ? order.size() - 1 : placeOf(std::max(position - 1, 0));
    }
    const auto offset = static_cast<std::size_t>(position - below[place]);
    const Ticket ticket = takeTicket();
    pageOfTicket[numberOf(ticket)] = order[place];
    Page& page = pageAt(place);
    page.giveTickets();
    page.entries.insert(offset, entry);
    page.tickets.insert(atOffset(page.tickets, offset), ticket);
    earliest[place] = std::min(earliest[place], entry.time);
    shiftAbove(place, 1);
}

void HeadlineRows::remove(int row) {
    const auto [place, offset] = spotOf(row);
    Page& page = pageAt(place);
    page.giveTickets();
    freeTickets.push_back(page.tickets[offset]);
    const std::int64_t time = page.entries.timeAt(offset);
    page.entries.erase(offset);
    page.tickets.erase(atOffset(page.tickets, offset));
    shiftAbove(place, -1);
    if (page.entries.empty()) {
        closePage(place);
        return;
    }
    if (time == earliest[place])
        findEarliest(place);
    if (page.entries.size() < fullPage / 8)
        joinWithNeighbour(place);
}

int HeadlineRows::firstEarlierThan(std::int64_t time) const {
    const auto page = std::find_if(earliest.rbegin(), earliest.rend(),
                                   [&](std::int64_t earliestOfPage) { return earliestOfPage < time; });
    if (page == earliest.rend())
        return rowCount;
    const auto place = static_cast<std::size_t>(earliest.rend() - page - 1);
    const PackedEntries& entries = pageAt(place).entries;
    std::size_t offset = entries.size() - 1;
    while (offset > 0 && entries.timeAt(offset) >= time)
        --offset;
    return rowAt(place, offset);
}

// Those near the top are asked for most often: it looks ever further down from there, then in between.
std::size_t HeadlineRows::placeOf(int position) const {
    std::size_t reach = 1;
    while (reach < below.size() && below[below.size() - reach] > position)
        reach *= 2;
    const auto first = below.end() - static_cast<std::ptrdiff_t>(std::min(reach, below.size()));
    const auto last = below.end() - static_cast<std::ptrdiff_t>(reach / 2);
    return static_cast<std::size_t>(std::upper_bound(first, last, position) - below.begin()) - 1;
}

HeadlineRows::Spot HeadlineRows::spotOf(int row) const {
    const int position = rowCount - 1 - row;
    const std::size_t place = placeOf(position);
    return {place, static_cast<std::size_t>(position - below[place])};
}

HeadlineRows::Spot HeadlineRows::spotOf(Ticket ticket) const {
    const std::uint32_t number = pageOfTicket[numberOf(ticket)];
    return {places[number], pages[number].offsetOf(ticket)};
}

HeadlineRows::Ticket HeadlineRows::takeTicket() {
    if (freeTickets.empty()) {
        pageOfTicket.push_back(0);
        return static_cast<Ticket>(pageOfTicket.size() - 1);
    }
    const Ticket ticket = freeTickets.back();
    freeTickets.pop_back();
    return ticket;
}

// An empty page, on top of those below `place`.
void HeadlineRows::openPage(std::size_t place) {
    if (freePages.empty()) {
        freePages.push_back(static_cast<std::uint32_t>(pages.size()));
        pages.emplace_back();
        places.push_back(0);
    }
    const std::uint32_t number = freePages.back();
    freePages.pop_back();
    const int entriesBelow =
        place == 0 ? 0 : below[place - 1] + static_cast<int>(pageAt(place - 1).entries.size());
    order.insert(atOffset(order, place), number);
    below.insert(atOffset(below, place), entriesBelow);
    earliest.insert(atOffset(earliest, place), std::numeric_limits<std::int64_t>::max());
    renumberFrom(place);
}

void HeadlineRows::closePage(std::size_t place) {
    freePages.push_back(order[place]);
    pageAt(place) = {};
    order.erase(atOffset(order, place));
    below.erase(atOffset(below, place));
    earliest.erase(atOffset(earliest, place));
    renumberFrom(place);
}

void HeadlineRows::split(std::size_t place) {
    openPage(place + 1);
    below[place + 1] = below[place] + freshPage;
    moveEntries(place, freshPage, place + 1);
    findEarliest(place);
}

void HeadlineRows::joinWithNeighbour(std::size_t place) {
    const auto length = [&](std::size_t other) { return pageAt(other).entries.size(); };
    for (const std::size_t lower : {place - 1, place}) {
        if (lower >= order.size() - 1 || length(lower) + length(lower + 1) > freshPage)
            continue;
        moveEntries(lower + 1, 0, lower);
        closePage(lower + 1);
        return;
    }
}

// Moves the entries from an offset on to the end of another page.
void HeadlineRows::moveEntries(std::size_t from, std::size_t firstOffset, std::size_t to) {
    Page& source = pageAt(from);
    Page& target = pageAt(to);
    source.giveTickets();
    target.giveTickets();
    for (std::size_t offset = firstOffset; offset < source.tickets.size(); ++offset)
        pageOfTicket[numberOf(source.tickets[offset])] = order[to];
    target.entries.moveFrom(firstOffset, source.entries);
    target.tickets.insert(target.tickets.end(), atOffset(source.tickets, firstOffset), source.tickets.end());
    source.tickets.resize(firstOffset);
    findEarliest(to);
}

void HeadlineRows::shiftAbove(std::size_t place, int by) {
    rowCount += by;
    std::for_each(atOffset(below, place + 1), below.end(), [by](int& entriesBelow) { entriesBelow += by; });
}

void HeadlineRows::renumberFrom(std::size_t place) {
    for (; place < order.size(); ++place)
        places[order[place]] = place;
}

void HeadlineRows::findEarliest(std::size_t place) {
    earliest[place] = std::numeric_limits<std::int64_t>::max();
    const PackedEntries& entries = pageAt(place).entries;
    for (std::size_t offset = 0; offset < entries.size(); ++offset)
        earliest[place] = std::min(earliest[place], entries.timeAt(offset));
}

}  // namespace wirepane
