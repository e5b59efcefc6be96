// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// A long session: pushed headlines, headlines sent again, other modes, services and days, with a reader who
// scrolls and reads. WIREPANE_SOAK is the number of pushes, a few thousand without it.
#include "headline_list/list_index.h"
#include "host/contract/clock.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "story/news_story_view.h"
#include "tests/news_view/soak_back_end.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QScrollBar>
#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <set>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int warrantMode = static_cast<int>(ListIndex::Warrant);

std::vector<HeadlineKey> sorted(std::vector<HeadlineKey> keys) {
    std::sort(keys.begin(), keys.end(),
              [](const HeadlineKey& a, const HeadlineKey& b) { return a.sequence < b.sequence; });
    return keys;
}

QDate dayOf(std::int64_t time) {
    return QDateTime::fromSecsSinceEpoch(time).date();
}

class Soak : public testing::Test {
protected:
    Soak() {
        backEnd.sysPath = folder.path();
        for (const unsigned char service : backEnd.services)
            backEnd.categories[service] = {{u"1"_s, u"Markets"_s}, {u"2"_s, u"Economy"_s}};
        backEnd.symbols[16] = {{u"2330"_s, u"Aster Chips"_s}, {u"6214"_s, u"Lantern Foods"_s}};
        startDay({2026, 3, 2});
        settings.values = {{u"EnabledFunctions"_s, 0x7F}, {u"SymbolID"_s, u"2330"_s}};
        view = open(frame, settings);
    }

    static std::unique_ptr<TRVNewsCtrlView> open(QWidget& frame, MemoryCfgIO& settings) {
        frame.resize(900, 500);
        auto opened = std::make_unique<TRVNewsCtrlView>(&frame);
        opened->resize(frame.size());
        opened->OnInitialUpdate();
        opened->InitialViewInfo(&settings, u"Layout"_s, 0, 0, {});
        frame.show();
        return opened;
    }

    int below(int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }
    int mode() const { return view->state()[u"mode"_s].toInt(); }
    std::vector<HeadlineKey> keys(const TRVNewsCtrlView& of, int list) const {
        return of.keysOf(list, 0, of.iGetHeadlineTableSize(list));
    }

    void startDay(const QDate& day) {
        backEnd.newsDay = day;
        host_clock::startAt(QDateTime(day, QTime(9, 30)).toSecsSinceEpoch());
    }

    // Now and then a headline of the day before, or one that was sent already.
    void push() {
        const bool again = backEnd.size() > 0 && below(8) == 0;
        const QDate day = below(50) == 0 ? backEnd.newsDay.addDays(-1) : backEnd.newsDay;
        SoakBackEnd::Item item;
        if (again) {
            item = backEnd.at(backEnd.size() - 1 - below(std::min(backEnd.size(), 400)));
            sentAgain.insert(item.headline.sequence);
        } else {
            item.headline.service = backEnd.services[static_cast<std::size_t>(below(6))];
            item.headline.sequence = backEnd.size();
            item.headline.categoryId = 1 + below(3);
            item.symbol = below(3) == 0 ? u"2330"_s : QString();
        }
        const QDate itsDay = again ? dayOf(item.headline.time) : day;
        item.headline.time = QDateTime(itsDay, QTime(0, 0)).toSecsSinceEpoch() + below(86400);
        item.headline.title = u"title %1 %2"_s.arg(item.headline.sequence).arg(below(1000));
        backEnd.store(item);
        view->RecvNewHeadLine(&item.headline, QString::number(item.headline.categoryId), item.symbol);
    }

    // The reader's headline and the first on screen keep their places while headlines arrive.
    void pushWhileReading(int count) {
        const CSuperSheetWnd* sheet = view->pGetCurrSheetView();
        sentAgain.clear();
        const int focus = sheet->cptGetFocusNdx().y();
        const int first = sheet->firstVisibleRow();
        const int focused = view->GetHeadlineTable(focus).sequence;
        const int top = view->GetHeadlineTable(first).sequence;
        for (int i = 0; i < count; ++i)
            push();
        if (focus >= 0) {
            ASSERT_EQ(view->GetHeadlineTable(sheet->cptGetFocusNdx().y()).sequence, focused);
            const auto* pane =
                qobject_cast<NewsStoryView*>(dlgItem(view.get(), ids::firstChildView + ids::storyPane));
            if (pane->list() == listOfNumber(mode())) {
                ASSERT_EQ(view->GetHeadlineTable(pane->GetHeadLinePos()).sequence, focused);
            }
        }
        // At the very end of a list the rows on screen move when one of them goes.
        const int firstNow = sheet->firstVisibleRow();
        if (first > 0 && sentAgain.count(top) == 0 && firstNow < sheet->verticalScrollBar()->maximum()) {
            ASSERT_EQ(view->GetHeadlineTable(firstNow).sequence, top);
        }
    }

    void doSomethingElse() {
        const int what = below(12);
        CSuperSheetWnd* sheet = view->pGetCurrSheetView();
        if (what < 4)
            sheet->verticalScrollBar()->setValue(below(2) * below(300));
        else if (what < 7 && sheet->rowCount() > 0)
            view->bChangeNewsPos(mode(), below(std::min(sheet->rowCount(), 200)));
        else if (what == 7 && mode() == 0)
            view->bChangeDate(backEnd.newsDay.addDays(-below(3)));
        else if (what == 8 && mode() == 0)
            view->bChangeDate(backEnd.newsDay);
        else if (what == 9)
            view->onCommand(ids::firstServiceCommand + below(4));  // the warrants have no command
        else if (what == 10)
            switchMode();
        else if (what == 11 && below(5) == 0)
            beginNextDay();
    }

    void switchMode() {
        const int modes[] = {0, 1, 2, 3, warrantMode};
        view->SwitchFunction(modes[below(5)]);
    }

    void beginNextDay() {
        startDay(backEnd.newsDay.addDays(1));
        for (const unsigned char service : backEnd.services) {
            const CMarketStatus status{service, backEnd.newsDay.toString(u"yyyyMMdd"_s).toInt()};
            view->vRecvNewMarketStatus(&status);
        }
    }

    // Before anything is read anew the lists hold what they would hold then, in their own order.
    void expectSameHeadlines(const TRVNewsCtrlView& fresh) {
        for (const int list : {0, 1, 2}) {
            std::vector<HeadlineKey> held = keys(*view, list);
            if (list == 0) {
                // Another day's list takes no pushes, the news day's takes those of other days too.
                if (view->state()[u"pickedDate"_s] != view->state()[u"newsDay"_s])
                    continue;
                std::erase_if(held,
                              [&](const HeadlineKey& key) { return dayOf(key.time) != backEnd.newsDay; });
            }
            ASSERT_TRUE(sorted(held) == sorted(keys(fresh, list)))
                << "list " << list << " at " << backEnd.size();
        }
    }

    void expectSameRows(const TRVNewsCtrlView& fresh) {
        for (const int list : {0, 1, 2, warrantMode}) {
            ASSERT_TRUE(keys(*view, list) == keys(fresh, list))
                << "list " << list << " at " << backEnd.size();
            const auto* model = view->sheetOf(list)->model();
            const auto* freshModel = fresh.sheetOf(list)->model();
            ASSERT_EQ(model->rowCount(), view->iGetHeadlineTableSize(list));
            for (int cell = 0; cell < 3 * std::min(model->rowCount(), 20); ++cell) {
                ASSERT_EQ(model->index(cell / 3, cell % 3).data(),
                          freshModel->index(cell / 3, cell % 3).data());
            }
        }
    }

    void compareWithAFreshView() {
        view->SwitchFunction(2);
        view->SwitchFunction(0);
        MemoryCfgIO saved;
        view->SaveViewInfo(&saved, u"Layout"_s, 0, 0);
        QWidget otherFrame;
        const auto fresh = open(otherFrame, saved);
        for (const int other : {1, 2, warrantMode, 0})
            fresh->SwitchFunction(other);
        const QString picked = view->state()[u"pickedDate"_s].toString();
        fresh->bChangeDate(QDate::fromString(picked, u"yyyyMMdd"_s));
        fresh->SwitchFunction(warrantMode);
        fresh->SwitchFunction(0);
        expectSameHeadlines(*fresh);
        view->InitialHeadlineTable(0);
        view->OnSelchangeComboIndex();
        view->InitialHeadlineTable(2);
        view->SwitchFunction(warrantMode);
        view->SwitchFunction(0);
        expectSameRows(*fresh);
    }

    QTemporaryDir folder;
    SoakBackEnd backEnd;
    MemoryCfgIO settings;
    QWidget frame;
    std::unique_ptr<TRVNewsCtrlView> view;
    std::set<int> sentAgain;  // in the batch under way
    std::mt19937 random{20260302};
};

}  // namespace

TEST_F(Soak, AfterALongSessionTheListsAreThoseOfAFreshView) {
    const int pushes = std::max(5000, qEnvironmentVariableIntValue("WIREPANE_SOAK"));
    view->SwitchFunction(1);
    view->SwitchFunction(2);
    view->SwitchFunction(0);
    int nextComparison = pushes / 10;
    while (backEnd.size() < pushes && !HasFatalFailure()) {
        pushWhileReading(1 + below(pushes > 100'000 ? 1000 : 60));
        if (below(2) == 0)
            QCoreApplication::processEvents();
        doSomethingElse();
        if (backEnd.size() > nextComparison) {
            compareWithAFreshView();
            nextComparison += pushes / 10;
        }
    }
    EXPECT_GT(backEnd.newsDay, QDate(2026, 3, 2)) << "several days went by";
}

}  // namespace wirepane
