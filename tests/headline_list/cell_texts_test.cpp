// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/cell_texts.h"

#include "tests/support/fake_back_end.h"

#include <gtest/gtest.h>
#include <limits>

namespace wirepane {

TEST(CellTexts, TimesAreLocal) {
    struct Case {
        std::int64_t time;
        const char* timeOnly;
        const char* withDate;
    };
    const Case cases[] = {
        {localTime(2026, 3, 2, 9, 5), "09:05", "03/02 09:05"},
        {localTime(2026, 12, 31, 23, 59, 59), "23:59", "12/31 23:59"},
        {localTime(2027, 1, 1, 0, 0), "00:00", "01/01 00:00"},
        {0, "08:00", "01/01 08:00"},
        {localTime(1969, 12, 31, 12, 30), "12:30", "12/31 12:30"},
        {std::numeric_limits<std::int64_t>::max(), "", ""},
        {std::numeric_limits<std::int64_t>::min(), "", ""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(timeText(c.time, false).toStdString(), c.timeOnly) << c.time;
        EXPECT_EQ(timeText(c.time, true).toStdString(), c.withDate) << c.time;
    }
}

TEST(CellTexts, AMomentOfAnotherYearIsToldByItsDay) {
    const auto at = [](int year, int month, int day, int hour) {
        return QDateTime(QDate(year, month, day), QTime(hour, 0)).toSecsSinceEpoch();
    };
    const std::int64_t now = at(2026, 1, 1, 0);
    EXPECT_EQ(otherYearText(at(2025, 12, 31, 23), now), QStringLiteral("2025/12/31"));
    EXPECT_EQ(otherYearText(at(2027, 3, 2, 1), now), QStringLiteral("2027/03/02"));
    EXPECT_EQ(otherYearText(at(2026, 12, 31, 23), now), QString());
    EXPECT_EQ(otherYearText(std::numeric_limits<std::int64_t>::max(), now), QString());
}

TEST(CellTexts, ADayIsEightDigits) {
    EXPECT_EQ(dateKey(QDate(2026, 3, 2)), QStringLiteral("20260302"));
    EXPECT_EQ(dateKey(QDate()), QStringLiteral("-001-1-1"));
}

TEST(CellTexts, SimplifiedTextHasTheMarketsTermReplaced) {
    FakeBackEnd backEnd;
    backEnd.texts[QStringLiteral("IDS_NEWSCTRLVIEW_STRING_REPLASE_NEWS")] = QStringLiteral("资讯");
    backEnd.texts[QStringLiteral("IDS_NEWSCTRLVIEW_STRING_REPLASE_MESSAGE")] = QStringLiteral("信息");
    const QString title = QStringLiteral("新聞資讯與資讯");
    EXPECT_EQ(shownText(backEnd, 1, title), title);
    backEnd.simplified = true;
    EXPECT_EQ(shownText(backEnd, 1, title), QStringLiteral("新闻信息與信息"));
    backEnd.texts[QStringLiteral("IDS_NEWSCTRLVIEW_STRING_REPLASE_NEWS")] = QStringLiteral("");
    EXPECT_EQ(shownText(backEnd, 1, title), QStringLiteral("新闻资讯與资讯"));
}

}  // namespace wirepane
