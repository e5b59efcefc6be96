// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Requests against a web server as publishers run it: what it does of itself is taken as it is meant.
#include "backend/network/http_fetch.h"
#include "backend/network/network_errors.h"
#include "tests/backend/network/run_authority.h"
#include "tests/support/nginx_server.h"

#include <QDateTime>
#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

// %1: the port of TLS, %2: the certificate, %3: the other port.
const QString further =
    uR"(
listen 127.0.0.1:%1 ssl;
ssl_certificate %2.pem;
ssl_certificate_key %2.key;
location = /loop { return 301 /loop; }
location = /moved { return 301 /feed.xml; }
location = /clear { return 302 http://localhost:%3/feed.xml; }
location = /often { add_header Retry-After 120 always; return 429; }
location = /busy { add_header Retry-After 7 always; return 503; }
)"_s;

class NginxTest : public testing::Test {
protected:
    void SetUp() override {
        if (test::NginxServer::program().isEmpty())
            GTEST_SKIP() << "nginx is missing";
        ASSERT_TRUE(server.write(u"feed.xml"_s, feed));
    }

    // With the certificate of this name.
    void serve(const QString& certificate) {
        authority.make(certificate, certificate == "other"_L1 ? u"other.example"_s : u"localhost"_s,
                       certificate == "expired"_L1 ? u"-days -1"_s : u"-days 5"_s);
        ASSERT_TRUE(server.start(further.arg(tlsPort).arg(authority.path(certificate)).arg(server.port())));
    }
    HttpAnswer ask(const QString& path, const Validators& known = {}) {
        HttpRequest request;
        request.address = QUrl(u"http://localhost:%1%2"_s.arg(server.port()).arg(path));
        return ask(request, known);
    }
    HttpAnswer askByTls(const QString& path) {
        HttpRequest request;
        request.address = QUrl(u"https://localhost:%1%2"_s.arg(tlsPort).arg(path));
        request.authority = authority.path(u"ca.pem"_s);
        return ask(request, {});
    }
    HttpAnswer ask(HttpRequest request, const Validators& known) {
        request.isTyped = true;
        request.known = known;
        std::optional<HttpAnswer> answer;
        client.ask(request, [&](HttpAnswer given) { answer = std::move(given); });
        EXPECT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }, 30'000));
        return answer.value_or(HttpAnswer());
    }

    const QByteArray feed = "<rss version='2.0'>" + QByteArray(20'000, ' ') + "</rss>";
    RunAuthority authority;
    test::NginxServer server;
    const quint16 tlsPort = test::NginxServer().port();
    HttpClient client;
};

TEST_F(NginxTest, SendsAFeedPackedAndOnlyWhenItHasChanged) {
    serve(u"good"_s);
    const HttpAnswer first = ask(u"/feed.xml"_s);
    EXPECT_FALSE(first.fault) << sentence(*first.fault).toStdString();
    EXPECT_EQ(first.body, feed);
    EXPECT_EQ(first.contentType, "application/rss+xml");
    EXPECT_TRUE(first.date && std::abs(*first.date - QDateTime::currentSecsSinceEpoch()) < 60);
    // By what it calls the answer, and by its date alone.
    for (const Validators& known : {first.validators, Validators{{}, first.validators.modified}}) {
        const HttpAnswer again = ask(u"/feed.xml"_s, known);
        EXPECT_TRUE(again.isUnchanged && again.body.isEmpty() && !again.fault);
    }
    ASSERT_TRUE(server.write(u"feed.xml"_s, "<rss/>"));
    const HttpAnswer changed = ask(u"/feed.xml"_s, first.validators);
    EXPECT_EQ(changed.body, "<rss/>");
    EXPECT_NE(changed.validators.etag, first.validators.etag);

    QFile log(server.path(u"access.log"_s));
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    const QByteArray line = log.readLine();
    EXPECT_LT(line.mid(line.indexOf(" 200 ") + 5).split(' ').front().toInt(), 2000) << line.toStdString();
}

TEST_F(NginxTest, IsLeftAloneForAsLongAsItAsks) {
    serve(u"good"_s);
    const struct {
        QString path;
        const ErrorCode* fault;
        std::int64_t wish = 0;
    } cases[] = {
        {u"/moved"_s, nullptr},
        {u"/loop"_s, &network_errors::redirectedTooOften},
        {u"/often"_s, &network_errors::askedTooOften, 120},
        {u"/busy"_s, &network_errors::serverFails, 7},
        {u"/none"_s, &network_errors::notThere},
    };
    for (const auto& one : cases) {
        const HttpAnswer answer = ask(one.path);
        EXPECT_EQ(answer.fault ? answer.fault->code : nullptr, one.fault) << one.path.toStdString();
        EXPECT_EQ(answer.wish.value_or(0), one.wish) << one.path.toStdString();
        EXPECT_TRUE(answer.isAlive) << one.path.toStdString();
    }
    server.stop();
    EXPECT_EQ(ask(u"/feed.xml"_s).fault->code, &network_errors::refused);
    serve(u"good"_s);
    EXPECT_EQ(ask(u"/feed.xml"_s).body, feed);
}

TEST_F(NginxTest, IsTakenAtItsCertificateAnewWithEachConnection) {
    serve(u"good"_s);
    EXPECT_EQ(askByTls(u"/feed.xml"_s).body, feed);
    EXPECT_EQ(askByTls(u"/clear"_s).fault->code, &network_errors::redirectInClear);
    const std::pair<QString, const ErrorCode*> swapped[] = {
        {u"expired"_s, &network_errors::certificateExpired},
        {u"other"_s, &network_errors::certificateOfOther},
        {u"good"_s, nullptr},
    };
    for (const auto& [certificate, fault] : swapped) {
        serve(certificate);
        const HttpAnswer answer = askByTls(u"/feed.xml"_s);
        EXPECT_EQ(answer.fault ? answer.fault->code : nullptr, fault) << certificate.toStdString();
        EXPECT_EQ(answer.body.isEmpty(), fault != nullptr);
    }
}

}  // namespace
}  // namespace wirepane
