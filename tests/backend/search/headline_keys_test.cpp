// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/search/headline_keys.h"

#include "tests/backend/store/store_fixture.h"

#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

using HeadlineKeysTest = StoreFixture;

std::vector<HeadlineKey> found(HeadlineKeys& keys, unsigned char service, const IdSet& ids) {
    std::vector<HeadlineKey> entries;
    for (const CHeadlineTable& entry : keys.entries(service, ids).value_or(std::vector<CHeadlineTable>()))
        entries.push_back(keyOf(entry));
    return entries;
}

// What was found, packed for as long as somebody may read it.
void expectPacked(const std::vector<CHeadlineTable>& entries) {
    const KeyBlocks packed(entries);
    std::vector<CHeadlineTable> unpacked;
    packed.appendTo(unpacked, 1);
    ASSERT_EQ(unpacked.size(), entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const HeadlineKey key = keyOf(entries[i]);
        ASSERT_TRUE(unpacked[i].time == key.time && unpacked[i].sequence == key.sequence) << i;
        if (i % 50 == 0) {
            ASSERT_TRUE(packed.hold(key)) << i;
        }
    }
    EXPECT_FALSE(!entries.empty() && packed.hold({entries.front().time + 1, entries.front().sequence, 1}));
}

// News of all times in any order, replaced now and then, some of it hidden for a while, beside a store that
// is asked the plain way.
TEST_F(HeadlineKeysTest, EntriesAreThoseOfTheStoreHoweverManyAreKept) {
    std::mt19937 random(7);
    HeadlineKeys all(*store);
    HeadlineKeys some(*store, 700);
    Statement put(
        *store,
        "INSERT OR IGNORE INTO all_headlines(service, time, sequence, day, category, version, received, "
        "identity, title) VALUES(?1, ?2, ?3, ?3, 1, 0, 0, hex(randomblob(9)), 'T')");
    Statement replace(
        *store,
        "UPDATE OR IGNORE all_headlines SET id = (SELECT max(id) + 1 FROM all_headlines), time = time + ?2 "
        "WHERE id = ?1");
    Statement hide(*store, "INSERT INTO import_blocks SELECT ?, max(id), 1 FROM all_headlines");
    Statement living(*store, "SELECT id FROM headlines");
    Statement read(
        *store,
        "SELECT time, sequence, id FROM headlines WHERE service = ? ORDER BY time DESC, sequence DESC");
    const std::int64_t eras[] = {-2'208'988'800, 1'772'400'000, 253'402'300'000};
    for (int round = 0; round < 12; ++round) {
        std::int64_t last = 0;
        ASSERT_TRUE(store->readNumber("SELECT coalesce(max(id), 0) FROM all_headlines", last));
        ASSERT_TRUE(store->begin());
        if (round % 4 == 1) {
            ASSERT_TRUE(store->execute("DELETE FROM import_blocks"));
        }
        for (int i = 0; i < (round % 3 == 0 ? 900 : 3); ++i)
            ASSERT_TRUE(Query(put, random() % 2 * 15 + 1, eras[random() % 8 / 3 % 3] + random() % 5000,
                              std::int32_t(random() % 3 ? random() % 9000 : 0x7fffffff - random() % 9))
                            .run());
        if (round % 4 == 3) {
            ASSERT_TRUE(Query(hide, last + 1).run());
        }
        for (int i = 0; i < 20; ++i)
            ASSERT_TRUE(Query(replace, random() % 900, random() % 2 * 50).run());
        ASSERT_TRUE(store->commit());
        for (const unsigned rarity : {1U, 2U, 40U, 5000U}) {
            IdSet ids;
            for (Query query(living); query.next();) {
                if (random() % rarity == 0)
                    ids.add(query.number(0));
            }
            for (const unsigned char service : std::initializer_list<unsigned char>{1, 16}) {
                std::vector<HeadlineKey> expected;
                for (Query query(read, service); query.next();) {
                    if (ids.contains(query.number(2)))
                        expected.push_back({query.number(0), query.smallNumber(1), service});
                }
                EXPECT_TRUE(found(all, service, ids) == expected) << round << " 1/" << rarity;
                expectPacked(all.entries(service, ids).value());
                EXPECT_TRUE(found(some, service, ids) == expected) << round << " 1/" << rarity;
            }
        }
    }
    EXPECT_LE(some.size(), 875U);
}

}  // namespace
}  // namespace wirepane
