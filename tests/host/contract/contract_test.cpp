// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/bk_quote_interface.h"
#include "host/contract/cfg_io.h"
#include "host/contract/clock.h"
#include "host/contract/ini_file.h"
#include "host/contract/item_display.h"
#include "host/contract/sync_info.h"
#include "host/contract/view_options.h"
#include "tests/support/fake_back_end.h"

#include <QFile>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>

namespace wirepane {

namespace {

class Receiver : public NewsReceiver {
public:
    void RespStory(const CHeadlineTable&) override {
        ++calls;
        const auto call = whenCalled;  // it may set another one
        if (call)
            call();
    }
    int calls = 0;
    std::function<void()> whenCalled;
};

class Speaker : public FakeBackEnd {
public:
    void speak() {
        forEachReceiver([](NewsReceiver& receiver) { receiver.RespStory({}); });
    }
};

}  // namespace

TEST(BackEndInterface, TellsThoseThatAreAttached) {
    Speaker backEnd;
    Receiver first;
    Receiver second;
    Receiver late;
    backEnd.attach(&first);
    backEnd.attach(&first);
    backEnd.attach(&second);
    backEnd.speak();
    EXPECT_EQ(first.calls, 1);
    EXPECT_EQ(second.calls, 1);

    // A receiver may detach others and itself, and attach new ones, while it is told.
    first.whenCalled = [&] {
        backEnd.detach(&second);
        backEnd.detach(&first);
        backEnd.attach(&late);
    };
    backEnd.speak();
    EXPECT_EQ(first.calls, 2);
    EXPECT_EQ(second.calls, 1);
    EXPECT_EQ(late.calls, 1);
    backEnd.speak();
    EXPECT_EQ(first.calls, 2);
    EXPECT_EQ(late.calls, 2);

    // A nested delivery does not forget who left during it.
    late.whenCalled = [&] {
        late.whenCalled = [&] { backEnd.detach(&late); };
        backEnd.speak();
    };
    backEnd.speak();
    EXPECT_EQ(late.calls, 4);
    backEnd.speak();
    EXPECT_EQ(late.calls, 4);
}

TEST(BackEndInterface, InstalledObjectsUninstallThemselves) {
    {
        FakeBackEnd backEnd;
        EXPECT_EQ(BKQuoteInterface::GetBKInterface(), &backEnd);
        CSyncInfo settings;
        CSyncInfo::setSettingCFG(&settings);
        EXPECT_EQ(CSyncInfo::GetSettingCFG(), &settings);
        TRVItemDisplay display;
        TRVItemDisplay::setItemDisplay(&display);
    }
    EXPECT_EQ(BKQuoteInterface::GetBKInterface(), nullptr);
    EXPECT_FALSE(CSyncInfo::GetSettingCFG()
                     ->SYS_crGetOtherColor(QStringLiteral("COLOR_LISTCTL_NORMALTEXT"))
                     .isValid());
    QColor text = Qt::red;
    QColor background = Qt::red;
    TRVItemDisplay::itemDisplay()->GetNewsCatColor(1, text, background);
    EXPECT_FALSE(text.isValid() || background.isValid());
}

TEST(ViewSettingsStore, ReadsWhatFitsTheType) {
    const ViewSettingPath path;
    struct Case {
        const char* what;
        QVariant stored;
        int asInt;            // -99: not readable
        int asUnsignedShort;  // -99: not readable
        int asBool;           // -99: not readable
        const char* asText;   // null: not readable
    };
    constexpr int no = -99;
    const Case cases[] = {
        {"absent", {}, no, no, no, nullptr},
        {"number", 7, 7, 7, 1, "7"},
        {"zero", 0, 0, 0, 0, "0"},
        {"number in a text", QStringLiteral("12"), 12, 12, 1, "12"},
        {"true", true, 1, 1, 1, "true"},
        {"word true", QStringLiteral(" True "), no, no, 1, " True "},
        {"word", QStringLiteral("seven"), no, no, no, "seven"},
        {"out of an unsigned short", 70000, 70000, no, 1, "70000"},
        {"negative", -1, -1, no, 1, "-1"},
        {"out of an int", 5'000'000'000LL, no, no, 1, "5000000000"},
        {"list", QStringList{QStringLiteral("1")}, no, no, no, nullptr},
    };
    for (const Case& c : cases) {
        MemoryCfgIO store;
        const QString key = QStringLiteral("Key");
        if (c.stored.isValid())
            store.setViewInfo(path, key, c.stored);
        int number = no;
        EXPECT_EQ(store.GetViewInfo(path, key, number), c.asInt != no) << c.what;
        EXPECT_EQ(number, c.asInt) << c.what;
        unsigned short small = 1;
        EXPECT_EQ(store.GetViewInfo(path, key, small), c.asUnsignedShort != no) << c.what;
        EXPECT_EQ(small, c.asUnsignedShort == no ? 1 : c.asUnsignedShort) << c.what;
        bool flag = false;
        EXPECT_EQ(store.GetViewInfo(path, key, flag), c.asBool != no) << c.what;
        EXPECT_EQ(flag, c.asBool == 1) << c.what;
        QString text;
        EXPECT_EQ(store.GetViewInfo(path, key, text), c.asText != nullptr) << c.what;
        EXPECT_EQ(text.toStdString(), c.asText != nullptr ? c.asText : "") << c.what;
        QStringList list;
        EXPECT_EQ(store.GetViewInfo(path, key, list), c.stored.typeId() == QMetaType::QStringList) << c.what;
    }
}

TEST(HostIniFile, ReadsBytesAsTheyStand) {
    const IniFile file = IniFile::parse(
        "; remark\r\n[One]\r\nName = a \\ b, c \r\nname=second\r\nQuoted=\" x \"\r\nNumber=0x10\r\n"
        "Whole= 42 \r\nnonsense\r\n=nothing\r\n[Two\r\nLost=1\r\n[ Three ]\nWide=\xB4\xFA\xB8\xD5\n");
    EXPECT_EQ(file.text(QStringLiteral("ONE"), QStringLiteral("NAME")), QStringLiteral("a \\ b, c"));
    EXPECT_EQ(file.text(QStringLiteral("One"), QStringLiteral("Quoted")), QStringLiteral(" x "));
    EXPECT_EQ(file.text(QStringLiteral("One"), QStringLiteral("Absent"), QStringLiteral("else")),
              QStringLiteral("else"));
    EXPECT_EQ(file.text(QStringLiteral("One"), QStringLiteral("Name"), {}, 3), QStringLiteral("a \\"));
    EXPECT_EQ(file.number(QStringLiteral("One"), QStringLiteral("Whole"), 7), 42);
    EXPECT_EQ(file.number(QStringLiteral("One"), QStringLiteral("Number"), 7), 7);
    EXPECT_EQ(file.text(QStringLiteral("Three"), QStringLiteral("Wide")), QStringLiteral("測試"))
        << "code page 950";

    const QTemporaryDir folder;
    const auto written = [&folder](const QByteArray& bytes) {
        const QString path = folder.filePath(QStringLiteral("test.ini"));
        QFile out(path);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
        return path;
    };
    const QByteArray line = "[A]\nB=1\n";
    EXPECT_EQ(IniFile::load(written(line)).number(QStringLiteral("A"), QStringLiteral("B"), 0), 1);
    EXPECT_EQ(IniFile::load(written(line + QByteArray(1 << 20, '#')))
                  .number(QStringLiteral("A"), QStringLiteral("B"), 0),
              0)
        << "a file of more than 1 MiB is not read";
    EXPECT_EQ(IniFile::load(folder.path()).number(QStringLiteral("A"), QStringLiteral("B"), 0), 0);
}

TEST(HostClock, RunsOnFromWhereItWasSet) {
    host_clock::startAt(localTime(2026, 3, 2, 23, 59, 58));
    EXPECT_EQ(host_clock::today(), QDate(2026, 3, 2));
    const std::int64_t passed = host_clock::now() - localTime(2026, 3, 2, 23, 59, 58);
    EXPECT_GE(passed, 0);
    EXPECT_LE(passed, 1);
}

TEST(ViewOptions, AreOffUnlessASettingSaysTrue) {
    for (const ViewOptionRow& row : viewOptionTable) {
        const QString key(row.key);
        MemoryCfgIO absent;
        EXPECT_FALSE(ViewOptions::read(absent, {})[row.option]) << row.key.data();
        MemoryCfgIO wrong;
        wrong.values = {{key, QStringList{QStringLiteral("yes")}}};
        EXPECT_FALSE(ViewOptions::read(wrong, {})[row.option]) << row.key.data();
        MemoryCfgIO set;
        set.values = {{key, true}};
        for (const ViewOptionRow& other : viewOptionTable)
            EXPECT_EQ(ViewOptions::read(set, {})[other.option], other.option == row.option)
                << row.key.data() << ", " << other.key.data();
    }
}

TEST(ViewOptions, WhatTheUserSwitchedOffStaysOff) {
    MemoryCfgIO store;
    store.values = {{QString(viewOptionTable.front().key), false}};
    ViewOptions::writeMissing(store, {});
    const ViewOptions options = ViewOptions::read(store, {});
    for (const ViewOptionRow& row : viewOptionTable)
        EXPECT_EQ(options[row.option], row.option != viewOptionTable.front().option) << row.key.data();
}

TEST(ViewOptions, NumbersKeepToTheirRange) {
    MemoryCfgIO all;
    ViewOptions::writeMissing(all, {});
    for (const ViewOptionRow& row : viewOptionTable) {
        if (row.most == 1)
            continue;
        EXPECT_EQ(ViewOptions::read(all, {}).value(row.option), row.own) << row.key.data();
        for (const int number : {-1, 0, row.most, row.most + 1}) {
            MemoryCfgIO set;
            set.values = {{QString(row.key), number}};
            EXPECT_EQ(ViewOptions::read(set, {}).value(row.option), number == row.most ? number : 0)
                << row.key.data() << ' ' << number;
        }
    }
}

}  // namespace wirepane
