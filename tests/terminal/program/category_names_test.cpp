// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"
#include "terminal/session/category_display.h"
#include "tests/backend/store/take_all.h"
#include "tests/terminal/program/program_runner.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

// An old wire of topic 1, then one of topic 2 that is smaller: a new topic must not wait for all of it to be
// counted.
TEST(CategoryNames, OfMoreThanTheFileHoldsTheLatestTopicsComeFirst) {
    const Scratch scratch;
    const QString path = scratch.path(u"news.wirepane"_s);
    auto opened = EmbeddedBackEnd::open(path);
    ASSERT_TRUE(opened);
    EmbeddedBackEnd& store = *opened.value();
    constexpr int topics = 200;
    std::vector<CategoryItem> categories;
    for (int id = 1; id <= topics; ++id)
        categories.push_back({1, id, u"Topic of the long name %1"_s.arg(id), {}});
    ASSERT_TRUE(takeAll(store, categories));
    const auto database = Database::open(path, Database::Mode::Write, std::chrono::seconds(5));
    ASSERT_TRUE(database);
    ASSERT_TRUE(database.value()->execute(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 24000) "
        "INSERT INTO all_headlines(id, service, time, sequence, day, category, version, received, identity, "
        "title) "
        "SELECT i, 1, i, i, 20260302, CASE WHEN i > 14000 THEN 2 ELSE 1 END, 1, 0, i, 'News' FROM n"))
        << sentence(database.value()->failure()).toStdString();
    const std::vector<CategoryName> names = categoryNames(store);
    ASSERT_EQ(names.size(), topics + 1U) << "with that of news without a topic";
    EXPECT_EQ(names.front().id, 2);
}

}  // namespace wirepane
