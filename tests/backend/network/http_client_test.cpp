// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Requests against a server that says what it should not.
#include "backend/network/http_fetch.h"
#include "backend/network/network_errors.h"
#include "tests/backend/network/fault_server.h"
#include "tests/backend/network/gzip.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <optional>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

constexpr HttpLimits small{.body = 200'000, .redirects = 3, .quietMs = 1500, .totalMs = 3000};

HttpRequest typed(const QUrl& address) {
    HttpRequest request;
    request.address = address;
    request.isTyped = true;
    return request;
}

HttpAnswer answerTo(HttpClient& client, const HttpRequest& request) {
    std::optional<HttpAnswer> answer;
    client.ask(request, [&](HttpAnswer given) { answer = std::move(given); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }, 10'000));
    return answer.value_or(HttpAnswer());
}

QByteArray headOf(const ErrorCode* code) {
    return code == nullptr ? QByteArray("none") : QByteArray(code->key);
}

TEST(HttpClient, TakesNothingOfAnswersThatAreNotSound) {
    using Server = FaultServer;
    const QByteArray ok = "HTTP/1.1 200 OK\r\n";
    const struct {
        const char* what;
        Server::Reply reply;
        const ErrorCode* fault;  // null: the body counts
        QByteArray body = {};
    } cases[] = {
        {"plain", Server::whole("200 OK", "", "abc"), nullptr, "abc"},
        {"until the end of the connection", {ok + "\r\nabc"}, nullptr, "abc"},
        {"in chunks", {ok + "Transfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n0\r\n\r\n"}, nullptr, "abc"},
        {"cut off", {ok + "Content-Length: 10\r\n\r\nabc"}, &network_errors::cutOff},
        {"cut off in a chunk", {ok + "Transfer-Encoding: chunked\r\n\r\nff\r\nabc"}, &network_errors::cutOff},
        {"cut off gzip",
         {ok + "Content-Encoding: gzip\r\nContent-Length: 90000\r\n\r\n" + test::gzipOf(900).left(12)},
         &network_errors::cutOff},
        {"gzip", Server::whole("200 OK", "Content-Encoding: gzip\r\n", test::gzipOf(100)), nullptr,
         QByteArray(100, '\0')},
        {"deflate without its head",
         Server::whole("200 OK", "Content-Encoding: deflate\r\n", QByteArray::fromHex("4b4c4a0600")), nullptr,
         "abc"},
        {"gzip in two members",
         Server::whole("200 OK", "Content-Encoding: gzip\r\n", test::gzipOf(3) + test::gzipOf(2)), nullptr,
         QByteArray(5, '\0')},
        {"a coding that was not asked for", Server::whole("200 OK", "Content-Encoding: br\r\n", "abc"),
         &network_errors::cutOff},
        {"gzip bomb", Server::whole("200 OK", "Content-Encoding: gzip\r\n", test::gzipOf(50'000'000)),
         &network_errors::bodyTooLarge},
        {"too large", Server::whole("200 OK", "", QByteArray(300'000, 'x')), &network_errors::bodyTooLarge},
        {"too large without a length",
         {ok + "\r\n" + QByteArray(300'000, 'x')},
         &network_errors::bodyTooLarge},
        {"nothing at all", {""}, &network_errors::cutOff},
        {"silence", {.bytes = "", .closes = false}, &network_errors::quiet},
        {"slow drips", {.bytes = ok + "\r\n" + QByteArray(500, 'x'), .drips = 5}, &network_errors::timedOut},
        {"no HTTP", {"SSH-2.0-Server\r\n\r\n"}, &network_errors::cutOff},
        {"401", Server::whole("401 Unauthorized", "WWW-Authenticate: Basic realm=x\r\n", ""),
         &network_errors::notAuthorised},
        {"403", Server::whole("403 Forbidden", "", "<html>Firewall"), &network_errors::forbidden},
        {"410", Server::whole("410 Gone", "", ""), &network_errors::notThere},
        {"429", Server::whole("429 Slow", "Retry-After: 120\r\n", ""), &network_errors::askedTooOften},
        {"503", Server::whole("503 Busy", "Retry-After: 7\r\n", ""), &network_errors::serverFails},
        {"511", Server::whole("511 Sign in", "", "x"), &network_errors::signInNeeded},
        {"206", Server::whole("206 Part", "", "abc"), &network_errors::strangeStatus},
        {"loop", Server::whole("301 Moved", "Location: /feed\r\n", ""), &network_errors::redirectedTooOften},
        {"redirect to a file", Server::whole("302 Found", "Location: file:///etc/passwd\r\n", ""),
         &network_errors::redirectElsewhere},
        {"redirect into the private network",
         Server::whole("302 Found", "Location: http://127.0.0.1:1/\r\n", ""),
         &network_errors::privateAddress},
    };
    HttpClient client(small);
    for (const auto& one : cases) {
        FaultServer server([&](const FaultServer::Seen&) { return one.reply; });
        const HttpAnswer answer = answerTo(client, typed(server.url()));
        EXPECT_EQ(headOf(answer.fault ? answer.fault->code : nullptr), headOf(one.fault)) << one.what;
        EXPECT_EQ(answer.body, one.body) << one.what;
        EXPECT_EQ(answer.wish.value_or(0), QByteArray(one.what) == "429"   ? 120
                                           : QByteArray(one.what) == "503" ? 7
                                                                           : 0);
    }
}

TEST(HttpClient, SaysWhoItIsAndNoMore) {
    FaultServer server([](const FaultServer::Seen& seen) {
        return seen.headers.value("if-none-match") == "\"v1\""
                   ? FaultServer::whole("304 Not Modified", "ETag: \"v1\"\r\n", "")
                   : FaultServer::whole("200 OK",
                                        "Set-Cookie: a=b\r\nETag: \"v1\"\r\nCache-Control: max-age=90\r\n"
                                        "Last-Modified: Sun, 06 Nov 1994 08:49:37 GMT\r\n",
                                        "abc");
    });
    HttpClient client(small);
    HttpRequest request = typed(server.url());
    const HttpAnswer first = answerTo(client, request);
    EXPECT_EQ(first.wish, 90);
    EXPECT_EQ(first.validators.etag, "\"v1\"");
    request.known = first.validators;
    const HttpAnswer second = answerTo(client, request);
    EXPECT_TRUE(second.isUnchanged && !second.fault);
    const auto& headers = server.seen.back().headers;
    EXPECT_EQ(headers.value("user-agent"), "Wirepane/" + QCoreApplication::applicationVersion().toLatin1());
    EXPECT_EQ(headers.value("host"), "localhost:" + QByteArray::number(server.serverPort()));
    EXPECT_EQ(headers.value("if-modified-since"), "Sun, 06 Nov 1994 08:49:37 GMT");
    EXPECT_FALSE(headers.contains("cookie"));
    EXPECT_EQ(server.connections, 1) << "connections are kept";
}

TEST(HttpClient, AsksAHostOneThingAtATimeAndOthersMeanwhile) {
    const auto slow = [](const FaultServer::Seen&) {
        FaultServer::Reply reply = FaultServer::whole("200 OK", "", "abc");
        reply.delayMs = 30;
        return reply;
    };
    FaultServer server(slow);
    HttpClient client(small);
    int answered = 0;
    for (int i = 0; i < 8; ++i) {
        QUrl address = server.url();
        if (i % 2 == 1)
            address.setHost(u"127.0.0.1"_s);
        client.ask(typed(address),
                   [&](const HttpAnswer& answer) { answered += answer.body == "abc" ? 1 : 0; });
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return answered == 8; }, 5000));
    EXPECT_EQ(server.mostAtOnce, 2);  // of the two names
}

TEST(HttpClient, KeepsOutOfPrivateNetworksAndKeepsSecretsAtTheirHost) {
    FaultServer other([](const FaultServer::Seen&) { return FaultServer::whole("200 OK", "", "abc"); });
    FaultServer server([&other](const FaultServer::Seen&) {
        const QByteArray port = QByteArray::number(other.serverPort());
        return FaultServer::whole("302 Found", "Location: http://localhost:" + port + "/\r\n", "");
    });
    HttpClient client(small);
    HttpRequest request = typed(server.url());
    request.secretHeaders.emplace_back("X-Key", "secret");
    EXPECT_EQ(answerTo(client, request).body, "abc");
    EXPECT_EQ(other.seen.front().headers.value("x-key"), QByteArray()) << "another port is another host";
    request.isTyped = false;
    EXPECT_EQ(answerTo(client, request).fault->code, &network_errors::privateAddress);
    EXPECT_EQ(server.seen.size(), 1u);
}

}  // namespace
}  // namespace wirepane
