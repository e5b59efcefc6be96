// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/page_layout.h"

#include "tests/support/qt_printers.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Every character is as wide as half its size in bytes, every line a fifth higher than its text.
class EvenMeasure : public TextMeasure {
public:
    int lineHeight(int pixelSize) const override { return pixelSize * 6 / 5; }
    int width(const QString& text, int pixelSize) const override {
        return static_cast<int>(text.size()) * pixelSize / 2;
    }
};

// 4 pixels a millimetre.
constexpr PageSize paper{760, 1108, 190, 277};
const PageTexts texts{u"Detailed News of a long name"_s, u"2026/03/02 09:30"_s};

OutputItem item(const QString& title, const QString& story) {
    OutputItem result;
    result.title = title;
    result.story = story;
    return result;
}

QString lines(int count) {
    QStringList result;
    for (int i = 1; i <= count; ++i)
        result.append(u"line %1"_s.arg(i));
    return result.join(u"\r\n"_s);
}

std::vector<PrintedPage> layOut(const OutputItems& items, int pixelSize = 16) {
    return layOutPages(items, paper, texts, pixelSize, EvenMeasure());
}

}  // namespace

TEST(PageLayoutTest, NumbersThePagesOfEachStory) {
    const auto pages =
        layOut({item(u"First"_s, lines(100)), item(u"Second"_s, lines(49)), item(u"None"_s, {})});
    ASSERT_EQ(pages.size(), 4U) << "a story without text has no page";
    const int numbers[] = {1, 2, 3, 1};
    const std::size_t bodies[] = {49, 49, 2, 49};
    const QString firsts[] = {u"line 1"_s, u"line 50"_s, u"line 99"_s, u"line 1"_s};
    for (std::size_t i = 0; i < pages.size(); ++i) {
        EXPECT_EQ(pages[i].number, numbers[i]);
        EXPECT_EQ(pages[i].pageNumber.text, QString::number(numbers[i]));
        ASSERT_EQ(pages[i].body.size(), bodies[i]);
        EXPECT_EQ(pages[i].body[0].text, firsts[i]);
        EXPECT_EQ(pages[i].title[0].text, i < 3 ? u"First"_s : u"Second"_s) << "on every page";
    }
}

TEST(PageLayoutTest, CutsBodiesIntoLinesOf80Bytes) {
    const QString long1 = u"a"_s.repeated(79) + u"新聞\r\n"_s;
    const auto pages = bodyPages(QString(u"\r\n"_s + long1 + u"b\n\r\n"_s));
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(pages[0], (std::vector<QString>{{}, u"a"_s.repeated(79), u"新聞"_s, u"b"_s, {}}));
}

TEST(PageLayoutTest, PutsEverythingInItsPlace) {
    const PrintedPage page = layOut({item(u"Title"_s, lines(1))})[0];
    // Margin 20, inset 4, footer 40 pixels.
    EXPECT_EQ(page.frames.outer, QRect(16, 16, 728, 1076));
    EXPECT_EQ(page.frames.inner, QRect(20, 20, 720, 1024));
    EXPECT_EQ(page.frames.footer, QRect(20, 1048, 720, 40));
    EXPECT_EQ(page.frames.title, QRect(24, 24, 712, 257));
    EXPECT_EQ(page.frames.body, QRect(24, 285, 712, 755));
    EXPECT_EQ(page.heading, (PlacedText{QPoint(304, 0), u"Detailed New"_s, 16}));
    EXPECT_EQ(page.title, (std::vector<PlacedText>{{QPoint(28, 43), u"Title"_s, 16}}));
    // 16 characters, 128 pixels, up to 8 before the frame's right edge; 24 pixels high, 19 of them the line.
    EXPECT_EQ(page.date, (PlacedText{QPoint(604, 1066), u"2026/03/02 09:30"_s, 16}));
    EXPECT_EQ(page.pageNumber, (PlacedText{QPoint(374, 1058), u"1"_s, 16}));
}

TEST(PageLayoutTest, ScalesWhatDoesNotFit) {
    const struct {
        const char* what;
        OutputItem news;
        int title;
        int body;
    } cases[] = {
        // 755 / 50: a line may be 15 high.
        {"49 lines fit exactly", item(u"T"_s, u"x"_s), 16, 13},
        {"the widest line", item(u"T"_s, u"新"_s.repeated(40) + u"\n"_s + u"w"_s.repeated(80)), 16, 13},
        {"a title wider than its box", item(u"w"_s.repeated(80), u"x"_s), 16, 13},
    };
    for (const auto& c : cases) {
        const PrintedPage page = layOut({c.news})[0];
        EXPECT_EQ(page.title[0].pixelSize, c.title) << c.what;
        EXPECT_EQ(page.body[0].pixelSize, c.body) << c.what;
    }
    // 257 / 2: a line above the title's has room, too.
    EXPECT_EQ(layOut({item(u"T"_s, u"x"_s)}, 200)[0].title[0].pixelSize, 107);
    // Larger text: everything stays inside its box, and all stories are of one size.
    const auto pages =
        layOut({item(u"w"_s.repeated(2000), lines(60)), item(u"T"_s, u"w"_s.repeated(80))}, 40);
    ASSERT_EQ(pages.size(), 3U);
    for (const PrintedPage& page : pages) {
        EXPECT_EQ(page.body[0].pixelSize, pages[0].body[0].pixelSize);
        EXPECT_EQ(page.title[0].pixelSize, pages[0].title[0].pixelSize);
        EXPECT_EQ(page.heading.pixelSize, 40);
        const EvenMeasure measure;
        for (const auto& [texts, box] :
             {std::pair(page.title, page.frames.title), std::pair(page.body, page.frames.body)}) {
            for (const PlacedText& line : texts) {
                const QRect place(line.topLeft, QSize(measure.width(line.text, line.pixelSize),
                                                      measure.lineHeight(line.pixelSize)));
                EXPECT_TRUE(box.contains(place));
            }
        }
    }
    EXPECT_EQ(pages[0].body[1].topLeft.y() - pages[0].body[0].topLeft.y(),
              EvenMeasure().lineHeight(pages[0].body[0].pixelSize));
}

TEST(PageLayoutTest, ATitleKeepsItsTailWhereItIsToBeWhole) {
    OutputItem whole = item(u"w"_s.repeated(170), lines(1));
    EXPECT_EQ(layOut({whole}, 16)[0].title.size(), 2U);
    whole.wholeTitle = true;
    const auto pages = layOut({whole}, 16);
    ASSERT_EQ(pages[0].title.size(), 3U);
    EXPECT_EQ(pages[0].title[2].text, u"w"_s.repeated(10));
}

TEST(PageLayoutTest, SurvivesPaperOfNoSize) {
    EXPECT_EQ(layOutPages({item(u"T"_s, lines(50))}, {}, texts, 16, EvenMeasure()).size(), 2U);
}

}  // namespace wirepane
