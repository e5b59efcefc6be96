// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/workspace_layout.h"

#include "terminal/settings/settings_file.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class WorkspaceLayoutTest : public testing::Test {
protected:
    QString path() const { return folder.filePath(u"wirepane.json"_s); }

    // The layout that a file with this value reads as.
    WorkspaceLayout readWith(const QString& name, const QByteArray& json) const {
        SettingsFile file(path());
        const QByteArray array = '[' + json + ']';
        file.setValue(u"workspace"_s, name, QJsonDocument::fromJson(array).array().at(0));
        return WorkspaceLayout::read(file);
    }

    QTemporaryDir folder;
};

TEST_F(WorkspaceLayoutTest, ReadsBackWhatWasWritten) {
    WorkspaceLayout layout;
    layout.views = {{0, NewsType::Full, {}, {}, 0},
                    {7, NewsType::Symbol, u"TYPE"_s, u"Öl, \"50%\" & 石油"_s, 6},
                    {3, NewsType::Bare, {}, {}, 255}};
    layout.arrangement = QByteArray("\0\xff\n;x", 5);
    layout.activePlace = 7;
    layout.symbols = {{1, {16, u"2330"_s, u"台積電"_s}}, {255, {22, u"00005"_s, {}}}};
    {
        SettingsFile file(path());
        layout.write(file);
        ASSERT_TRUE(file.save());
    }
    const WorkspaceLayout read = WorkspaceLayout::read(SettingsFile(path()));
    EXPECT_EQ(read.views, layout.views);
    EXPECT_EQ(read.arrangement, layout.arrangement);
    EXPECT_EQ(read.activePlace, 7);
    ASSERT_EQ(read.symbols.size(), 2U);
    EXPECT_EQ(read.symbols.at(1).name, u"台積電"_s);
    EXPECT_EQ(read.symbols.at(255).market, 22);
}

TEST_F(WorkspaceLayoutTest, NonsenseCostsNoMoreThanItself) {
    struct Case {
        const char* what;
        const char* views;
        std::vector<StoredView> expected;
    };
    const Case cases[] = {
        {"no list", R"({"place": 1})", {}},
        {"not objects", R"([1, "x", null, [], {"place": 4}])", {{4, {}, {}, {}, 0}}},
        {"no place", R"([{"newsType": 1}])", {}},
        {"places out of range", R"([{"place": -1}, {"place": 1000}, {"place": 1.5}, {"place": "1"}])", {}},
        {"a place twice",
         R"([{"place": 1, "title": "a"}, {"place": 1, "title": "b"}])",
         {{1, {}, {}, u"a"_s, 0}}},
        {"values out of range", R"([{"place": 1, "newsType": 4, "linkGroup": 256}])", {{1, {}, {}, {}, 0}}},
        {"values of other types",
         R"([{"place": 1, "newsType": "2", "linkGroup": [], "title": 5, "typeName": {}}])",
         {{1, {}, {}, {}, 0}}},
        {"unknown keys",
         R"([{"place": 1, "colour": "red", "newsType": 2}])",
         {{1, NewsType::Symbol, {}, {}, 0}}},
    };
    for (const Case& test : cases)
        EXPECT_EQ(readWith(u"views"_s, test.views).views, test.expected) << test.what;

    QJsonArray many;
    for (int place = 0; place < 500; ++place)
        many.append(QJsonObject{{u"place"_s, place}});
    EXPECT_EQ(readWith(u"views"_s, QJsonDocument(many).toJson()).views.size(),
              std::size_t{WorkspaceLayout::mostViews});
    EXPECT_TRUE(readWith(u"symbols"_s, R"([{"linkGroup": 0, "service": 1, "code": "x"},
        {"linkGroup": 1, "service": 0, "code": "x"}, {"linkGroup": 1, "service": 1, "code": ""}])")
                    .symbols.empty());
}

}  // namespace

}  // namespace wirepane
