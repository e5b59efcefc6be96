// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the topics are called, where their names come from, and what the combo offers of them.
#include "host/contract/item_display.h"
#include "host/controls/sc_combo_box.h"
#include "host/views/news_control_ids.h"
#include "tests/news_view/view_fixture.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QHeaderView>
#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int categoryMode = static_cast<int>(ListIndex::Category);
constexpr int warrantMode = static_cast<int>(ListIndex::Warrant);
const QString pending = u"IDS_NEWSCTRLVIEW_STRING_RECOVER"_s;

// Category 1 in red, and in green where it is one of warrants.
class Colours : public TRVItemDisplay {
public:
    Colours() { setItemDisplay(this); }
    void GetNewsCatColor(int id, QColor& text, QColor&) override { text = id == 1 ? Qt::red : QColor(); }
    void warrantCatColor(int id, QColor& text, QColor&) override { text = id == 1 ? Qt::green : QColor(); }
};

class Categories : public NewsViewTest {
protected:
    void openAt(int mode, QMap<QString, QVariant> stored = {}) {
        stored.insert(u"FocusedTab"_s, mode);
        openActive(stored);
    }
    void publish(unsigned char service, std::int32_t sequence, int category) {
        const QString name = u"n%1"_s.arg(sequence);
        backEnd.add(service, localTime(2026, 3, 2, 9, 40), sequence, name, category);
        CHeadline headline;
        headline.service = service;
        headline.time = localTime(2026, 3, 2, 9, 40);
        headline.sequence = sequence;
        headline.title = name;
        headline.categoryId = category;
        view->RecvNewHeadLine(&headline, QString::number(category), {});
    }
    QString topic(int list, int row) const {
        EXPECT_GT(view->sheetOf(list)->rowCount(), row);
        return cellText(*view->sheetOf(list), row, "category"_L1);
    }
    QColor colour(int list) const {
        return cellOf(*view->sheetOf(list), 0, "category"_L1)
            .data(Qt::ForegroundRole)
            .value<QBrush>()
            .color();
    }
    SCComboBox& combo() const { return *qobject_cast<SCComboBox*>(dlgItem(view.get(), ids::categoryCombo)); }
    QStringList items() const {
        QStringList texts;
        for (int i = 0; i < combo().count(); ++i)
            texts.append(combo().itemText(i));
        return texts;
    }
    int tablesRead() { return static_cast<int>(asked(u"table "_s).size()); }
};

}  // namespace

TEST_F(Categories, WhatTheFileHasNoRoomForIsNamedByTheHostsLists) {
    backEnd.categories[2].push_back({u"7"_s, u"Shipping"_s});
    addNews(1, 9, 0, 1, 7);
    addNews(1, 9, 1, 2, 8);
    addNews(1, 9, 2, 3, 2);
    openAt(0);
    EXPECT_EQ(topic(0, 0), u"Economy");
    EXPECT_EQ(topic(0, 1), pending) << "nobody has it";
    EXPECT_EQ(topic(0, 2), u"Shipping");
    EXPECT_EQ(view->cszTransferCatIDToCatName(7), u"Shipping");
    EXPECT_EQ(view->cszTransferCatIDToCatName(1), u"Markets") << "the file comes first";
    EXPECT_EQ(view->GetCategoryIDbyName(u"Shipping"_s), 7);
    EXPECT_EQ(view->GetCategoryIDbyName(u"shipping"_s), -1);
    EXPECT_EQ(view->GetCategoryIDbyName(u"Issue"_s), -1) << "a name among warrants";
    QColor text(Qt::blue);
    QColor background(Qt::blue);
    EXPECT_EQ(view->GetCategoryColor(u"Shipping"_s, text, background), 1);
    EXPECT_FALSE(text.isValid());
    text = Qt::blue;
    EXPECT_EQ(view->GetCategoryColor(u"Issue"_s, text, background), 0);
    EXPECT_EQ(text, QColor(Qt::blue)) << "unchanged";
}

TEST_F(Categories, ANameThatComesLaterReachesTheRowsThatLackIt) {
    addNews(1, 9, 0, 1, 7);
    addNews(1, 9, 1, 2, 1);
    openAt(0);
    EXPECT_EQ(topic(0, 1), pending);
    backEnd.categories[1].push_back({u"7"_s, u"Shipping"_s});
    publish(1, 3, 7);
    EXPECT_EQ(topic(0, 0), u"Shipping");
    settle();
    EXPECT_EQ(topic(0, 2), u"Shipping");
    writeFile(u"NewsService.ini"_s, "[CONFIG]\nCatId=1,7\nSHORTNAME=Exchange,Ships\n");
    view->reloadCategories();
    EXPECT_EQ(topic(0, 2), u"Ships") << "the host has changed its file";
    EXPECT_EQ(topic(0, 1), u"Exchange");
    EXPECT_EQ(cellText(*view->sheetOf(0), 2, "title"_L1), u"s1 9:00");
}

TEST_F(Categories, TheComboLearnsTopicsAndKeepsItsChoice) {
    backEnd.categories.erase(2);
    openAt(categoryMode, {{u"CategoryID"_s, u"2"_s}});
    EXPECT_EQ(items(), (QStringList{u"Markets"_s, u"Economy"_s}));
    tablesRead();
    backEnd.categories[1].insert(backEnd.categories[1].begin(), {u"7"_s, u"Shipping"_s});
    publish(1, 1, 7);
    settle();
    EXPECT_EQ(items(), (QStringList{u"Shipping"_s, u"Markets"_s, u"Economy"_s}));
    EXPECT_EQ(combo().currentText(), u"Economy");
    EXPECT_EQ(tablesRead(), 0) << "its list stands";
    MemoryCfgIO saved;
    view->SaveViewInfo(&saved, u"Layout"_s, 0, 0);
    EXPECT_EQ(saved.values[u"CategoryID"_s], u"2"_s);

    combo().showPopup();
    backEnd.categories[1].push_back({u"8"_s, u"Steel"_s});
    publish(1, 2, 8);
    view->reloadCategories();
    settle();
    EXPECT_EQ(combo().count(), 3) << "not under the hand of the user";
    combo().view()->setCurrentIndex(combo().model()->index(0, 0));
    QTest::keyClick(combo().view(), Qt::Key_Return);
    QTRY_COMPARE(combo().count(), 4);
    EXPECT_EQ(combo().currentText(), u"Shipping") << "what he chose";
    EXPECT_EQ(titles(categoryMode), QStringList{u"n1"_s});
}

TEST_F(Categories, AComboThatLearnsItsFirstTopicChoosesIt) {
    const auto all = std::exchange(backEnd.categories, {});
    addNews(1, 9, 0, 1, 2);
    openAt(categoryMode, {{u"CategoryID"_s, u"2"_s}});
    EXPECT_EQ(items(), QStringList());
    backEnd.categories = all;
    view->reloadCategories();
    EXPECT_EQ(combo().currentText(), u"Economy") << "the stored one";
    EXPECT_EQ(titles(categoryMode), QStringList{u"s1 9:00"_s});
    view->SwitchFunction(0);
    EXPECT_EQ(items().size(), 2);
}

TEST_F(Categories, TheComboSpeaksTheLanguageInForce) {
    backEnd.categories[1] = {{u"1"_s, u"新聞"_s}};
    backEnd.categories[2] = {{u"2"_s, u"資訊"_s}};
    for (const unsigned char service : std::vector<unsigned char>{16, 22, 122})
        backEnd.categories.erase(service);
    openAt(categoryMode, {{u"CategoryID"_s, u"2"_s}});
    EXPECT_EQ(items(), (QStringList{u"新聞"_s, u"資訊"_s}));
    backEnd.simplifiedServices = {1};
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(view.get(), &language);
    EXPECT_EQ(items(), (QStringList{u"新闻"_s, u"資訊"_s})) << "by service";
    EXPECT_EQ(combo().currentText(), u"資訊");
}

TEST_F(Categories, TopicsOfWarrantsHaveTheirOwnColours) {
    const Colours colours;
    addNews(1, 9, 0, 1, 1);
    addNews(52, 9, 0, 2, 1);
    openAt(0);
    EXPECT_EQ(colour(0), QColor(Qt::red));
    view->SwitchFunction(warrantMode);
    EXPECT_EQ(colour(warrantMode), QColor(Qt::green));
    view.reset();
}

TEST_F(Categories, TopicsWithoutANameCostOneReadingABurst) {
    class Counting : public FakeBackEnd {
    public:
        bool bNewsAPI_GetNewsCatId(unsigned char service, std::vector<QString>& ids,
                                   std::vector<QString>& names) override {
            read += service == 1 ? 1 : 0;
            return FakeBackEnd::bNewsAPI_GetNewsCatId(service, ids, names);
        }
        int read = 0;
    } counting;
    counting.sysPath = backEnd.sysPath;
    counting.categories = backEnd.categories;
    open();
    settle();
    counting.read = 0;
    for (int i = 0; i < 100; ++i)
        push(1, 9, 40, i);
    EXPECT_EQ(counting.read, 0) << "known topics";
    for (int i = 100; i < 200; ++i)
        publish(1, i, 90 + i);
    EXPECT_EQ(counting.read, 1);
    settle();
    EXPECT_LE(counting.read, 3);
    view.reset();
}

TEST_F(Categories, WrittenRowsLeaveTheColumnAlone) {
    addNews(1, 9, 0, 1);
    openAt(0);
    const auto* header = qobject_cast<const QTableView*>(view->sheetOf(0))->horizontalHeader();
    int resized = 0;
    QObject::connect(header, &QHeaderView::sectionResized, header, [&resized] { ++resized; });
    for (int i = 2; i < 20; ++i)
        push(1, 9, 30, i);
    EXPECT_EQ(resized, 0);
    EXPECT_EQ(view->sheetOf(0)->colWidth(view->sheetOf(0)->column(u"category"_s)), 50);
    view->onCommand(ids::changeCategoryState);
    push(1, 9, 31, 30);
    EXPECT_EQ(view->sheetOf(0)->colWidth(view->sheetOf(0)->column(u"category"_s)), 0);
}

}  // namespace wirepane
