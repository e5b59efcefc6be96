// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/params.h"

#include <QJsonDocument>

#include <functional>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

struct WrongParameter {
    QByteArray json;
    std::function<void(Params&)> read;
};

TEST(ParamsTest, WhatIsWrongIsNamed) {
    const auto number = [](Params& params) { params.number(u"p"_s, 0, 255); };
    const auto size = [](Params& params) { params.size(u"p"_s); };
    const auto numbers = [](Params& params) { params.optionalNumbers(u"p"_s); };
    const WrongParameter wrong[] = {
        {"{}", number},
        {R"({"p":null})", number},
        {R"({"p":-1})", number},
        {R"({"p":256})", number},
        {R"({"p":1.5})", number},
        {R"({"p":"1"})", number},
        {R"({"p":1e300})", number},
        {R"({"p":[800]})", size},
        {R"({"p":[800,0]})", size},
        {R"({"p":[800,600,1]})", size},
        {R"({"p":[80000,600]})", size},
        {R"({"p":{"w":1}})", size},
        {R"({"p":[1,-2]})", numbers},
        {R"({"p":3})", numbers},
        {R"({"p":[1,"2"]})", numbers},
        {R"({"p":1})", [](Params& params) { params.text(u"p"_s); }},
        {R"({"p":1})", [](Params& params) { params.boolean(u"p"_s); }},
        {R"({"p":[]})", [](Params& params) { params.optionalObject(u"p"_s); }},
    };
    for (const WrongParameter& parameter : wrong) {
        Params params(QJsonDocument::fromJson(parameter.json).object());
        parameter.read(params);
        ASSERT_TRUE(params.error().has_value()) << parameter.json.toStdString();
        EXPECT_EQ(params.error()->code, RpcCode::BadParameters);
        EXPECT_TRUE(params.error()->message.contains(u"\"p\""_s)) << parameter.json.toStdString();
    }
}

TEST(ParamsTest, NullAndAbsentAreTheSameAndTheFirstErrorStays) {
    Params params(QJsonDocument::fromJson(R"({"a":null,"time":253402300799,"size":[3,4]})").object());
    EXPECT_FALSE(params.optionalText(u"a"_s).has_value());
    EXPECT_FALSE(params.optionalBool(u"b"_s).has_value());
    EXPECT_EQ(params.number(u"time"_s, 0, 253402300799), 253402300799);
    EXPECT_EQ(params.size(u"size"_s), QSize(3, 4));
    EXPECT_FALSE(params.error().has_value());
    params.text(u"first"_s);
    params.text(u"second"_s);
    EXPECT_TRUE(params.error()->message.contains(u"first"_s));
}

}  // namespace

}  // namespace wirepane
