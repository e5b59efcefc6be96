// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/layout_store.h"

#include "terminal/settings/settings_file.h"
#include "terminal/settings/terminal_settings.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

TEST(LayoutStoreTest, KeepsEachKindOfSettingApartByViewAndPlace) {
    QTemporaryDir folder;
    const QString path = folder.filePath(u"wirepane.json"_s);
    const ViewSettingPath one{u"main"_s, 0, 1, u"TRVNewsCtrlView"_s};
    const ViewSettingPath others[] = {
        {u"main"_s, 1, 0, u"TRVNewsCtrlView"_s},
        {u"mainTRV"_s, 0, 1, u"NewsCtrlView"_s},
        {u"main"_s, 0, 1, u"OtherView"_s},
        {u""_s, 0, 1, u"TRVNewsCtrlView"_s},
    };
    {
        SettingsFile file(path);
        LayoutStore store(file);
        store.setViewInfo(one, u"ShowCategory"_s, false);
        store.setViewInfo(one, u"FocusedTab"_s, 65535);
        store.setViewInfo(one, u"SymbolID"_s, u"2330,\"台\""_s);
        store.setViewInfo(one, u"Items"_s, QStringList{u"a,b"_s, u""_s});
        ASSERT_TRUE(file.save());
    }
    SettingsFile file(path);
    const LayoutStore store(file);
    bool show = true;
    int tab = 0;
    unsigned short tab16 = 0;
    QString symbol;
    QStringList items;
    EXPECT_TRUE(store.GetViewInfo(one, u"ShowCategory"_s, show));
    EXPECT_TRUE(store.GetViewInfo(one, u"FocusedTab"_s, tab));
    EXPECT_TRUE(store.GetViewInfo(one, u"FocusedTab"_s, tab16));
    EXPECT_TRUE(store.GetViewInfo(one, u"SymbolID"_s, symbol));
    EXPECT_TRUE(store.GetViewInfo(one, u"Items"_s, items));
    EXPECT_FALSE(show);
    EXPECT_EQ(tab, 65535);
    EXPECT_EQ(tab16, 65535);
    EXPECT_EQ(symbol, u"2330,\"台\""_s);
    EXPECT_EQ(items, (QStringList{u"a,b"_s, u""_s}));
    for (const ViewSettingPath& other : others)
        EXPECT_FALSE(store.GetViewInfo(other, u"FocusedTab"_s, tab)) << other.section.toStdString();
}

TEST(TerminalSettingsTest, TakesValuesThatMakeNoSenseAsDefaults) {
    QTemporaryDir folder;
    SettingsFile file(folder.filePath(u"wirepane.json"_s));
    file.setValue(u"terminal"_s, u"fontSize"_s, 4000);
    file.setValue(u"terminal"_s, u"scheme"_s, u"pink"_s);
    file.setValue(u"terminal"_s, u"popupPosition"_s, u"above"_s);
    file.setValue(u"terminal"_s, u"frameGeometry"_s, 12);
    TerminalSettings settings(file);
    EXPECT_EQ(settings.fontSize(), TerminalSettings::largestFont);
    EXPECT_EQ(settings.scheme(), ColourScheme::Light);
    EXPECT_EQ(settings.SYS_eGetPopupWndPosition(), 1);
    EXPECT_TRUE(settings.frameGeometry().isEmpty());
}

}  // namespace

}  // namespace wirepane
