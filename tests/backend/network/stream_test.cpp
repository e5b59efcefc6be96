// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Streams: how events are cut, and that a source loses and doubles none of them.
#include "backend/import/import_errors.h"
#include "backend/network/event_parser.h"
#include "backend/network/network_errors.h"
#include "backend/network/web_socket_run.h"
#include "tests/backend/network/event_server.h"
#include "tests/backend/network/network_sources_fixture.h"
#include "tests/backend/network/run_authority.h"
#include "tests/support/qt_printers.h"

namespace wirepane {
namespace {

TEST(EventParser, CutsEventsAsTheyAreWritten) {
    const struct {
        const char* what;
        QByteArray bytes;
        QByteArrayList events;  // "type|data"
        QByteArray id = {};
        int retry = -1;
    } cases[] = {
        {"one", "data: a\n\n", {"|a"}},
        {"several lines", "data: a\ndata:b\ndata:  c\n\n", {"|a\nb\n c"}},
        {"all fields", "id: 7\nevent: news\nretry: 250\ndata: a\n\n", {"news|a"}, "7", 250},
        {"returns", "id: 1\rdata: a\r\rdata: b\r\r", {"|a", "|b"}, "1"},
        {"both", "id: 1\r\ndata: a\r\n\r\ndata: b\r\n\r\n", {"|a", "|b"}, "1"},
        {"mark and comments", "\xef\xbb\xbf: hello\ndata: a\n:\n\n", {"|a"}},
        {"no data", "id: 9\nevent: x\n\n\ndata: a\n\n", {"|a"}, "9"},
        {"an empty line of data", "data\n\n", {"|"}},
        {"not ended", "id: 3\ndata: a\n\nid: 4\ndata: b\n", {"|a"}, "3"},
        {"an id is taken back", "id: 3\ndata: a\n\nid\ndata: b\n\n", {"|a", "|b"}, ""},
        {"ids and times that are none",
         QByteArray("id: a\0b\nretry: 1s\nretry: -5\ndata: a\n\n", 37),
         {"|a"}},
        {"too long",
         "data: 123456789012345678901234567890123456789012\nid: 5\n\ndata: a\n\n",
         {"long", "|a"},
         "5"},
        {"too long in all",
         "data: 12345678901234567890\ndata: 12345678901234567890\ndata: x\n\ndata: a\n\n",
         {"long", "|a"}},
    };
    for (const auto& one : cases) {
        // In every portion that a network may make of it.
        for (qsizetype portion = 1; portion <= one.bytes.size(); ++portion) {
            EventParser parser({}, 40);
            QByteArrayList events;
            for (qsizetype at = 0; at < one.bytes.size(); at += portion)
                parser.feed(
                    one.bytes.mid(at, portion),
                    [&](const EventParser::Event& event) { events += event.type + '|' + event.data; },
                    [&] { events += "long"; });
            EXPECT_EQ(events, one.events) << one.what << " by " << portion;
            EXPECT_EQ(parser.lastEvent(), one.id) << one.what << " by " << portion;
            EXPECT_EQ(parser.retry().value_or(-1), one.retry) << one.what << " by " << portion;
        }
    }
}

QByteArray record(int number) {
    const QString text =
        uR"({"uri": "urn:%1", "type": "text", "headline": "News %1", "versioncreated": "%2"})"_s;
    return text.arg(number)
        .arg(QDateTime::fromSecsSinceEpoch(host_clock::now(), Qt::UTC).toString(Qt::ISODate))
        .toUtf8();
}

class StreamTest : public NetworkSourcesTest {
protected:
    QString follow(const QUrl& address) {
        NetworkSource source;
        source.address = address;
        source.kind = address.scheme() == "ws"_L1 ? NetworkKind::WebSocket : NetworkKind::EventStream;
        return add(source);
    }
    bool isIn(SourceState::Kind kind) {
        return QTest::qWaitFor(
            [&] {
                for (const auto& source : network->sources())
                    source->askNow();
                return network->sources().front()->state().kind == kind;
            },
            5000);
    }
    QByteArray fault() { return standing().fault.value("code"_L1).toString().toLatin1(); }

    // Cut off while it stands, while the terminal is disconnected, and across a restart of the terminal.
    template <class Server>
    void losesAndDoublesNothing(Server& stream) {
        int last = 0;
        const auto publish = [&](int count) {
            for (int i = 0; i < count; ++i)
                stream.publish(record(++last));
        };
        publish(3);
        follow(stream.url());
        ASSERT_TRUE(hasTold(3));
        publish(2);
        ASSERT_TRUE(hasTold(5));
        EXPECT_TRUE(isIn(SourceState::Live));

        EXPECT_GT(standing().nextTry, QDateTime::currentSecsSinceEpoch()) << "somebody reads it";
        stream.unplug();
        EXPECT_TRUE(isIn(SourceState::Silent));
        publish(2);
        stream.plugIn();
        ASSERT_TRUE(isIn(SourceState::Live));
        ASSERT_TRUE(hasTold(7));
        EXPECT_TRUE(standing().fault.isEmpty());

        feed->setConnected(false);
        publish(1);
        feed->setConnected(true);
        ASSERT_TRUE(hasTold(8));

        restart();
        publish(2);
        ASSERT_TRUE(hasTold(10));
        EXPECT_EQ(told().size(), 10);
        QStringList expected;
        for (int i = 1; i <= last; ++i)
            expected += u"News %1"_s.arg(i);
        EXPECT_EQ(titlesIn(*openStoreToRead(storeFile).value()), expected);
    }
};

TEST_F(StreamTest, OfEventsLosesNothingAndDoublesNothing) {
    EventServer stream;
    losesAndDoublesNothing(stream);
    EXPECT_TRUE(stream.asked.back().toLower().contains("last-event-id: 8"))
        << stream.asked.back().toStdString();
    EXPECT_FALSE(stream.asked.back().toLower().contains("accept-encoding: gzip"));
}

TEST_F(StreamTest, OfMessagesLosesNothingAndDoublesNothing) {
    MessageServer stream;
    losesAndDoublesNothing(stream);
}

TEST_F(StreamTest, SaysWhatIsWrongAndGoesOn) {
    EventServer stream;
    const struct {
        QByteArray head;
        const ErrorCode* fault;
        SourceState::Kind state;
    } cases[] = {
        {"HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: 15\r\n\r\n<!DOCTYPE html>",
         &network_errors::pageInstead, SourceState::Failed},
        {"HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nContent-Length: 2\r\n\r\n{}",
         &network_errors::noStream, SourceState::Failed},
        {"HTTP/1.1 503 Busy\r\nContent-Length: 0\r\n\r\n", &network_errors::serverFails, SourceState::Failed},
        {"HTTP/1.1 200 OK\r\nContent-Type: text/event-stream\r\n\r\ndata: no record\n\n",
         &import_errors::unknownFormat, SourceState::Failed},
        {"HTTP/1.1 200 OK\r\nContent-Type: text/event-stream\r\n\r\nevent: ping\ndata: 1\n\n: there\n\n",
         nullptr, SourceState::Live},
    };
    for (const auto& one : cases) {
        stream.head = one.head;
        if (network->sources().empty())
            follow(stream.url());
        EXPECT_TRUE(QTest::qWaitFor([&] { return !network->sources().empty(); }, 2000));
        EXPECT_TRUE(isIn(one.state)) << one.head.toStdString();
        EXPECT_EQ(fault(), QByteArray(one.fault == nullptr ? "" : one.fault->key)) << one.head.toStdString();
        stream.unplug();
        EXPECT_TRUE(isIn(SourceState::Silent)) << one.head.toStdString();
        stream.plugIn();
    }
}

TEST_F(StreamTest, LeavesItsHostToOthersAndEndsWithItsSource) {
    EventServer stream;
    const QString name = follow(stream.url());
    ASSERT_TRUE(QTest::qWaitFor([&] { return stream.asked.size() == 1; }, 5000));
    stream.publish(record(1));
    ASSERT_TRUE(hasTold(1));
    add(server);
    EXPECT_TRUE(hasAsked(server, 1)) << "the host's place was given back";
    const auto store = openStore(storeFile);
    ASSERT_TRUE(SourceList(*store.value()).remove(name));
    EXPECT_TRUE(QTest::qWaitFor([&] { return stream.findChildren<QTcpSocket*>().isEmpty(); }, 5000));
}

TEST(WebSocketRun, DialsOnlyWhoItMayAndWhoShowsTheCertificateOfTheName) {
    RunAuthority authority;
    authority.make(u"server"_s, u"localhost"_s, u"-days 5"_s);
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setLocalCertificate(QSslCertificate(authority.bytes(u"server.pem"_s)));
    tls.setPrivateKey(QSslKey(authority.bytes(u"server.key"_s), QSsl::Rsa));
    QWebSocketServer server(u"news"_s, QWebSocketServer::SecureMode);
    server.setSslConfiguration(tls);
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const QUrl address(u"wss://localhost:%1/"_s.arg(server.serverPort()));
    const struct {
        const char* what;
        QString scheme;
        bool isTyped;
        bool isTrusted;
        const ErrorCode* fault;  // null: it stands
    } cases[] = {
        {"in the clear by a name", u"ws"_s, false, true, &network_errors::socketInClear},
        {"into the private network", u"wss"_s, false, true, &network_errors::privateAddress},
        {"by an unknown authority", u"wss"_s, true, false, &network_errors::certificateNotTrusted},
        {"typed", u"https"_s, true, true, nullptr},
    };
    for (const auto& one : cases) {
        HttpRequest request;
        request.address = address;
        request.address.setScheme(one.scheme);
        request.isTyped = one.isTyped;
        request.authority = one.isTrusted ? authority.path(u"ca.pem"_s) : QString();
        request.secretHeaders.emplace_back("X-Key", "secret");
        bool stands = false;
        std::optional<HttpAnswer> answer;
        WebSocketRun run(request, {}, {[&] { stands = true; }, [](const QByteArray&) {}, [] { return true; }},
                         [&](const HttpAnswer& given) { answer = given; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return stands || answer; }, 5000)) << one.what;
        EXPECT_EQ(stands, one.fault == nullptr) << one.what;
        const ErrorCode* const met = answer && answer->fault ? answer->fault->code : nullptr;
        EXPECT_STREQ(met == nullptr ? "" : met->key, one.fault == nullptr ? "" : one.fault->key) << one.what;
        EXPECT_EQ(server.hasPendingConnections(), stands) << one.what;
    }
    const std::unique_ptr<QWebSocket> caller(server.nextPendingConnection());
    EXPECT_EQ(caller->request().rawHeader("X-Key"), "secret");
}

}  // namespace
}  // namespace wirepane
