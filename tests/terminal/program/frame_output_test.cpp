// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the desk shows beside the views, the window of breaking news, the print preview, the guide; and what
// news brings that the views have not met.
#include "host/controls/super_sheet_wnd.h"
#include "tests/support/answering.h"
#include "tests/support/grid_cells.h"
#include "tests/terminal/program/frame_fixture.h"

#include <QDateTime>
#include <QDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QUrl>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

class FrameOutputTest : public FrameFixture {
protected:
    FrameOutputTest() : FrameFixture(1200) {}
    // The window of breaking news: the one story window that is no view's.
    QDialog* storyWindow() const {
        return session->frame().findChild<QDialog*>(QString(), Qt::FindDirectChildrenOnly);
    }
    QString texts() const {
        QString all;
        for (const auto* edit : storyWindow()->findChildren<QPlainTextEdit*>())
            all += edit->toPlainText() + u'\n';
        return all;
    }
    void publish(int number, const QString& title, const QString& category = {}, bool flash = false) {
        NewsItem item;
        item.category = category;
        item.identity = title;
        item.time = host_clock::now() + number;
        item.title = title;
        if (!flash)
            item.story = u"All of "_s + title;
        EXPECT_TRUE(session->backEnd().takeIn(item));
    }
};

TEST_F(FrameOutputTest, TheLatestHeadlineStandsInAWindowOfItsOwn) {
    EXPECT_EQ(storyWindow(), nullptr);
    press(Qt::Key_B, Qt::ControlModifier);
    ASSERT_NE(storyWindow(), nullptr);
    EXPECT_TRUE(storyWindow()->isVisible());
    EXPECT_TRUE(texts().contains(u"2026/03/02"_s)) << "the newest one so far";
    publish(1, u"Rates are cut"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return texts().contains(u"All of Rates are cut"_s); }));
    publish(2, u"Flash"_s, {}, true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return texts().contains(u"This headline has no story."_s); }));
    session->setLanguage(u"zh-TW"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return storyWindow()->windowTitle() != u"News Story"_s; }));
    storyWindow()->close();
    publish(3, u"Rates are raised"_s);
    QCoreApplication::processEvents();
    EXPECT_FALSE(storyWindow()->isVisible());
    EXPECT_FALSE(texts().contains(u"raised"_s)) << "a closed window does not listen";
    EXPECT_TRUE(QTest::qWaitFor([this] { return session->frame().isActiveWindow(); }));
    press(Qt::Key_B, Qt::ControlModifier);
    EXPECT_TRUE(storyWindow()->isVisible());
    EXPECT_TRUE(texts().contains(u"Rates are raised"_s));
}

TEST_F(FrameOutputTest, ThePreviewShowsTheSelectedNews) {
    session->workspace().active()->access->sheetOf(0)->setActiveSelection(0, -1);
    answering<QDialog>([this] { press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier); },
                       [](QDialog& preview) {
                           const auto isPlaceOfOne = [&preview] {
                               const auto labels = preview.findChildren<QLabel*>();
                               return std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
                                   return label->text() == u"Page 1 of 1"_s;
                               });
                           };
                           EXPECT_TRUE(QTest::qWaitFor(isPlaceOfOne));
                           preview.reject();
                       });
}

TEST_F(FrameOutputTest, ATopicThatIsNewToTheStoreHasItsName) {
    const CSuperSheetWnd& sheet = *session->workspace().active()->access->sheetOf(0);
    const auto topic = [&sheet] { return cellText(sheet, 0, QLatin1StringView("category")); };
    publish(1, u"Zinc rises"_s, u"Metals"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return topic() == u"Metals"_s; })) << topic().toStdString();
}

TEST_F(FrameOutputTest, TheGuideIsWholeAndAllItsLinksLeadSomewhere) {
    press(Qt::Key_F1, Qt::NoModifier);
    auto* text = session->frame().findChild<QTextBrowser*>();
    ASSERT_NE(text, nullptr);
    EXPECT_TRUE(text->toPlainText().contains(u"The first five minutes"_s));
    EXPECT_EQ(text->horizontalScrollBar()->maximum(), 0) << "its pictures fit";
    const QUrl start = text->source();
    int links = 0;
    int pictures = 0;
    for (QTextBlock block = text->document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            QString target = format.anchorHref();
            if (format.isImageFormat()) {
                target = format.toImageFormat().name();
                ++pictures;
            }
            if (target.isEmpty())
                continue;
            ++links;
            EXPECT_TRUE(QFileInfo::exists(start.resolved(QUrl(target)).toLocalFile()))
                << target.toStdString();
        }
    }
    EXPECT_GT(pictures, 10);
    EXPECT_GT(links, pictures);
}

}  // namespace

}  // namespace wirepane
