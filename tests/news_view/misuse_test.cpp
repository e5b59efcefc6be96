// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/news_view/view_fixture.h"

#include <thread>

namespace wirepane {

namespace {

// A view that its host has created and nothing more.
class MisuseTest : public NewsViewTest {
protected:
    MisuseTest() {
        // Each of them ends a copy of this program, which has threads.
        testing::GTEST_FLAG(death_test_style) = "threadsafe";
        view = std::make_unique<TRVNewsCtrlView>(&frame);
    }
    void initialise(TRVCfgIO2* reader) { view->InitialViewInfo(reader, QStringLiteral("Layout"), 0, 0, {}); }
    void start() {
        view->OnInitialUpdate();
        initialise(&settings);
    }
    void save(TRVCfgIO2* writer) { view->SaveViewInfo(writer, QStringLiteral("Layout"), 0, 0); }
};

struct TellingBackEnd : FakeBackEnd {
    using BKQuoteInterface::forEachReceiver;
};

using MisuseDeathTest = MisuseTest;

TEST_F(MisuseDeathTest, CallsInAnotherOrderAreNamed) {
    EXPECT_DEATH(initialise(&settings), "wirepane: .*InitialViewInfo was called before OnInitialUpdate");
    EXPECT_DEATH(save(&settings), "wirepane: .*SaveViewInfo was called before InitialViewInfo");
    view->OnInitialUpdate();
    EXPECT_DEATH(view->OnInitialUpdate(), "wirepane: .*OnInitialUpdate was called twice");
    initialise(&settings);
    EXPECT_DEATH(initialise(&settings), "wirepane: .*InitialViewInfo was called twice");
}

TEST_F(MisuseDeathTest, WhatIsMissingIsNamed) {
    view->OnInitialUpdate();
    EXPECT_DEATH(initialise(nullptr), "wirepane: .*no reader of settings");
    initialise(&settings);
    EXPECT_DEATH(save(nullptr), "wirepane: .*nowhere to write");
}

TEST_F(MisuseDeathTest, AnotherThreadIsNamed) {
    start();
    const auto elsewhere = [](const auto& call) { std::thread(call).join(); };
    const auto tell = [] { TellingBackEnd().forEachReceiver([](NewsReceiver&) {}); };
    EXPECT_DEATH(elsewhere(tell), "wirepane: .*ForEachReceiver.*another thread");
    EXPECT_DEATH(elsewhere([this] { backEnd.detach(view.get()); }), "wirepane: .*Detach.*another thread");
    EXPECT_DEATH(elsewhere([this] { save(&settings); }), "wirepane: .*SaveViewInfo.*another thread");
}

}  // namespace

}  // namespace wirepane
