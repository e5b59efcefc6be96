// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Lists without rows offer a way out, where the host says so.
#include "host/controls/empty_note.h"
#include "host/controls/s_button.h"
#include "tests/news_view/view_fixture.h"

#include <QPlainTextEdit>

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

TEST_F(EmptyListsTest, AViewWhoseSettingsSayNothingHasNone) {
    openActive({});
    EXPECT_EQ(note(), nullptr);
}

}  // namespace

}  // namespace wirepane
