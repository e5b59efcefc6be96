// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/page_font.h"
#include "host/contract/whole_file.h"
#include "output/page_printing.h"
#include "output/trv_save_to_file.h"
#include "tests/support/fake_back_end.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontInfo>
#include <QFontMetrics>
#include <QImage>
#include <QPdfWriter>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Answers instead of the user, and may do something while the dialog is open.
class Answers : public OutputDialogs {
public:
    bool askPrinter(QPrinter&, QWidget* parent) override {
        ask(parent);
        return false;
    }
    std::optional<OutputTarget> askFile(BKQuoteInterface&, QWidget* parent) override {
        ask(parent);
        return file.isEmpty() ? std::nullopt : std::optional(OutputTarget{file, NewsFileType::Utf8, {}});
    }
    void ask(QWidget* parent) {
        parents.push_back(parent);
        if (meanwhile)
            meanwhile();
    }

    QString file;
    std::vector<QWidget*> parents;
    std::function<void()> meanwhile;
};

QByteArray contents(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("-");
}

class NewsPrintTest : public testing::Test {
protected:
    // The text of a PDF file of the folder, as a reader finds it; skips the test where none is installed.
    void readPdf(const QString& name, QString& text) {
        const QString pdftotext = QStandardPaths::findExecutable(u"pdftotext"_s);
        if (pdftotext.isEmpty())
            GTEST_SKIP() << "pdftotext is not installed";
        QProcess reader;
        reader.start(pdftotext, {u"-layout"_s, path(name), u"-"_s});
        ASSERT_TRUE(reader.waitForFinished());
        text = QString::fromUtf8(reader.readAllStandardOutput());
    }
    NewsPrintTest() {
        for (std::int32_t i = 1; i <= 3; ++i)
            backEnd.add(1, localTime(2026, 3, 2, 9, i), i, u"Title %1"_s.arg(i), 0, {}, i != 2);
        tell(1, u"Body 1"_s);
    }
    CHeadlineTable entry(std::int32_t number) const {
        return {localTime(2026, 3, 2, 9, number), number, 1, 0, 0};
    }
    void tell(std::int32_t number, const QString& text) {
        backEnd.addStory({entry(number).time, text, entry(number)});
    }
    OutputItems gather(const TRVNewsPrint& job, const std::vector<std::int32_t>& numbers) const {
        std::vector<CHeadlineTable> entries;
        for (const std::int32_t number : numbers)
            entries.push_back(entry(number));
        return job.gather(entries, {1});
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    OutputTarget target(const QString& name) const { return {path(name), NewsFileType::Utf8, {}}; }
    // Lets what is put off until the event loop happen.
    static void settle() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    QTemporaryDir folder;
    FakeBackEnd backEnd;
    Answers answers;
    QWidget window;
};

}  // namespace

TEST_F(NewsPrintTest, PutsOutWhenTheLastAnswerHasCome) {
    TRVSaveToFile saver(backEnd, answers, window);
    std::vector<NewsOutcome> finished;
    saver.setOnFinished([&](const NewsOutcome& outcome) { finished.push_back(outcome); });
    OutputItems items = gather(saver, {1, 2, 3});
    ASSERT_FALSE(isSettled(items));
    backEnd.asked.clear();
    saver.wait(items, {1}, target(u"late.txt"_s));
    EXPECT_EQ(backEnd.asked, (QStringList{u"again 1 [2]"_s, u"again story 1 2"_s, u"again story 1 3"_s}));
    tell(2, u"Body 2@@@@x"_s);
    tell(3, u"Body\r\n3"_s);
    saver.RespStory(entry(2));
    saver.RespStory(entry(3));
    settle();
    EXPECT_TRUE(saver.isWaiting());
    EXPECT_FALSE(QFile::exists(path(u"late.txt"_s)));
    backEnd.makeAllAtHand();
    saver.RespHeadLine({entry(2)});
    EXPECT_FALSE(QFile::exists(path(u"late.txt"_s))) << "not within the back end's call";
    settle();
    EXPECT_FALSE(saver.isWaiting());
    const QByteArray text = contents(path(u"late.txt"_s));
    EXPECT_TRUE(text.contains("TITLETitle 1\n\nIDS_NEWSCTRLVIEW_NEWS_STORYBody 1\n\n"));
    EXPECT_TRUE(text.contains("STORY\r\n2026/03/ 2 09:02:00Body 2\r\nx\n\n"));
    EXPECT_TRUE(text.contains("STORY\r\n2026/03/ 2 09:03:00Body3\n\n"));
    ASSERT_EQ(finished.size(), 1U);
    EXPECT_EQ(finished[0].count, text.size());
}

TEST_F(NewsPrintTest, AsksOneAfterTheOtherAndLateNewsForItsOwnWindow) {
    TRVSaveToFile saver(backEnd, answers, window);
    answers.file = path(u"asked.txt"_s);
    saver.wait(gather(saver, {3}), {1}, {});
    // While the user is asked for the first, the second is completed, and a third comes.
    tell(3, u"Body 3"_s);
    QWidget dialog;
    answers.meanwhile = [&] {
        answers.meanwhile = nullptr;
        saver.RespStory(entry(3));
        settle();
        EXPECT_TRUE(saver.putOut(gather(saver, {1}), nullptr, {}).waiting);
        EXPECT_EQ(answers.parents.size(), 1U);
    };
    saver.putOut(gather(saver, {1}), &dialog, {});
    settle();
    EXPECT_EQ(answers.parents, (std::vector<QWidget*>{&dialog, &window, &window}));
    EXPECT_FALSE(saver.isWaiting());
    EXPECT_TRUE(contents(answers.file).contains("Body 3"));
}

TEST_F(NewsPrintTest, OutlivesNoOwner) {
    auto saver = std::make_unique<TRVSaveToFile>(backEnd, answers, window);
    saver->wait(gather(*saver, {2}), {1}, {});
    answers.meanwhile = [&] { saver.reset(); };
    answers.file = path(u"gone.txt"_s);
    saver->putOut(gather(*saver, {1}), nullptr, {});
    EXPECT_EQ(saver, nullptr);
    auto printer = std::make_unique<TRVNewsPrint>(backEnd, answers, window);
    answers.meanwhile = [&] { printer.reset(); };
    EXPECT_EQ(printer->putOut(gather(*printer, {1}), nullptr, {}).count, 0);
    EXPECT_EQ(printer, nullptr);
}

TEST_F(NewsPrintTest, LeavesOutWhatWillNotComeAndSaysSo) {
    backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_STRING_LEFT_OUT"_s, u"left out %1"_s);
    backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_STRING_NOTHING_TO_PUT_OUT"_s, u"nothing"_s);
    TRVSaveToFile saver(backEnd, answers, window);
    std::vector<NewsOutcome> finished;
    saver.setOnFinished([&](const NewsOutcome& outcome) { finished.push_back(outcome); });
    saver.wait(gather(saver, {1, 3}), {1}, target(u"some.txt"_s));
    saver.wait(gather(saver, {3}), {1}, target(u"some.txt"_s));
    EXPECT_EQ(saver.awaitedCount(), 2);
    tell(3, {});
    saver.RespStory(entry(3));
    EXPECT_EQ(saver.awaitedCount(), 0);
    settle();
    ASSERT_EQ(finished.size(), 2U);
    EXPECT_TRUE(finished[0].failed) << "nothing of this list came";
    EXPECT_EQ(finished[0].message, u"nothing"_s);
    EXPECT_EQ(finished[1].message, u"left out 1"_s);
    EXPECT_TRUE(contents(path(u"some.txt"_s)).contains("Body 1"));
    EXPECT_FALSE(contents(path(u"some.txt"_s)).contains("Title 3"));
    // A file that is there stays where there is nothing to write.
    EXPECT_TRUE(saver.putOut(gather(saver, {3}), nullptr, target(u"some.txt"_s)).failed);
    EXPECT_TRUE(contents(path(u"some.txt"_s)).contains("Body 1"));
    // The user cancels: nothing was put out, so nothing was left out.
    EXPECT_EQ(saver.putOut(gather(saver, {1, 3}), nullptr, {}).message, QString());
}

TEST_F(NewsPrintTest, PutsOutWhatIsReadyWithoutTheRest) {
    TRVSaveToFile saver(backEnd, answers, window);
    saver.wait(gather(saver, {1, 2, 3}), {1}, target(u"ready.txt"_s));
    saver.wait(gather(saver, {2}), {1}, target(u"none.txt"_s));
    EXPECT_EQ(saver.readyCount(), 1);
    saver.putOutReady();
    EXPECT_EQ(saver.awaitedCount(), 0);
    settle();
    EXPECT_FALSE(saver.isWaiting());
    EXPECT_TRUE(contents(path(u"ready.txt"_s)).contains("Body 1"));
    EXPECT_FALSE(QFile::exists(path(u"none.txt"_s)));
    // What has waited and is dropped is not ready later.
    saver.wait(gather(saver, {1, 3}), {1}, target(u"dropped.txt"_s));
    saver.forgetAwaited();
    EXPECT_EQ(saver.readyCount(), 0);
    saver.putOutReady();
    settle();
    EXPECT_FALSE(QFile::exists(path(u"dropped.txt"_s)));
}

TEST_F(NewsPrintTest, TellsWhatAFileCouldNotHold) {
    tell(3, u"é😀"_s);
    backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_STRING_CHARACTERS_REPLACED"_s, u"%1 in %2"_s);
    TRVSaveToFile saver(backEnd, answers, window);
    OutputTarget page = target(u"page.txt"_s);
    page.type = NewsFileType::CodePage950;
    const NewsOutcome outcome = saver.putOut(gather(saver, {3}), nullptr, page);
    EXPECT_EQ(outcome.message, u"2 in "_s + page.file);
    EXPECT_FALSE(outcome.failed);
    EXPECT_EQ(outcome.count, contents(page.file).size());
}

TEST_F(NewsPrintTest, LeavesAnOldFileWhereANewOneFails) {
    backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_STRING_SAVE_FAILED"_s, u"save %1: %2"_s);
    backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_STRING_PRINT_FAILED"_s, u"print %1: %2"_s);
    backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_STRING_NO_SUCH_PAPER"_s, u"no %1"_s);
    TRVSaveToFile saver(backEnd, answers, window);
    TRVNewsPrint printer(backEnd, answers, window);
    for (TRVNewsPrint* job : {static_cast<TRVNewsPrint*>(&saver), &printer}) {
        const QString verb = job == &saver ? u"save "_s : u"print "_s;
        for (const QString& file : {path(u"missing/folder.txt"_s), folder.path(), u"/dev/full"_s}) {
            if (file == u"/dev/full"_s && !QFile::exists(file))
                continue;
            const NewsOutcome outcome = job->putOut(gather(*job, {1}), nullptr, OutputTarget{file, {}, {}});
            EXPECT_TRUE(outcome.failed) << file.toStdString();
            EXPECT_EQ(outcome.count, 0);
            EXPECT_TRUE(outcome.message.startsWith(verb + file + u": "_s)) << outcome.message.toStdString();
            EXPECT_GT(outcome.message.size(), verb.size() + file.size() + 5) << "a reason";
        }
    }
    EXPECT_FALSE(QFileInfo(u"/dev/full"_s).isFile()) << "a device stays one";
    EXPECT_TRUE(
        printer.putOut(gather(printer, {1}), nullptr, OutputTarget{path(u"a.pdf"_s), {}, u"Z9"_s}).failed);
    EXPECT_FALSE(QFile::exists(path(u"a.pdf"_s)));
}

}  // namespace wirepane

#ifdef Q_OS_UNIX

namespace wirepane {

TEST(WholeFileTest, AFullDiskLeavesTheOldFile) {
    // A limit to the size of files stands for the disk; writes end short there, too.
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"news.txt"_s);
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const auto usual = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{50000, limit.rlim_max};
    for (const int size : {50001, 60000, 5000000}) {
        ASSERT_FALSE(writeWholeFile(file, "old"));
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
        const auto failed = writeWholeFile(file, QByteArray(size, 'x'));
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
        EXPECT_TRUE(failed && !failed->isEmpty()) << size;
        EXPECT_EQ(contents(file), QByteArray("old"));
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"news.txt"_s})
            << "nothing is left";
    }
    std::signal(SIGXFSZ, usual);
}

}  // namespace wirepane

#endif

namespace wirepane {

TEST_F(NewsPrintTest, APrinterThatIsGoneIsTold) {
    backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_STRING_PRINT_FAILED"_s, u"print %1: %2"_s);
    backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_STRING_PRINTER_GONE"_s, u"gone"_s);
    TRVNewsPrint job(backEnd, answers, window);
    const auto printer = std::make_shared<QPrinter>();
    printer->setOutputFormat(QPrinter::NativeFormat);
    printer->setPrinterName(u"No such printer"_s);
    printer->setOutputFileName({});
    const NewsOutcome outcome = printInOneGo(pagesFor(printer, backEnd), backEnd, gather(job, {1}));
    if (outcome.count > 0)
        GTEST_SKIP() << "every printer's name is taken here";
    EXPECT_TRUE(outcome.failed);
    EXPECT_TRUE(outcome.message.endsWith(u": gone"_s)) << outcome.message.toStdString();
}

TEST_F(NewsPrintTest, ThePdfHoldsTheStoriesInTheirLines) {
    backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_STRING_DETAILED_NEWS_DATA"_s, u"News Details"_s);
    // Among them characters that share their glyphs with others, or get another glyph beside some neighbours,
    // and one that ends lines.
    QStringList paragraphs;
    for (int i = 1; i <= 60; ++i)
        paragraphs.append(u"%1: "_s.arg(i) + u"0123456789"_s.repeated(11) +
                          u" 新聞稿 (1) 一人長高 official"_s);
    paragraphs.append(QString(QChar::LineSeparator));
    tell(1, paragraphs.join(u"@@@@"_s));
    TRVNewsPrint job(backEnd, answers, window);
    const OutputItems items = gather(job, {1});
    ASSERT_EQ(job.putOut(items, nullptr, target(u"news.pdf"_s)).count, 3);
    QString text;
    ASSERT_NO_FATAL_FAILURE(readPdf(u"news.pdf"_s, text));
    if (IsSkipped())
        return;
    const QStringList pages = text.split(u'\f', Qt::SkipEmptyParts);
    ASSERT_EQ(pages.size(), 3);
    const auto expected = bodyPages(items[0].story);
    for (qsizetype page = 0; page < pages.size(); ++page) {
        EXPECT_TRUE(pages[page].contains(u"News Details"_s));
        EXPECT_TRUE(pages[page].contains(u"Title 1"_s));
        QStringList found;
        for (const QString& line : pages[page].split(u'\n', Qt::SkipEmptyParts))
            found.append(line.trimmed());
        for (const QString& line : expected[static_cast<std::size_t>(page)])
            EXPECT_TRUE(line.trimmed().isEmpty() || found.contains(line.trimmed())) << line.toStdString();
    }
}

// They share their glyphs.
TEST_F(NewsPrintTest, ARadicalInAPdfLeavesTheIdeographsWhatTheyAre) {
    tell(1, u"\u2F00\u4E00 \u2F08\u4EBA \u4E00\u4EBA a\u00A0b c"_s);
    tell(3, u"\u2F45\u5411"_s);
    TRVNewsPrint job(backEnd, answers, window);
    ASSERT_EQ(job.putOut(gather(job, {1, 3}), nullptr, target(u"news.pdf"_s)).count, 2);
    QString text;
    ASSERT_NO_FATAL_FAILURE(readPdf(u"news.pdf"_s, text));
    if (IsSkipped())
        return;
    EXPECT_EQ(text.count(u'\u4E00'), 3) << text.toStdString();
    EXPECT_EQ(text.count(u'\u4EBA'), 3);
    EXPECT_FALSE(text.contains(u'\u2F00') || text.contains(u'\u2F08'));
    EXPECT_TRUE(text.contains(u"c"_s) && text.contains(u"b c"_s));
    EXPECT_TRUE(text.contains(u"\u2F45\u5411"_s)) << "alone it stays what it is";
}

TEST_F(NewsPrintTest, PagesAreSetInTwelvePointsOfTheFaceThatTheLanguageNames) {
    backEnd.texts.insert(u"IDS_SINGLETON-STRING_FONTNAME"_s,
                         u"Noto Sans Mono CJK TC, and what is too long"_s);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    for (const int resolution : {72, 600, 1200}) {
        writer.setResolution(resolution);
        TRVNewsPrint job(backEnd, answers, window);
        const auto pages = PageMaking(writer, backEnd, gather(job, {1})).allPages();
        ASSERT_EQ(pages.size(), 1U);
        EXPECT_EQ(pages[0].heading.pixelSize, resolution / 6);
        EXPECT_EQ(pages[0].title[0].pixelSize, resolution / 6) << "what fits is not made smaller";
    }
    const QFont font = pageFont(pageFamilies(backEnd), 200, Shaping::None);
    EXPECT_EQ(font.families().first(), u"Noto Sans Mono CJK TC, and what "_s.left(31));
    EXPECT_EQ(font.weight(), QFont::Normal);
}

// In the face of the program's own languages, columns stand.
TEST_F(NewsPrintTest, AChineseCharacterIsAsWideAsTwoLetters) {
    backEnd.texts.insert(u"IDS_SINGLETON-STRING_FONTNAME"_s, u"Noto Sans Mono CJK TC"_s);
    const QFontMetrics metrics(pageFont(pageFamilies(backEnd), 100, Shaping::None));
    if (!QFontInfo(pageFont(pageFamilies(backEnd), 100, Shaping::None))
             .family()
             .startsWith(u"Noto Sans Mono CJK"_s))
        GTEST_SKIP() << "the face is not installed";
    for (const QString& pair : {u"ii"_s, u"WW"_s, u"1."_s, u"  "_s, u"聞"_s, u"：　"_s.left(1), u"─"_s})
        EXPECT_EQ(metrics.horizontalAdvance(pair), 100) << pair.toStdString();
}

TEST_F(NewsPrintTest, EveryFrameIsDrawnInsideItsRectangle) {
    const QString pdftoppm = QStandardPaths::findExecutable(u"pdftoppm"_s);
    if (pdftoppm.isEmpty())
        GTEST_SKIP() << "pdftoppm is not installed";
    TRVNewsPrint job(backEnd, answers, window);
    const OutputItems items = gather(job, {1});
    ASSERT_EQ(job.putOut(items, nullptr, target(u"news.pdf"_s)).count, 1);
    constexpr int dotsPerInch = 300;
    constexpr int pdfDotsPerInch = 1200;
    constexpr int marginDots = 118;  // 10 mm
    ASSERT_EQ(QProcess::execute(pdftoppm, {u"-r"_s, QString::number(dotsPerInch), u"-gray"_s,
                                           u"-singlefile"_s, path(u"news.pdf"_s), path(u"page"_s)}),
              0);
    const QImage page(path(u"page.pgm"_s));
    ASSERT_FALSE(page.isNull());
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(pdfDotsPerInch);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                     QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter));
    const PrintedPage expected = PageMaking(writer, backEnd, items).allPages()[0];
    const PageFrames& frames = expected.frames;
    const auto onPage = [](int place) { return place * dotsPerInch / pdfDotsPerInch + marginDots; };
    for (const QRect& frame : {frames.outer, frames.inner, frames.title, frames.body, frames.footer}) {
        const int left = onPage(frame.left());
        const int right = onPage(frame.left() + frame.width());
        const int top = onPage(frame.top());
        const int bottom = onPage(frame.top() + frame.height());
        // A third of the way along, where nothing is written.
        const int x = left + 20;
        const int y = bottom - (bottom - top) / 3;
        const auto isDark = [&](int column, int row) {
            return page.valid(column, row) && qGray(page.pixel(column, row)) < 160;
        };
        // Within the frame's edge, and not beyond it; both as exactly as the dots show it.
        const auto lies = [&](auto dark) {
            return (dark(0) || dark(1) || dark(2)) && !dark(-3) && !dark(-4) && !dark(5);
        };
        EXPECT_TRUE(lies([&](int in) { return isDark(left + in, y); }));
        EXPECT_TRUE(lies([&](int in) { return isDark(right - in, y); }));
        EXPECT_TRUE(lies([&](int in) { return isDark(x, top + in); }));
        EXPECT_TRUE(lies([&](int in) { return isDark(x, bottom - in); }));
    }
    // A text stands below the top of its line.
    const PlacedText& title = expected.title[0];
    const int top = onPage(title.topLeft.y());
    bool isThere = false;
    for (int row = top; row < top + title.pixelSize * dotsPerInch / pdfDotsPerInch; ++row) {
        for (int column = onPage(title.topLeft.x()); column < page.width() / 2; ++column)
            isThere = isThere || qGray(page.pixel(column, row)) < 100;
    }
    EXPECT_TRUE(isThere);
}

}  // namespace wirepane
