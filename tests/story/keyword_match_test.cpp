// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/keyword_match.h"

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {

static void PrintTo(const TextRange& range, std::ostream* out) {
    *out << range.start << ".." << range.end;
}

namespace {

// Selects every match of every keyword in turn, each search beginning one character after the last match.
std::optional<TextRange> walk(const QString& text, const std::vector<QString>& keywords) {
    std::optional<TextRange> selected;
    for (const QString& keyword : keywords) {
        for (qsizetype at = 0; !keyword.isEmpty() && at + keyword.size() <= text.size(); ++at) {
            if (QStringView(text).sliced(at, keyword.size()).compare(keyword, Qt::CaseInsensitive) == 0)
                selected = TextRange{static_cast<int>(at), static_cast<int>(at + keyword.size())};
        }
    }
    return selected;
}

}  // namespace

TEST(KeywordMatch, TheLastMatchOfTheLastKeywordStays) {
    const QString text = u"Rates rise, rates fall; RATES hold. aaaa"_s;
    const struct {
        const char* what;
        std::vector<QString> keywords;
        std::optional<TextRange> expected;
    } cases[] = {
        {"three times, any case", {u"rates"_s}, TextRange{24, 29}},
        {"the order of keywords counts, not that of the text", {u"hold"_s, u"rise"_s}, TextRange{6, 10}},
        {"overlapping matches are found", {u"aaa"_s}, TextRange{37, 40}},
        {"empty keywords are skipped", {u"rise"_s, {}, {}}, TextRange{6, 10}},
        {"a keyword that is absent selects nothing", {u"rise"_s, u"absent"_s}, TextRange{6, 10}},
        {"not whole words", {u"all"_s}, TextRange{19, 22}},
        {"longer than the text", {QString(100, u'a')}, {}},
        {"no keywords", {}, {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(lastKeywordMatch(text, c.keywords), c.expected) << c.what;
    EXPECT_EQ(lastKeywordMatch({}, {u"a"_s}), std::nullopt);
}

TEST(KeywordMatch, AgreesWithTheWalk) {
    std::mt19937 random(20260302);
    const QString letters = u"aAbBäÄ股.\u00A0 "_s;
    const auto word = [&](std::size_t length) {
        QString result;
        while (result.size() < static_cast<qsizetype>(length))
            result += letters[static_cast<qsizetype>(random() % static_cast<std::size_t>(letters.size()))];
        return result;
    };
    int found = 0;
    for (int round = 0; round < 2000; ++round) {
        const QString text = word(random() % 60);
        const std::vector<QString> keywords{word(random() % 3), word(random() % 4), word(random() % 5)};
        const auto expected = walk(text, keywords);
        found += expected ? 1 : 0;
        EXPECT_EQ(lastKeywordMatch(text, keywords), expected) << text.toStdString();
    }
    EXPECT_GT(found, 500);
}

}  // namespace wirepane
