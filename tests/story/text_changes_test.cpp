// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/text_changes.h"

#include "story/number_phrases.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

// "[-what went-]" and "{+what came+}" among what is the same.
QString shown(const TextChanges& changes, const QString& before, const QString& after) {
    QString text;
    for (const TextPart& part : changes.parts) {
        const QString words =
            (part.kind == TextPart::Kind::Removed ? before : after).mid(part.from, part.length);
        text += part.kind == TextPart::Kind::Same      ? words
                : part.kind == TextPart::Kind::Removed ? u"[-"_s + words + u"-]"_s
                                                       : u"{+"_s + words + u"+}"_s;
    }
    return text;
}

QString numbersOf(const TextChanges& changes) {
    QStringList texts;
    for (const NumberChange& change : changes.numbers)
        texts += change.before + u" > "_s + change.after;
    return texts.join(u"; "_s);
}

TEST(TextChanges, AreByWordsAndNumbersAboveAll) {
    struct Case {
        QString before;
        QString after;
        QString changes;
        QString numbers;
    };
    const Case cases[] = {
        {u"Same."_s, u"Same."_s, u"Same."_s, {}},
        {{}, u"All new 5"_s, u"{+All new 5+}"_s, {}},
        {u"All gone 5"_s, {}, u"[-All gone 5-]"_s, {}},
        {u"Profit of 5.35 billion, up."_s, u"Profit of 3.55 billion, up."_s,
         u"Profit of [-5.35-]{+3.55+} billion, up."_s, u"5.35 billion > 3.55 billion"_s},
        {u"Profit of 5.35 billion."_s, u"Profit of 5.35 million."_s,
         u"Profit of 5.35 [-billion-]{+million+}."_s, u"5.35 billion > 5.35 million"_s},
        {u"營收53.5億元，年增12%"_s, u"營收35.5億元，年增12%"_s, u"營收[-53.5-]{+35.5+}億元，年增12%"_s,
         u"53.5億 > 35.5億"_s},
        {u"營收12億"_s, u"營收12萬"_s, u"營收12[-億-]{+萬+}"_s, u"12億 > 12萬"_s},
        {u"made 5.35 billion"_s, u"made 53.5億"_s, u"made [-5.35 billion-]{+53.5億+}"_s, {}},
        {u"made 5,350 million"_s, u"made 5.35bn"_s, u"made [-5,350 million-]{+5.35bn+}"_s, {}},
        {u"up 3 percent"_s, u"up 3%"_s, u"up 3[- percent-]{+%+}"_s, {}},
        {u"up 3%"_s, u"up 3"_s, u"up 3[-%-]"_s, {}},
        {u"change -1.5"_s, u"change 1.5"_s, u"change [---]1.5"_s, {}},
        {u"change -1.5"_s, u"change -2.5"_s, u"change -[-1.5-]{+2.5+}"_s, u"-1.5 > -2.5"_s},
        {u"700 rose 2 to 310"_s, u"700 rose 3 to 311"_s, u"700 rose [-2-]{+3+} to [-310-]{+311+}"_s,
         u"2 > 3; 310 > 311"_s},
        {u"One.\nTwo 2.\nThree."_s,
         u"One.\nThree.\nFour 4."_s,
         u"One.\n[-Two 2.\n-]Three.{+\nFour 4.+}"_s,
         {}},
        {u"A\U0001F4C8B"_s, u"A\U0001F4C9B"_s, u"A[-\U0001F4C8-]{+\U0001F4C9+}B"_s, {}},
    };
    for (const Case& one : cases) {
        const TextChanges changes = changesBetween(one.before, one.after);
        EXPECT_EQ(shown(changes, one.before, one.after).toStdString(), one.changes.toStdString());
        EXPECT_EQ(numbersOf(changes).toStdString(), one.numbers.toStdString()) << one.changes.toStdString();
        EXPECT_EQ(changes.areThere(), one.before != one.after);
    }
}

// Whatever the texts, and however much of them is compared.
TEST(TextChanges, MakeOneOfTheTextsOutOfTheOther) {
    std::mt19937 random(3);
    const QStringList words{u"up"_s, u" "_s,    u"1.5"_s,        u"2"_s, u"億"_s,
                            u"\n"_s, u"公司"_s, u"\U0001F4C8"_s, u"-"_s};
    for (const int length : {0, 1, 5, 40, 400, 6000}) {
        for (int round = 0; round < (length > 1000 ? 3 : 60); ++round) {
            QStringList texts[2];
            for (int i = 0; i < length; ++i) {
                const QString word = words[int(random() % words.size())];
                texts[0] += random() % 10 ? word : QString();
                texts[1] += random() % 10 ? word : words[int(random() % words.size())];
            }
            const QString before = texts[0].join(QString());
            const QString after = texts[1].join(QString());
            QString earlier;
            QString later;
            for (const TextPart& part : changesBetween(before, after).parts) {
                ASSERT_GT(part.length, 0);
                if (part.kind != TextPart::Kind::Added)
                    earlier +=
                        (part.kind == TextPart::Kind::Removed ? before : after).mid(part.from, part.length);
                if (part.kind != TextPart::Kind::Removed)
                    later += after.mid(part.from, part.length);
            }
            ASSERT_EQ(earlier, before);
            ASSERT_EQ(later, after);
        }
    }
}

TEST(NumberPhrases, SayOfHowManyTheySpeak) {
    struct Case {
        QString text;
        QString phrase;
        double value;
    };
    const Case cases[] = {
        {u"a 1,234,567.89 b"_s, u"1,234,567.89"_s, 1234567.89},
        {u"in 1,23"_s, u"1"_s, 1},
        {u"5.35 Billion."_s, u"5.35 Billion"_s, 5.35e9},
        {u"5m people"_s, u"5m"_s, 5e6},
        {u"5 m people"_s, u"5"_s, 5},
        {u"5 men"_s, u"5"_s, 5},
        {u"3千萬元"_s, u"3千萬"_s, 3e7},
        {u"1.2兆"_s, u"1.2兆"_s, 1.2e12},
        {u"３．５％"_s, u"３．５％"_s, 3.5},
        {u"loss (-7) "_s, u"-7"_s, -7},
        {u"2026-03"_s, u"2026"_s, 2026},
        {u"v1.2.3"_s, u"1.2"_s, 1.2},
    };
    for (const Case& one : cases) {
        const std::vector<NumberPhrase> phrases = numberPhrases(one.text);
        ASSERT_FALSE(phrases.empty()) << one.text.toStdString();
        EXPECT_EQ(one.text.mid(phrases[0].from, phrases[0].length).toStdString(), one.phrase.toStdString());
        EXPECT_DOUBLE_EQ(phrases[0].value, one.value) << one.text.toStdString();
    }
}

}  // namespace
}  // namespace wirepane
