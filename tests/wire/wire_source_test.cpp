// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/wire_source.h"

#include "backend/feed/feed_errors.h"
#include "tests/backend/store/store_fixture.h"
#include "wire/wire_errors.h"
#include "wire/wire_position.h"

#include <functional>
#include <optional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// A connection that does what the test says.
class PlayedTail : public WireTail {
public:
    explicit PlayedTail(Listener wireListener) : tell(std::move(wireListener)) {}
    void open() override { ++opened; }
    void close() override { ++closed; }
    void read(std::int64_t after) override { readAfter = after; }

    Listener tell;
    int opened = 0;
    int closed = 0;
    std::optional<std::int64_t> readAfter;
};

class WireSourceTest : public StoreFixture {
protected:
    WireSourceTest()
        : source(u"floor"_s, [this](WireTail::Listener listener) {
              auto made = std::make_unique<PlayedTail>(std::move(listener));
              tail = made.get();
              return made;
          }) {}

    static WireRow row(std::int64_t sequence, int service, std::int64_t prev) {
        NewsItem item =
            newsItem(static_cast<unsigned char>(service), u"n:%1"_s.arg(sequence), at(9, 0), u"News"_s);
        item.sequence = static_cast<std::int32_t>(sequence);
        item.day = 20260302;
        item.received = at(9, 1);
        return {sequence, service, prev, wire_kinds::news, bodyOf(item)};
    }
    static WirePage page(std::int64_t last, std::vector<WireRow> rows) {
        WirePage made;
        made.head.epoch = u"e1"_s;
        made.head.last = last;
        made.rows = std::move(rows);
        return made;
    }
    // Takes what is at hand, as a terminal does.
    void takeIn() {
        const auto batch = source.batch();
        ASSERT_NE(batch, nullptr);
        const auto taken = takeBatch(*batch, source.name(), *writer);
        ASSERT_TRUE(taken);
        source.acknowledge(taken.value());
    }
    void begin() {
        source.resume(writer->positionOf(source.name()));
        tail->tell.opened();
    }

    PlayedTail* tail = nullptr;
    WireSource source;
};

}  // namespace

TEST_F(WireSourceTest, FollowsPageByPageAndGoesOnWhereItWas) {
    begin();
    tail->tell.page(page(4, {row(1, 16, 0), row(2, 17, 0)}));
    EXPECT_EQ(source.behind(), 2);
    takeIn();
    EXPECT_EQ(tail->readAfter, 2);
    // Of services that are not to be seen there are no rows.
    tail->tell.page(page(7, {row(4, 16, 1), row(7, 17, 2)}));
    takeIn();
    EXPECT_EQ(source.state().kind, SourceState::Live);
    EXPECT_EQ(rows("SELECT identity FROM headlines ORDER BY id"),
              QStringList({u"n:1"_s, u"n:2"_s, u"n:4"_s, u"n:7"_s}));
    source.setOnline(false);
    source.setOnline(true);
    begin();
    EXPECT_EQ(tail->readAfter, 7);
}

TEST_F(WireSourceTest, WhatDoesNotFollowIsNotTakenAndSaysWhy) {
    struct Case {
        const char* name;
        const ErrorCode& code;
        std::function<void(WirePage&)> spoil;
    };
    const Case cases[] = {
        {"hole", wire_errors::hole, [](WirePage& spoilt) { spoilt.rows.back().prev = 2; }},
        {"order", wire_errors::hole, [](WirePage& spoilt) { std::swap(spoilt.rows[0], spoilt.rows[1]); }},
        {"row beyond the head", wire_errors::hole, [](WirePage& spoilt) { spoilt.head.last = 3; }},
        {"other epoch", wire_errors::otherEpoch, [](WirePage& spoilt) { spoilt.head.epoch = u"e2"_s; }},
        {"went back", wire_errors::wentBack,
         [](WirePage& spoilt) {
             spoilt.head.last = 1;
             spoilt.rows.clear();
         }},
        {"form", wire_errors::unknownFormat, [](WirePage& spoilt) { spoilt.head.format = wireFormat + 1; }},
        {"kind", feed_errors::rejectedAt, [](WirePage& spoilt) { spoilt.rows.back().kind = u"poll"_s; }},
        {"torn", feed_errors::rejectedAt, [](WirePage& spoilt) { spoilt.rows.back().body.chop(9); }},
        {"service", feed_errors::rejectedAt,
         [](WirePage& spoilt) { spoilt.rows.back().body = row(4, 17, 0).body; }},
        {"number taken", feed_errors::rejectedAt,
         [](WirePage& spoilt) {
             auto item = std::get<NewsItem>(contentOf(spoilt.rows.back()).value());
             item.sequence = 1;
             spoilt.rows.back().body = bodyOf(item);
         }},
        {"known already", feed_errors::rejectedAt,
         [](WirePage& spoilt) { spoilt.rows.back().body = row(1, 16, 0).body; }},
    };
    begin();
    tail->tell.page(page(2, {row(1, 16, 0), row(2, 16, 1)}));
    takeIn();
    const QString kept = writer->positionOf(source.name()).value();
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        source.setOnline(true);
        begin();
        WirePage spoilt = page(4, {row(3, 16, 2), row(4, 16, 3)});
        one.spoil(spoilt);
        tail->tell.page(spoilt);
        if (source.hasBatch())
            takeIn();
        EXPECT_EQ(source.state().kind, SourceState::Failed);
        EXPECT_STREQ(source.state().reason ? source.state().reason->code->key : "", one.code.key);
        EXPECT_EQ(writer->positionOf(source.name()).value(), kept);
        EXPECT_EQ(rows("SELECT count(*) FROM headlines"), QStringList(u"2"_s));
    }
    source.setOnline(true);
    begin();
    tail->tell.page(page(4, {row(3, 16, 2), row(4, 16, 3)}));
    takeIn();
    EXPECT_EQ(rows("SELECT count(*) FROM headlines"), QStringList(u"4"_s));
}

TEST_F(WireSourceTest, WhatStirsDuringAReadingIsReadBehindIt) {
    begin();
    tail->readAfter.reset();
    tail->tell.stirred();
    EXPECT_FALSE(tail->readAfter);
    tail->tell.page(page(0, {}));
    EXPECT_EQ(tail->readAfter, 0);
}

TEST_F(WireSourceTest, ALostConnectionIsSilentAndTriedAgain) {
    begin();
    tail->tell.page(page(0, {}));
    EXPECT_EQ(source.state().kind, SourceState::Live);
    tail->tell.lost(makeError<wire_errors::server>(u"gone"_s));
    EXPECT_EQ(source.state().kind, SourceState::Silent);
    QElapsedTimer clock;
    clock.start();
    const int before = tail->opened;
    while (tail->opened == before && clock.elapsed() < 5000)
        source.poll();
    EXPECT_EQ(tail->opened, before + 1);
    EXPECT_GE(clock.elapsed(), 900);
    tail->tell.opened();
    tail->tell.stirred();
    EXPECT_EQ(source.state().kind, SourceState::Live);
    clock.start();
    while (source.state().kind == SourceState::Live && clock.elapsed() < 10000)
        source.poll();
    EXPECT_EQ(source.state().kind, SourceState::Silent);
    EXPECT_GE(clock.elapsed(), 2900);
    EXPECT_LT(clock.elapsed(), 4000);
}

}  // namespace wirepane
