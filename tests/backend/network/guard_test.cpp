// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What is dialled and whom it is taken for, and what heads of answers say.
#include "backend/network/address_guard.h"
#include "backend/network/answer_reading.h"
#include "backend/network/http_values.h"
#include "backend/network/network_errors.h"
#include "tests/backend/network/fault_server.h"
#include "tests/backend/network/run_authority.h"
#include "tests/support/qt_printers.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

TEST(AddressGuard, LetsNoAddressOfAPrivateNetworkBeDialledUnlessTyped) {
    for (const QString& address : {u"93.184.216.34"_s, u"2606:4700::1"_s, u"::ffff:93.184.216.34"_s,
                                   u"64:ff9b::5db8:d822"_s, u"172.32.0.1"_s, u"100.128.0.1"_s})
        EXPECT_TRUE(isPublicAddress(QHostAddress(address))) << address.toStdString();
    for (const QString& address : {u"127.0.0.1"_s,
                                   u"127.9.9.9"_s,
                                   u"10.1.2.3"_s,
                                   u"172.16.0.1"_s,
                                   u"172.31.255.255"_s,
                                   u"192.168.1.1"_s,
                                   u"169.254.169.254"_s,
                                   u"100.64.0.1"_s,
                                   u"198.18.0.1"_s,
                                   u"192.0.2.1"_s,
                                   u"::1"_s,
                                   u"fe80::1"_s,
                                   u"fe80::1%1"_s,
                                   u"fc00::1"_s,
                                   u"fd12:3456::1"_s,
                                   u"fec0::1"_s,
                                   u"::ffff:127.0.0.1"_s,
                                   u"::ffff:10.0.0.1"_s,
                                   u"::127.0.0.1"_s,
                                   u"64:ff9b::7f00:1"_s,
                                   u"64:ff9b:1::1"_s,
                                   u"2002:7f00:1::"_s,
                                   u"2002:c0a8:101::1"_s,
                                   u"2001::1"_s,
                                   u"2001:db8::1"_s}) {
        EXPECT_FALSE(isPublicAddress(QHostAddress(address))) << address.toStdString();
        EXPECT_EQ(allowedAddresses({QHostAddress(address)}, true).size(), 1) << address.toStdString();
    }
    for (const QString& address :
         {u"0.0.0.0"_s, u"0.1.2.3"_s, u"224.0.0.1"_s, u"255.255.255.255"_s, u"240.0.0.1"_s, u"::"_s,
          u"ff02::1"_s, u"::ffff:0.0.0.0"_s, u"::ffff:224.0.0.1"_s})
        EXPECT_TRUE(allowedAddresses({QHostAddress(address)}, true).isEmpty()) << address.toStdString();
}

TEST(HttpValues, SayNothingWhereTheyAreNotWellFormed) {
    constexpr std::int64_t then = 784111777;
    for (const char* date :
         {"Sun, 06 Nov 1994 08:49:37 GMT", "Sunday, 06-Nov-94 08:49:37 GMT", "Sun Nov  6 08:49:37 1994"})
        EXPECT_EQ(httpDate(date), then) << date;
    for (const char* date : {"", "0", "-1", "Sun, 99 Nov 1994 08:49:37 GMT", "yesterday"})
        EXPECT_EQ(httpDate(date), std::nullopt) << date;
    EXPECT_EQ(httpDate("Thu, 06 Nov 1930 08:49:37 GMT"), -1235574623) << "four digits are meant as they are";
    EXPECT_EQ(retryAfter("120", 0), 120);
    EXPECT_EQ(retryAfter(" Sun, 06 Nov 1994 08:49:37 GMT", then - 60), 60);
    EXPECT_EQ(retryAfter("Sun, 06 Nov 1994 08:49:37 GMT", then + 60), 0);
    EXPECT_EQ(retryAfter("99999999999999999999999", 0), 999'999'999);
    for (const char* wait : {"", "-1", "1.5", "soon", "+5"})
        EXPECT_EQ(retryAfter(wait, 0), std::nullopt) << wait;
    EXPECT_EQ(freshFor("public, Max-Age=\"300\", s-maxage=1"), 300);
    EXPECT_EQ(freshFor("max-age=300, no-cache"), 0);
    EXPECT_EQ(freshFor("max-age=x"), std::nullopt);
    EXPECT_EQ(charsetOf("text/xml; boundary=x; Charset=\"Big5\""), "big5");
    EXPECT_EQ(charsetOf(QByteArray(5000, ';')), "");
}

TEST(AnswerReading, DecodesByTheHeadWhatSaysNothingItself) {
    NetworkSource source;
    source.address = QUrl(u"https://a.example/f"_s);
    HttpAnswer answer;
    answer.contentType = "application/rss+xml; charset=big5";
    answer.body = "<rss version='2.0'><channel><item><guid>urn:1</guid><title>" +
                  QByteArray::fromHex("a4a4a4e5") +
                  "</title><pubDate>2026-03-02T10:00:00Z</pubDate></item></channel></rss>";
    const std::int64_t now = 1772445600 + 3600;
    const SourceAnswer read = readAnswer(source, answer, now);
    ASSERT_EQ(read.items.size(), 1u);
    EXPECT_EQ(std::get<NewsItem>(read.items[0].content.value()).title, u"中文"_s);
    source.greatestAge = 1;
    EXPECT_EQ(readAnswer(source, answer, now + 3 * 86400).left, 1) << "too old to be taken";
    answer.date = now - 1200;
    EXPECT_EQ(readAnswer(source, answer, now).fault->code, &network_errors::clockOff);
    answer.address = QUrl(u"https://login.example/"_s);
    answer.body = "<html><title>Sign in</title>";
    EXPECT_EQ(readAnswer(source, answer, now).fault->code, &network_errors::portalInstead);
    EXPECT_EQ(canonicalLink(u"HTTP://A.example/x?b=1&utm_source=q#top"_s), u"https://a.example/x?b=1"_s);
    EXPECT_EQ(canonicalLink(u"http://a.example/x/"_s), u"https://a.example/x"_s);
    EXPECT_EQ(canonicalLink(u"urn:x"_s), QString());
}

class TlsTest : public testing::Test {
protected:
    void SetUp() override {
        authority.make(u"good"_s, u"localhost"_s, u"-days 5"_s);
        authority.make(u"expired"_s, u"localhost"_s, u"-days -1"_s);
        authority.make(u"other"_s, u"other.example"_s, u"-days 5"_s);
    }
    void serve(const QString& name) {
        QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
        tls.setLocalCertificate(QSslCertificate(authority.bytes(name + u".pem"_s)));
        tls.setPrivateKey(QSslKey(authority.bytes(name + u".key"_s), QSsl::Rsa));
        tls.setPeerVerifyMode(QSslSocket::VerifyNone);
        server.useTls(tls);
        for (QObject* socket : server.findChildren<QSslSocket*>())
            delete socket;
        QTest::qWait(20);
    }
    HttpAnswer ask(bool trusts) {
        HttpRequest request;
        request.address = server.url();
        request.address.setScheme(u"https"_s);
        request.isTyped = true;
        request.authority = trusts ? authority.path(u"ca.pem"_s) : QString();
        std::optional<HttpAnswer> answer;
        client.ask(request, [&](HttpAnswer given) { answer = std::move(given); });
        EXPECT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }, 10'000));
        return answer.value_or(HttpAnswer());
    }

    RunAuthority authority;
    FaultServer server{[](const FaultServer::Seen&) { return FaultServer::whole("200 OK", "", "abc"); }};
    HttpClient client{{.quietMs = 2000}};
};

TEST_F(TlsTest, IsVerifiedByTheNameThoughTheAddressIsDialled) {
    serve(u"good"_s);
    EXPECT_EQ(ask(true).body, "abc");
    EXPECT_EQ(ask(false).fault->code, &network_errors::certificateNotTrusted);
    // Swapped under way: the next connection is refused, whatever the last one was.
    serve(u"other"_s);
    EXPECT_EQ(ask(true).fault->code, &network_errors::certificateOfOther);
    serve(u"expired"_s);
    EXPECT_EQ(ask(true).fault->code, &network_errors::certificateExpired);
    EXPECT_EQ(server.seen.size(), 1u);

    // The name is said, too, before anything is encrypted.
    QTcpServer listener;
    listener.listen(QHostAddress::LocalHost);
    QByteArray hello;
    QObject::connect(&listener, &QTcpServer::newConnection, &listener, [&] {
        QTcpSocket* const socket = listener.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket,
                         [&hello, socket] { hello += socket->readAll(); });
    });
    HttpRequest request;
    request.address = QUrl(u"https://localhost:%1/"_s.arg(listener.serverPort()));
    request.isTyped = true;
    client.ask(request, [](const HttpAnswer&) {});
    EXPECT_TRUE(QTest::qWaitFor([&] { return hello.contains("localhost"); }, 5000));
}

}  // namespace
}  // namespace wirepane
