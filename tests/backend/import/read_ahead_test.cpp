// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/read_ahead.h"

#include "backend/import/import_errors.h"
#include "tests/support/qt_printers.h"

#include <gtest/gtest.h>
#include <thread>

namespace wirepane {
namespace {

TEST(ReadAhead, HandsOverInOrderUntilToldToStop) {
    const Done refused = makeError<import_errors::fileEmpty>();
    for (const qint64 items : {0, 1, 125, 126, 127, 5000}) {
        for (const qint64 taken : {qint64(1), items / 2, items - 1, items, items + 1}) {
            qint64 read = 0;
            qint64 visited = 0;
            const auto taker = std::this_thread::get_id();
            const Done done = readAhead(
                [&](const ItemVisitor& visit) {
                    EXPECT_NE(std::this_thread::get_id(), taker);
                    NewsItem item;
                    bool going = true;
                    while (going && read < items) {
                        item.story = QString(++read % 50 == 0 ? 100'000 : 10, u'x');
                        going = visit({StoreItem(item), makeError<import_errors::atLine>(read), read});
                    }
                    return items == 0 ? refused : Done(Nothing{});
                },
                [&](SourceItem&& item) {
                    EXPECT_EQ(std::this_thread::get_id(), taker);
                    EXPECT_EQ(item.bytesRead, ++visited);
                    return visited < taken;
                });
            EXPECT_EQ(visited, std::min(items, std::max<qint64>(taken, 1)));
            EXPECT_GE(read, visited);
            EXPECT_LE(read, visited + 2500) << "a reader that is faster waits";
            EXPECT_EQ(bool(done), items > 0);
        }
    }
}

}  // namespace
}  // namespace wirepane
