// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/words/search_words.h"

#include "backend/words/simplified_chinese.h"
#include "fuzz/support/slow_words.h"
#include "tests/backend/search/plain_words.h"
#include "tests/support/qt_printers.h"

#include <QDirIterator>
#include <QFile>
#include <QHash>

#include <gtest/gtest.h>
#include <random>

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
        {u"iPhone12 S&P500 S&P 500 gb200a7 v1.2.3 x2.5% 12億 A1"_s,
         u"iphone 12 s & p 500 s & p 500 gb 200 a 7 v 1.2.3 x 2.5 % 12 亿 a 1"_s},
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

// Which characters are alike, and which part what stands beside them, as a second reading of the rules has
// it. Each folds to a character of its own choice, so that only what it makes alike is compared.
TEST(SearchWords, OfEveryCharacterAreThoseOfTheScan) {
    const PlainWords scan;
    QHash<QString, QString> ofScan;
    QHash<QString, QString> ofProgram;
    for (char32_t c = 1; c < 0x10000; ++c) {
        const QChar::Category category = QChar::category(c);
        if (category >= QChar::Other_Surrogate && category <= QChar::Other_NotAssigned)
            continue;
        for (const QString& form : {u" # "_s, u"a#b"_s, u"1#234"_s, u"１#２３４"_s}) {
            const QString text = QString(form).replace(u'#', QChar(char16_t(c)));
            const QString words = wordsOf(text);
            const QString scanned = scan.of(text).replaceInStrings(u"\n"_s, u"/"_s).join(u' ');
            const bool isAlike = words.count(u' ') == scanned.count(u' ') &&
                                 ofScan.value(words, scanned) == scanned &&
                                 ofProgram.value(scanned, words) == words;
            EXPECT_TRUE(isAlike) << "U+" << std::hex << unsigned(c) << ": " << words.toStdString() << ", "
                                 << scanned.toStdString();
            ofScan.insert(words, scanned);
            ofProgram.insert(scanned, words);
        }
    }
}

TEST(SearchWords, OfBothScriptsAreOne) {
    const std::vector<QStringList> cases{
        {u"計畫"_s, u"計劃"_s, u"计划"_s},
        {u"瞭解"_s, u"了解"_s},
        {u"反覆"_s, u"反复"_s},
        {u"著"_s, u"着"_s},
        {u"衛"_s, u"衞"_s},
        {u"裡"_s, u"裏"_s},
        {u"憑藉"_s, u"凭借"_s},
        {u"駃"_s, u"𫘝"_s},
    };
    for (const QStringList& forms : cases) {
        for (const QString& form : forms)
            EXPECT_EQ(wordsOf(form), wordsOf(forms.front()));
    }
    EXPECT_NE(wordsOf(u"發現"_s), wordsOf(u"頭現"_s));
}

// What is shown in Simplified Chinese is found as it is shown.
void expectFoundAsShown(const QString& text, SimplifiedChinese& chinese) {
    const QString shown = chinese.convert(text);
    EXPECT_EQ(wordsOf(shown), wordsOf(text)) << shown.left(200).toStdString();
}

TEST(SearchWords, OfRealNewsAreTheSameInBothScripts) {
    const QString root = qEnvironmentVariable("WIREPANE_TEST_NEWS");
    if (root.isEmpty() || !QFileInfo(root).isDir())
        GTEST_SKIP() << "no real news: WIREPANE_TEST_NEWS names no folder";
    SimplifiedChinese chinese;
    QDirIterator all(root, QDir::Files, QDirIterator::Subdirectories);
    int lines = 0;
    while (all.hasNext()) {
        QFile file(all.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        while (!file.atEnd()) {
            expectFoundAsShown(QString::fromUtf8(file.readLine()), chinese);
            ++lines;
        }
    }
    RecordProperty("lines", lines);
    EXPECT_GT(lines, 0);
}

void expectSameWords(const QByteArray& utf8) {
    WordReader reader(utf8);
    SlowWords slow(utf8);
    while (slow.next()) {
        ASSERT_TRUE(reader.next());
        ASSERT_EQ(reader.word(), slow.word()) << utf8.constData();
        ASSERT_EQ(reader.start(), slow.start());
        ASSERT_EQ(reader.end(), slow.end());
    }
    ASSERT_FALSE(reader.next());
}

TEST(SearchWords, AreTheSameOnEveryRoad) {
    // Characters of every kind, whole and broken, with "|" between them; words as long as they may be, and
    // longer.
    QByteArrayList pieces = QByteArray(
                                "a|Zq|7|42|110|.|,|,700|1,234,567.89| "
                                "|\n|\r\n|-|'|\t|é|ß|İ|ﬁ|e\u0301|\u200b|\u00ad|，|．|７００|Ａ|臺|积電|。|"
                                "「|カ|ｶ|각|ไทย|²|①|½|٣|\U0001F600|𠮷|\U000E0101|\x80|\xbf|\xe4\xb8|"
                                "\xe0\x80\x80|\xed\xa0\x80|\xff|"
                                "\xf8\x88\x80\x80|\xc3")
                                .split('|');
    pieces += {QByteArray(1, '\0'), QByteArray(59, 'x'), QByteArray(60, '8'), QByteArray(61, 'Y')};
    std::mt19937 random(11);
    for (int round = 0; round < 20'000; ++round) {
        QByteArray text;
        for (std::size_t i = random() % 12; i > 0; --i)
            text += pieces[qsizetype(random() % std::size_t(pieces.size()))];
        expectSameWords(text);
    }
}

TEST(SearchWords, OfRealNewsAreTheSameOnEveryRoad) {
    const QString root = qEnvironmentVariable("WIREPANE_TEST_NEWS");
    if (root.isEmpty() || !QFileInfo(root).isDir())
        GTEST_SKIP() << "no real news: WIREPANE_TEST_NEWS names no folder";
    QDirIterator all(root, QDir::Files, QDirIterator::Subdirectories);
    int files = 0;
    while (all.hasNext()) {
        QFile file(all.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        expectSameWords(file.read(65536));
        ++files;
    }
    EXPECT_GT(files, 0);
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
