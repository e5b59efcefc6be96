// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What scripts type, and what of it is refused.
#include "host/views/news_control_ids.h"
#include "tests/terminal/program/program_runner.h"
#include "tests/terminal/program/script_client.h"

#include <QDateTime>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

class KeyboardSession : public testing::Test {
protected:
    KeyboardSession() {
        for (int i = 0; i < 12; ++i)
            push(i % 2 == 0 ? 1 : 16, u"2026-03-02T08:%1:00"_s.arg(i, 2, 10, QChar(u'0')), i + 1);
        script.result(u"view.open"_s, QJsonObject{{u"size"_s, QJsonArray{1000, 600}}, {u"mask"_s, 0x6F}});
        script.result(u"idle"_s);
    }

    void push(int service, const QString& moment, int sequence) {
        const QString title = u"News %1"_s.arg(sequence);
        script.result(u"feed.push"_s,
                      QJsonObject{{u"service"_s, service},
                                  {u"time"_s, QDateTime::fromString(moment, Qt::ISODate).toSecsSinceEpoch()},
                                  {u"seq"_s, sequence},
                                  {u"title"_s, title},
                                  {u"category"_s, 1},
                                  {u"symbol"_s, u""_s},
                                  {u"related"_s, QJsonArray()},
                                  {u"story"_s, u"Story of "_s + title}});
    }

    void key(const QString& name) {
        script.result(u"input.key"_s, QJsonObject{{u"key"_s, name}});
        script.result(u"idle"_s);
    }
    QJsonValue state(const QString& name) { return script.result(u"view.state"_s)[name]; }

    Scratch scratch;
    ScriptClient script{{u"--store"_s, scratch.path(u"news.wirepane"_s), u"--config"_s,
                         scratch.path(u"config"_s), u"--now"_s, u"2026-03-02T09:30:00"_s, u"--lang"_s,
                         u"en"_s}};
};

}  // namespace

TEST_F(KeyboardSession, TypesEveryCharacter) {
    key(u"F3"_s);
    const QString text = u"a1\u65B0\U0001F4C8B"_s;
    script.result(u"input.type"_s, QJsonObject{{u"text"_s, text}});
    QString typed;
    const QJsonArray controls = state(u"controls"_s).toArray();
    for (const auto& control : controls) {
        if (control[u"id"_s] == ids::searchEdit)
            typed = control[u"text"_s].toString();
    }
    EXPECT_EQ(typed.toStdString(), text.toStdString());
}

TEST_F(KeyboardSession, SpaceTicksTheFirstServiceOfTheListThatF7Opens) {
    script.result(u"view.open"_s, QJsonObject{{u"own"_s, true}});
    const auto isTicked = [this] { return state(u"services"_s)[0][u"selected"_s].toBool(); };
    ASSERT_TRUE(isTicked());
    const QJsonArray entries =
        script.result(u"menu.open"_s, QJsonObject{{u"id"_s, ids::serviceButton}})[u"items"_s].toArray();
    EXPECT_TRUE(entries[0][u"text"_s].toString().endsWith(u"\t6"_s)) << "the headlines of the first";
    script.result(u"menu.choose"_s, QJsonObject{{u"id"_s, QJsonValue()}});
    for (const bool ticked : {false, true}) {
        key(u"F7"_s);
        key(u"Space"_s);
        key(u"Escape"_s);
        EXPECT_EQ(isTicked(), ticked);
    }
}

TEST_F(KeyboardSession, InputThatCannotBeDoneIsRefused) {
    struct Case {
        QString method;
        QJsonObject params;
        int code;
    };
    const Case cases[] = {
        {u"input.key"_s, {{u"key"_s, u"NoSuchKey"_s}}, -32602},
        {u"input.key"_s, {{u"key"_s, u"Return"_s}, {u"target"_s, 77}}, -32001},
        {u"input.key"_s, {{u"key"_s, u"Return"_s}, {u"target"_s, ids::searchEdit}}, -32002},
        {u"input.key"_s, {{u"key"_s, u"Return"_s}, {u"target"_s, 3009.5}}, -32602},
        {u"input.type"_s, {{u"target"_s, u"grid"_s}}, -32602},
        {u"input.click"_s, {{u"row"_s, 99}}, -32001},
        {u"input.click"_s, {{u"row"_s, 1}, {u"target"_s, u"grid"_s}}, -32602},
        {u"input.click"_s, {{u"row"_s, 1}, {u"button"_s, u"middle"_s}}, -32602},
    };
    for (const Case& c : cases)
        EXPECT_EQ(script.errorCode(c.method, c.params), c.code) << c.method.toStdString();
    script.result(u"input.click"_s, QJsonObject{{u"row"_s, 3}, {u"double"_s, true}});
    EXPECT_EQ(state(u"storyRow"_s).toInt(), 3);
}

}  // namespace wirepane
