// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// A search that stands, and the quotes beside a story, in the real program.
#include "host/views/news_control_ids.h"
#include "tests/terminal/program/program_runner.h"
#include "tests/terminal/program/script_client.h"

#include <QDateTime>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

constexpr int warningList = 6;

class StandingSearchSessionTest : public testing::Test {
protected:
    QStringList arguments(const QString& store) const {
        return {u"--store"_s, scratch.path(store),      u"--config"_s, scratch.path(u"config"_s),
                u"--now"_s,   u"2026-03-02T09:30:00"_s, u"--lang"_s,   u"en"_s};
    }

    static void push(ScriptClient& script, int sequence, const QString& title) {
        const QDateTime time = QDateTime::fromString(u"2026-03-02T09:00:00"_s, Qt::ISODate).addSecs(sequence);
        script.result(
            u"feed.push"_s,
            QJsonObject{{u"service"_s, 1},
                        {u"time"_s, time.toSecsSinceEpoch()},
                        {u"seq"_s, sequence},
                        {u"title"_s, title},
                        {u"category"_s, 1},
                        {u"symbol"_s, u"2330"_s},
                        {u"related"_s, QJsonArray{QJsonObject{{u"market"_s, 16}, {u"code"_s, u"2330"_s}}}},
                        {u"story"_s, u"Text of "_s + title}});
    }

    static void set(ScriptClient& script, int id, const QString& what, const QJsonValue& value) {
        script.result(u"dialog.set"_s, QJsonObject{{u"id"_s, id}, {what, value}});
    }
    static void click(ScriptClient& script, const QJsonValue& id) {
        script.result(u"dialog.click"_s, QJsonObject{{u"id"_s, id}});
    }
    static void command(ScriptClient& script, int id) {
        script.result(u"view.command"_s, QJsonObject{{u"id"_s, id}});
    }
    static void settle(ScriptClient& script) {
        script.result(u"wait"_s, QJsonObject{{u"ms"_s, 300}});
        script.result(u"idle"_s);
    }

    static QStringList titles(ScriptClient& script, int list) {
        return titlesOf(script.result(u"grid.read"_s, QJsonObject{{u"list"_s, list}}).toObject());
    }

    Scratch scratch;
};

TEST_F(StandingSearchSessionTest, TheChosenWarningTermComesBackAndIsSearchedForAgain) {
    const QJsonObject warnings{
        {u"switches"_s, QJsonObject{{u"ShowNormalSearch"_s, 0}, {u"ShowWarningSearch"_s, 1}}}};
    const QJsonObject open{{u"size"_s, QJsonArray{900, 600}}, {u"mask"_s, 0x49}};
    QJsonObject kept;
    {
        ScriptClient script(arguments(u"news.wirepane"_s));
        script.result(u"host.set"_s, warnings);
        script.result(u"view.open"_s, open);
        script.result(u"control.choose"_s,
                      QJsonObject{{u"id"_s, ids::tabStrip}, {u"text"_s, u"Warning Terms"_s}});
        command(script, ids::warningSearchButton);
        for (const QString& words : {u"copper"_s, u"tea, rice"_s}) {
            click(script, 3);
            set(script, 2043, u"text"_s, words);
            set(script, 2059, u"checked"_s, true);
            click(script, 1);
        }
        set(script, 2047, u"selection"_s, QJsonArray{1});
        click(script, 1);
        kept = script.result(u"view.close"_s, QJsonObject{{u"save"_s, true}})[u"settings"_s].toObject();
        script.result(u"app.quit"_s);
    }
    EXPECT_EQ(kept[u"WarningSearchItemOrder"_s].toInt(), 2);
    ScriptClient script(arguments(u"news.wirepane"_s));
    script.result(u"host.set"_s, warnings);
    QJsonObject again = open;
    again[u"settings"_s] = kept;
    script.result(u"view.open"_s, again);
    push(script, 1, u"Rice harvest is in"_s);
    push(script, 2, u"Copper slips"_s);
    settle(script);
    EXPECT_EQ(titles(script, warningList), QStringList{u"Rice harvest is in"_s});
}

TEST_F(StandingSearchSessionTest, TheQuotesBesideAStoryAreLive) {
    ScriptClient script(arguments(u"news.wirepane"_s));
    script.result(
        u"feed.symbols"_s,
        QJsonArray{QJsonObject{{u"market"_s, 16}, {u"code"_s, u"2330"_s}, {u"name"_s, u"Aster Chips"_s}}});
    push(script, 1, u"Aster Chips rises"_s);
    script.result(u"view.open"_s, QJsonObject{{u"size"_s, QJsonArray{900, 600}}, {u"mask"_s, 0x01}});
    script.result(u"input.click"_s, QJsonObject{{u"row"_s, 0}});
    const auto quote = [&](double last, double change) {
        script.result(u"feed.quotes"_s, QJsonArray{QJsonObject{{u"market"_s, 16},
                                                               {u"code"_s, u"2330"_s},
                                                               {u"last"_s, last},
                                                               {u"change"_s, change},
                                                               {u"volume"_s, 12345}}});
        settle(script);
        return script.result(u"view.state"_s)[u"quotes"_s].toArray();
    };
    EXPECT_EQ(quote(610, 10), (QJsonArray{QJsonArray{u"2330"_s, u"Aster Chips"_s, u"610.00"_s, u"+10.00"_s,
                                                     u"+1.67%"_s, u"12,345"_s}}));
    EXPECT_EQ(quote(594, -6)[0].toArray()[4].toString(), u"-1.00%"_s);
}

}  // namespace

}  // namespace wirepane
