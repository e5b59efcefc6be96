// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The user's own news and the sample wire's stand in stores of their own.
#include "terminal/session/user_stores.h"

#include "backend/network/source_list.h"
#include "backend/store/store_file.h"
#include "backend/store/store_writer.h"
#include "tests/terminal/program/program_runner.h"

#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

void write(const QString& file, const QStringList& identities) {
    const auto store = openStore(file);
    ASSERT_TRUE(store);
    StoreWriter writer(*store.value());
    ASSERT_TRUE(writer.begin());
    for (const QString& identity : identities) {
        NewsItem item;
        item.service = 1;
        item.identity = identity;
        item.time = 1'770'000'000;
        item.title = u"a title"_s;
        ASSERT_TRUE(writer.takeNews(item));
    }
    ASSERT_TRUE(writer.commit());
}

TEST(UserStoresTest, TheUsersOwnIsOpenedOnceItHasNews) {
    struct Case {
        const char* what;
        std::optional<QStringList> own;
        bool hasSample;
        std::optional<StoreKind> chosen;
        StoreKind expected;
        bool isCarriedOver = false;
    };
    const QStringList sample{u"sample:1"_s};
    const QStringList real{u"wire:1"_s};
    const Case cases[] = {
        {"nothing yet", {}, false, {}, StoreKind::Sample},
        {"an empty store", QStringList(), false, {}, StoreKind::Sample},
        {"news", real, true, {}, StoreKind::Own},
        {"both in one, from before", sample + real, false, {}, StoreKind::Own},
        {"only the sample, from before", sample, false, {}, StoreKind::Sample, true},
        {"only the sample, beside the sample's own store", sample, true, {}, StoreKind::Own},
        {"the sample was chosen", real, true, StoreKind::Sample, StoreKind::Sample},
        {"the sample was chosen, and is gone", real, false, StoreKind::Sample, StoreKind::Own},
        {"an empty store was chosen", {}, true, StoreKind::Own, StoreKind::Own},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const test::Scratch scratch;
        const UserStores stores{scratch.path(u"own"_s), scratch.path(u"sample"_s)};
        if (c.own)
            write(stores.own, *c.own);
        if (c.hasSample)
            write(stores.sample, sample);
        EXPECT_EQ(startingStore(stores, c.chosen), c.expected);
        EXPECT_EQ(QFileInfo::exists(stores.sample), c.hasSample || c.isCarriedOver);
        EXPECT_EQ(QFileInfo::exists(stores.own), c.own.has_value() && !c.isCarriedOver);
    }
}

TEST(UserStoresTest, ASourceToAskOpensTheUsersOwn) {
    const test::Scratch scratch;
    const UserStores stores{scratch.path(u"own"_s), scratch.path(u"sample"_s)};
    write(stores.sample, {u"sample:1"_s});
    NetworkSource source;
    source.address = QUrl(u"https://news.example/feed"_s);
    source.isPaused = true;
    const auto own = openStore(stores.own);
    ASSERT_TRUE(own);
    SourceList list(*own.value());
    const auto name = list.add(source);
    ASSERT_TRUE(name);
    EXPECT_EQ(startingStore(stores, {}), StoreKind::Sample) << "it waits for the user";
    ASSERT_TRUE(list.pause(name.value(), false));
    EXPECT_EQ(startingStore(stores, {}), StoreKind::Own);
}

TEST(UserStoresTest, AStoreThatAnotherProgramHasOpenStaysWhereItIs) {
    const test::Scratch scratch;
    const UserStores stores{scratch.path(u"own"_s), scratch.path(u"sample"_s)};
    write(stores.own, {u"sample:1"_s});
    const auto other = openStore(stores.own);
    ASSERT_TRUE(other);
    std::int64_t count = 0;
    ASSERT_TRUE(other.value()->readNumber("SELECT count(*) FROM headlines", count));
    EXPECT_EQ(startingStore(stores, {}), StoreKind::Own);
    EXPECT_TRUE(other.value()->readNumber("SELECT count(*) FROM headlines", count));
    EXPECT_EQ(count, 1);
}

}  // namespace

}  // namespace wirepane
