// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/saved_searches.h"

#include "host/contract/cfg_io.h"
#include "tests/support/conditions.h"
#include "tests/support/fake_back_end.h"
#include "tests/support/qt_printers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

CSearch queryOf(const QString& text) {
    CSearch search = condition({text});
    search.language = SearchLanguage::Query;
    return search;
}

const SavedSearches samples{{u"台積電 & friends"_s, queryOf(u"台積電 | title:\"a b\" -c"_s)},
                            {u"title:x"_s, condition({u"title:x"_s, u"-5%"_s}, 2, 2)}};

}  // namespace

TEST(SavedSearches, AFileAndTheSettingsGiveBackWhatWasSavedInItsLanguage) {
    const auto read = readSavedSearches("# mine\r\n\n" + fileOfSavedSearches(samples));
    ASSERT_TRUE(std::holds_alternative<SavedSearches>(read));
    EXPECT_EQ(std::get<SavedSearches>(read), samples);
    MemoryCfgIO settings;
    EXPECT_TRUE(storedSavedSearches(settings).empty());
    storeSavedSearches(settings, samples);
    QStringList stored = settings.values.first().toStringList();
    stored.insert(1, u"damaged\t{}"_s);
    settings.values.first() = stored;
    EXPECT_EQ(storedSavedSearches(settings), samples);
}

TEST(SavedSearches, AFileWithAFaultIsRefusedAndNamesTheLine) {
    FakeBackEnd backEnd;
    using Kind = SavedSearchesFault::Kind;
    const QByteArray good = fileOfSavedSearches({samples[1]});
    const QByteArray wrong = fileOfSavedSearches({{u"wrong"_s, queryOf(u"gold |"_s)}});
    struct Case {
        QByteArray file;
        Kind kind;
        int line;
    };
    QByteArray many;
    for (int i = 0; i <= mostSavedSearches; ++i)
        many += QByteArray::number(i) + fileOfSavedSearches({{u"n"_s, queryOf(u"gold"_s)}});
    const std::vector<Case> cases{{"\n" + good + "\xff\tx", Kind::NotText, 3},
                                  {"no tab", Kind::NoName, 1},
                                  {good + " \t{}", Kind::NoName, 2},
                                  {"name\tgold", Kind::NoSearch, 1},
                                  {fileOfSavedSearches({{u"empty"_s, condition({})}}), Kind::NoSearch, 1},
                                  {good + wrong, Kind::WrongQuery, 2},
                                  {good + "\n" + good.toUpper().left(8) + good.mid(8), Kind::NameTwice, 3},
                                  {many, Kind::TooMany, mostSavedSearches + 1}};
    for (const Case& c : cases) {
        const auto read = readSavedSearches(c.file);
        const auto* fault = std::get_if<SavedSearchesFault>(&read);
        ASSERT_NE(fault, nullptr) << c.file.left(60).data();
        EXPECT_EQ(fault->kind, c.kind) << c.file.left(60).data();
        EXPECT_EQ(fault->line, c.line) << c.file.left(60).data();
    }
    backEnd.texts[u"IDS_NEWSCTRLVIEW_SAVED_NAME_TWICE"_s] = u"line %1 is %2"_s;
    EXPECT_EQ(textOf({Kind::NameTwice, 3, u"%1"_s}), u"line 3 is %1"_s);
}

TEST(SavedSearches, NamesAreOneLineAndKeepOneSearchEach) {
    EXPECT_EQ(nameOfSavedSearch(u"  # a\tb\n c "_s), u"a b c"_s);
    EXPECT_EQ(nameOfSavedSearch(u" \n"_s), QString());
    EXPECT_EQ(nameOfSavedSearch(QString(79, u'a') + u"\U0001F600"_s), QString(79, u'a'));
    SavedSearches searches = samples;
    CSearch narrowed = condition({u"new"_s});
    narrowed.symbols = {{16, u"2330"_s}};
    EXPECT_TRUE(saveSearch(searches, {u"TITLE:x"_s, narrowed}));
    ASSERT_EQ(searches.size(), 2U);
    EXPECT_EQ(searches[1], (SavedSearch{u"TITLE:x"_s, condition({u"new"_s})}));
}

TEST(SavedSearches, TodaysPartIsAQuery) {
    EXPECT_EQ(ofToday(samples[0].condition).query(), u"(台積電 | title:\"a b\" -c) on:today"_s);
    const CSearch any = ofToday(samples[1].condition);
    EXPECT_EQ(any.query(), u"((\"title:x\" | \"-5%\")) on:today"_s);
    EXPECT_EQ(any.scope, samples[1].condition.scope);
}

}  // namespace wirepane
