// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/rows_export.h"

#include "tests/support/fake_back_end.h"

#include <QProgressDialog>
#include <QWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Notes what is to be written, and lets the test say what comes of it.
class RowsBackEnd : public FakeBackEnd, public NewsRowFiles {
public:
    std::shared_ptr<const void> writeRowFile(std::vector<CHeadlineTable> wanted, NewsRowForm wantedForm,
                                             const QString&, Tellers told) override {
        entries = std::move(wanted);
        form = wantedForm;
        tellers = std::move(told);
        return kept;
    }
    bool isKept() const { return kept.use_count() > 1; }

    std::vector<CHeadlineTable> entries;
    NewsRowForm form = NewsRowForm::Csv;
    Tellers tellers;
    std::shared_ptr<int> kept = std::make_shared<int>();
};

}  // namespace

TEST(RowsExport, WritesByTheEndingOfTheNameAndTellsWhatCameOfIt) {
    RowsBackEnd backEnd;
    backEnd.texts[u"IDS_NEWSCTRLVIEW_EXPORT_WRITTEN"_s] = u"%1 in %2"_s;
    backEnd.texts[u"IDS_NEWSCTRLVIEW_EXPORT_NOT_WRITTEN"_s] = u"%1 not: %2"_s;
    backEnd.texts[u"IDS_NEWSCTRLVIEW_EXPORT_STOPPED"_s] = u"stopped"_s;
    QWidget window;
    QStringList told;
    QStringList saved;
    RowsExport rows(backEnd, window,
                    {[&](const QString& sentence) { told += sentence; },
                     [&](const std::vector<CHeadlineTable>&, const OutputTarget& target) {
                         EXPECT_EQ(target.type, NewsFileType::Utf8);
                         saved += target.file;
                     }});
    const std::vector<CHeadlineTable> entries(1200);
    rows.write(entries, u"a.txt"_s);
    EXPECT_EQ(saved, QStringList{u"a.txt"_s});
    rows.write(entries, u"a.ndjson"_s);
    EXPECT_EQ(backEnd.form, NewsRowForm::Ninjs);
    EXPECT_EQ(backEnd.entries.size(), 1200U);
    backEnd.tellers.progress(600);
    auto* progress = window.findChild<QProgressDialog*>();
    ASSERT_NE(progress, nullptr);
    EXPECT_EQ(progress->value(), 600);
    backEnd.tellers.end({RowFileOutcome::End::Written, 1199, 5000, {}});
    EXPECT_FALSE(backEnd.isKept());
    EXPECT_EQ(window.findChild<QProgressDialog*>(), nullptr);
    rows.write(entries, u"b.json"_s);
    backEnd.tellers.end({RowFileOutcome::End::NotWritten, 0, 0, u"full"_s});
    rows.write(entries, u"b.csv"_s);
    EXPECT_TRUE(backEnd.isKept());
    EXPECT_FALSE(rows.isPossible()) << "one at a time";
    emit window.findChild<QProgressDialog*>()->canceled();
    EXPECT_FALSE(backEnd.isKept());
    EXPECT_EQ(told, (QStringList{u"1,199 in a.ndjson"_s, u"b.json not: full"_s, u"stopped"_s}));
}

}  // namespace wirepane
