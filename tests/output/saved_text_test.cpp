// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/saved_text.h"

#include "tests/support/fake_back_end.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class SavedTextTest : public testing::Test {
protected:
    SavedTextTest() {
        backEnd.texts = {{u"IDS_NEWSCTRLVIEW_NEWS_NO"_s, u"No."_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_NEWS_TITLE"_s, u"Title: "_s},
                         {u"IDS_NEWSCTRLVIEW_NEWS_STORY"_s, u"Story:\n"_s}};
    }

    QByteArray written(const QString& title, const QString& story) {
        OutputItem item;
        item.entry.sequence = 42;
        item.title = title;
        item.story = story;
        return writeNews(backEnd, {item}, NewsFileType::CodePage950)->bytes;
    }
    static QByteArray around(const QByteArray& title, const QByteArray& story) {
        return " No. 42\n\nTitle: " + title + "Story:\n" + story + QByteArray(80, '-') + '\n';
    }

    FakeBackEnd backEnd;
};

}  // namespace

TEST_F(SavedTextTest, WritesTheFileByteByByte) {
    const QByteArray a79(79, 'a');
    const QByteArray a80(80, 'a');
    const QByteArray news("\xB7\x73\xBB\x44");  // two characters
    const QString a79Text = QString::fromLatin1(a79);
    const struct {
        const char* what;
        QString title;
        QString story;
        QByteArray expected;
    } cases[] = {
        {"short", u"Rates"_s, u"One\r\nTwo"_s, around("Rates\n\n", "One\r\nTwo\n\n")},
        {"a title of 78 bytes with its line feeds",
         a79Text.left(78),
         {},
         around(a79.left(78) + "\n\n", "\n\n")},
        {"of 79: cut inside its line feeds", a79Text, {}, around(a79 + "\n\n", "\n\n")},
        {"of 80: the line feeds are its tail", a79Text + u'a', {}, around(a80 + "\n", "\n\n")},
        {"of 200: the last 40 are dropped",
         a79Text.left(50).repeated(4),
         {},
         around(a80 + "\n" + a80 + "\n", "\n\n")},
        {"a title's 80th byte begins a character", a79Text + u"新聞"_s, {}, around(a79 + "\n", "\n\n")},
        {"a story's does", u"T"_s, a79Text + u"新聞"_s, around("T\n\n", a79 + "\r\n" + news + "\n\n")},
        {"81 bytes", u"T"_s, a79Text + u"bc"_s, around("T\n\n", a79 + "b\r\nc\n\n")},
        {"long stories break twice where they broke", u"T"_s, u"新聞\r\n"_s + a79Text,
         around("T\n\n", news + "\r\n\r\n" + a79 + "\n\r\n\n")},
        {"what the page lacks", u"é"_s, u"😀"_s, around("\xA1\xBC\n\n", "\xA1\xBC\n\n")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(written(c.title, c.story).toStdString(), c.expected.toStdString()) << c.what;
    EXPECT_EQ(writeNews(backEnd, {}, NewsFileType::CodePage950)->bytes, QByteArray());
}

TEST_F(SavedTextTest, KeepsEveryCharacterInUtf8) {
    OutputItem item;
    item.title = u"Café"_s;
    item.story = u"闻😀"_s;
    const auto page = writeNews(backEnd, {item, item}, NewsFileType::CodePage950);
    EXPECT_EQ(page->replaced, 6);
    const auto utf8 = writeNews(backEnd, {item}, NewsFileType::Utf8);
    EXPECT_EQ(utf8->replaced, 0);
    EXPECT_EQ(utf8->bytes,
              QByteArray(" No. 0\n\nTitle: Café\n\nStory:\n闻😀\n\n") + QByteArray(80, '-') + '\n');
}

TEST_F(SavedTextTest, ConvertsAsServiceZeroDoes) {
    OutputItem item;
    item.entry.service = 7;
    item.title = u"新聞"_s;
    item.story = u"資"_s;
    backEnd.simplifiedServices = {0};
    const auto text = [&] {
        return QString::fromUtf8(writeNews(backEnd, {item}, NewsFileType::Utf8)->bytes);
    };
    EXPECT_TRUE(text().contains(u"Title: 新闻\n\nStory:\n资\n\n"_s));
    backEnd.simplifiedServices = {7};
    EXPECT_TRUE(text().contains(u"Title: 新聞\n\nStory:\n資\n\n"_s));
}

TEST_F(SavedTextTest, WholeTitlesKeepTheirTailWhereEveryCharacterIsKept) {
    OutputItem item;
    item.entry.sequence = 42;
    item.title = QString(200, u'a');
    item.story = u"S"_s;
    item.wholeTitle = true;
    const QByteArray a80(80, 'a');
    const QByteArray cut = around(a80 + '\n' + a80 + '\n', "S\n\n");
    const QByteArray whole = around(a80 + '\n' + a80 + '\n' + a80.left(40) + "\n\n", "S\n\n");
    EXPECT_EQ(writeNews(backEnd, {item}, NewsFileType::Utf8)->bytes, whole);
    EXPECT_EQ(writeNews(backEnd, {item}, NewsFileType::CodePage950)->bytes, cut);
    item.wholeTitle = false;
    EXPECT_EQ(writeNews(backEnd, {item}, NewsFileType::Utf8)->bytes, cut);
    item.wholeTitle = true;
    item.title = u"Rates"_s;
    EXPECT_EQ(writeNews(backEnd, {item}, NewsFileType::Utf8)->bytes, around("Rates\n\n", "S\n\n"));
}

}  // namespace wirepane
