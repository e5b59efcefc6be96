// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/relation_matcher.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {

TEST(RelationMatcher, MatchesAsStated) {
    constexpr std::int32_t every = CNewsKey::everyNewsType;
    struct Case {
        const char* what;
        std::vector<CNewsKey> keySets;
        const char* title;
        std::int32_t category;
        const char* symbol;
        bool wanted;
    };
    const Case cases[] = {
        {"no key set", {}, "RATES", 1, "", false},
        {"no words, all must hit", {{1, {every}, {}}}, "anything", 1, "", true},
        {"no words, one must hit", {{0, {every}, {}}}, "anything", 1, "", false},
        {"upper-case word in a lower-case title", {{1, {every}, {u"RATE"_s}}}, "rates rise", 1, "", true},
        {"lower-case word never hits a title", {{1, {every}, {u"rate"_s}}}, "rate", 1, "", false},
        {"lower-case word hits the symbol", {{1, {every}, {u"abc"_s}}}, "none", 1, "ABC", true},
        {"all words must hit", {{1, {every}, {u"RATE"_s, u"OIL"_s}}}, "rate", 1, "", false},
        {"one word may hit", {{2, {every}, {u"RATE"_s, u"OIL"_s}}}, "rate", 1, "", true},
        {"other category", {{1, {2, 3}, {}}}, "any", 1, "", false},
        {"one of the categories", {{1, {2, 3}, {}}}, "any", 3, "", true},
        {"-999 beside others is no joker", {{1, {every, 3}, {}}}, "any", 1, "", false},
        {"the second key set matches", {{1, {9}, {}}, {1, {1}, {}}}, "any", 1, "", true},
        {"an empty word hits any title", {{2, {1}, {u""_s, u"OIL"_s}}}, "", 1, "", true},
        {"an empty word is no other word's hit", {{1, {1}, {u""_s, u"OIL"_s}}}, "rate", 1, "", false},
        {"words that differ in case are the symbol together",
         {{1, {1}, {u"tsm"_s, u"Tsm"_s, u"TSM"_s}}},
         "none",
         1,
         "tSM",
         true},
        {"a sharp s is no double s in a symbol", {{1, {1}, {u"ß"_s}}}, "none", 1, "ss", false},
        {"a sharp s in a title is", {{1, {1}, {u"SS"_s}}}, "ß", 1, "", true},
    };
    for (const Case& c : cases) {
        CHeadline headline;
        headline.title = QString::fromUtf8(c.title);
        EXPECT_EQ(RelationMatcher(c.keySets).CheckIsRelationSearch(headline, c.category,
                                                                   QString::fromUtf8(c.symbol)),
                  c.wanted)
            << c.what;
    }
}

TEST(RelationMatcher, TakesKeywordsInAnyCaseWhenItIsToldTo) {
    const std::vector<CNewsKey> keySets{{1, {1}, {u"rate"_s, u"Straße"_s}}, {2, {2}, {u"abc"_s}}};
    const RelationMatcher matcher(keySets, RelationMatcher::Case::Any);
    CHeadline headline;
    headline.title = u"Rates of the strasse"_s;
    EXPECT_TRUE(matcher.CheckIsRelationSearch(headline, 1, {}));
    EXPECT_FALSE(matcher.CheckIsRelationSearch(headline, 2, u"ab"_s));
    EXPECT_TRUE(matcher.CheckIsRelationSearch(headline, 2, u"Abc"_s));
}

namespace {

// Knows one query: the title itself.
class TitleQueries : public HeadlineQueries {
public:
    class Query : public HeadlineQuery {
    public:
        explicit Query(QString wanted) : title(std::move(wanted)) {}
        bool wants(const CHeadline& headline, std::int32_t) const override { return headline.title == title; }

    private:
        const QString title;
    };
    std::shared_ptr<const HeadlineQuery> prepareQuery(const QString& query) override {
        return query.isEmpty() ? nullptr : std::make_shared<Query>(query);
    }
};

}  // namespace

TEST(RelationMatcher, LeavesQueriesToWhoKnowsThem) {
    CNewsKey query(1, {1, 3}, {u"gold rises"_s});
    query.language = SearchLanguage::Query;
    CNewsKey faulty(1, {CNewsKey::everyNewsType}, {QString()});
    faulty.language = SearchLanguage::Query;
    const std::vector<CNewsKey> keySets{query, faulty, {1, {2}, {u"TIN"_s}}};
    TitleQueries queries;
    CHeadline gold;
    gold.title = u"gold rises"_s;
    CHeadline tin;
    tin.title = u"tin"_s;
    for (const auto letters : {RelationMatcher::Case::AsWritten, RelationMatcher::Case::Any}) {
        const RelationMatcher matcher(keySets, letters, &queries);
        EXPECT_TRUE(matcher.CheckIsRelationSearch(gold, 3, {}));
        EXPECT_FALSE(matcher.CheckIsRelationSearch(gold, 2, {})) << "of another news type";
        EXPECT_FALSE(matcher.CheckIsRelationSearch(tin, 1, u"gold rises"_s)) << "a query is no keyword";
        EXPECT_TRUE(matcher.CheckIsRelationSearch(tin, 2, {}));
    }
    EXPECT_FALSE(RelationMatcher(keySets).CheckIsRelationSearch(gold, 1, {}));
}

namespace {

// One headline tried on one key set after the other, word by word.
bool plainScan(const std::vector<CNewsKey>& keySets, const QString& title, std::int32_t category,
               const QString& symbol) {
    const auto wants = [&](const CNewsKey& keySet) {
        const auto& types = keySet.newsTypes;
        const bool every = types == std::vector{CNewsKey::everyNewsType};
        if (!every && std::find(types.begin(), types.end(), category) == types.end())
            return false;
        const auto hits = [&](const QString& word) {
            return title.toUpper().contains(word) ||
                   (!symbol.isEmpty() && symbol.compare(word, Qt::CaseInsensitive) == 0);
        };
        const auto& words = keySet.keywords;
        return keySet.method == 1 ? std::all_of(words.begin(), words.end(), hits)
                                  : std::any_of(words.begin(), words.end(), hits);
    };
    return std::any_of(keySets.begin(), keySets.end(), wants);
}

// Few letters, so that words share beginnings, lie in one another and do stand in titles.
class Writer {
public:
    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }

    QString text(int longest) {
        static const QStringList letters = {u"A"_s,
                                            u"B"_s,
                                            u"a"_s,
                                            u"b"_s,
                                            u"台"_s,
                                            u"積"_s,
                                            u"電"_s,
                                            u"ß"_s,
                                            u"ſ"_s,
                                            u"İ"_s,
                                            u"𐐀"_s,
                                            u"𐐨"_s,
                                            QString(QChar(0xD801)),
                                            QString(QChar(0xDC28)),
                                            u" "_s};
        const int usual = below(4) == 0 ? static_cast<int>(letters.size()) : 7;
        QString result;
        for (int length = below(longest + 1); length > 0; --length)
            result += letters[below(usual)];
        return result;
    }

    CNewsKey keySet() {
        std::vector<std::int32_t> types;
        for (int count = below(4); count > 0; --count)
            types.push_back(below(5) == 0 ? CNewsKey::everyNewsType : below(4));
        CNewsKey result(below(3), types, {});
        const bool mayBeEmpty = below(8) == 0;
        for (int count = below(6); count > 0; --count) {
            if (const QString word = text(4); mayBeEmpty || !word.isEmpty())
                result.keywords.push_back(word);
        }
        if (result.keywords.empty() && !mayBeEmpty)
            result.keywords = {u"台積"_s};
        if (!result.keywords.empty() && below(3) == 0)
            result.keywords.push_back(result.keywords.front());
        return result;
    }

private:
    std::mt19937 random{20260302};
};

}  // namespace

TEST(RelationMatcher, AgreesWithAPlainScanOnRandomKeySets) {
    Writer writer;
    int wanted = 0;
    int tried = 0;
    for (int round = 0; round < 3000; ++round) {
        std::vector<CNewsKey> keySets(static_cast<std::size_t>(writer.below(round % 100 == 0 ? 300 : 6)));
        for (CNewsKey& keySet : keySets)
            keySet = writer.keySet();
        const RelationMatcher matcher(keySets);
        for (int i = 0; i < 10; ++i) {
            CHeadline headline;
            headline.title = writer.text(20);
            const std::int32_t category = writer.below(4);
            const QString symbol = writer.text(3);
            const bool expected = plainScan(keySets, headline.title, category, symbol);
            ASSERT_EQ(matcher.CheckIsRelationSearch(headline, category, symbol), expected)
                << "round " << round << ", title " << headline.title.toStdString() << ", symbol "
                << symbol.toStdString();
            wanted += expected ? 1 : 0;
            ++tried;
        }
    }
    EXPECT_GT(wanted, tried / 10);
    EXPECT_LT(wanted, tried * 9 / 10);
}

// A matcher does not look back at what it was built from.
TEST(RelationMatcher, OutlivesItsKeySets) {
    RelationMatcher matcher;
    {
        std::vector<CNewsKey> keySets{{1, {1}, {u"OIL"_s, u"GAS"_s}}};
        matcher = RelationMatcher(keySets);
        keySets.front().keywords.front()[0] = u'X';
    }
    const RelationMatcher copy = matcher;
    matcher = RelationMatcher();
    CHeadline headline;
    headline.title = u"Oil and gas"_s;
    EXPECT_TRUE(copy.CheckIsRelationSearch(headline, 1, {}));
    EXPECT_FALSE(matcher.CheckIsRelationSearch(headline, 1, {}));
    EXPECT_TRUE(matcher.empty());
}

}  // namespace wirepane
