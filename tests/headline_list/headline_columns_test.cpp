// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/headline_columns.h"

#include "tests/headline_list/list_fixture.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class HeadlineColumns : public HeadlineListTest {};

}  // namespace

// By news type: what stands where, and how wide it is.
TEST_F(HeadlineColumns, NewsTypesHaveTheirColumns) {
    struct Case {
        int newsType;
        QStringList columns;
    };
    const QStringList three{u"time 100"_s, u"category 50"_s, u"title 300"_s};
    const Case cases[] = {
        {0, three}, {1, {u"time 100"_s, u"title 300"_s}}, {2, three}, {3, three}, {-1, three}, {99, three}};
    for (const Case& c : cases) {
        const auto type = static_cast<NewsType>(c.newsType);
        const std::unique_ptr<CSuperSheetWnd> sheet(
            createHeadlineSheet(&window, {0, 0, 600, 100}, type, backEnd));
        QStringList columns;
        for (int place = 0; place < sheet->model()->columnCount(); ++place) {
            const HeadlineColumnKind* kind = headlineColumnAt(type, place);
            ASSERT_NE(kind, nullptr) << c.newsType;
            EXPECT_EQ(placeOf(kind->column, type), place);
            EXPECT_EQ(sheet->column(kind->key), place);
            columns.append(u"%1 %2"_s.arg(kind->key).arg(sheet->colWidth(place)));
        }
        EXPECT_EQ(columns, c.columns) << c.newsType;
        EXPECT_EQ(headlineColumnAt(type, static_cast<int>(columns.size())), nullptr);
        EXPECT_EQ(headlineColumnAt(type, -1), nullptr);
    }
    EXPECT_EQ(placeOf(HeadlineColumn::Category, NewsType::TwoColumns), -1);
}

TEST_F(HeadlineColumns, HeadersSayTheirTextsAndToolTipsAsPlainText) {
    backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_CATEGORY"_s] = u"<Topic>"_s;
    backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_TITLE"_s] = u"Headline"_s;
    const std::unique_ptr<CSuperSheetWnd> sheet(createHeadlineSheet(&window, {}, NewsType::Full, backEnd));
    const auto header = [&](HeadlineColumn column, int role) {
        return sheet->model()->headerData(placeOf(column, NewsType::Full), Qt::Horizontal, role).toString();
    };
    EXPECT_EQ(header(HeadlineColumn::Title, Qt::DisplayRole), u"Headline"_s);
    EXPECT_EQ(header(HeadlineColumn::Title, Qt::ToolTipRole), QString());
    EXPECT_EQ(header(HeadlineColumn::Category, Qt::DisplayRole), u"<Topic>"_s);
    EXPECT_EQ(header(HeadlineColumn::Category, Qt::ToolTipRole), u"&lt;Topic&gt;"_s);
    // After a change of language.
    backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_CATEGORY"_s] = u"分類"_s;
    setHeadlineSheetTexts(*sheet, NewsType::Full, backEnd);
    EXPECT_EQ(header(HeadlineColumn::Category, Qt::ToolTipRole), u"分類"_s);
}

// A line is what the grid shows, with the date; of a row whose headline is not at hand, what is known.
TEST_F(HeadlineColumns, RowsAreCopiedColumnByColumn) {
    struct Case {
        int newsType;
        QString lines;
    };
    const Case cases[] = {{0, u"03/02 09:01\t\n03/02 09:00\tMarkets\tcopied"_s},
                          {1, u"03/02 09:01\t\n03/02 09:00\tcopied"_s}};
    backEnd.add(1, localTime(2026, 3, 2, 9, 0), 1, u"copied"_s, 7);
    backEnd.add(1, localTime(2026, 3, 2, 9, 1), 2, u"not at hand"_s, 7, {}, false);
    for (const Case& c : cases) {
        owner.newsType = static_cast<NewsType>(c.newsType);
        HeadlineList& all = list(ListIndex::All);
        lists.rebuild(ListIndex::All, TableKind::ByDate, u"20260302"_s);
        EXPECT_EQ(all.textOfRows({0, 1, 2, -1}), c.lines) << c.newsType;
    }
}

}  // namespace wirepane
