// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/read_ahead.h"

#include "backend/import/import_errors.h"
#include "tests/support/qt_printers.h"

#include <gtest/gtest.h>
#include <thread>

namespace wirepane {
namespace {

// Every third item is read without its content, which is made on the way by neither of the two threads.
TEST(ReadAhead, HandsOverInOrderUntilToldToStop) {
    const Done refused = makeError<import_errors::fileEmpty>();
    for (const qint64 items : {0, 1, 125, 126, 127, 5000}) {
        for (const qint64 taken : {qint64(1), items / 2, items - 1, items, items + 1}) {
            qint64 read = 0;
            qint64 visited = 0;
            const auto taker = std::this_thread::get_id();
            const Done done = readAhead(
                [&](const ItemVisitor& visit) {
                    const auto reader = std::this_thread::get_id();
                    EXPECT_NE(reader, taker);
                    NewsItem item;
                    bool going = true;
                    while (going && read < items) {
                        item.story = QString(++read % 50 == 0 ? 100'000 : 10, u'x');
                        SourceItem source{StoreItem(item), makeError<import_errors::atLine>(read), read};
                        if (read % 3 == 0) {
                            source.content = StoreItem();
                            source.sizeOfRest = item.story->size();
                            source.rest = [item, reader, taker]() -> Result<StoreItem> {
                                EXPECT_NE(std::this_thread::get_id(), reader);
                                EXPECT_NE(std::this_thread::get_id(), taker);
                                return StoreItem(item);
                            };
                        }
                        going = visit(std::move(source));
                    }
                    return items == 0 ? refused : Done(Nothing{});
                },
                [&](SourceItem&& item) {
                    EXPECT_EQ(std::this_thread::get_id(), taker);
                    EXPECT_EQ(item.bytesRead, ++visited);
                    EXPECT_FALSE(item.rest);
                    EXPECT_TRUE(std::get<NewsItem>(item.content.value()).story);
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
