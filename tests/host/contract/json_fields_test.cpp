// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/json_fields.h"

#include <QJsonDocument>

#include <gtest/gtest.h>
#include <limits>

namespace wirepane {

namespace {

using namespace Qt::StringLiterals;

constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t highest = std::numeric_limits<std::int64_t>::max();

JsonFields fieldsOf(const QByteArray& json) {
    const QJsonDocument document = QJsonDocument::fromJson(json);
    EXPECT_TRUE(document.isObject()) << json.toStdString();
    return JsonFields(document.object());
}

// Each way to read a field takes what is written for it, and nothing else.
TEST(JsonFields, AValueIsOfOneKind) {
    struct Kind {
        JsonMust must;
        QByteArray value;
    };
    const Kind kinds[] = {{JsonMust::BeText, "\"1\""}, {JsonMust::BeTrueOrFalse, "true"},
                          {JsonMust::BeList, "[1]"},   {JsonMust::BeObject, "{}"},
                          {JsonMust::BeNumber, "1.5"}, {JsonMust::BeThere, "null"}};
    for (const Kind& kind : kinds) {
        const auto check = [&](JsonMust must, auto read) {
            JsonFields fields = fieldsOf("{\"f\": " + kind.value + "}");
            EXPECT_EQ(read(fields).has_value(), kind.must == must) << kind.value.toStdString();
            const bool isFault = kind.must != must && kind.must != JsonMust::BeThere;
            ASSERT_EQ(fields.fault().has_value(), isFault) << kind.value.toStdString();
            EXPECT_TRUE(!isFault || (fields.fault()->field == u"f"_s && fields.fault()->must == must));
        };
        check(JsonMust::BeText, [](JsonFields& fields) { return fields.optionalText(u"f"_s); });
        check(JsonMust::BeTrueOrFalse, [](JsonFields& fields) { return fields.optionalFlag(u"f"_s); });
        check(JsonMust::BeList, [](JsonFields& fields) { return fields.optionalList(u"f"_s); });
        check(JsonMust::BeObject, [](JsonFields& fields) { return fields.optionalObject(u"f"_s); });
        check(JsonMust::BeNumber, [](JsonFields& fields) { return fields.optionalReal(u"f"_s); });
        check(JsonMust::BeWholeNumber,
              [](JsonFields& fields) { return fields.optionalNumber(u"f"_s, 0, 9); });
    }
}

TEST(JsonFields, WholeNumbersLieWithinTheirBounds) {
    struct Case {
        QByteArray value;
        std::int64_t least;
        std::int64_t most;
        std::optional<std::int64_t> number;
    };
    const Case cases[] = {
        {"0", 0, 255, 0},
        {"255", 0, 255, 255},
        {"256", 0, 255, std::nullopt},
        {"-1", 0, 255, std::nullopt},
        {"2.0", 0, 255, 2},
        {"2e1", 0, 255, 20},
        {"1.5", 0, 255, std::nullopt},
        {"1", 2, 255, std::nullopt},
        {"1e300", lowest, highest, std::nullopt},
        {"9223372036854775807", lowest, highest, highest},
        {"-9223372036854775808", lowest, highest, lowest},
        {"253402300799", 0, highest, 253402300799},
    };
    for (const Case& one : cases) {
        JsonFields fields = fieldsOf("{\"f\": " + one.value + "}");
        EXPECT_EQ(fields.optionalNumber(u"f"_s, one.least, one.most), one.number) << one.value.toStdString();
        ASSERT_EQ(fields.fault().has_value(), !one.number);
        EXPECT_TRUE(one.number || (fields.fault()->least == one.least && fields.fault()->most == one.most));
    }
}

TEST(JsonFields, TheFirstFaultStays) {
    JsonFields fields = fieldsOf(R"({"a": 1, "b": null, "c": "x", "d": 2})");
    EXPECT_EQ(fields.text(u"c"_s), u"x");
    EXPECT_FALSE(fields.fault());
    EXPECT_EQ(fields.text(u"b"_s), u"");
    EXPECT_FALSE(fields.flag(u"a"_s));
    ASSERT_TRUE(fields.fault());
    EXPECT_TRUE(fields.fault()->field == u"b"_s && fields.fault()->must == JsonMust::BeThere);
    EXPECT_EQ(fields.unknown(), QStringList{u"d"_s});
}

}  // namespace

}  // namespace wirepane
