// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/list_index.h"
#include "host/contract/sync_info.h"
#include "host/controls/s_button.h"
#include "host/views/news_control_ids.h"
#include "story/story_ids.h"
#include "story/trv_news_story.h"
#include "tests/news_view/view_fixture.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int all = static_cast<int>(ListIndex::All);

// A host that wants story windows to stay on top.
class OnTop : public CSyncInfo {
public:
    OnTop() { setSettingCFG(this); }
    int SYS_eGetPopupWndPosition() override { return 2; }
};

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
    void select(int row) { view->sheetOf(all)->setActiveSelection(row, -1); }
    TRVNewsStory* dialog() const { return view->findChild<TRVNewsStory*>(); }
    QString dialogTitle() const { return view->storyState(true)[u"title"_s].toString(); }
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
    view->onCommand(ids::showStory);
    EXPECT_TRUE(dialog()->isVisible());
    EXPECT_TRUE(dialogTitle().endsWith(u"s1 12:00"_s));
    dialog()->OnBtnPageUp();
    EXPECT_TRUE(dialogTitle().endsWith(u"s1 10:00"_s));
    EXPECT_EQ(view->sheetOf(all)->cptGetFocusNdx().y(), 2);
    push(1, 12, 30, 9);
    EXPECT_TRUE(dialogTitle().endsWith(u"s1 10:00"_s));
    view->SwitchFunction(static_cast<int>(ListIndex::Category));
    EXPECT_FALSE(dialog()->isVisible());
}

TEST_F(ViewOutputTest, SavesTheSelectedRowsInTheirOrder) {
    openWithNews();
    view->sheetOf(all)->clearSelection();
    EXPECT_EQ(view->saveSelection(target(u"none.txt"_s)).count, 0);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"none.txt"_s))) << "nothing is selected";
    view->sheetOf(all)->selectAll();
    const NewsOutcome outcome = view->saveSelection(target(u"all.txt"_s));
    const QByteArray text = saved(u"all.txt"_s);
    EXPECT_EQ(outcome.count, text.size());
    EXPECT_LT(text.indexOf("Body 3"), text.indexOf("Body 2"));
    EXPECT_LT(text.indexOf("Body 2"), text.indexOf("Body 1"));
    EXPECT_EQ(view->printSelection(target(u"all.pdf"_s)).count, 3);
    EXPECT_TRUE(saved(u"all.pdf"_s).startsWith("%PDF"));
}

TEST_F(ViewOutputTest, WaitsForStoriesAndClosesWhileItWaits) {
    backEnd.storyAtHand = false;
    openWithNews();
    select(0);
    backEnd.asked.clear();
    EXPECT_TRUE(view->saveSelection(target(u"late.txt"_s)).waiting);
    EXPECT_EQ(backEnd.asked.filter(u"again"_s), QStringList{u"again story 1 3"_s});
    select(1);
    EXPECT_TRUE(view->printSelection(target(u"late.pdf"_s)).waiting);
    backEnd.storyAtHand = true;
    view->RespStory(view->GetHeadlineTable(0));
    EXPECT_TRUE(QTest::qWaitFor([&] { return saved(u"late.txt"_s).contains("2026/03/ 2 12:00:00Body 3"); }));
    view.reset();
    EXPECT_FALSE(QFile::exists(folder.filePath(u"late.pdf"_s)));
}

TEST_F(ViewOutputTest, ALateTitleReachesWhatWaitsForIt) {
    openWithNews();
    const CHeadlineTable late{localTime(2026, 3, 2, 12, 30), 4, 1, 0, 0};
    backEnd.add(1, late.time, 4, u"Come late"_s, 0, {}, false);
    backEnd.addStory({late.time, u"Body 4"_s, late});
    view->InitialHeadlineTable(all);
    select(0);
    EXPECT_TRUE(view->saveSelection(target(u"late.txt"_s)).waiting);
    backEnd.makeAllAtHand();
    view->RespHeadLine({late});
    EXPECT_TRUE(QTest::qWaitFor([&] { return saved(u"late.txt"_s).contains("Come late"); }));
    EXPECT_TRUE(titles(all).contains(u"Come late"_s)) << "and the list";
}

TEST_F(ViewOutputTest, EveryWayToPrintAndToSaveAsksItsQuestion) {
    openWithNews();
    select(0);
    const std::pair<int, bool> ways[] = {
        {ids::printNews, true}, {ids::printButton, true}, {ids::saveNews, false}, {ids::saveAsButton, false}};
    for (const auto& [command, prints] : ways) {
        int asked = 0;
        asked = answering([&, id = command] { view->onCommand(id); },
                          [&, isPrint = prints](QWidget& question) {
                              EXPECT_EQ(qobject_cast<QPrintDialog*>(&question) != nullptr, isPrint);
                              static_cast<QDialog&>(question).reject();
                          });
        EXPECT_EQ(asked, 1) << command;
    }
}

TEST_F(ViewOutputTest, TheUserStopsWaiting) {
    backEnd.storyAtHand = false;
    openWithNews();
    auto* stop = qobject_cast<SButton*>(dlgItem(view.get(), ids::stopWaiting));
    ASSERT_NE(stop, nullptr);
    EXPECT_TRUE(stop->isHidden()) << "nothing is waited for";
    // A window over the view takes no room in its control row.
    select(1);
    view->OnShowStory();
    dialog()->setGeometry(-5, -5, 2000, 1000);
    select(0);
    EXPECT_TRUE(view->saveSelection(target(u"late.txt"_s)).waiting);
    EXPECT_FALSE(stop->isHidden());
    EXPECT_EQ(state(u"awaited"_s).toMap(), (QVariantMap{{u"print"_s, 0}, {u"save"_s, 1}, {u"preview"_s, 0}}));
    EXPECT_FALSE(stop->accessibleName().isEmpty());
    EXPECT_EQ(stop->toolTip(), stop->accessibleName());
    stop->setFocus();
    QTest::keyClick(stop, Qt::Key_Return);
    EXPECT_TRUE(stop->isHidden());
    EXPECT_EQ(view->focusWidget(), view->sheetOf(all));

    // The menu has it too. What has come by then is put out.
    EXPECT_TRUE(view->printSelection(target(u"never.pdf"_s)).waiting);
    select(1);
    EXPECT_TRUE(view->saveSelection(target(u"whole.txt"_s)).waiting);
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

TEST_F(ViewOutputTest, TheStopButtonOffersWhatIsReady) {
    openWithNews();
    backEnd.add(1, localTime(2026, 3, 2, 12, 30), 4, u"Flash"_s);
    view->InitialHeadlineTable(all);
    QSignalSpy told(view.get(), &TRVQuoteBaseView::messageForUser);
    backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_STRING_LEFT_OUT"_s, u"left out %1"_s);
    view->sheetOf(all)->selectAll();
    EXPECT_TRUE(view->saveSelection(target(u"ready.txt"_s)).waiting);
    EXPECT_TRUE(view->printSelection(target(u"dropped.pdf"_s)).waiting);
    auto* stop = qobject_cast<SButton*>(dlgItem(view.get(), ids::stopWaiting));
    stop->click();
    EXPECT_FALSE(stop->isHidden()) << "the user is asked first";
    const auto commands = [&] {
        QList<int> result;
        for (const QAction* action : QApplication::activePopupWidget()->actions())
            result.append(action->data().toInt());
        return result;
    };
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(commands(), (QList<int>{ids::putOutReady, ids::stopWaiting}));
    QApplication::activePopupWidget()->actions().first()->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return saved(u"ready.txt"_s).contains("Body 1"); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.count() == 2; }));
    EXPECT_EQ(told.at(0).at(0).toString(), u"left out 1"_s);
    EXPECT_TRUE(stop->isHidden());
}

TEST_F(ViewOutputTest, TheWindowsHeadlineIsPutOutWhereverItStandsByNow) {
    openWithNews();
    select(1);
    view->OnShowStory();
    ASSERT_TRUE(dialogTitle().endsWith(u"s1 11:00"_s));
    addNews(1, 12, 30, 9);
    push(1, 12, 30, 9);
    answering([&] { dialog()->OnBtnSaveas(); },
              [&](QWidget& question) {
                  EXPECT_EQ(view->sheetOf(all)->cptGetFocusNdx().y(), 2);
                  static_cast<QDialog&>(question).reject();
              });
    EXPECT_TRUE(dialogTitle().endsWith(u"s1 11:00"_s));
}

TEST_F(ViewOutputTest, TitlesStayWholeWhereTheHostWantsIt) {
    const QString title = QString(100, u'x');
    backEnd.add(1, localTime(2026, 3, 2, 10, 0), 1, title);
    const CHeadlineTable entry{localTime(2026, 3, 2, 10, 0), 1, 1, 0, 0};
    backEnd.addStory({entry.time, u"Body"_s, entry});
    for (const bool whole : {false, true}) {
        open(whole ? QMap<QString, QVariant>{{u"WholeTitles"_s, true}} : QMap<QString, QVariant>());
        select(0);
        view->saveSelection(target(u"title.txt"_s));
        EXPECT_EQ(saved(u"title.txt"_s).contains(QByteArray(20, 'x') + "\n\n"), whole);
        EXPECT_EQ(saved(u"title.txt"_s).count('x'), whole ? 100 : 80);
    }
}

TEST_F(ViewOutputTest, AsksWithTheStoryDialogOutOfTheWay) {
    OnTop host;
    openWithNews();
    select(0);
    view->OnShowStory();
    ASSERT_TRUE(dialog()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    const auto* button = qobject_cast<SButton*>(dlgItem(view.get(), ids::saveAsButton));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(answering([&] { view->onCommand(ids::saveNews); },
                        [&](QWidget& question) {
                            EXPECT_FALSE(button->isEnabled());
                            EXPECT_EQ(question.parentWidget(), dialog());
                            EXPECT_FALSE(dialog()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
                            auto& file = dynamic_cast<QFileDialog&>(question);
                            EXPECT_TRUE(file.testOption(QFileDialog::DontConfirmOverwrite));
                            EXPECT_EQ(file.defaultSuffix(), u"txt"_s);
                            file.reject();
                        }),
              1);
    EXPECT_TRUE(button->isEnabled());
    EXPECT_TRUE(dialog()->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) << "as the host wants it";
    EXPECT_EQ(
        answering([&] { view->onCommand(ids::printNews); },
                  [&](QWidget& question) {
                      auto& print = dynamic_cast<QPrintDialog&>(question);
                      for (const auto range : {QPrintDialog::PrintPageRange, QPrintDialog::PrintCurrentPage,
                                               QPrintDialog::PrintSelection})
                          EXPECT_FALSE(print.testOption(range));
                      EXPECT_TRUE(print.printer()->collateCopies());
                      print.reject();
                  }),
        1);
    // The view goes while the user is asked.
    EXPECT_EQ(answering([&] { view->onCommand(ids::saveAsButton); }, [&](QWidget&) { view.reset(); }), 1);
    EXPECT_EQ(view, nullptr);
}

}  // namespace wirepane
