// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/news_control_ids.h"
#include "tests/terminal/program/program_runner.h"
#include "tests/terminal/program/script_client.h"

#include <QDateTime>
#include <QImage>
#include <QJsonDocument>

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

// 09:30 local time of the tests, on a Monday.
const QString now = u"2026-03-02T09:30:00"_s;

qint64 localSeconds(const QString& moment) {
    return QDateTime::fromString(moment, Qt::ISODate).toSecsSinceEpoch();
}

QJsonObject news(int service, const QString& moment, int sequence, const QString& title, int category = 1) {
    return {{u"service"_s, service},      {u"time"_s, localSeconds(moment)},  {u"seq"_s, sequence},
            {u"title"_s, title},          {u"category"_s, category},          {u"symbol"_s, u""_s},
            {u"related"_s, QJsonArray()}, {u"story"_s, u"Text of "_s + title}};
}

class AutomationSessionTest : public testing::Test {
protected:
    QStringList arguments() const {
        return {u"--store"_s,  scratch.path(u"news.wirepane"_s),
                u"--config"_s, scratch.path(u"config"_s),
                u"--now"_s,    now,
                u"--lang"_s,   u"en"_s};
    }

    Scratch scratch;
};

TEST_F(AutomationSessionTest, MarksAreSetCountedAndKept) {
    const QJsonObject first = news(1, u"2026-03-02T09:31:00"_s, 1, u"First"_s);
    const auto with = [&first](const QString& name, const QJsonValue& value) {
        QJsonObject params{{u"key"_s, first}};
        params.insert(name, value);
        return params;
    };
    {
        ScriptClient script(arguments());
        script.result(u"feed.push"_s, first);
        const QJsonObject second = news(1, u"2026-03-02T09:32:00"_s, 2, u"Second"_s);
        script.result(u"feed.push"_s, second);
        // Nothing is shown by itself, which would make it seen.
        script.result(u"view.open"_s, QJsonObject{{u"own"_s, true},
                                                  {u"settings"_s, QJsonObject{{u"FollowNewest"_s, false}}}});
        const auto unread = [&script] {
            script.result(u"wait"_s, QJsonObject{{u"ms"_s, 600}});
            const QJsonObject state = script.result(u"view.state"_s).toObject();
            return state[u"tabs"_s].toArray().first().toObject()[u"unread"_s].toString();
        };
        EXPECT_EQ(unread(), u"2"_s);
        script.result(u"mark.set"_s, with(u"state"_s, u"read"_s));
        script.result(u"mark.set"_s, with(u"starred"_s, true));
        EXPECT_EQ(unread(), u"1"_s);
        EXPECT_EQ(script.errorCode(u"mark.set"_s, with(u"state"_s, u"gone"_s)), -32602);
        EXPECT_EQ(script.errorCode(u"mark.set"_s, QJsonObject{{u"key"_s, first}}), -32602);
        EXPECT_EQ(script.errorCode(u"mark.get"_s, QJsonObject()), -32602);
        // Many at once: all or nothing.
        const auto all = [&](const QJsonArray& keys) {
            return QJsonObject{{u"keys"_s, keys}, {u"state"_s, u"read"_s}};
        };
        EXPECT_EQ(script.errorCode(u"mark.set"_s, all({second, QJsonObject()})), -32602);
        EXPECT_EQ(unread(), u"1"_s);
        script.result(u"mark.set"_s, all({first, second}));
        EXPECT_EQ(unread(), QString());
    }
    ScriptClient again(arguments());
    const QJsonObject mark = again.result(u"mark.get"_s, QJsonObject{{u"key"_s, first}}).toObject();
    EXPECT_EQ(mark[u"state"_s].toString(), u"read"_s);
    EXPECT_TRUE(mark[u"starred"_s].toBool());
    EXPECT_FALSE(mark[u"readBefore"_s].toBool());
}

TEST_F(AutomationSessionTest, AGridShowsWhatTheFeedBrought) {
    ScriptClient script(arguments());
    script.result(u"feed.push"_s, news(1, u"2026-03-02T09:01:00"_s, 1, u"First & <b>plain</b>"_s));
    script.result(u"feed.push"_s, news(16, u"2026-03-02T09:15:00"_s, 1, u"台積電 公告"_s));
    script.result(u"feed.push"_s, news(1, u"2026-03-02T09:15:00"_s, 2, u"Same minute"_s));
    script.result(u"feed.push"_s, news(1, u"2026-03-01T23:59:59"_s, 1, u"Yesterday"_s));

    const QJsonObject opened =
        script.result(u"view.open"_s, QJsonObject{{u"size"_s, QJsonArray{900, 600}}}).toObject();
    EXPECT_EQ(opened[u"view"_s].toInt(), 1);
    script.result(u"idle"_s);
    const QJsonObject grid = script.result(u"grid.read"_s, QJsonObject{{u"list"_s, 0}}).toObject();
    EXPECT_EQ(grid[u"rows"_s].toInt(), 3);
    EXPECT_EQ(titlesOf(grid), (QStringList{u"Same minute"_s, u"台積電 公告"_s, u"First & <b>plain</b>"_s}));
    EXPECT_EQ(grid[u"cells"_s].toArray().last().toArray().first().toString(), u"09:01"_s);
    const QJsonObject key = grid[u"keys"_s].toArray().last().toObject();
    EXPECT_EQ(key[u"service"_s].toInt(), 1);
    EXPECT_EQ(key[u"seq"_s].toInt(), 1);
    EXPECT_EQ(key[u"time"_s].toInteger(), localSeconds(u"2026-03-02T09:01:00"_s));
}

TEST_F(AutomationSessionTest, ASearchBesideTheViewsTellsWhatItFinds) {
    ScriptClient script(arguments());
    script.result(u"feed.push"_s, news(1, u"2026-03-02T09:01:00"_s, 1, u"Copper rises"_s));
    script.result(u"feed.push"_s, news(16, u"2026-03-02T09:15:00"_s, 1, u"台積電 copper"_s));
    script.result(u"feed.push"_s, news(1, u"2026-03-02T09:20:00"_s, 2, u"Tin and copper fall"_s));
    struct Case {
        QJsonObject params;
        QString found;  // the sequence numbers, then the count of each service
    };
    const Case cases[] = {
        {{{u"text"_s, u"copper"_s}}, u"2 1 1 | 1:2 16:1"_s},
        {{{u"text"_s, u"copper -tin"_s}}, u"1 1 | 1:1 16:1"_s},
        {{{u"text"_s, u"copper -tin"_s}, {u"language"_s, u"plain"_s}}, u"|"_s},
        {{{u"text"_s, u"text"_s}, {u"scope"_s, u"headlines"_s}}, u"|"_s},
        {{{u"text"_s, u"text"_s}, {u"scope"_s, u"stories"_s}, {u"limit"_s, 1}}, u"2 | 1:2 16:1"_s},
        {{{u"text"_s, u"copper"_s}, {u"services"_s, QJsonArray{16}}}, u"1 | 16:1"_s},
        {{{u"text"_s, u"copper"_s}, {u"services"_s, QJsonArray()}}, u"|"_s},
    };
    for (const Case& c : cases) {
        const QJsonObject answer = script.result(u"search.find"_s, c.params).toObject();
        QString told;
        for (const auto& headline : answer[u"headlines"_s].toArray())
            told += QString::number(headline.toObject()[u"seq"_s].toInt()) + u' ';
        told += u'|';
        const QJsonObject counts = answer[u"services"_s].toObject();
        for (auto count = counts.begin(); count != counts.end(); ++count)
            told += u" %1:%2"_s.arg(count.key()).arg(count.value().toInt());
        EXPECT_EQ(told, c.found) << QJsonDocument(c.params).toJson().toStdString();
    }
    const QJsonObject fault =
        script.result(u"search.find"_s, QJsonObject{{u"text"_s, u"copper (tin"_s}})[u"fault"_s].toObject();
    EXPECT_EQ(fault[u"place"_s].toInt(-1), 7);
    EXPECT_EQ(fault[u"found"_s].toString(), u"("_s);
    EXPECT_TRUE(fault[u"text"_s].toString().contains(u"character 8"_s));
    for (const QJsonObject& wrong :
         {QJsonObject(), QJsonObject{{u"text"_s, u"a"_s}, {u"scope"_s, u"titles"_s}},
          QJsonObject{{u"text"_s, u"a"_s}, {u"language"_s, 1}},
          QJsonObject{{u"text"_s, u"a"_s}, {u"services"_s, QJsonArray{0}}},
          QJsonObject{{u"text"_s, u"a"_s}, {u"limit"_s, -1}}})
        EXPECT_EQ(script.errorCode(u"search.find"_s, wrong), -32602);
}

TEST_F(AutomationSessionTest, AViewTellsItsStateAndGivesItsSettingsBack) {
    ScriptClient script(arguments());
    const QJsonObject open{{u"size"_s, QJsonArray{801, 603}},
                           {u"mask"_s, 3},
                           {u"settings"_s, QJsonObject{{u"ShowCategory"_s, false}, {u"FocusedTab"_s, 1}}}};
    const int view = script.result(u"view.open"_s, open)[u"view"_s].toInt();
    const QJsonObject state = script.result(u"view.state"_s).toObject();
    EXPECT_EQ(state[u"mask"_s].toInt(), 3);
    EXPECT_EQ(state[u"mode"_s].toInt(), 1);
    EXPECT_EQ(state[u"showCategory"_s].toBool(true), false);
    EXPECT_EQ(state[u"title"_s].toString(), u"News"_s);
    EXPECT_EQ(state[u"tabs"_s].toArray().size(), 2);
    bool tabStripSeen = false;
    for (const QJsonValue& control : state[u"controls"_s].toArray())
        tabStripSeen = tabStripSeen || control[u"id"_s].toInt() == ids::tabStrip;
    EXPECT_TRUE(tabStripSeen);
    const QString picture = scratch.path(u"view.png"_s);
    const QJsonObject shot =
        script.result(u"screenshot"_s, QJsonObject{{u"path"_s, picture}, {u"view"_s, view}}).toObject();
    EXPECT_EQ(shot[u"size"_s].toArray(), (QJsonArray{801, 603}));
    EXPECT_EQ(QImage(picture).size(), QSize(801, 603));

    script.result(u"control.choose"_s, QJsonObject{{u"id"_s, ids::tabStrip}, {u"index"_s, 0}});
    EXPECT_EQ(script.result(u"view.state"_s)[u"mode"_s].toInt(), 0);
    script.result(u"view.resize"_s, QJsonObject{{u"size"_s, QJsonArray{1200, 700}}});
    const QJsonArray grids = script.result(u"view.state"_s)[u"grids"_s].toArray();
    ASSERT_FALSE(grids.isEmpty());
    EXPECT_GT(grids[0][u"rect"_s].toArray()[1].toInt(), 0);

    const QJsonObject closed =
        script.result(u"view.close"_s, QJsonObject{{u"view"_s, view}, {u"save"_s, true}})[u"settings"_s]
            .toObject();
    EXPECT_EQ(closed[u"FocusedTab"_s].toInt(-1), 0);
    EXPECT_EQ(closed[u"ShowCategory"_s].toBool(true), false);
    EXPECT_TRUE(closed.contains(u"Sheet0ServiceCheck1"_s));
    EXPECT_EQ(script.errorCode(u"view.state"_s), -32001);
}

TEST_F(AutomationSessionTest, SelectionAndScrollingReachTheGrid) {
    ScriptClient script(arguments());
    for (int i = 0; i < 60; ++i)
        script.result(u"feed.push"_s, news(1, u"2026-03-02T08:%1:00"_s.arg(i, 2, 10, QChar(u'0')), i + 1,
                                           u"News %1"_s.arg(i)));
    script.result(u"view.open"_s, QJsonObject{{u"size"_s, QJsonArray{700, 400}}, {u"mask"_s, 1}});
    script.result(u"grid.select"_s,
                  QJsonObject{{u"list"_s, 0}, {u"rows"_s, QJsonArray{3, 5, 4}}, {u"focus"_s, 5}});
    script.result(u"grid.scroll"_s, QJsonObject{{u"list"_s, 0}, {u"row"_s, 20}});
    script.result(u"idle"_s);
    const QJsonObject grid =
        script.result(u"grid.read"_s, QJsonObject{{u"list"_s, 0}, {u"from"_s, 20}, {u"count"_s, 3}})
            .toObject();
    EXPECT_EQ(grid[u"selection"_s].toArray(), (QJsonArray{3, 4, 5}));
    EXPECT_EQ(grid[u"focus"_s].toInt(), 5);
    EXPECT_EQ(grid[u"firstVisible"_s].toInt(), 20);
    EXPECT_EQ(grid[u"rows"_s].toInt(), 60);
    EXPECT_EQ(grid[u"keys"_s].toArray().size(), 3);
    EXPECT_EQ(grid[u"keys"_s].toArray()[0][u"seq"_s].toInt(), 40);
    EXPECT_EQ(script.errorCode(u"grid.scroll"_s, QJsonObject{{u"list"_s, 0}, {u"row"_s, 60}}), -32001);
}

TEST_F(AutomationSessionTest, RequestsThatCannotBeDoneSayWhyAndEndNothing) {
    ScriptClient script(arguments());
    script.result(u"view.open"_s);
    const QList<std::tuple<QString, QJsonObject, int>> wrong{
        {u"no.such"_s, {}, -32601},
        {u"date.set"_s, {{u"date"_s, 20260231}}, -32602},
        {u"story.state"_s, {{u"where"_s, u"window"_s}}, -32602},
        {u"view.open"_s, {{u"size"_s, u"big"_s}}, -32602},
        {u"view.open"_s, {{u"newsType"_s, 4}}, -32602},
        {u"view.open"_s, {{u"settings"_s, QJsonObject{{u"x"_s, QJsonObject()}}}}, -32602},
        {u"view.state"_s, {{u"view"_s, 7}}, -32001},
        {u"view.command"_s, {{u"id"_s, 1}}, -32001},
        {u"grid.read"_s, {{u"list"_s, 7}}, -32602},
        {u"grid.read"_s, {}, -32602},
        {u"grid.select"_s, {{u"list"_s, 0}, {u"rows"_s, QJsonArray{0}}}, -32001},
        {u"control.choose"_s, {{u"id"_s, 9999}, {u"index"_s, 0}}, -32001},
        {u"control.choose"_s, {{u"id"_s, ids::tabStrip}, {u"index"_s, 99}}, -32001},
        {u"control.choose"_s, {{u"id"_s, ids::tabStrip}, {u"text"_s, u"No such tab"_s}}, -32001},
        {u"control.choose"_s, {{u"id"_s, ids::tabStrip}}, -32602},
        {u"control.set"_s, {{u"id"_s, ids::tabStrip}, {u"text"_s, u"x"_s}}, -32002},
        {u"control.set"_s, {{u"id"_s, ids::tabStrip}, {u"checked"_s, true}}, -32002},
        {u"menu.open"_s, {}, -32602},
        {u"menu.open"_s, {{u"id"_s, ids::serviceButton}, {u"row"_s, 0}}, -32602},
        {u"menu.open"_s, {{u"row"_s, 0}}, -32001},
        {u"menu.open"_s, {{u"id"_s, ids::datePicker}}, -32002},
        {u"menu.open"_s, {{u"point"_s, QJsonArray{5000, 1}}}, -32602},
        {u"menu.choose"_s, {{u"id"_s, ids::firstServiceCommand}}, -32002},
        {u"view.link"_s, {{u"group"_s, 256}}, -32602},
        {u"view.open"_s, {{u"docked"_s, true}, {u"size"_s, QJsonArray{9, 9}}}, -32602},
        {u"symbol.change"_s, {{u"group"_s, 1}, {u"service"_s, 16}}, -32602},
        {u"feed.push"_s, {{u"service"_s, 1}}, -32602},
        {u"feed.push"_s, news(1, now, 1, u""_s), -32602},
        {u"feed.connect"_s, {{u"on"_s, 1}}, -32602},
        {u"host.set"_s, {{u"lang"_s, u"fr"_s}}, -32602},
        {u"host.set"_s, {{u"fontSize"_s, 200}}, -32602},
        {u"screenshot"_s, {{u"path"_s, u"/no/such/folder/a.png"_s}}, -32002},
        {u"wait"_s, {{u"ms"_s, -1}}, -32602},
    };
    for (const auto& [method, params, code] : wrong)
        EXPECT_EQ(script.errorCode(method, params), code) << method.toStdString();
    script.send("not json");
    EXPECT_EQ(script.read()[u"error"_s][u"code"_s].toInt(), -32700);
    script.send("[]");
    EXPECT_EQ(script.read()[u"error"_s][u"code"_s].toInt(), -32600);
    script.send(QByteArray(17 * 1024 * 1024, 'x'));
    EXPECT_EQ(script.read()[u"error"_s][u"code"_s].toInt(), -32600);
    script.result(u"view.state"_s);
    EXPECT_EQ(script.endInput(), 0);
}

TEST_F(AutomationSessionTest, TheFeedRecordsWhatViewsAskAndTellsNothingTwice) {
    ScriptClient script(arguments());
    script.result(u"feed.requests"_s);
    script.result(u"view.open"_s, QJsonObject{{u"mask"_s, 1}});
    const QJsonArray requests = script.result(u"feed.requests"_s).toArray();
    ASSERT_FALSE(requests.isEmpty());
    EXPECT_EQ(requests[0][u"operation"_s].toString(), u"BKQNEWS_iGetHeadlineTable"_s);
    EXPECT_TRUE(requests[0][u"arguments"_s].toArray().contains(u"20260302"_s));
    EXPECT_TRUE(script.result(u"feed.requests"_s).toArray().isEmpty());
    script.result(
        u"feed.symbols"_s,
        QJsonArray{QJsonObject{{u"market"_s, 16}, {u"code"_s, u"6214"_s}, {u"name"_s, u"Systex"_s}}});
}

TEST_F(AutomationSessionTest, WhatIsPushedDuringABreakIsInTheListAfterIt) {
    ScriptClient script(arguments());
    script.result(u"view.open"_s, QJsonObject{{u"size"_s, QJsonArray{900, 600}}, {u"mask"_s, 1}});
    script.result(u"feed.push"_s, news(1, u"2026-03-02T09:01:00"_s, 1, u"Before"_s));
    script.result(u"feed.connect"_s, QJsonObject{{u"on"_s, false}});
    script.result(u"feed.push"_s, news(1, u"2026-03-02T09:20:00"_s, 3, u"Second of the outage"_s));
    script.result(u"feed.push"_s, news(1, u"2026-03-02T09:10:00"_s, 2, u"First of the outage"_s));
    const auto titles = [&] {
        script.result(u"idle"_s);
        return titlesOf(script.result(u"grid.read"_s, QJsonObject{{u"list"_s, 0}}).toObject());
    };
    EXPECT_EQ(titles(), QStringList{u"Before"_s});
    script.result(u"feed.connect"_s, QJsonObject{{u"on"_s, true}});
    EXPECT_EQ(titles(), (QStringList{u"Second of the outage"_s, u"First of the outage"_s, u"Before"_s}));

    const QJsonObject key{
        {u"service"_s, 1}, {u"time"_s, localSeconds(u"2026-03-02T09:01:00"_s)}, {u"seq"_s, 1}};
    QJsonObject story = key;
    story[u"story"_s] = u"Told later"_s;
    script.result(u"feed.story"_s, story);
    script.result(u"feed.updated"_s, QJsonObject{{u"key"_s, key}});
    story[u"seq"_s] = 99;
    EXPECT_EQ(script.errorCode(u"feed.story"_s, story), -32602);
    EXPECT_EQ(script.errorCode(u"feed.hold"_s, QJsonObject{{u"what"_s, u"all"_s}, {u"on"_s, true}}), -32602);
    script.result(u"feed.hold"_s, QJsonObject{{u"what"_s, u"stories"_s}, {u"on"_s, true}});
    script.result(u"feed.marketDay"_s, QJsonObject{{u"service"_s, 1}, {u"date"_s, 20260303}});
    EXPECT_EQ(script.result(u"view.state"_s)[u"newsDay"_s].toInt(), 20260303);
}

TEST_F(AutomationSessionTest, HostSettingsTakeEffectAtOnceAndSwitchesForTheNextView) {
    ScriptClient script(arguments());
    script.result(u"view.open"_s, QJsonObject{{u"size"_s, QJsonArray{800, 500}}});
    script.result(u"host.set"_s, QJsonObject{{u"scheme"_s, u"dark"_s}, {u"fontSize"_s, 14}});
    const QString dark = scratch.path(u"dark.png"_s);
    script.result(u"screenshot"_s, QJsonObject{{u"path"_s, dark}, {u"view"_s, 1}});
    const QImage picture(dark);
    EXPECT_LT(QColor(picture.pixel(picture.width() / 2, picture.height() - 40)).lightness(), 80);

    script.result(u"host.set"_s, QJsonObject{{u"lang"_s, u"zh-TW"_s}});
    EXPECT_EQ(script.result(u"view.state"_s)[u"title"_s].toString(), u"新聞"_s);
    const auto tabsOf = [&script] { return script.result(u"view.state"_s)[u"tabs"_s].toArray().size(); };
    const auto before = tabsOf();
    script.result(
        u"host.set"_s,
        QJsonObject{{u"switches"_s, QJsonObject{{u"ShowNormalSearch"_s, 0}, {u"ShowWarningSearch"_s, 1}}}});
    EXPECT_EQ(tabsOf(), before);
    script.result(u"view.open"_s, QJsonObject{{u"mask"_s, 0x48}});
    const QJsonObject state = script.result(u"view.state"_s).toObject();
    QList<int> modes;
    for (const QJsonValue& tab : state[u"tabs"_s].toArray())
        modes.append(tab[u"mode"_s].toInt());
    EXPECT_EQ(modes, (QList<int>{3, 6}));
}

TEST_F(AutomationSessionTest, MenusAnswerWhileTheyAreOpen) {
    ScriptClient script(arguments());
    script.result(u"view.open"_s);
    const QJsonObject button{{u"id"_s, ids::serviceButton}};
    const QJsonArray items = script.result(u"menu.open"_s, button)[u"items"_s].toArray();
    ASSERT_GT(items.size(), 2);
    EXPECT_EQ(items[1][u"id"_s].toInt(), 5051);
    EXPECT_TRUE(items[1][u"checked"_s].toBool());
    EXPECT_EQ(script.errorCode(u"menu.open"_s, button), -32002) << "one is open";
    EXPECT_EQ(script.errorCode(u"menu.choose"_s, QJsonObject{{u"id"_s, 1}}), -32001);
    script.result(u"menu.choose"_s, QJsonObject{{u"id"_s, 5051}});
    EXPECT_FALSE(script.result(u"view.state"_s)[u"services"_s][1][u"selected"_s].toBool(true));
    script.result(u"menu.open"_s, button);
    script.result(u"menu.choose"_s, QJsonObject{{u"id"_s, QJsonValue::Null}});
    EXPECT_EQ(script.errorCode(u"menu.choose"_s, QJsonObject{{u"id"_s, 5051}}), -32002) << "dismissed";
}

TEST_F(AutomationSessionTest, ASymbolReachesTheLinkedViewsAlone) {
    ScriptClient script(arguments());
    for (const int group : {2, 2, 0}) {
        const int view = script.result(u"view.open"_s)[u"view"_s].toInt();
        script.result(u"view.link"_s, QJsonObject{{u"view"_s, view}, {u"group"_s, group}});
    }
    const auto change = [&script](int group, const QString& code) {
        script.result(
            u"symbol.change"_s,
            QJsonObject{{u"group"_s, group}, {u"service"_s, 16}, {u"code"_s, code}, {u"name"_s, u"x"_s}});
    };
    const auto codes = [&script] {
        QStringList found;
        for (const int view : {1, 2, 3})
            found.append(
                script.result(u"view.state"_s, QJsonObject{{u"view"_s, view}})[u"symbol"_s][u"code"_s]
                    .toString());
        return found;
    };
    const QString before = codes().last();
    change(2, u"6214"_s);
    EXPECT_EQ(codes(), (QStringList{u"6214"_s, u"6214"_s, before}));
    change(0, u"2330"_s);
    change(5, u"2330"_s);
    EXPECT_EQ(codes(), (QStringList{u"6214"_s, u"6214"_s, before}));
}

TEST_F(AutomationSessionTest, QuitAnswersAndEndsWithZero) {
    ScriptClient script(arguments());
    script.result(u"app.quit"_s);
    EXPECT_EQ(script.endInput(), 0);
}

TEST_F(AutomationSessionTest, AScriptPagesThroughDaysAndReadsStories) {
    ScriptClient script(arguments());
    script.result(u"feed.push"_s, news(1, u"2026-03-02T09:01:00"_s, 1, u"Today"_s));
    script.result(u"feed.push"_s, news(1, u"2026-02-27T09:01:00"_s, 1, u"Friday"_s));
    script.result(u"view.open"_s);
    const auto titles = [&] {
        script.result(u"idle"_s);
        return titlesOf(script.result(u"grid.read"_s, QJsonObject{{u"list"_s, 0}}).toObject());
    };
    const auto set = [&](int date) { script.result(u"date.set"_s, QJsonObject{{u"date"_s, date}}); };
    EXPECT_EQ(titles(), QStringList{u"Today"_s});
    set(20260227);
    EXPECT_EQ(titles(), QStringList{u"Friday"_s});
    set(20260303);
    const QJsonObject state = script.result(u"view.state"_s).toObject();
    EXPECT_EQ(state[u"pickedDate"_s].toInt(), 20260227) << "a day that is to come is refused";
    EXPECT_TRUE(state[u"tip"_s][u"visible"_s].toBool());
    script.result(u"date.open"_s);
    set(20260302);
    EXPECT_EQ(titles(), QStringList{u"Friday"_s}) << "the calendar is still open";
    script.result(u"date.close"_s);
    EXPECT_EQ(titles(), QStringList{u"Today"_s});

    script.result(u"grid.select"_s, QJsonObject{{u"list"_s, 0}, {u"rows"_s, QJsonArray{0}}});
    const QJsonObject pane = script.result(u"story.state"_s, QJsonObject{{u"where"_s, u"pane"_s}}).toObject();
    EXPECT_TRUE(pane[u"visible"_s].toBool());
    EXPECT_EQ(pane[u"title"_s].toString(), u"2026/03/02 09:01:00 \r\nToday"_s);
    EXPECT_TRUE(pane[u"story"_s].toString().contains(u"Text of Today"_s));
    EXPECT_EQ(pane[u"position"_s].toInt(), 0);
    EXPECT_EQ(pane[u"table"_s].toInt(), 0);
    const QJsonObject dialog =
        script.result(u"story.state"_s, QJsonObject{{u"where"_s, u"dialog"_s}}).toObject();
    EXPECT_FALSE(dialog[u"visible"_s].toBool(true));
}

TEST_F(AutomationSessionTest, ASearchIsComposedInItsDialogAndFindsChineseAndEnglish) {
    ScriptClient script(arguments());
    script.result(u"feed.push"_s, news(1, u"2026-03-02T09:01:00"_s, 1, u"Rate cut is near"_s));
    script.result(u"feed.push"_s, news(2, u"2026-03-02T09:02:00"_s, 1, u"央行降息在即"_s));
    script.result(u"feed.push"_s, news(1, u"2026-03-02T09:03:00"_s, 2, u"Nothing of note"_s));
    script.result(u"view.open"_s, QJsonObject{{u"size"_s, QJsonArray{900, 600}}, {u"mask"_s, 0x09}});
    script.result(u"control.choose"_s, QJsonObject{{u"id"_s, ids::tabStrip}, {u"index"_s, 1}});
    EXPECT_TRUE(script.result(u"dialog.state"_s).isNull());

    script.result(u"view.command"_s, QJsonObject{{u"id"_s, ids::dealsSearchButton}});
    const QJsonObject opened = script.result(u"dialog.state"_s).toObject();
    EXPECT_EQ(opened[u"id"_s].toInt(), 2013);
    EXPECT_EQ(opened[u"title"_s].toString(), u"Advanced Search"_s);
    EXPECT_EQ(opened[u"focus"_s].toInt(), 2061);
    EXPECT_EQ(opened[u"default"_s].toInt(), 2063);
    for (const QString& keyword : {u"降息"_s, u"RATE CUT"_s, u"kept out"_s}) {
        script.result(u"dialog.set"_s, QJsonObject{{u"id"_s, 2061}, {u"text"_s, keyword}});
        script.result(u"dialog.click"_s, QJsonObject{{u"id"_s, 2063}});
    }
    script.result(u"dialog.click"_s, QJsonObject{{u"id"_s, 2060}, {u"row"_s, 2}, {u"double"_s, true}});
    script.result(u"dialog.click"_s, QJsonObject{{u"id"_s, 2076}});
    EXPECT_EQ(script.result(u"dialog.state"_s).toObject()[u"class"_s].toString(), u"QMessageBox"_s);
    script.result(u"dialog.click"_s, QJsonObject{{u"id"_s, u"no"_s}});
    script.result(u"dialog.click"_s, QJsonObject{{u"id"_s, 1}});
    script.result(u"wait"_s, QJsonObject{{u"ms"_s, 300}});
    script.result(u"idle"_s);
    const QJsonObject found = script.result(u"grid.read"_s, QJsonObject{{u"list"_s, 3}}).toObject();
    EXPECT_EQ(titlesOf(found), (QStringList{u"央行降息在即"_s, u"Rate cut is near"_s}));

    script.result(u"view.command"_s, QJsonObject{{u"id"_s, ids::dealsSearchButton}});
    const QJsonArray controls = script.result(u"dialog.state"_s).toObject()[u"controls"_s].toArray();
    const auto recent = std::find_if(controls.begin(), controls.end(), [](const QJsonValue& control) {
        return control[u"id"_s].toInt() == 2074;
    });
    ASSERT_NE(recent, controls.end());
    EXPECT_EQ((*recent)[u"rows"_s].toArray(),
              (QJsonArray{QJsonArray{u"Headlines"_s, u"Any keyword"_s, u"降息 RATE CUT "_s}}));
    script.result(u"dialog.close"_s);
    EXPECT_TRUE(script.result(u"dialog.state"_s).isNull());
}

TEST_F(AutomationSessionTest, AStoryWindowIsClosedByEscapeAndByItsButton) {
    ScriptClient script(arguments());
    script.result(u"feed.push"_s, news(1, u"2026-03-02T09:01:00"_s, 1, u"Rate cut is near"_s));
    script.result(u"view.open"_s, QJsonObject{{u"size"_s, QJsonArray{900, 600}}, {u"own"_s, true}});
    const auto showType = [&] {
        return script.result(u"view.state"_s).toObject()[u"storyShowType"_s].toInt();
    };
    for (int step = 0; step < 3 && showType() != 0; ++step)
        script.result(u"view.command"_s, QJsonObject{{u"id"_s, ids::showTypeButton}});
    for (const auto& [method, params] : {std::pair(u"input.key"_s, QJsonObject{{u"key"_s, u"Escape"_s}}),
                                         std::pair(u"dialog.close"_s, QJsonObject())}) {
        script.result(u"input.click"_s, QJsonObject{{u"row"_s, 0}, {u"double"_s, true}});
        script.result(u"idle"_s);
        EXPECT_EQ(script.result(u"dialog.state"_s).toObject()[u"title"_s], u"Rate cut is near"_s);
        script.result(method, params);
        EXPECT_TRUE(script.result(u"dialog.state"_s).isNull()) << qPrintable(method);
    }
}

}  // namespace

}  // namespace wirepane
