// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// A key set that is tried before it is saved, worked with mouse and keys.
#include "host/controls/rehearsal_dlg.h"

#include "search/news_key_search_dlg.h"
#include "search/search_ids.h"
#include "tests/search/dialog_fixture.h"

#include <QDateTime>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

class FakeRehearsals : public KeySetRehearsal {
public:
    std::shared_ptr<const void> rehearseKeySet(KeySet, Told whenDone) override {
        told = std::move(whenDone);
        auto kept = std::make_shared<int>();
        watched = kept;
        return kept;
    }
    Told told;
    std::weak_ptr<int> watched;
};

class RehearsalDialog : public DialogTest {
protected:
    RehearsalDialog() {
        backEnd.texts[u"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_SUMMARY"_s] = u"%1 of %2"_s;
        backEnd.texts[u"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BUSIEST"_s] = u"%1: %2"_s;
        backEnd.texts[u"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_OVER"_s] = u"over: %1"_s;
        backEnd.texts[u"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_WITHIN"_s] = u"within"_s;
        dialog = std::make_unique<RehearsalDlg>(rehearsals, KeySetRehearsal::KeySet(), 40, nullptr);
        show(*dialog);
    }
    QString textOf(int id) const { return at<QLabel>(id).text(); }

    FakeRehearsals rehearsals;
    std::unique_ptr<RehearsalDlg> dialog;
    const std::int64_t hour = QDateTime({2026, 3, 2}, {9, 0}).toSecsSinceEpoch();
};

TEST_F(RehearsalDialog, ShowsTheFiguresAndWarnsOfHoursOverTheBudget) {
    Rehearsal found;
    found.tried = 500;
    found.hits = {{hour + 60, 7, 1}, {hour, 6, 1}};
    found.titles = QStringList{u"title 7"_s, u"title 6"_s};
    found.days = {{{2026, 3, 1}, 0}, {{2026, 3, 2}, 2}};
    found.hours = {{hour, 30}, {hour - 3600, 12}};
    found.bringing = {{u"GOLD"_s, 2}};
    found.exclusions = {{u"price"_s, 1}};
    rehearsals.told(found);
    EXPECT_EQ(textOf(rehearsal_ids::summary), u"2 of 500\n2026/03/02 09:00: 30"_s);
    EXPECT_EQ(rows(rehearsal_ids::days), (QStringList{u"2|2026/03/02"_s, u"0|2026/03/01"_s}));
    EXPECT_EQ(rows(rehearsal_ids::words), QStringList{u"2|GOLD"_s});
    EXPECT_EQ(rows(rehearsal_ids::exclusions), QStringList{u"1|price"_s});
    EXPECT_EQ(rows(rehearsal_ids::hits),
              (QStringList{u"2026/03/02 09:01|title 7"_s, u"2026/03/02 09:00|title 6"_s}));
    EXPECT_EQ(textOf(rehearsal_ids::warning), u"within"_s) << dialog->hitsAnHour();
    const std::pair<int, QString> budgets[] = {{20, u"over: 1"_s}, {11, u"over: 2"_s}, {30, u"within"_s}};
    for (const auto& [budget, warning] : budgets) {
        at<QSpinBox>(rehearsal_ids::budget).setValue(budget);
        EXPECT_EQ(textOf(rehearsal_ids::warning), warning) << budget;
    }
}

TEST_F(RehearsalDialog, SaysWhatCannotBeReadAndStopsWhenItIsClosed) {
    rehearsals.told(std::nullopt);
    EXPECT_EQ(textOf(rehearsal_ids::summary), u"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_FAILED"_s);
    EXPECT_FALSE(rehearsals.watched.expired());
    dialog.reset();
    EXPECT_TRUE(rehearsals.watched.expired());
}

TEST_F(DialogTest, TriesTheKeySetThatIsBeingComposedOrSaysWhatItLacks) {
    CNewsKeySearchDlg keySets({}, CategoryMap{{3, u"Markets"_s}}, {}, nullptr);
    std::vector<CNewsKey> tried;
    keySets.offerRehearsal([&](const CNewsKey& keySet) { tried.push_back(keySet); });
    show(keySets);
    answerBox(u"IDS_DIALOG-DEAL-SEARCH_ERROR_NEWSTYPE"_s, QMessageBox::Ok,
              [this] { click(search_ids::rehearseKeySet); });
    EXPECT_TRUE(tried.empty());
    click(search_ids::allNewsTypes);
    type(search_ids::keywordEdit, u"GOLD"_s);
    click(search_ids::addTyped);
    click(search_ids::rehearseKeySet);
    ASSERT_EQ(tried.size(), 1U);
    EXPECT_EQ(tried.front(), CNewsKey(CNewsKey::all, {3}, {u"GOLD"_s}));
    EXPECT_TRUE(keySets.composedKeySets().empty()) << "it is not saved by that";
}

}  // namespace
}  // namespace wirepane
