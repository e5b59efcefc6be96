// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/output_dialogs.h"

#include "output/page_printing.h"
#include "tests/support/answering.h"
#include "tests/support/fake_back_end.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

TEST(OutputDialogs, AFileIsAskedForWithItsType) {
    FakeBackEnd backEnd;
    backEnd.texts = {{u"IDS_NEWSCTRLVIEW_STRING_FILE_FILTER"_s, u"Text"_s},
                     {u"IDS_NEWSCTRLVIEW_STRING_FILE_FILTER_UTF8"_s, u"Unicode"_s}};
    const QTemporaryDir folder;
    OutputDialogs dialogs;
    dialogs.proposeName(u"2026-03-02 Shares up 3/4: \"why?\""_s);
    const std::pair<QString, NewsFileType> cases[] = {{u"Text (*.txt)"_s, NewsFileType::CodePage950},
                                                      {u"Unicode (*.txt)"_s, NewsFileType::Utf8}};
    for (const auto& [filter, type] : cases) {
        std::optional<OutputTarget> target;
        answering<QFileDialog>([&] { target = dialogs.askFile(backEnd, nullptr); },
                               [&, &filter = filter](QFileDialog& dialog) {
                                   EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
                                   EXPECT_EQ(dialog.nameFilters().constFirst(), u"Text (*.txt)"_s);
                                   EXPECT_EQ(dialog.findChild<QLineEdit*>()->text(),
                                             u"2026-03-02 Shares up 3 4 why.txt"_s);
                                   dialog.selectNameFilter(filter);
                                   dialog.findChild<QLineEdit*>()->setText(folder.filePath(u"news"_s));
                                   static_cast<QDialog&>(dialog).done(QDialog::Accepted);
                               });
        ASSERT_TRUE(target);
        EXPECT_EQ(target->file, folder.filePath(u"news.txt"_s));
        EXPECT_EQ(target->type, type);
    }
    answering<QFileDialog>([&] { EXPECT_FALSE(dialogs.askFile(backEnd, nullptr)); },
                           [](QFileDialog& dialog) { dialog.reject(); });
}

TEST(OutputDialogs, APrinterIsAskedForWithoutRangesOfPages) {
    OutputDialogs dialogs;
    for (const bool accepted : {true, false}) {
        QPrinter printer;
        answering<QPrintDialog>(
            [&] { EXPECT_EQ(dialogs.askPrinter(printer, nullptr), accepted); },
            [&](QPrintDialog& dialog) {
                for (const auto range : {QPrintDialog::PrintPageRange, QPrintDialog::PrintCurrentPage,
                                         QPrintDialog::PrintSelection})
                    EXPECT_FALSE(dialog.testOption(range));
                EXPECT_TRUE(dialog.testOption(QPrintDialog::PrintCollateCopies));
                dialog.done(accepted ? QDialog::Accepted : QDialog::Rejected);
            });
        EXPECT_TRUE(printer.collateCopies());
        EXPECT_EQ(printer.outputFileName().endsWith(u".pdf"_s), QPrinterInfo::availablePrinters().isEmpty());
    }
}

}  // namespace wirepane
