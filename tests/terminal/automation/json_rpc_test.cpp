// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/json_rpc.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

struct BadLine {
    QByteArray line;
    int code;
    QByteArray id;  // as the answer carries it
};

TEST(JsonRpcTest, LinesThatAreNoRequestAreRefusedByTheirKind) {
    const BadLine lines[] = {
        {"", -32700, "null"},
        {"nonsense", -32700, "null"},
        {R"({"jsonrpc":"2.0","id":1,"method":"x")", -32700, "null"},
        {R"({"jsonrpc":"2.0","id":1,"method":"x"} {})", -32700, "null"},
        {"{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"\xff\"}", -32700, "null"},
        {QByteArray(5000, '['), -32700, "null"},
        {R"([{"jsonrpc":"2.0","id":1,"method":"x"}])", -32600, "null"},
        {R"({"jsonrpc":"2.0","id":{},"method":"x"})", -32600, "null"},
        {R"({"jsonrpc":"1.0","id":1,"method":"x"})", -32600, "1"},
        {R"({"id":"a","method":"x"})", -32600, R"("a")"},
        {R"({"jsonrpc":"2.0","id":2})", -32600, "2"},
        {R"({"jsonrpc":"2.0","id":3,"method":4})", -32600, "3"},
        {R"({"jsonrpc":"2.0","id":5,"method":"x","params":1})", -32602, "5"},
        {R"({"jsonrpc":"2.0","id":6,"method":"x","params":null})", -32602, "6"},
    };
    for (const BadLine& bad : lines) {
        const auto parsed = parseRequest(bad.line);
        const auto* rejected = std::get_if<RejectedLine>(&parsed);
        ASSERT_NE(rejected, nullptr) << bad.line.left(80).toStdString();
        EXPECT_EQ(static_cast<int>(rejected->error.code), bad.code) << bad.line.left(80).toStdString();
        const QByteArray answer = errorLine(rejected->id, rejected->error);
        EXPECT_TRUE(answer.contains("\"id\":" + bad.id + ',')) << answer.toStdString();
        EXPECT_EQ(answer.count('\n'), 1);
        EXPECT_FALSE(rejected->error.message.isEmpty());
    }
}

TEST(JsonRpcTest, RequestsCarryTheirIdMethodAndParameters) {
    const auto parsed =
        parseRequest(R"({"jsonrpc":"2.0","id":9007199254740991,"method":"a.b","params":{"t":"行\n"}})");
    const auto* request = std::get_if<RpcRequest>(&parsed);
    ASSERT_NE(request, nullptr);
    EXPECT_EQ(request->method, u"a.b"_s);
    EXPECT_EQ(request->params.value("t"_L1), u"行\n"_s);
    EXPECT_EQ(resultLine(request->id, QJsonObject{{u"t"_s, u"行\n"_s}}),
              "{\"id\":9007199254740991,\"jsonrpc\":\"2.0\",\"result\":{\"t\":\"行\\n\"}}\n");
    const auto notification = parseRequest(R"({"jsonrpc":"2.0","method":"x"})");
    EXPECT_TRUE(std::get<RpcRequest>(notification).id.isUndefined());
}

}  // namespace

}  // namespace wirepane
