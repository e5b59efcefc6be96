// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/clean_text.h"

#include "tests/support/qt_printers.h"

#include <gtest/gtest.h>

namespace wirepane {
namespace {

struct Row {
    QString text;
    QString title;
    QString story;
    QString escaped;
};

TEST(CleanText, WhatCannotBeSeenGoesAndIsShownEscaped) {
    const std::vector<Row> rows{
        {QStringLiteral("台積電  gains 3 % \U0001F4C8 é"), QStringLiteral("台積電  gains 3 % \U0001F4C8 é"),
         QStringLiteral("台積電  gains 3 % \U0001F4C8 é"), QStringLiteral("台積電  gains 3 % \U0001F4C8 é")},
        {QStringLiteral("a\u001b[31mb\u009b2J"), QStringLiteral("a[31mb2J"), QStringLiteral("a[31mb2J"),
         QStringLiteral("a\\u001b[31mb\\u009b2J")},
        {QStringLiteral("a\r\nb\nc\rd\te"), QStringLiteral("a b c d e"), QStringLiteral("a\r\nb\nc\rd\te"),
         QStringLiteral("a\\u000d\\u000ab\\u000ac\\u000dd\\u0009e")},
        {QStringLiteral("a\u2028b\u0085c\u000bd"), QStringLiteral("a b c d"), QStringLiteral("a b c d"),
         QStringLiteral("a\\u2028b\\u0085c\\u000bd")},
        {QStringLiteral("a\u202eb\u2066c\u200fd\u061ce\ufefff"), QStringLiteral("abcdef"),
         QStringLiteral("abcdef"), QStringLiteral("a\\u202eb\\u2066c\\u200fd\\u061ce\\ufefff")},
        {QStringLiteral("a\U0001ffffb"), QStringLiteral("ab"), QStringLiteral("ab"),
         QStringLiteral("a\\ud83f\\udfffb")},
        {QString(QChar(0xd800)) + u'a', QStringLiteral("\ufffda"), QStringLiteral("\ufffda"),
         QStringLiteral("\ufffda")},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(cleanTitle(row.text), row.title);
        EXPECT_EQ(cleanStory(row.text), row.story);
        EXPECT_EQ(escapedText(row.text), row.escaped);
        EXPECT_EQ(cleanTitle(row.title), row.title);
    }
}

TEST(CleanText, RunsEndWhereACharacterNeedsALook) {
    for (char32_t c = 0; c < 0x10000; ++c) {
        const QString text = u'a' + QString(QChar(char16_t(c))) + u'b';
        const bool isPlain = !isHidden(c) && !isLineBreak(c) && !QChar::isSurrogate(c);
        ASSERT_EQ(endOfPlainRun(text, 0), isPlain ? 3 : 1) << std::hex << unsigned(c);
        ASSERT_EQ(cleanTitle(text) == text, isPlain) << std::hex << unsigned(c);
        ASSERT_EQ(isBlank(QChar(char16_t(c))), QChar(char16_t(c)).isSpace()) << std::hex << unsigned(c);
    }
}

}  // namespace
}  // namespace wirepane
