// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/module_files.h"

#include "host/contract/ini_file.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

struct Lists {
    QStringList ids;
    QStringList names;
};

Lists written(const std::vector<CategoryName>& categories) {
    QTemporaryDir folder;
    EXPECT_TRUE(writeCategoryFile(folder.path(), categories));
    const IniFile file = IniFile::load(folder.filePath(u"NewsService.ini"_s));
    const auto list = [&file](const QString& key) {
        return file.text(u"CONFIG"_s, key).split(u',', Qt::SkipEmptyParts);
    };
    return {list(u"CatId"_s), list(u"SHORTNAME"_s)};
}

TEST(ModuleFilesTest, NamesSurviveAsTheModuleReadsThem) {
    const Lists lists = written({{1, u"Markets"_s}, {7, u"a b,c\nd"_s}, {-3, u"\"總體經濟\""_s}, {9, u""_s}});
    EXPECT_EQ(lists.ids, (QStringList{u"1"_s, u"7"_s, u"-3"_s, u"9"_s}));
    EXPECT_EQ(lists.names, (QStringList{u"Markets"_s, u"a-b-c-d"_s, u"\"總體經濟\""_s, u"-"_s}));
    EXPECT_EQ(written({{1, u"\"quoted\""_s}}).names, QStringList{u"\"quoted\""_s});
    EXPECT_TRUE(written({}).ids.isEmpty());
}

TEST(ModuleFilesTest, BothListsAreCutAtTheSameEntry) {
    std::vector<CategoryName> longNames;
    std::vector<CategoryName> longIds;
    for (int i = 0; i < 600; ++i) {
        longNames.push_back({i, u"category-number-%1"_s.arg(i)});
        longIds.push_back({2000000000 + i, u"x"_s});
    }
    for (const auto& categories : {longNames, longIds}) {
        const Lists lists = written(categories);
        ASSERT_EQ(lists.ids.size(), lists.names.size());
        ASSERT_GT(lists.ids.size(), 40);
        EXPECT_LE(lists.ids.join(u',').size(), 1024);
        EXPECT_LE(lists.names.join(u',').size(), 1024);
        EXPECT_EQ(lists.names.last(), categories[static_cast<std::size_t>(lists.names.size() - 1)].name);
    }
}

TEST(ModuleFilesTest, SaysWhichFileCannotBeWritten) {
    const Done done = writeSwitchesFile(u"/nonexistent-folder"_s, {});
    ASSERT_FALSE(done);
    EXPECT_TRUE(sentence(done.error()).contains(u"Application.ini"_s))
        << sentence(done.error()).toStdString();
}

}  // namespace

}  // namespace wirepane
