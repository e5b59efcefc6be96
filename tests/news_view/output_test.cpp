// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/list_index.h"
#include "host/controls/s_button.h"
#include "news_view/control_ids.h"
#include "story/story_ids.h"
#include "story/trv_news_story.h"
#include "tests/news_view/view_fixture.h"

#include <QApplication>
#include <QDialog>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int all = static_cast<int>(ListIndex::All);
constexpr int printNews = 9271;
constexpr int saveNews = 9272;

class ViewOutputTest : public NewsViewTest {
protected:
    // A view of three headlines without a pane: 12:00, 11:00, 10:00.
    void openWithNews() {
        for (std::int32_t i = 1; i <= 3; ++i) {
            addNews(1, 9 + i, 0, i);
            const CHeadlineTable entry{localTime(2026, 3, 2, 9 + i, 0), i, 1, 0, 0};
            backEnd.addStory({entry.time, u"Body %1"_s.arg(i), entry});
        }
        open();
        while (view->GetStoryShowType() != 0)
            view->OnBtnChangeShowType();
    }
    void select(int row) { view->Sheet(all)->vSetActiveSelection(row, -1); }
    TRVNewsStory* dialog() const { return view->findChild<TRVNewsStory*>(); }
    QString dialogTitle() const { return view->StoryState(true)[u"title"_s].toString(); }
    QByteArray saved(const QString& name) const {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    OutputTarget target(const QString& name) const { return {folder.filePath(name), NewsFileType::Utf8, {}}; }
    // Runs `action`, which asks the user, and answers by `answer`, given the dialog. How many dialogs came.
    int answering(const std::function<void()>& action, const std::function<void(QWidget&)>& answer) {
        int dialogs = 0;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            if (QWidget* modal = QApplication::activeModalWidget()) {
                ++dialogs;
                poll.stop();
                answer(*modal);
            }
        });
        poll.start(5);
        action();
        return dialogs;
    }
};

}  // namespace

TEST_F(ViewOutputTest, TheDialogAndTheGridFollowEachOther) {
    openWithNews();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_FALSE(dialog()->isVisible());
    select(0);
    view->OnCommand(ids::showStory);
    EXPECT_TRUE(dialog()->isVisible());
    EXPECT_TRUE(dialogTitle().endsWith(u"s1 12:00"_s));
    dialog()->OnBtnPageUp();
    EXPECT_TRUE(dialogTitle().endsWith(u"s1 10:00"_s));
    EXPECT_EQ(view->Sheet(all)->cptGetFocusNdx().y(), 2);
    push(1, 12, 30, 9);
    EXPECT_TRUE(dialogTitle().endsWith(u"s1 10:00"_s));
    view->SwitchFunction(static_cast<int>(ListIndex::Category));
    EXPECT_FALSE(dialog()->isVisible());
}

TEST_F(ViewOutputTest, ALateStoryReachesTheDialogOnShow) {
    backEnd.storyAtHand = false;
    openWithNews();
    select(1);
    view->OnShowStory();
    backEnd.storyAtHand = true;
    view->RespStory(view->GetHeadlineTable(1));
    EXPECT_TRUE(view->StoryState(true)[u"story"_s].toString().contains(u"Body 2"_s));
}

TEST_F(ViewOutputTest, SavesTheSelectedRowsInTheirOrder) {
    openWithNews();
    view->Sheet(all)->clearSelection();
    EXPECT_EQ(view->SaveNews(target(u"none.txt"_s)).count, 0);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"none.txt"_s))) << "nothing is selected";
    view->Sheet(all)->selectAll();
    const NewsOutcome outcome = view->SaveNews(target(u"all.txt"_s));
    const QByteArray text = saved(u"all.txt"_s);
    EXPECT_EQ(outcome.count, text.size());
    EXPECT_LT(text.indexOf("Body 3"), text.indexOf("Body 2"));
    EXPECT_LT(text.indexOf("Body 2"), text.indexOf("Body 1"));
    EXPECT_EQ(view->PrintNews(target(u"all.pdf"_s)).count, 3);
    EXPECT_TRUE(saved(u"all.pdf"_s).startsWith("%PDF"));
}

TEST_F(ViewOutputTest, WaitsForStoriesAndClosesWhileItWaits) {
    backEnd.storyAtHand = false;
    openWithNews();
    select(0);
    backEnd.asked.clear();
    EXPECT_TRUE(view->SaveNews(target(u"late.txt"_s)).waiting);
    EXPECT_EQ(backEnd.asked.filter(u"again"_s), QStringList{u"again story 1 3"_s});
    select(1);
    EXPECT_TRUE(view->PrintNews(target(u"late.pdf"_s)).waiting);
    backEnd.storyAtHand = true;
    view->RespStory(view->GetHeadlineTable(0));
    EXPECT_TRUE(QTest::qWaitFor([&] { return saved(u"late.txt"_s).contains("2026/03/ 2 12:00:00Body 3"); }));
    view.reset();
    EXPECT_FALSE(QFile::exists(folder.filePath(u"late.pdf"_s)));
}

TEST_F(ViewOutputTest, TheUserStopsWaiting) {
    backEnd.storyAtHand = false;
    openWithNews();
    auto* stop = qobject_cast<SButton*>(GetDlgItem(view.get(), ids::stopWaiting));
    ASSERT_NE(stop, nullptr);
    EXPECT_TRUE(stop->isHidden()) << "nothing is waited for";
    // A window over the view takes no room in its control row.
    select(1);
    view->OnShowStory();
    dialog()->setGeometry(-5, -5, 2000, 1000);
    select(0);
    EXPECT_TRUE(view->SaveNews(target(u"late.txt"_s)).waiting);
    EXPECT_FALSE(stop->isHidden());
    EXPECT_FALSE(stop->accessibleName().isEmpty());
    EXPECT_EQ(stop->toolTip(), stop->accessibleName());
    stop->setFocus();
    QTest::keyClick(stop, Qt::Key_Return);
    EXPECT_TRUE(stop->isHidden());
    EXPECT_EQ(view->focusWidget(), view->Sheet(all));

    // The menu has it too. What has come by then is put out.
    EXPECT_TRUE(view->PrintNews(target(u"never.pdf"_s)).waiting);
    select(1);
    EXPECT_TRUE(view->SaveNews(target(u"whole.txt"_s)).waiting);
    backEnd.storyAtHand = true;
    view->RespStory(view->GetHeadlineTable(1));
    view->OnContextMenu(view->mapToGlobal(QPoint(20, view->height() / 2)));
    const auto actions = view->findChildren<QAction*>();
    const auto item = std::find_if(actions.begin(), actions.end(),
                                   [](const QAction* action) { return action->data() == ids::stopWaiting; });
    ASSERT_NE(item, actions.end());
    (*item)->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return saved(u"whole.txt"_s).contains("Body 2"); }));
    view->RespStory(view->GetHeadlineTable(0));
    QApplication::processEvents();
    EXPECT_FALSE(QFile::exists(folder.filePath(u"late.txt"_s)));
    EXPECT_FALSE(QFile::exists(folder.filePath(u"never.pdf"_s)));
}

TEST_F(ViewOutputTest, TellsWhyAFileCouldNotBeWritten) {
    openWithNews();
    QSignalSpy told(view.get(), &TRVQuoteBaseView::MessageForUser);
    backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_STRING_SAVE_FAILED"_s, u"%1: %2"_s);
    backEnd.storyAtHand = false;
    select(0);
    OutputTarget nowhere = target(u"missing/late.txt"_s);
    EXPECT_TRUE(view->SaveNews(nowhere).waiting);
    backEnd.storyAtHand = true;
    view->RespStory(view->GetHeadlineTable(0));
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.count() == 1; }));
    EXPECT_TRUE(told.at(0).at(0).toString().startsWith(nowhere.file + u": "_s));
}

TEST_F(ViewOutputTest, AsksWithTheStoryDialogOutOfTheWay) {
    openWithNews();
    select(0);
    view->OnShowStory();
    const auto* button = qobject_cast<SButton*>(GetDlgItem(view.get(), ids::saveAsButton));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(answering([&] { view->OnCommand(saveNews); },
                        [&](QWidget& question) {
                            EXPECT_FALSE(button->isEnabled());
                            EXPECT_EQ(question.parentWidget(), dialog());
                            static_cast<QDialog&>(question).reject();
                        }),
              1);
    EXPECT_TRUE(button->isEnabled());
    EXPECT_EQ(answering([&] { view->OnCommand(printNews); },
                        [&](QWidget& question) { static_cast<QDialog&>(question).reject(); }),
              1);
    // The view goes while the user is asked.
    EXPECT_EQ(answering([&] { view->OnCommand(ids::saveAsButton); }, [&](QWidget&) { view.reset(); }), 1);
    EXPECT_EQ(view, nullptr);
}
