// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Lists without rows offer a way out, where the host says so.
#include "headline_list/language_keys.h"
#include "host/controls/empty_note.h"
#include "host/controls/s_button.h"
#include "host/views/news_control_ids.h"
#include "host/views/news_module.h"
#include "search/news_relate_symbol_quote_view.h"
#include "tests/news_view/view_fixture.h"
#include "tests/support/conditions.h"

#include <QAction>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class EmptyListsTest : public NewsViewTest {
protected:
    EmptyNote* note() {
        QApplication::processEvents();
        settle();
        auto* found = view->pGetCurrSheetView()->viewport()->findChild<EmptyNote*>();
        return found != nullptr && found->isVisible() ? found : nullptr;
    }
    void press(const EmptyNote& shown) { QTest::mouseClick(shown.findChild<SButton*>(), Qt::LeftButton); }
};

TEST_F(EmptyListsTest, EachListSaysWhyItIsEmptyAndWhatToDo) {
    openActive({{u"EmptyStates"_s, true}});
    for (const int mode : {0, 1, 2, 3, 4, 5}) {
        SCOPED_TRACE(mode);
        view->SwitchFunction(mode);
        if (view->pGetCurrSheetView() == nullptr)
            continue;
        const EmptyNote* const shown = note();
        ASSERT_NE(shown, nullptr);
        EXPECT_FALSE(shown->text().sentence.isEmpty());
        const bool knowsNoDay = mode == 0;
        EXPECT_EQ(shown->text().action.isEmpty(), knowsNoDay);
    }
}

// Where there is no news on any day the host may know a way to some.
TEST_F(EmptyListsTest, WithoutNewsTheHostsActionsAreOffered) {
    openActive({{u"EmptyStates"_s, true}});
    int imported = 0;
    auto* import = new QAction(u"&Import News…"_s, view.get());
    import->setProperty(offeredWithoutNews, true);
    QObject::connect(import, &QAction::triggered, view.get(), [&] { ++imported; });
    view->addAction(new QAction(u"Another"_s, view.get()));
    view->addAction(import);
    view->SwitchFunction(3);
    ASSERT_NE(note(), nullptr);
    EXPECT_EQ(note()->text().others, QStringList()) << "it is a search that finds nothing";
    view->SwitchFunction(0);
    ASSERT_NE(note(), nullptr);
    EXPECT_EQ(note()->text().others, QStringList({u"Import News"_s}));
    emit note()->otherChosen(0);
    EXPECT_EQ(imported, 1);
}

TEST_F(EmptyListsTest, ThatNoSymbolHasNewsIsSaidInTheListOfSymbolsAndInNoOther) {
    backEnd.symbols.clear();
    openActive({{u"EmptyStates"_s, true}});
    view->SwitchFunction(2);
    ASSERT_EQ(view->currentDataState(), DataState::NotSupported);
    ASSERT_NE(note(), nullptr);
    EXPECT_EQ(note()->text().sentence, backEnd.LangGetLangString(keys::noData));
    press(*note());
    ASSERT_NE(note(), nullptr);
    EXPECT_NE(note()->text().sentence, backEnd.LangGetLangString(keys::noData));
}

TEST_F(EmptyListsTest, GoesAsNewsComesAndComesBackWithAnEmptyDay) {
    openActive({{u"EmptyStates"_s, true}});
    ASSERT_NE(note(), nullptr);
    push(1, 10, 0, 7);
    EXPECT_EQ(note(), nullptr);
    view->bChangeDate(QDate(2026, 3, 1));
    ASSERT_NE(note(), nullptr);
    EXPECT_TRUE(note()->text().sentence.contains(u"EMPTY_DAY"_s) ||
                note()->text().sentence.contains(u"2026/03/01"_s));
}

TEST_F(EmptyListsTest, TheButtonCarriesOut) {
    openActive({{u"EmptyStates"_s, true}});
    view->SwitchFunction(5);
    const EmptyNote* const shown = note();
    ASSERT_NE(shown, nullptr);
    press(*shown);
    EXPECT_EQ(state(u"mode"_s), 0);
}

TEST_F(EmptyListsTest, AStoryPaneSaysWhatItIsForUntilAStoryIsThere) {
    openActive({{u"EmptyStates"_s, true}, {u"NewsShowType"_s, 1}});
    const auto storyNote = [this]() -> const EmptyNote* {
        note();
        for (const auto* text : view->findChildren<QPlainTextEdit*>()) {
            const auto* found = text->viewport()->findChild<EmptyNote*>();
            if (found != nullptr && found->isVisible())
                return found;
        }
        return nullptr;
    };
    ASSERT_NE(storyNote(), nullptr);
    EXPECT_TRUE(storyNote()->text().action.isEmpty()) << "there is nothing to read yet";
    push(1, 10, 0, 7);
    ASSERT_NE(storyNote(), nullptr);
    ASSERT_FALSE(storyNote()->text().action.isEmpty());
    press(*storyNote());
    EXPECT_EQ(storyNote(), nullptr);
    EXPECT_EQ(state(u"storyRow"_s), 0);
    view->bChangeDate(QDate(2026, 3, 1));
    EXPECT_NE(storyNote(), nullptr) << "the story of another day";
    EXPECT_EQ(state(u"storyRow"_s), -1);
}

TEST_F(EmptyListsTest, QuotesWithoutSymbolsOfferTheListOfASymbolFromOtherLists) {
    openActive({{u"EmptyStates"_s, true}, {u"NewsShowType"_s, 1}});
    const auto quotesNote = [this]() -> const EmptyNote* {
        note();
        const auto* quotes = view->findChild<CNewsRelateSymbolQuoteView*>();
        const auto* found = quotes != nullptr ? quotes->findChild<EmptyNote*>() : nullptr;
        return found != nullptr && !found->isHidden() ? found : nullptr;
    };
    ASSERT_NE(quotesNote(), nullptr);
    const QString beforeAStory = quotesNote()->text().sentence;
    push(1, 10, 0, 7);
    view->pGetCurrSheetView()->setActiveSelection(0, -1);
    ASSERT_NE(quotesNote(), nullptr) << "a headline that names no symbol";
    EXPECT_NE(quotesNote()->text().sentence, beforeAStory);
    press(*quotesNote());
    EXPECT_EQ(state(u"mode"_s), 2);
    ASSERT_NE(quotesNote(), nullptr);
    EXPECT_TRUE(quotesNote()->text().action.isEmpty());
}

TEST_F(EmptyListsTest, ASearchThatFindsNothingOffersWhatWouldFindSomething) {
    backEnd.texts[u"IDS_NEWSCTRLVIEW_OFFER_SERVICES"_s] = u"elsewhere %1"_s;
    backEnd.texts[u"IDS_NEWSCTRLVIEW_OFFER_STORIES"_s] = u"stories %1"_s;
    backEnd.texts[u"IDS_NEWSCTRLVIEW_OFFER_DAYS"_s] = u"other days %1"_s;
    backEnd.texts[u"IDS_NEWSCTRLVIEW_OFFER_WITHOUT"_s] = u"without %1: %2"_s;
    openActive({{u"EmptyStates"_s, true},
                {u"SearchQueries"_s, true},
                {u"SearchOffers"_s, true},
                {u"Sheet0ServiceCheck1"_s, true},
                {u"Sheet0ServiceCheck2"_s, true}},
               3);
    const auto search = [this](const QString& text) {
        auto* edit = qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit));
        edit->setText(text);
        QTest::keyClick(edit, Qt::Key_Return);
        CSearch sent = condition({text});
        sent.language = SearchLanguage::Query;
        for (unsigned char service = 1; service <= 2; ++service)
            view->RespSearchHeadLineTable(sent, service);
        note();
    };
    search(u"gold title:%1"_s);
    ASSERT_EQ(backEnd.countings.size(), 1U);
    const FakeBackEnd::Counting first = backEnd.countings.front();
    ASSERT_EQ(first.searches.size(), 4U) << "elsewhere, stories too, without either word";
    EXPECT_EQ(first.searches[0].services, (std::vector<unsigned char>{16, 22, 122}));
    EXPECT_EQ(first.searches[1].services, (std::vector<unsigned char>{1, 2}));
    EXPECT_EQ(first.searches[3].condition.query(), u"gold"_s);
    first.told({3, 0, 0, 1200});
    EXPECT_EQ(note()->text().others, (QStringList{u"elsewhere 3"_s, u"without title:%1: 1,200"_s}));
    search(u"tin lead"_s);
    EXPECT_TRUE(note()->text().others.isEmpty()) << "they were of another search";
    ASSERT_EQ(backEnd.countings.size(), 2U);
    backEnd.countings.back().told({0, 0, 7, 0});
    ASSERT_EQ(note()->text().others, QStringList{u"without tin: 7"_s});
    QPointer<EmptyNote> shown = note();
    for (SButton* button : shown->findChildren<SButton*>()) {
        if (button->isVisible() && button->text().startsWith(u"without"_s))
            QTest::mouseClick(button, Qt::LeftButton);
    }
    EXPECT_EQ(qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit))->text(), u"lead"_s);
    search(u"zinc from:2026-03-01 to:2026-03-02"_s);
    ASSERT_EQ(backEnd.countings.back().searches.size(), 6U);
    EXPECT_EQ(backEnd.countings.back().searches[2].condition.query(), u"zinc"_s);
    search(u"zinc on:2026-03-01"_s);
    ASSERT_EQ(backEnd.countings.back().searches.size(), 4U) << "without the day is offered once";
    backEnd.countings.back().told({0, 0, 12, 0});
    EXPECT_EQ(note()->text().others, QStringList{u"other days 12"_s});
    search(u"zinc tin"_s);
    view->SwitchFunction(0);
    note();
    EXPECT_TRUE(backEnd.countings.back().isDropped()) << "nobody looks at that list any more";
}

TEST_F(EmptyListsTest, AViewWhoseSettingsSayNothingHasNone) {
    openActive({});
    EXPECT_EQ(note(), nullptr);
}

}  // namespace

}  // namespace wirepane
