// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Printing and saving without a view: what is asked, what is waited for, and what the user can do about it.
#include "news_view/output_jobs.h"

#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "news_view/story_stage.h"
#include "tests/support/fake_back_end.h"
#include "tests/support/held_painter.h"

#include <QFile>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Notes who was asked.
class Asked : public OutputDialogs {
public:
    bool askPrinter(QPrinter& printer, QWidget* parent) override {
        note(u"printer"_s, parent);
        printer.setOutputFileName(file);
        return !file.isEmpty();
    }
    std::optional<OutputTarget> askFile(BKQuoteInterface&, QWidget* parent) override {
        note(u"file"_s, parent);
        return std::nullopt;
    }

    QString file;  // that is printed into; empty: none
    QStringList asked;
    QWidget* over = nullptr;
    std::function<void()> whileAsked = [] {};

private:
    void note(const QString& what, QWidget* parent) {
        asked.append(what);
        over = parent;
        whileAsked();
    }
};

class OutputJobsTest : public testing::Test {
protected:
    OutputJobsTest() {
        backEnd.texts = {{u"IDS_NEWSCTRLVIEW_STRING_WAITING_TO_PRINT"_s, u"printing %1"_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_WAITING_TO_SAVE"_s, u"saving %1"_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_WAITING_TO_PREVIEW"_s, u"showing %1"_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_PUT_OUT_READY"_s, u"ready %1"_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_STOP_WAITING"_s, u"stop"_s}};
        for (const int id : {ids::printButton, ids::saveAsButton})
            setWindowId(new QPushButton(window.get()), id);
        OutputJobs::Surroundings around{
            *window,
            stage,
            [this] { return wholeTitles; },
            [this] { return services; },
            [this] { ++awaitedChanged; },
            [this](const QString& sentence) { told.append(sentence); },
        };
        jobs = std::make_unique<OutputJobs>(backEnd, dialogs, std::move(around));
    }

    // An entry of service 1 whose headline and story are at hand.
    CHeadlineTable news(std::int32_t sequence) {
        const CHeadlineTable entry{localTime(2026, 3, 2, 9, sequence), sequence, 1, 0, 0};
        backEnd.add(1, entry.time, sequence, u"Title %1"_s.arg(sequence));
        backEnd.addStory({entry.time, u"Body %1"_s.arg(sequence), entry});
        return entry;
    }
    // One whose story is still to come.
    CHeadlineTable lateNews(std::int32_t sequence) {
        const CHeadlineTable entry{localTime(2026, 3, 2, 9, sequence), sequence, 1, 0, 0};
        backEnd.add(1, entry.time, sequence, u"Title %1"_s.arg(sequence));
        return entry;
    }
    OutputTarget target(const QString& name) const { return {folder.filePath(name), NewsFileType::Utf8, {}}; }
    QByteArray saved(const QString& name) const {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    bool isEnabled(int button) const { return dlgItem(window.get(), button)->isEnabled(); }

    QTemporaryDir folder;
    FakeBackEnd backEnd;
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    StoryStage stage;
    bool wholeTitles = false;
    Asked dialogs;
    std::vector<unsigned char> services{1};
    int awaitedChanged = 0;
    QStringList told;
    std::unique_ptr<OutputJobs> jobs;
};

}  // namespace

TEST_F(OutputJobsTest, WithoutEntriesNothingHappens) {
    for (const NewsOutcome& outcome :
         {jobs->print({}, std::nullopt), jobs->save({}, target(u"none.txt"_s)), jobs->preview({})}) {
        EXPECT_EQ(outcome.count, 0);
        EXPECT_FALSE(outcome.waiting);
    }
    EXPECT_EQ(dialogs.asked, QStringList());
    EXPECT_FALSE(QFile::exists(folder.filePath(u"none.txt"_s)));
}

TEST_F(OutputJobsTest, EachJobAsksItsOwnQuestionWithItsOwnButtonOff) {
    const std::vector<CHeadlineTable> entries{news(1)};
    dialogs.whileAsked = [this] {
        EXPECT_FALSE(isEnabled(ids::printButton));
        EXPECT_TRUE(isEnabled(ids::saveAsButton));
    };
    jobs->print(entries, std::nullopt);
    dialogs.whileAsked = [this] {
        EXPECT_TRUE(isEnabled(ids::printButton));
        EXPECT_FALSE(isEnabled(ids::saveAsButton));
    };
    jobs->save(entries, std::nullopt);
    EXPECT_EQ(dialogs.asked, (QStringList{u"printer"_s, u"file"_s}));
    EXPECT_EQ(dialogs.over, window.get()) << "no story dialog is shown";
    EXPECT_TRUE(isEnabled(ids::printButton));
    EXPECT_TRUE(isEnabled(ids::saveAsButton));
    const NewsOutcome outcome = jobs->save(entries, target(u"now.txt"_s));
    EXPECT_GT(outcome.count, 0);
    EXPECT_EQ(outcome.count, saved(u"now.txt"_s).size());
    EXPECT_EQ(dialogs.asked.size(), 2) << "a target needs no question";
}

TEST_F(OutputJobsTest, TheWindowMayGoWhileTheUserIsAsked) {
    const std::vector<CHeadlineTable> entries{news(1), lateNews(2)};
    OutputJobs& going = *jobs;
    backEnd.addStory({entries[1].time, {}, entries[1]});
    dialogs.whileAsked = [this] {
        jobs.reset();
        window.reset();
    };
    EXPECT_EQ(going.save(entries, std::nullopt).message, QString());
    EXPECT_EQ(told, QStringList());
}

TEST_F(OutputJobsTest, TitlesComeFromTheServicesOfTheModeAndAsLongAsTheSettingsSay) {
    const CHeadlineTable entry{localTime(2026, 3, 2, 9, 1), 1, 1, 0, 0};
    backEnd.add(1, entry.time, 1, QString(100, u'x'));
    backEnd.addStory({entry.time, u"Body"_s, entry});
    for (const bool whole : {false, true}) {
        wholeTitles = whole;
        jobs->save({entry}, target(u"title.txt"_s));
        EXPECT_EQ(saved(u"title.txt"_s).count('x'), whole ? 100 : 80);
    }
    services = {2};
    backEnd.asked.clear();
    EXPECT_TRUE(jobs->save({entry}, target(u"other.txt"_s)).waiting);
    EXPECT_EQ(backEnd.asked.filter(u"headlines 1"_s), QStringList());
}

TEST_F(OutputJobsTest, WhatIsWaitedForIsToldAndCanBeStopped) {
    const CHeadlineTable late = lateNews(1);
    const CHeadlineTable later = lateNews(2);
    EXPECT_FALSE(jobs->isWaiting());
    EXPECT_EQ(jobs->waitingCommands(), std::vector<MenuEntry>());
    EXPECT_TRUE(jobs->print({late}, target(u"late.pdf"_s)).waiting);
    EXPECT_EQ(jobs->waitingCommands(), (std::vector<MenuEntry>{{ids::stopWaiting, u"stop"_s, {}}}));
    EXPECT_TRUE(jobs->save({news(3), late, later}, target(u"late.txt"_s)).waiting);
    EXPECT_TRUE(jobs->preview({later}).waiting);
    EXPECT_TRUE(jobs->isWaiting());
    EXPECT_EQ(jobs->awaited(), (std::array<int, 3>{1, 2, 1}));
    EXPECT_EQ(jobs->awaitedText(), u"printing 1 · saving 2 · showing 1"_s);
    EXPECT_EQ(jobs->waitingCommands(), (std::vector<MenuEntry>{{ids::putOutReady, u"ready 1"_s, {}},
                                                               {ids::stopWaiting, u"stop"_s, {}}}));
    awaitedChanged = 0;
    jobs->stopWaiting();
    EXPECT_EQ(awaitedChanged, 3) << "each job tells";
    EXPECT_FALSE(jobs->isWaiting());
    EXPECT_EQ(jobs->awaitedText(), QString());
}

TEST_F(OutputJobsTest, WhatIsCompleteIsPutOutWithoutTheRestAndTheUserIsToldOfIt) {
    backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_LEFT_OUT"_s] = u"left out %1"_s;
    jobs->save({news(1), lateNews(2)}, target(u"ready.txt"_s));
    jobs->putOutReady();
    EXPECT_TRUE(QTest::qWaitFor([&] { return saved(u"ready.txt"_s).contains("Body 1"); }));
    EXPECT_EQ(told, QStringList{u"left out 1"_s});
    jobs->tell({});
    EXPECT_EQ(told.size(), 1) << "nothing to tell";
}

TEST_F(OutputJobsTest, WhatIsBeingPrintedIsToldAndCanBeStopped) {
    backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_PRINTING"_s] = u"printed %1"_s;
    HeldPainter painter;
    dialogs.file = folder.filePath(u"asked.pdf"_s);
    EXPECT_TRUE(jobs->print({news(1)}, std::nullopt).underWay);
    EXPECT_FALSE(isEnabled(ids::printButton)) << "until the pages have been handed over";
    ASSERT_TRUE(QTest::qWaitFor([&] { return painter.jobs.size() == 1; }));
    EXPECT_TRUE(isEnabled(ids::printButton));
    EXPECT_FALSE(jobs->isWaiting()) << "not worth telling yet";
    ASSERT_TRUE(QTest::qWaitFor([&] { return jobs->isWaiting(); }));
    EXPECT_EQ(jobs->awaitedText(), u"printed 50"_s);
    EXPECT_EQ(jobs->waitingCommands(), (std::vector<MenuEntry>{{ids::stopWaiting, u"stop"_s, {}}}));
    EXPECT_GT(awaitedChanged, 0);
    jobs->stopWaiting();
    painter.paintNext();
    EXPECT_FALSE(jobs->isWaiting());
    EXPECT_EQ(jobs->awaitedText(), QString());
    EXPECT_EQ(told, QStringList()) << "the user knows";
    EXPECT_FALSE(QFile::exists(dialogs.file));
}

TEST_F(OutputJobsTest, AnswersReachEveryJob) {
    const CHeadlineTable late = lateNews(1);
    jobs->print({late}, target(u"late.pdf"_s));
    jobs->save({late}, target(u"late.txt"_s));
    backEnd.addStory({late.time, u"Body"_s, late});
    jobs->takeStory(late);
    EXPECT_TRUE(QTest::qWaitFor([&] { return saved(u"late.txt"_s).contains("Body"); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return saved(u"late.pdf"_s).startsWith("%PDF"); }));

    // A headline that is known and cannot be had yet.
    const CHeadlineTable unseen{localTime(2026, 3, 2, 9, 5), 5, 1, 0, 0};
    backEnd.add(1, unseen.time, 5, u"Seen"_s, 0, {}, false);
    backEnd.addStory({unseen.time, u"Text"_s, unseen});
    EXPECT_TRUE(jobs->save({unseen}, target(u"seen.txt"_s)).waiting);
    backEnd.makeAllAtHand();
    jobs->takeHeadlines({unseen});
    EXPECT_TRUE(QTest::qWaitFor([&] { return saved(u"seen.txt"_s).contains("Seen"); }));
}

}  // namespace wirepane
