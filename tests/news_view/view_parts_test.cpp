// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/cfg_io.h"
#include "host/contract/ini_file.h"
#include "host/views/quote_base_view.h"
#include "news_view/application_switches.h"
#include "news_view/category_catalogue.h"
#include "news_view/mode_loading.h"
#include "news_view/news_services.h"
#include "news_view/view_settings.h"
#include "tests/support/fake_back_end.h"

#include <gtest/gtest.h>

namespace wirepane {

namespace {

const ViewSettingPath path{QStringLiteral("Layout"), 0, 0, QStringLiteral("TRVNewsCtrlView")};

std::vector<unsigned char> ticked(const std::vector<ServiceEntry>& entries) {
    std::vector<unsigned char> ids;
    for (const ServiceEntry& entry : entries) {
        if (entry.selected)
            ids.push_back(entry.service);
    }
    return ids;
}

using Ids = std::vector<unsigned char>;

}  // namespace

TEST(NewsServices, WhatWasStoredIsTicked) {
    struct Case {
        const char* what;
        QMap<QString, QVariant> stored;
        Ids ticked;
        bool ticksUnknown = false;
    };
    const Case cases[] = {
        {"what came since then",
         {{QStringLiteral("Sheet0ServiceCheck1"), true},
          {QStringLiteral("Sheet0ServiceCheck2"), false},
          {QStringLiteral("Sheet1ServiceCheck16"), false}},
         {1, 22, 122},
         true},
        {"nothing stored: all but the warrant service", {}, {1, 2, 16, 22, 122}},
        {"ticked on any sheet",
         {{QStringLiteral("Sheet0ServiceCheck1"), true},
          {QStringLiteral("Sheet2ServiceCheck16"), true},
          {QStringLiteral("Sheet1ServiceCheck1"), false}},
         {1, 16}},
        {"a stored false is a stored choice", {{QStringLiteral("Sheet0ServiceCheck1"), false}}, {}},
        {"the warrant service when stored", {{QStringLiteral("Sheet0ServiceCheck52"), true}}, {52}},
        {"a service that no longer exists",
         {{QStringLiteral("Sheet0ServiceCheck99"), true}},
         {1, 2, 16, 22, 122}},
        {"no boolean",
         {{QStringLiteral("Sheet0ServiceCheck1"), QStringList{QStringLiteral("x")}}},
         {1, 2, 16, 22, 122}},
    };
    for (const Case& c : cases) {
        FakeBackEnd backEnd;
        TRVQuoteBaseView view;
        MemoryCfgIO reader;
        reader.values = c.stored;
        NewsServices services;
        services.load(backEnd);
        services.vInitialNewsService(reader, path, view, c.ticksUnknown);
        EXPECT_EQ(ticked(services.currentServices()), c.ticked) << c.what;
        EXPECT_EQ(ticked(services.savedServices()), c.ticked) << c.what;
        EXPECT_EQ(Ids(backEnd.registrations[&view].begin(), backEnd.registrations[&view].end()), c.ticked)
            << c.what;
        EXPECT_EQ(services.indexOfWarrants(), 4);
        EXPECT_EQ(services.currentServices().front().date, 20260302);
    }
}

TEST(NewsServices, ModesLookAtTheirServices) {
    FakeBackEnd backEnd;
    TRVQuoteBaseView view;
    MemoryCfgIO reader;
    reader.values[QStringLiteral("Sheet0ServiceCheck2")] = true;
    NewsServices services;
    services.load(backEnd);
    services.vInitialNewsService(reader, path, view);
    for (const ListIndex mode : {ListIndex::All, ListIndex::Category, ListIndex::Symbol, ListIndex::Relation})
        EXPECT_EQ(services.activeServices(mode), Ids{2}) << static_cast<int>(mode);
    for (const ListIndex mode : {ListIndex::Search, ListIndex::WarningTerm})
        EXPECT_EQ(services.activeServices(mode), backEnd.services) << static_cast<int>(mode);
    EXPECT_EQ(services.activeServices(ListIndex::Warrant), Ids{52});

    backEnd.services = {1, 2};
    services.load(backEnd);
    EXPECT_EQ(services.indexOfWarrants(), -1);
    EXPECT_EQ(services.activeServices(ListIndex::Warrant), Ids{});
}

TEST(NewsServices, RegistrationsFollowTheTicks) {
    FakeBackEnd backEnd;
    TRVQuoteBaseView view;
    NewsServices services;
    services.load(backEnd);
    services.select(0, true);
    services.select(2, true);
    services.CheckRegisterService(view);
    EXPECT_EQ(backEnd.registrations[&view], (std::set<unsigned char>{1, 16}));
    services.select(0, false);
    services.select(1, true);
    services.CheckRegisterService(view);
    EXPECT_EQ(backEnd.registrations[&view], (std::set<unsigned char>{2, 16}));
    EXPECT_THROW(services.select(6, true), std::out_of_range);
}

TEST(CategoryCatalogue, PairsListsOfEqualLength) {
    struct Case {
        const char* what;
        QByteArray file;
        bool loaded;
        int id;
        const char* name;  // of that id; null: none
    };
    const Case cases[] = {
        {"blanks and commas", "[CONFIG]\nCatId=1, 2 3\nSHORTNAME=Eco,Mkt FX\n", true, 3, "FX"},
        {"section and keys in other case", "[config]\r\ncatid=1\r\nshortname=Eco\r\n", true, 1, "Eco"},
        {"more ids than names", "[CONFIG]\nCatId=1,2\nSHORTNAME=Eco\n", false, 1, nullptr},
        {"more names than ids", "[CONFIG]\nCatId=1\nSHORTNAME=Eco,Mkt\n", false, 1, nullptr},
        {"nothing there", "", true, 1, nullptr},
        {"code page 950", "[CONFIG]\nCatId=7\nSHORTNAME=\xB0\x5D\xB8\x67\n", true, 7, "財經"},
        {"UTF-8", "[CONFIG]\nCatId=7\nSHORTNAME=財經\n", true, 7, "財經"},
        {"a second entry for an id is ignored", "[CONFIG]\nCatId=7,7\nSHORTNAME=A,B\n", true, 7, "A"},
    };
    for (const Case& c : cases) {
        CategoryCatalogue catalogue;
        EXPECT_EQ(catalogue.load(IniFile::parse(c.file)), c.loaded) << c.what;
        const QString* name = catalogue.nameOf(c.id);
        ASSERT_EQ(name != nullptr, c.name != nullptr) << c.what;
        if (name != nullptr) {
            EXPECT_EQ(name->toStdString(), c.name) << c.what;
            EXPECT_EQ(catalogue.idOf(*name), c.id) << c.what;
            EXPECT_EQ(catalogue.idOf(name->toLower() + u'x'), -1) << c.what;
        }
    }
}

TEST(ApplicationSwitches, AreOnAtOneAlone) {
    const auto read = [](const QByteArray& lines) {
        const auto on = ApplicationSwitches::read(IniFile::parse("[NewsCtrlSearchView]\n" + lines));
        return std::pair(on.showNormalSearch, on.showWarningSearch);
    };
    EXPECT_EQ(read("ShowNormalSearch=1\nShowWarningSearch=yes\n"), std::pair(true, false));
    EXPECT_EQ(read("ShowNormalSearch=2\nShowWarningSearch=1\n"), std::pair(false, true));
}

TEST(ModeLoading, SwitchesDecideWhatASwitchReads) {
    constexpr ApplicationSwitches none{false, false}, normal{true, false}, warning{false, true},
        both{true, true};
    for (int mode = 0; mode < listCount; ++mode) {
        const auto list = static_cast<ListIndex>(mode);
        EXPECT_EQ(ModeLoading::loadingMode(list, none), list);
        EXPECT_EQ(ModeLoading::loadingMode(list, normal), list);
        EXPECT_EQ(ModeLoading::loadingMode(list, warning), mode == 6 ? ListIndex::Search : list);
        EXPECT_EQ(ModeLoading::loadingMode(list, both), ListIndex::Search);
    }
    ModeLoading loading;
    for (const ListIndex once : {ListIndex::All, ListIndex::Relation}) {
        EXPECT_FALSE(loading.wasShown(once));
        EXPECT_TRUE(loading.takeLoad(once));
        EXPECT_FALSE(loading.takeLoad(once));
        EXPECT_TRUE(loading.wasShown(once));
    }
    for (const ListIndex always :
         {ListIndex::Category, ListIndex::Symbol, ListIndex::Search, ListIndex::Warrant}) {
        EXPECT_TRUE(loading.takeLoad(always));
        EXPECT_TRUE(loading.takeLoad(always));
    }
    EXPECT_FALSE(loading.takeLoad(ListIndex::WarningTerm));
}

TEST(ViewSettings, NonsenseHasItsDefault) {
    MemoryCfgIO reader;
    reader.values = {{QStringLiteral("EnabledFunctions"), 0x1FF},
                     {QStringLiteral("NewsShowType"), 7},
                     {QStringLiteral("ShowCategory"), QStringList{QStringLiteral("no")}},
                     {QStringLiteral("FocusedTab"), QStringLiteral("later")},
                     {QStringLiteral("SymbolID"), QStringLiteral("2330")}};
    ViewSettings settings = ViewSettings::read(reader, path, 2);
    EXPECT_EQ(settings.functions, 0x7FU);
    EXPECT_EQ(settings.newsShowType, StoryShowType::Right);
    EXPECT_TRUE(settings.showCategory);
    EXPECT_EQ(settings.focusedTab, 2);
    EXPECT_EQ(settings.symbolId, QStringLiteral("2330"));
    for (const int type : {0, 1, 2, 3, -1}) {
        reader.values[QStringLiteral("NewsShowType")] = type;
        const int shown = static_cast<int>(ViewSettings::read(reader, path, 2).newsShowType);
        EXPECT_EQ(shown, type < 0 || type > 2 ? 1 : type) << type;
    }

    settings.showCategory = false;
    settings.newsShowType = StoryShowType::Below;
    settings.focusedTab = 5;
    MemoryCfgIO stored;
    settings.write(stored, path);
    const ViewSettings again = ViewSettings::read(stored, path, 0);
    EXPECT_EQ(again.functions, settings.functions);
    EXPECT_EQ(again.newsShowType, StoryShowType::Below);
    EXPECT_FALSE(again.showCategory);
    EXPECT_EQ(again.focusedTab, 5);
}

}  // namespace wirepane
