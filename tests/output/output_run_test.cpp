// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Printing where the host paints, and saving what is long: from the event loop, and it may be stopped.
#include "output/page_printing.h"
#include "output/trv_save_to_file.h"
#include "tests/support/fake_back_end.h"
#include "tests/support/held_painter.h"

#include <QDir>
#include <QFile>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class OutputRunTest : public testing::Test {
protected:
    OutputRunTest() {
        printer->setOnHandedOver([this] { ++handedOver; });
        backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_STRING_LEFT_OUT"_s, u"left out %1"_s);
    }
    static OutputItems news(int pages) {
        OutputItem item;
        item.title = u"Title"_s;
        item.story = u"line\r\n"_s.repeated(pages * bodyLinesPerPage);
        item.hasTitle = item.hasStory = true;
        return {item};
    }
    OutputTarget target() {
        OutputTarget target;
        target.file = file;
        target.told = [this](const NewsOutcome& outcome) { told.push_back(outcome); };
        return target;
    }
    NewsOutcome print(const OutputItems& items) { return printer->putOut(items, nullptr, target()); }
    bool waitForJobs(std::size_t count) {
        return QTest::qWaitFor([&] { return painter.jobs.size() == count; });
    }
    QByteArray written() const {
        QFile pdf(file);
        return pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray();
    }
    // Nothing beside it, finished or not.
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir folder;
    const QString file = folder.filePath(u"news.pdf"_s);
    FakeBackEnd backEnd;
    OutputDialogs dialogs;
    QWidget window;
    HeldPainter painter;
    std::unique_ptr<TRVNewsPrint> printer = std::make_unique<TRVNewsPrint>(backEnd, dialogs, window);
    std::vector<NewsOutcome> told;
    int handedOver = 0;
};

}  // namespace

TEST_F(OutputRunTest, PagesAreHandedOverAndWhatCameOfThemIsTold) {
    OutputItems items = news(120);
    items.push_back(OutputItem{});
    items.back().leftOut = true;
    const NewsOutcome outcome = print(items);
    EXPECT_TRUE(outcome.underWay);
    EXPECT_EQ(outcome.count, 0);
    EXPECT_TRUE(painter.jobs.empty()) << "the pages are made from the event loop";
    // The next waits for its turn, which comes when these are handed over, not when they are painted.
    EXPECT_TRUE(print(news(1)).waiting);
    ASSERT_TRUE(waitForJobs(2));
    EXPECT_EQ(handedOver, 2);
    EXPECT_EQ(painter.jobs[0].pages->pages.size(), 120U);
    EXPECT_EQ(painter.jobs[0].pages->pages[119].number, 120);
    EXPECT_FALSE(printer->isWaiting());
    EXPECT_TRUE(told.empty());
    painter.paintNext();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].count, 120);
    EXPECT_EQ(told[0].message, u"left out 1"_s);
    EXPECT_TRUE(written().startsWith("%PDF"));
    painter.paintNext();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[1].count, 1);
    EXPECT_EQ(files(), QStringList{u"news.pdf"_s});
}

TEST_F(OutputRunTest, WithoutAPainterOrWithoutAnyoneToTellItIsPrintedWithinTheCall) {
    OutputTarget silent = target();
    silent.told = nullptr;
    EXPECT_EQ(printer->putOut(news(2), nullptr, silent).count, 2);
    PagePainter::install(nullptr);
    EXPECT_EQ(print(news(3)).count, 3);
    EXPECT_TRUE(painter.jobs.empty() && told.empty());
}

TEST_F(OutputRunTest, WhatIsStoppedLeavesNoHalfFile) {
    QFile old(file);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    // While its pages are made.
    print(news(5000));
    QCoreApplication::processEvents();
    printer->stopRuns();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !told.empty(); }));
    EXPECT_TRUE(painter.jobs.empty());
    EXPECT_EQ(handedOver, 1) << "the next can be printed";
    // While they wait for the painter.
    told.clear();
    print(news(3));
    ASSERT_TRUE(waitForJobs(1));
    printer->stopRuns();
    painter.paintNext();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_TRUE(told[0].failed);
    EXPECT_EQ(told[0].message, QString());
    EXPECT_EQ(written(), QByteArray("old"));
    EXPECT_EQ(files(), QStringList{u"news.pdf"_s});
}

TEST_F(OutputRunTest, WhatItsOwnerLeavesIsStopped) {
    for (const bool isHandedOver : {false, true}) {
        told.clear();
        print(news(isHandedOver ? 3 : 5000));
        ASSERT_TRUE(waitForJobs(isHandedOver ? 1 : 0));
        printer.reset();
        ASSERT_EQ(told.size(), 1U);
        EXPECT_TRUE(told[0].failed);
        if (isHandedOver)
            painter.paintNext();
        QCoreApplication::processEvents();
        EXPECT_EQ(told.size(), 1U) << "nobody is left";
        EXPECT_EQ(files(), QStringList());
        printer = std::make_unique<TRVNewsPrint>(backEnd, dialogs, window);
    }
}

TEST_F(OutputRunTest, WhatTakesLongSaysHowFarItIs) {
    int changes = 0;
    printer->setOnAwaited([&] { ++changes; });
    print(news(3));
    EXPECT_FALSE(printer->progress()) << "most prints are over before anybody could read it";
    ASSERT_TRUE(waitForJobs(1));
    ASSERT_TRUE(QTest::qWaitFor([&] { return printer->progress().has_value(); }));
    EXPECT_EQ(changes, 1);
    EXPECT_DOUBLE_EQ(*printer->progress(), 0.5) << "made, and not painted";
    painter.jobs[0].pages->painted = 3;
    EXPECT_DOUBLE_EQ(*printer->progress(), 1);
    painter.paintNext();
    EXPECT_FALSE(printer->progress());
    EXPECT_EQ(changes, 2);
}

TEST_F(OutputRunTest, LongFilesAreSavedFromTheEventLoopByteByByteAsWithinTheCall) {
    TRVSaveToFile saver(backEnd, dialogs, window);
    OutputItems items = news(300);
    for (OutputItem& item : items)
        item.story += u"新聞 \U0001F600 "_s.repeated(100'000);
    items.push_back(items[0]);
    for (const NewsFileType type : {NewsFileType::CodePage950, NewsFileType::Utf8}) {
        told.clear();
        OutputTarget later = target();
        later.type = type;
        OutputTarget atOnce = later;
        atOnce.told = nullptr;
        const NewsOutcome whole = saver.putOut(items, nullptr, atOnce);
        EXPECT_EQ(whole.count, written().size());
        const QByteArray expected = written();
        ASSERT_TRUE(QFile::remove(file));
        EXPECT_TRUE(saver.putOut(items, nullptr, later).underWay);
        EXPECT_EQ(files(), QStringList());
        ASSERT_TRUE(QTest::qWaitFor([&] { return !told.empty(); }));
        EXPECT_EQ(told[0].count, whole.count);
        EXPECT_EQ(told[0].message, whole.message);
        EXPECT_TRUE(written() == expected);
        // Stopped, the file stays as it is.
        EXPECT_TRUE(saver.putOut(news(9000), nullptr, later).underWay);
        QCoreApplication::processEvents();
        saver.stopRuns();
        ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 2; }));
        EXPECT_TRUE(told[1].failed);
        EXPECT_TRUE(written() == expected);
        EXPECT_EQ(files().size(), 1);
    }
    EXPECT_FALSE(saver.putOut(news(1), nullptr, target()).underWay) << "a short one is there at once";
}

TEST(PagePainting, StopsAPrinterInTheMiddle) {
    // A device that stands for a printer: what it is told to drop is noted.
    const QTemporaryDir folder;
    const auto device = std::make_shared<QPdfWriter>(folder.filePath(u"device"_s));
    PagesToPaint job;
    job.device = device;
    job.pages.resize(2);
    job.times = 2;
    int aborted = 0;
    job.abort = [&] { ++aborted; };
    EXPECT_EQ(paintPages(job).result, PaintResult::Complete);
    EXPECT_EQ(job.painted, 4) << "every copy counts";
    EXPECT_EQ(aborted, 0);
    job.stopped = true;
    EXPECT_EQ(paintPages(job).result, PaintResult::Stopped);
    EXPECT_EQ(aborted, 1);
}

}  // namespace wirepane
