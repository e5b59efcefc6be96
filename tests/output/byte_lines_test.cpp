// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/byte_lines.h"

#include "output/code_page_950.h"
#include "tests/support/qt_printers.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString repeated(const QString& text, int times) {
    return text.repeated(times);
}

std::vector<int> lengths(const std::vector<QStringView>& lines) {
    std::vector<int> result;
    for (const QStringView line : lines)
        result.push_back(byteLength(line));
    return result;
}

}  // namespace

TEST(ByteLinesTest, CutsBetweenCharacters) {
    const QString emoji = u"😀"_s;
    const struct {
        const char* what;
        QString text;
        std::vector<int> bytes;  // of the lines that it comes apart into
    } cases[] = {
        {"shorter", repeated(u"a"_s, 79), {79}},
        {"exactly one line", repeated(u"新"_s, 40), {80}},
        {"a byte more", repeated(u"a"_s, 81), {80, 1}},
        {"the 80th byte begins a character", repeated(u"a"_s, 79) + u"新b"_s, {79, 3}},
        {"the 79th does", repeated(u"a"_s, 78) + u"新b"_s, {80, 1}},
        {"what the page lacks counts two", repeated(u"a"_s, 79) + emoji + emoji, {79, 4}},
        {"a lone surrogate too", repeated(u"a"_s, 79) + QChar(0xD83D), {79, 2}},
        {"cut after a line feed", u"新聞\r\n再\nb"_s, {6, 3, 1}},
        {"a line end that does not fit begins the next line", repeated(u"a"_s, 80) + u"\r\nb"_s, {80, 2, 1}},
        {"between its two bytes", repeated(u"a"_s, 79) + u"\r\nb"_s, {80, 1, 1}},
    };
    for (const auto& c : cases) {
        std::vector<QStringView> lines;
        QString whole;
        for (QStringView rest = c.text; !rest.isEmpty();) {
            lines.push_back(takeLine(rest));
            whole += lines.back();
        }
        EXPECT_EQ(lengths(lines), c.bytes) << c.what;
        EXPECT_EQ(whole, c.text) << c.what;
    }
}

TEST(ByteLinesTest, LongTitlesLoseTheirTail) {
    EXPECT_EQ(lengths(titleLines({}, false)), (std::vector<int>{0}));
    EXPECT_EQ(lengths(titleLines(repeated(u"a"_s, 80), false)), (std::vector<int>{80}));
    EXPECT_EQ(lengths(titleLines(repeated(u"a"_s, 81), false)), (std::vector<int>{80}));
    EXPECT_EQ(lengths(titleLines(repeated(u"a"_s, 160), false)), (std::vector<int>{80}));
    EXPECT_EQ(lengths(titleLines(repeated(u"a"_s, 200), false)), (std::vector<int>{80, 80}));
    EXPECT_EQ(lengths(titleLines(u'a' + repeated(u"聞"_s, 80), false)), (std::vector<int>{79, 80}));
    EXPECT_EQ(lengths(titleLines({}, true)), (std::vector<int>{0}));
    EXPECT_EQ(lengths(titleLines(repeated(u"a"_s, 80), true)), (std::vector<int>{80}));
    EXPECT_EQ(lengths(titleLines(repeated(u"a"_s, 160), true)), (std::vector<int>{80, 80}));
    EXPECT_EQ(lengths(titleLines(u'a' + repeated(u"聞"_s, 80), true)), (std::vector<int>{79, 80, 2}));
}

TEST(CodePage950Test, WritesTheWhiteSquareForWhatThePageLacks) {
    const auto text = encodeCodePage950(u"A台é😀闻\u0080\r\n"_s);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->bytes.toHex(' '), QByteArray("41 a5 78 a1 bc a1 bc a1 bc a1 bc 0d 0a"));
    EXPECT_EQ(text->replaced, 4);
    EXPECT_EQ(encodeCodePage950(QString(QChar(0xD83D)) + u'a')->bytes, QByteArray("\xA1\xBC"
                                                                                  "a"));
}

TEST(CodePage950Test, EveryCharacterTakesTheBytesThatItsWidthSays) {
    int doubleByte = 0;
    for (char32_t character = 0; character < 0x10000; ++character) {
        const QString text(QChar(static_cast<char16_t>(character)));
        const auto encoded = encodeCodePage950(text);
        ASSERT_EQ(encoded->bytes.size(), byteWidth(character)) << std::hex << static_cast<int>(character);
        if (encoded->replaced != 0 || character < 0x80)
            continue;
        ++doubleByte;
        ASSERT_EQ(QStringDecoder("windows-950")(encoded->bytes), text);
    }
    EXPECT_GT(doubleByte, 13000);
}

}  // namespace wirepane
