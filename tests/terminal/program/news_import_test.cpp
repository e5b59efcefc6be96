// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// News that the user takes in by the menu, while the terminal goes on.
#include "terminal/session/news_import.h"

#include "host/controls/super_sheet_wnd.h"
#include "terminal/frame/import_report_dialog.h"
#include "terminal/translations/shown_text.h"
#include "tests/support/accessible_names.h"
#include "tests/support/chinese_text.h"
#include "tests/terminal/program/frame_fixture.h"
#include "tests/terminal/program/script_client.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

const QString newsTime = u"2026-03-02T01:00:00Z"_s;

class NewsImportTest : public FrameFixture {
protected:
    NewsImportTest() : FrameFixture(1200) {}

    // What the report says, headline first, once it is there; closes it.
    QString report() {
        ImportReportDialog* dialog = nullptr;
        const bool shown = QTest::qWaitFor(
            [&] {
                dialog = session->frame().findChild<ImportReportDialog*>();
                return dialog != nullptr && dialog->isVisible();
            },
            30000);
        if (!shown)
            return {};
        EXPECT_GT(checkAccessibleNames(*dialog), 0);
        QString said;
        for (const auto* label : dialog->findChildren<QLabel*>())
            said += label->text();
        if (const auto* details = dialog->findChild<QPlainTextEdit*>())
            said += u'\n' + details->toPlainText();
        dialog->findChild<QPushButton*>()->click();
        EXPECT_TRUE(
            QTest::qWaitFor([this] { return session->frame().findChild<ImportReportDialog*>() == nullptr; }));
        return said;
    }
    QProgressDialog* shownProgress() {
        auto* progress = session->frame().findChild<QProgressDialog*>();
        return progress != nullptr && progress->isVisible() ? progress : nullptr;
    }
    int rows() { return session->workspace().active()->access->sheetOf(0)->rowCount(); }
};

TEST_F(NewsImportTest, TellsWhatCameOfIt) {
    struct Case {
        QString store;
        QString file;
        QString program;
        QStringList told;
    };
    const QString store = session->storePath();
    const QString good =
        scratch.write(u"good.jsonl"_s, ninjsItem(u"u:1"_s, u"Good"_s, u"Story"_s, newsTime) + '\n');
    const QString mixed = scratch.write(
        u"mixed.jsonl"_s, ninjsItem(u"u:2"_s, u"Good too"_s, u"Story"_s, newsTime) + "\n{\"uri\": broken\n");
    const QString noProgram = scratch.path(u"no-program"_s);
    const QString noStore = scratch.write(u"no-store"_s, "This is no store at all. "_ba.repeated(100));
    const QString old = scratch.write(
        u"old.jsonl"_s, ninjsItem(u"u:old"_s, u"Old"_s, u"Story"_s, u"1987-03-02T09:00:00Z"_s) + '\n');
    const QString hopeless = scratch.write(u"hopeless.jsonl"_s, "{\"uri\": broken\n"_ba.repeated(20'000));
    const Case cases[] = {
        {store, good, programFile(), {u"import is finished.\n1 taken in, 0 already there, 0 rejected"_s}},
        {store, good, programFile(), {u"import is finished.\n0 taken in, 1 already there, 0 rejected"_s}},
        {store,
         mixed,
         programFile(),
         {u"not everything"_s, u"\n1 taken in, 0 already there, 1 rejected\n"_s, mixed + u": line 2: "_s}},
        {store, hopeless, programFile(), {u"20000 rejected\n"_s, u"And "_s, u" more lines"_s}},
        {store, old, programFile(), {u"1 taken in"_s, u"255 days"_s}},
        {store, scratch.path(u"missing"_s), programFile(), {u"The import failed."_s, u"missing: "_s}},
        {noStore, good, programFile(), {u"The import failed."_s, u"no-store"_s}},
        {store, good, noProgram, {u"could not be started"_s, noProgram}},
    };
    const int before = rows();
    for (const Case& c : cases) {
        NewsImport import(c.store, session->frame(), c.program, {});
        import.takeIn({c.file});
        const QString said = report();
        for (const QString& told : c.told)
            EXPECT_TRUE(said.contains(told)) << qPrintable(said);
        // What is old is so for the terminal's present moment.
        EXPECT_EQ(said.contains(u"255 days"_s), c.file == old) << qPrintable(said);
        EXPECT_FALSE(said.contains(u"--now"_s)) << "is for the console";
    }
    // That of 1987 is not for the list of the day.
    EXPECT_TRUE(QTest::qWaitFor([&] { return rows() == before + 2; })) << rows() - before;
}

TEST_F(NewsImportTest, OldNewsIsReadAtItsMomentByAButtonOfTheReport) {
    ImportReportDialog report(u"Done"_s, {}, true);
    report.offerReadingAsOf(QDateTime(QDate(1987, 3, 3), QTime(17, 0)));
    auto* button = qobject_cast<QPushButton*>(report.focusWidget());
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->text(), u"&Read as of 3 March 1987"_s);
    QObject::connect(&report, &ImportReportDialog::readAsOfAsked, session.get(),
                     [this](std::int64_t moment) { EXPECT_TRUE(session->readAsOf(moment)); });
    button->click();
    EXPECT_EQ(session->workspace().active()->access->state()[u"newsDay"_s].toInt(), 19870303);
}

TEST_F(NewsImportTest, SaysInTheLanguageOfTheTerminalWhatIsWrong) {
    ASSERT_TRUE(session->setLanguage(u"zh-TW"_s));
    const QString file = scratch.write(
        u"x"_s, ninjsItem(u"u:4"_s, u"Good"_s, u"Story"_s, newsTime) + "\n{\"uri\": broken\n[]\n");
    NewsImport import(session->storePath(), session->frame(), programFile(), {});
    import.takeIn({file});
    const QString said = report();
    EXPECT_EQ(strangeParts(QString(said).remove(file), u"zh-TW"_s), QStringList()) << qPrintable(said);
}

TEST_F(NewsImportTest, ALongOneCanBeCancelledAndLeavesWholeFiles) {
    constexpr int many = 200000;
    const QString first =
        scratch.write(u"first.jsonl"_s, ninjsItem(u"u:first"_s, u"First"_s, u"Story"_s, newsTime) + '\n');
    QByteArray lines;
    for (int i = 0; i < many; ++i)
        lines += R"({"uri":"u:)" + QByteArray::number(i) +
                 R"(","type":"text","versioncreated":"2026-03-02T02:00:00Z","headline":"Long"})" + '\n';
    const QString second = scratch.write(u"second.jsonl"_s, lines);
    const int before = rows();
    NewsImport import(session->storePath(), session->frame(), programFile(), {});
    import.takeIn({first, second});
    EXPECT_EQ(shownProgress(), nullptr) << "not at once";
    ASSERT_TRUE(QTest::qWaitFor([&] { return shownProgress() != nullptr; }));
    EXPECT_GT(checkAccessibleNames(*shownProgress()), 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return rows() == before + 1; })) << "the terminal goes on";
    // Asked for again, it only shows what is running.
    shownProgress()->hide();
    import.ask();
    ASSERT_NE(shownProgress(), nullptr);
    shownProgress()->findChild<QPushButton*>()->click();
    EXPECT_TRUE(report().contains(u"cancelled"_s));
    EXPECT_EQ(session->frame().findChild<QProgressDialog*>(), nullptr);
    EXPECT_EQ(rows(), before + 1);
}

TEST(NewsImportSession, FilesArePickedByKeyboardAndTheirNewsStandsInTheList) {
    const Scratch scratch;
    // A name that looks like an option.
    const QString file =
        scratch.write(u"--help"_s, ninjsItem(u"u:1"_s, u"By the menu"_s, u"Story"_s, newsTime) + '\n');
    ScriptClient script({u"--store"_s, scratch.path(u"news.wirepane"_s), u"--config"_s,
                         scratch.path(u"config"_s), u"--now"_s, u"2026-03-02T09:30:00"_s, u"--lang"_s,
                         u"en"_s});
    script.result(u"view.open"_s, QJsonObject{{u"mask"_s, 1}});
    script.result(u"input.key"_s, QJsonObject{{u"key"_s, u"Ctrl+O"_s}});
    ASSERT_EQ(script.result(u"dialog.state"_s)[u"class"_s].toString(), u"QFileDialog"_s);
    script.result(u"input.type"_s, QJsonObject{{u"text"_s, file}});
    script.result(u"input.key"_s, QJsonObject{{u"key"_s, u"Return"_s}});
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return script.result(u"dialog.state"_s)[u"class"_s].toString().endsWith(u"ImportReportDialog"_s);
    }));
    QStringList titles;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        titles = titlesOf(script.result(u"grid.read"_s, QJsonObject{{u"list"_s, 0}}).toObject());
        return titles.size() == 1;
    }));
    EXPECT_EQ(titles, QStringList{u"By the menu"_s});
}

// A path from the current folder that looks like an option, and the terminal's end while news is taken in.
TEST(ImportRunner, TakesRelativePathsAndEndsItsProgram) {
    const Scratch scratch;
    scratch.write(u"--help"_s, ninjsItem(u"u:1"_s, u"Good"_s, u"Story"_s, newsTime) + '\n');
    const QString here = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(scratch.path(QString())));
    {
        ImportRunner runner(programFile());
        ImportOutcome outcome{ImportOutcome::Failed, {}};
        QObject::connect(&runner, &ImportRunner::finished, &runner,
                         [&outcome](const ImportOutcome& came) { outcome = came; });
        runner.start(u"-store"_s, {u"--help"_s});
        EXPECT_TRUE(QTest::qWaitFor([&] { return !runner.isRunning(); }, 30000));
        EXPECT_EQ(outcome.kind, ImportOutcome::Complete)
            << qPrintable(shownText(outcome.said.empty() ? QJsonValue() : outcome.said.front()));
        EXPECT_TRUE(QFile::exists(scratch.path(u"-store"_s)));
        runner.start(u"-store"_s, {u"--help"_s});
        EXPECT_TRUE(runner.isRunning());
    }
    EXPECT_TRUE(QDir::setCurrent(here));
}

}  // namespace

}  // namespace wirepane
