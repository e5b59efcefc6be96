// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/words/search_words.h"

#include "tests/support/qt_printers.h"

#include <gtest/gtest.h>

namespace wirepane {
namespace {

using namespace Qt::StringLiterals;

QString wordsOf(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    QStringList words;
    WordReader reader(utf8);
    while (reader.next()) {
        EXPECT_TRUE(reader.start() < reader.end() && reader.end() <= utf8.size());
        words += reader.isLineEnd() ? u"/"_s : QString::fromStdString(std::string(reader.word()));
    }
    return words.join(u' ');
}

TEST(SearchWords, SplitAsTheyAreSearchedFor) {
    const std::vector<std::pair<QString, QString>> cases{
        {u"Fed HALTS, Zürich’s “Öl–Preis”"_s, u"fed halts , zurich ' s \" ol - preis \""_s},
        {u"Ａ＆Ｔ ｃ＋＋　２．５％ A&T c++ 2.5%"_s, u"a & t c + + 2.5 % a & t c + + 2.5 %"_s},
        {u"700 11700 0700.HK 700.HK 11,700 1,234,567.89"_s,
         u"700 11700 0700 . hk 700 . hk 11,700 1,234,567.89"_s},
        {u"2330,2317 700, 941 1,23 1,2345 12,34,567 ,700 .5"_s,
         u"2330 , 2317 700 , 941 1 , 23 1 , 2345 12 , 34,567 , 700 . 5"_s},
        {u"營收100，200人 １１，７００"_s, u"营 收 100 , 200 人 11,700"_s},
        {u"臺積電2330公告⼦公司"_s, u"台 积 电 2330 公 告 子 公 司"_s},
        {u"ガンダム 삼성전자는 カ"_s, u"ガ ン ダ ム 삼 성 전 자 는 カ"_s},
        {u"one\ntwo\r\nthree"_s, u"one / two / / three"_s},
        {u"m² ①700 a\u200bb e\u0301t\u0301e"_s, u"m ² ① 700 ab ete"_s},
        {u"\U0001F600 𠮷野"_s, u"\U0001F600 𠮷 野"_s},
        {u" \t\u3000 "_s, u""_s},
    };
    for (const auto& [text, words] : cases)
        EXPECT_EQ(wordsOf(text), words);
}

TEST(SearchWords, FoldingWhatIsFoldedChangesNothing) {
    const CharacterFolding& folding = CharacterFolding::instance();
    for (char32_t c = 1; c < 0x10000; ++c) {
        if (QChar::isSurrogate(c))
            continue;
        const char32_t folded = folding.folded(c);
        EXPECT_EQ(folding.folded(folded), folded) << std::hex << unsigned(c);
        EXPECT_TRUE(folding.kind(c) == CharacterKind::Dropped || folding.kind(folded) == folding.kind(c))
            << std::hex << unsigned(c);
    }
}

TEST(SearchWords, AKeywordEndsWithItsLastWord) {
    const std::vector<std::pair<QString, QString>> cases{
        {u"11,700.HK (abc"_s, u"11,700.HK (abc"_s},    {u"a\nb\r\nc\n \t"_s, u"a\nb\r\nc"_s},
        {u"é\u0301 \u200b"_s, u"é\u0301"_s},           {u" \n\u3000\u200b"_s, {}},
        {QString(10'000, u'龍'), QString(256, u'龍')},
    };
    for (const auto& [keyword, text] : cases)
        EXPECT_EQ(keywordText(keyword), text);
}

TEST(SearchWords, AnyBytesComeToAnEnd) {
    for (int first = 0; first < 256; ++first) {
        for (const char* rest : {"", "a", "\x80", "\xbf\xbf", "\xff\xe4", "1,000"}) {
            const QByteArray bytes = QByteArray(1, char(first)) + rest;
            WordReader reader(bytes);
            qsizetype before = -1;
            while (reader.next()) {
                EXPECT_GT(reader.end(), before);
                before = reader.end();
            }
        }
    }
}

}  // namespace
}  // namespace wirepane
