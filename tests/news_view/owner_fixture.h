// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/feed_breaks.h"
#include "host/contract/cfg_io.h"
#include "host/contract/clock.h"
#include "host/views/quote_base_view.h"
#include "news_view/application_switches.h"
#include "news_view/common_parts.h"
#include "news_view/control_set.h"
#include "news_view/list_tip.h"
#include "news_view/mode_loading.h"
#include "news_view/news_services.h"
#include "news_view/view_settings.h"
#include "tests/news_view/fake_view.h"

#include <gtest/gtest.h>
#include <utility>

namespace wirepane {

// What owners of the view's work stand on, without the view: seven lists with grids on a bare window,
// services of which 1 and 2 are ticked, controls as far as a test creates them. It is 9:30 on 2 March 2026.
class OwnerTest : public testing::Test {
protected:
    struct NamingBackEnd : FakeBackEnd {
        bool BKQNEWS_bGetShortNameByService(QString& name, unsigned char service) override {
            name = QStringLiteral("S%1").arg(service);
            return true;
        }
    };

    OwnerTest() {
        host_clock::startAt(localTime(2026, 3, 2, 9, 30));
        for (const ListIndex list : {ListIndex::Symbol, ListIndex::Search, ListIndex::Relation,
                                     ListIndex::Warrant, ListIndex::WarningTerm})
            view.lists[list].setGrid(createHeadlineSheet(&view.window, QRect(0, 100, 600, 300), 0, backEnd));
        services.load(backEnd);
        services.selectInBoth(0);
        services.selectInBoth(1);
    }

    void withoutGrid(ListIndex list) {
        delete view.grid(list);
        view.lists[list].setGrid(nullptr);
    }
    void switchOn(ViewOption option) {
        MemoryCfgIO stored;
        stored.values[viewOptionTable[static_cast<std::size_t>(option)].key] = true;
        settings.options = ViewOptions::read(stored, {});
    }
    // What was asked of the back end, asked of the view, since this was called last.
    QStringList asked() { return std::exchange(backEnd.asked, {}); }
    QStringList calls() { return std::exchange(view.calls, {}); }

    NamingBackEnd backEnd;
    FakeView view{backEnd};
    TRVQuoteBaseView host;
    NewsServices services;
    ControlSet controls{host, backEnd};
    ViewSettings settings;
    ApplicationSwitches switches;
    ModeLoading loading;
    FeedBreaks breaks;
    ListTip tip{host, [] { return ListTip::Look{{}, Qt::black, Qt::white}; }};
    int newsType = 0;
    CommonParts parts{backEnd,  host,    services, view.lists, controls, settings,
                      switches, loading, breaks,   tip,        newsType};
};

}  // namespace wirepane
