// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The user's workspace across runs of the real program: left in order, killed, or with settings that make no
// sense.
#include "host/views/news_control_ids.h"
#include "tests/terminal/program/program_runner.h"
#include "tests/terminal/program/script_client.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

constexpr int linkGroup = 3;

class WorkspaceTest : public testing::Test {
protected:
    QStringList arguments() const {
        return {u"--store"_s, scratch.path(u"news.wirepane"_s), u"--config"_s, scratch.path(u"config"_s),
                u"--now"_s,   u"2026-03-02T12:00:00"_s,         u"--sample"_s, u"--workspace"_s};
    }

    static QJsonObject stateOf(ScriptClient& script, int view) {
        return script.result(u"view.state"_s, QJsonObject{{u"view"_s, view}}).toObject();
    }

    static QJsonObject controlOf(const QJsonObject& state, int id) {
        const QJsonArray controls = state[u"controls"_s].toArray();
        for (const QJsonValue& control : controls) {
            if (control[u"id"_s].toInt() == id)
                return control.toObject();
        }
        return {};
    }

    static void choose(ScriptClient& script, int view, int id, int index) {
        script.result(u"control.choose"_s,
                      QJsonObject{{u"view"_s, view}, {u"id"_s, id}, {u"index"_s, index}});
    }

    // Three linked views: by category without its first service, symbol news, and one of symbol news only.
    void arrange(ScriptClient& script) {
        script.result(u"view.open"_s, QJsonObject{{u"docked"_s, true}});
        script.result(u"view.open"_s, QJsonObject{{u"docked"_s, true}, {u"newsType"_s, 2}});
        for (const int view : {1, 2})
            script.result(u"view.link"_s, QJsonObject{{u"view"_s, view}, {u"group"_s, linkGroup}});
        choose(script, 1, ids::tabStrip, 1);
        choose(script, 2, ids::tabStrip, 2);
        // A symbol that one view picks reaches the others.
        choose(script, 2, ids::symbolCombo, 5);
        code = stateOf(script, 2)[u"symbol"_s][u"code"_s].toString();
        ASSERT_FALSE(code.isEmpty());
        script.result(u"menu.open"_s, QJsonObject{{u"view"_s, 1}, {u"id"_s, ids::serviceButton}});
        script.result(u"menu.choose"_s, QJsonObject{{u"id"_s, ids::firstServiceCommand}});
        script.result(u"host.set"_s,
                      QJsonObject{{u"scheme"_s, u"dark"_s}, {u"lang"_s, u"zh-TW"_s}, {u"fontSize"_s, 11}});
        script.result(u"view.link"_s, QJsonObject{{u"view"_s, 3}, {u"group"_s, linkGroup}});
    }

    void expectArranged(ScriptClient& script) {
        const QList<int> modes{1, 2, 2};
        const QList<int> newsTypes{0, 0, 2};
        for (int view = 1; view <= 3; ++view) {
            const QJsonObject state = stateOf(script, view);
            EXPECT_EQ(state[u"mode"_s].toInt(), modes[view - 1]) << view;
            EXPECT_EQ(state[u"newsType"_s].toInt(), newsTypes[view - 1]) << view;
            EXPECT_EQ(state[u"linkGroup"_s].toInt(), linkGroup) << view;
            EXPECT_EQ(state[u"symbol"_s][u"code"_s].toString(), code) << view;
        }
        EXPECT_EQ(script.errorCode(u"view.state"_s, QJsonObject{{u"view"_s, 4}}), -32001);
        const QJsonArray services = stateOf(script, 1)[u"services"_s].toArray();
        ASSERT_GT(services.size(), 1);
        EXPECT_FALSE(services[0][u"selected"_s].toBool());
        EXPECT_TRUE(services[1][u"selected"_s].toBool());
        EXPECT_TRUE(stateOf(script, 2)[u"services"_s][0][u"selected"_s].toBool());
        EXPECT_EQ(stateOf(script, 1)[u"title"_s].toString(), u"新聞"_s);
        EXPECT_GT(stateOf(script, 3)[u"grids"_s][0][u"rows"_s].toInt(), 0);
    }

    QByteArray settings() const {
        QFile file(scratch.path(u"config/wirepane.json"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString code;
    Scratch scratch;
};

TEST_F(WorkspaceTest, AKilledTerminalHasKeptThem) {
    {
        ScriptClient script(arguments());
        arrange(script);
        // All is kept in one go: when the last thing that was done is there, the rest is.
        QElapsedTimer patience;
        patience.start();
        while (settings().count(R"("linkGroup": 3)") < 4 && patience.elapsed() < 30000)
            script.result(u"wait"_s, QJsonObject{{u"ms"_s, 100}});
        script.kill();
    }
    ScriptClient script(arguments());
    expectArranged(script);
    EXPECT_TRUE(settings().contains("dark"));
}

TEST_F(WorkspaceTest, SettingsWithoutSenseOpenWithTheirDefaults) {
    struct Case {
        const char* what;
        QByteArray file;
        int mode;
        int mask;
        bool damaged;
    };
    const auto view = [](const QByteArray& values) -> QByteArray {
        return R"({"view.0.0.4.main.TRVNewsCtrlView": {)" + values + "}}";
    };
    const Case cases[] = {
        {"unknown keys",
         view(R"("NoSuchKey": 3, "FocusedTab": 1}, "terminal": {"no": 1}, "nowhere": {"a": "b")"), 1, 0x6F,
         false},
        {"wrong types", view(R"("EnabledFunctions": "x", "FocusedTab": [], "Sheet0ServiceCheck1": "maybe"},
              "terminal": {"fontSize": "x", "scheme": 3, "language": [])"),
         0, 0x6F, false},
        {"groups that are none",
         R"({"terminal": 7, "workspace": [], "view.0.0.4.main.TRVNewsCtrlView": "x"})", 0, 0x6F, false},
        {"out of range", view(R"("FocusedTab": 99, "NewsShowType": 70000}, "terminal": {"fontSize": 99999)"),
         0, 0x6F, false},
        {"a mask without modes", view(R"("EnabledFunctions": 0, "FocusedTab": 3)"), 3, 0, false},
        {"a service that no longer exists", view(R"("Sheet0ServiceCheck9": true)"), 0, 0x6F, false},
        {"views without sense", R"({"workspace": {"views": 7, "arrangement": "AAAA", "activePlace": -4}})", 0,
         0x6F, false},
        {"no JSON", QByteArray(2000, '\xff'), 0, 0x6F, true},
        {"half a file", R"({"terminal": {"scheme": "dark)", 0, 0x6F, true},
    };
    QDir().mkpath(scratch.path(u"config"_s));
    for (const Case& test : cases) {
        scratch.write(u"config/wirepane.json"_s, test.file);
        ScriptClient script(arguments());
        const QJsonObject state = stateOf(script, 1);
        EXPECT_EQ(state[u"mode"_s].toInt(-1), test.mode) << test.what;
        EXPECT_EQ(state[u"mask"_s].toInt(-1), test.mask) << test.what;
        bool selected = false;
        for (const QJsonValue& service : state[u"services"_s].toArray())
            selected = selected || service[u"selected"_s].toBool();
        EXPECT_TRUE(selected) << test.what;
        script.result(u"app.quit"_s);
        EXPECT_EQ(script.endInput(), 0) << test.what;
        EXPECT_EQ(script.notes().contains(u"damaged"_s), test.damaged) << test.what;
    }
}

TEST_F(WorkspaceTest, OpensWithoutTheFilesOfTheModule) {
    for (const QString& name : {u"NewsService.ini"_s, u"Application.ini"_s})
        QDir().mkpath(scratch.path(u"config/"_s + name));
    ScriptClient script(arguments());
    EXPECT_EQ(stateOf(script, 1)[u"mode"_s].toInt(-1), 0);
}

}  // namespace

}  // namespace wirepane
