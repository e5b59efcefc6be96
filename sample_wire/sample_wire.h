// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/news_item.h"
#include "sample_wire/phrasebook.h"
#include "sample_wire/sample_options.h"
#include "sample_wire/word_tables.h"

#include <functional>
#include <memory>

namespace wirepane {

// What the wire writes with.
struct SampleData {
    sample::WordTables words;
    sample::Phrasebook book;

    // Reads the files that the program carries. Where something is wrong with them, that is added to the
    // faults, each with file and line, and the data must not be used.
    static SampleData load(QStringList& faults);
};

// An invented news wire: companies, people and events that never were, in English and Traditional Chinese.
//
// The same options give the same items, byte for byte, on every platform. A later present moment with
// otherwise equal options gives the same news up to the earlier one (with the same identities), and goes on
// from there.
class SampleWire {
public:
    // Takes one item; false: no more are wanted.
    using Taker = std::function<bool(StoreItem&&)>;
    // The same, with the moment at which the wire sends the item (seconds since 1970, UTC).
    using TimedTaker = std::function<bool(std::int64_t sentAt, StoreItem&&)>;

    // The data must outlive the wire.
    SampleWire(const SampleData& data, SampleOptions options);
    ~SampleWire();

    // Hands over the categories of the services, then the symbols of the markets 16, 22, 122 and 52 (whatever
    // the services) and their quotes of the present moment, then the news from the oldest to the newest, none
    // later than the present moment. True: all were taken. May be called again, and starts from the beginning
    // then.
    bool run(const Taker& take) const;
    // Hands over what is sent from a moment on, in that order, day after day without end, until no more is
    // wanted. From the present moment of the options on, ordinary wires send something every ten seconds
    // between the items of the plan. With late stories a flash says that one is to come, and is sent again
    // with it.
    void follow(std::int64_t moment, const TimedTaker& take) const;
    // Hands over the quotes of a few symbols, others at each moment, as trading moves them. False: no more
    // are wanted.
    bool tick(std::int64_t moment, const Taker& take) const;

private:
    class Desk;
    std::unique_ptr<const Desk> desk;
};

}  // namespace wirepane
