// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/cfg_io.h"
#include "host/contract/clock.h"
#include "tests/news_view/fake_view.h"

#include <gtest/gtest.h>
#include <utility>

namespace wirepane {

struct OwnBackEnd {
    struct : FakeBackEnd {
        bool BKQNEWS_bGetShortNameByService(QString& name, unsigned char service) override {
            name = QStringLiteral("S%1").arg(service);
            return true;
        }
    } own;
};

// What owners of the view's work stand on, without the view: seven lists with grids on a bare window,
// services of which 1 and 2 are ticked, controls as far as a test creates them. It is 9:30 on 2 March 2026.
class OwnerTest : public testing::Test, private OwnBackEnd, protected FakeView {
protected:
    OwnerTest() : FakeView(own) {
        host_clock::startAt(localTime(2026, 3, 2, 9, 30));
        for (const ListIndex list : {ListIndex::Symbol, ListIndex::Search, ListIndex::Relation,
                                     ListIndex::Warrant, ListIndex::WarningTerm})
            lists[list].setGrid(
                createHeadlineSheet(&window, QRect(0, 100, 600, 300), NewsType::Full, backEnd));
        services.selectInBoth(1);
    }

    void withoutGrid(ListIndex list) {
        delete view.grid(list);
        lists[list].setGrid(nullptr);
    }
    void switchOn(ViewOption option) {
        MemoryCfgIO stored;
        stored.values[viewOptionTable[static_cast<std::size_t>(option)].key] = true;
        settings.options = ViewOptions::read(stored, {});
    }
    // What was asked of the back end, asked of the view, since this was called last.
    QStringList asked() { return std::exchange(backEnd.asked, {}); }
    QStringList calls() { return std::exchange(view.calls, {}); }
    // What is asked of the back end for a table of the ticked services.
    static QStringList bothTables(const QString& table) {
        return {QStringLiteral("table 1 ") + table, QStringLiteral("table 2 ") + table};
    }

    FakeView& view = *this;
    const CommonParts parts = FakeView::parts();
};

}  // namespace wirepane
