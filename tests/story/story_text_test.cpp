// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/story_text.h"

#include "tests/support/fake_back_end.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {
constexpr std::int64_t noTime = std::numeric_limits<std::int64_t>::min();
}

TEST(StoryText, Formats) {
    const std::int64_t time = localTime(2026, 3, 2, 9, 5, 7);
    const struct {
        QString made;
        QString expected;
    } cases[] = {
        {datedText(time, u"Rates rise"_s), u"2026/03/02 09:05:07 \r\nRates rise"_s},
        {datedText(time, {}), u"2026/03/02 09:05:07 \r\n"_s},
        {datedText(localTime(987, 1, 2, 23, 59, 58), u"100% %s %1 old"_s),
         u"0987/01/02 23:59:58 \r\n100% %s %1 old"_s},
        {datedText(-1, u"before 1970"_s), u"1970/01/01 07:59:59 \r\nbefore 1970"_s},
        {datedText(noTime, u"no time"_s), u"0000/00/00 -1:-1:-1 \r\nno time"_s},
        {datedText(std::numeric_limits<std::int64_t>::max(), u"t"_s), u"0000/00/00 -1:-1:-1 \r\nt"_s},
        {storyText(time, u"body"_s, BodyEnd::Shown, u"End."_s),
         u"2026/03/02 09:05:07 \r\nbody  \r\n\r\nEnd."_s},
        {storyText(time, u"body"_s, BodyEnd::Answered, u"End."_s),
         u"2026/03/02 09:05:07 \r\nbody \r\n\r\nEnd."_s},
        {storyText(noTime, {}, BodyEnd::Shown, {}), u"0000/00/00 -1:-1:-1 \r\n  \r\n\r\n"_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.made, c.expected);
}

TEST(StoryText, LinesFollowTheParagraphMarksAlone) {
    const struct {
        QString wire;
        QString lines;
    } cases[] = {
        {u""_s, u""_s},
        {u"A\r\nB\r\n\r\nC@@@@D"_s, u"ABC\r\nD"_s},
        {u"\n\rA\nB\rC\n"_s, u"ABC"_s},
        {u"@@@@"_s, u"\r\n"_s},
        {u"@@@@A@@@@@@@@B@@@@"_s, u"\r\nA\r\n\r\nB\r\n"_s},
        {u"one@@@two@two"_s, u"one@@@two@two"_s},
        {u"@@@@@@x@@@@@"_s, u"\r\n@@x\r\n@"_s},
        {u"a mark broken by wrapping@@\r\n@@is a mark"_s, u"a mark broken by wrapping\r\nis a mark"_s},
        {u"航運股\n走強@@@@市場😀"_s, u"航運股走強\r\n市場😀"_s},
        {u"blanks  stay \t\u00A0@@@@<br>&amp;"_s, u"blanks  stay \t\u00A0\r\n<br>&amp;"_s},
    };
    for (const auto& c : cases) {
        QString story = c.wire;
        vConvertStoryContent(story);
        EXPECT_EQ(story, c.lines) << c.wire.toStdString();
    }
}

TEST(StoryText, SameNewsIsOfOneLocalDay) {
    const CHeadlineTable entry{localTime(2026, 3, 2, 0, 0), 7, 1, 20, 30};
    const auto changed = [entry](auto change) {
        CHeadlineTable other = entry;
        change(other);
        return other;
    };
    EXPECT_TRUE(isSameNews(entry, entry));
    EXPECT_TRUE(isSameNews(entry, changed([](auto& e) { e.time += 86'399; }))) << "to the day's last second";
    EXPECT_FALSE(isSameNews(entry, changed([](auto& e) { e.time += 86'400; })));
    EXPECT_FALSE(isSameNews(entry, changed([](auto& e) { e.time -= 1; })));
    EXPECT_FALSE(isSameNews(entry, changed([](auto& e) { e.time = noTime; })));
    EXPECT_FALSE(isSameNews(entry, changed([](auto& e) { e.service = 2; })));
    EXPECT_FALSE(isSameNews(entry, changed([](auto& e) { e.sequence = 8; })));
    EXPECT_FALSE(isSameNews(entry, changed([](auto& e) { e.second = 21; })));
    EXPECT_FALSE(isSameNews(entry, changed([](auto& e) { e.last = 31; })));
    EXPECT_TRUE(
        isSameNews(changed([](auto& e) { e.time = noTime; }), changed([](auto& e) { e.time = noTime + 1; })))
        << "what has no date has the same date";
}

}  // namespace wirepane
