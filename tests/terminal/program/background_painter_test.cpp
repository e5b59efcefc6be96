// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/background_painter.h"

#include <QDir>
#include <QFile>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

std::shared_ptr<PagesToPaint> pagesInto(const QString& file, std::size_t count) {
    auto pages = std::make_shared<PagesToPaint>();
    pages->file = file;
    pages->layout = QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(10, 10, 10, 10));
    pages->families = {u"DejaVu Sans"_s};
    PrintedPage page;
    page.body.assign(49, PlacedText{QPoint(100, 100), u"Rates rise 運價"_s, 200});
    pages->pages.assign(count, page);
    return pages;
}

class BackgroundPainterTest : public testing::Test {
protected:
    QString path(const QString& name) const { return folder.filePath(name); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir folder;
    std::unique_ptr<BackgroundPainter> painter = std::make_unique<BackgroundPainter>();
};

}  // namespace

TEST_F(BackgroundPainterTest, PaintsOneAfterTheOtherAndTellsOnTheThreadThatAsked) {
    QStringList told;
    for (const QString& name : {u"a.pdf"_s, u"missing/b.pdf"_s, u"c.pdf"_s}) {
        painter->paint(pagesInto(path(name), 20), [&told, name](const PaintOutcome& outcome) {
            EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
            told.append(outcome.result == PaintResult::Complete ? name : u"failed: "_s + name);
            EXPECT_EQ(outcome.result == PaintResult::Complete, outcome.why.isEmpty());
        });
    }
    EXPECT_EQ(told, QStringList()) << "not within the call";
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 3; }));
    EXPECT_EQ(told, (QStringList{u"a.pdf"_s, u"failed: missing/b.pdf"_s, u"c.pdf"_s}));
    EXPECT_EQ(files(), (QStringList{u"a.pdf"_s, u"c.pdf"_s}));
}

TEST_F(BackgroundPainterTest, GoesInTheMiddleOfAPageWithoutAHalfFile) {
    const auto first = pagesInto(path(u"first.pdf"_s), 20'000);
    const auto second = pagesInto(path(u"second.pdf"_s), 1);
    for (const auto& pages : {first, second})
        painter->paint(pages, [](const PaintOutcome&) { ADD_FAILURE() << "nobody is left to tell"; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return first->painted > 0; }));
    painter.reset();
    QCoreApplication::processEvents();
    EXPECT_LT(first->painted, first->count());
    EXPECT_EQ(second->painted, 0);
    EXPECT_EQ(files(), QStringList());
}

}  // namespace wirepane
