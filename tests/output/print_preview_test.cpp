// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The window of the pages before they are printed.
#include "output/print_preview.h"

#include "output/page_printing.h"
#include "output/page_view.h"
#include "output/trv_save_to_file.h"
#include "tests/support/answering.h"
#include "tests/support/fake_back_end.h"
#include "tests/support/held_painter.h"

#include <QLabel>
#include <QPrinter>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <tuple>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int pageCount = 12;

class PrintPreviewTest : public testing::Test {
protected:
    PrintPreviewTest() {
        item.title = u"Title"_s;
        item.story = u"line\r\n"_s.repeated(49 * pageCount);
        item.hasTitle = item.hasStory = true;
        backEnd.texts = {{u"IDS_NEWSCTRLVIEW_PREVIEW_PAGE"_s, u"%1 of %2"_s}};
    }
    void open() {
        preview = std::make_unique<PrintPreview>(backEnd, OutputItems{item}, nullptr);
        preview->resize(1600, 600);
        preview->show();
        view = preview->findChild<PageView*>();
        EXPECT_EQ(view->currentPage(), 0) << "it opens before its pages are made";
        EXPECT_TRUE(QTest::qWaitFor([this] { return view->pageCount() > 0; }));
    }
    QStringList labels() const {
        QStringList texts;
        for (const QLabel* label : preview->findChildren<QLabel*>())
            texts += label->text();
        return texts;
    }
    // How much of the view's rows is paper.
    int paperRows() const {
        const QImage seen = view->viewport()->grab().toImage();
        int rows = 0;
        for (int y = 0; y < seen.height(); ++y)
            rows += seen.pixelColor(seen.width() / 2, y) == Qt::white ? 1 : 0;
        return rows;
    }

    FakeBackEnd backEnd;
    OutputItem item;
    std::unique_ptr<PrintPreview> preview;
    PageView* view = nullptr;
};

TEST_F(PrintPreviewTest, KeysGoFromPageToPageAndTheWindowSaysWhere) {
    open();
    ASSERT_EQ(view->pageCount(), pageCount);
    const std::tuple<Qt::Key, int, const char*> steps[] = {{Qt::Key_PageDown, 2, "the next"},
                                                           {Qt::Key_End, pageCount, "the last"},
                                                           {Qt::Key_PageDown, pageCount, "none behind it"},
                                                           {Qt::Key_PageUp, pageCount - 1, "the one before"},
                                                           {Qt::Key_Home, 1, "the first"},
                                                           {Qt::Key_PageUp, 1, "none before it"}};
    for (const auto& [key, page, what] : steps) {
        QTest::keyClick(view, key);
        EXPECT_EQ(view->currentPage(), page) << what;
        EXPECT_TRUE(labels().contains(u"%1 of %2"_s.arg(page).arg(pageCount))) << what;
    }
}

TEST_F(PrintPreviewTest, TheSizeFollowsTheWindowUntilItIsChosen) {
    open();
    const double wide = view->zoom();
    preview->resize(1800, 600);
    QCoreApplication::processEvents();
    EXPECT_GT(view->zoom(), wide);
    QTest::keyClick(view, Qt::Key_End);
    view->setFit(PageView::Fit::WholePage);
    EXPECT_EQ(view->currentPage(), pageCount) << "the page in sight stays";
    EXPECT_GT(paperRows(), view->viewport()->height() * 3 / 4) << "a whole page is in sight";
    view->zoomBy(2);
    const double chosen = view->zoom();
    preview->resize(1600, 500);
    QCoreApplication::processEvents();
    EXPECT_DOUBLE_EQ(view->zoom(), chosen);
    for (const double factor : {1e9, 1e-9, 0.0}) {
        view->zoomBy(factor);
        EXPECT_GE(view->zoom(), 0.09);
        EXPECT_LE(view->zoom(), 5.01);
        EXPECT_GT(paperRows(), 0);
    }
}

TEST_F(PrintPreviewTest, APageStandsOnItsPaperAsItIsPrinted) {
    open();
    view->setFit(PageView::Fit::WholePage);
    const QImage seen = view->viewport()->grab().toImage();
    QPrinter printer(QPrinter::HighResolution);
    const PageView::Paper paper = PageView::paperOf(printer);
    const QRect outer = PageMaking(printer, backEnd, {item}).allPages().front().frames.outer;
    const double scale = view->zoom() * view->logicalDpiY() / paper.dotsPerInch;
    const auto firstFrom = [&](int x, const std::function<bool(const QColor&)>& is) {
        while (x < seen.width() && !is(seen.pixelColor(x, seen.height() / 2)))
            ++x;
        return x;
    };
    const int left = firstFrom(0, [](const QColor& colour) { return colour == Qt::white; });
    const int frame = firstFrom(left, [](const QColor& colour) { return colour != Qt::white; });
    EXPECT_NEAR(frame - left, (paper.printable.x() + outer.x()) * scale, 1.5);
}

TEST_F(PrintPreviewTest, PrintPrintsWhatIsShown) {
    class Agrees : public OutputDialogs {
        bool askPrinter(QPrinter& printer, QWidget*) override {
            printer.setOutputFileName(u"never written.pdf"_s);
            return true;
        }
    };
    Agrees dialogs;
    QWidget window;
    HeldPainter painter;
    TRVNewsPreview previews(backEnd, dialogs, window);
    for (const bool prints : {false, true}) {
        answering<PrintPreview>([&] { previews.putOut({item}, nullptr, std::nullopt); },
                                [&](PrintPreview& dialog) { prints ? dialog.accept() : dialog.reject(); });
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return !painter.jobs.empty(); }));
    EXPECT_EQ(painter.jobs.size(), 1U) << "what is only looked at is not printed";
    EXPECT_EQ(painter.jobs[0].pages->count(), pageCount);
}

}  // namespace

}  // namespace wirepane
