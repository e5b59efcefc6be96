// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Sources of the list in a running terminal: from a server on the loopback to what views are told.
#include "backend/network/network_errors.h"
#include "tests/backend/network/gzip.h"
#include "tests/backend/network/network_sources_fixture.h"
#include "tests/support/loopback_server.h"
#include "tests/support/qt_printers.h"

#include <QElapsedTimer>

namespace wirepane {
namespace {

TEST_F(NetworkSourcesTest, TellsNewsOfASourceThatAnotherProgramAdds) {
    const QString name = add(server);
    ASSERT_TRUE(hasTold(1));
    EXPECT_EQ(network->sources().front()->state().kind, SourceState::Live);

    // What is unchanged is not sent, what is new is there at once.
    askAgain(server);
    EXPECT_EQ(server.seen.back().headers.value("if-none-match").isEmpty(), false);
    entries.insert(entries.begin(), {u"2"_s, u"2"_s, u"https://x.example/2"_s, 0});
    network->askNow(name);
    const std::size_t before = server.seen.size();
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.seen.size() > before; }, 5000));
    QElapsedTimer sinceAnswer;
    sinceAnswer.start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return told().size() == 2; }, 5000));
    RecordProperty("answer_to_row_ms", static_cast<int>(sinceAnswer.elapsed()));
    EXPECT_LT(sinceAnswer.elapsed(), 300);

    // After a restart it goes on with what it knew.
    ASSERT_TRUE(QTest::qWaitFor([&] { return standing().items == 2; }, 5000));
    restart();
    ASSERT_TRUE(hasAsked(server, before + 2));
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return network->sources().front()->state().kind == SourceState::Live; }, 5000));
    EXPECT_FALSE(server.seen.back().headers.value("if-none-match").isEmpty());
    EXPECT_EQ(standing().items, 2);
    // What comes after an unchanged answer has come now, late as it is.
    const auto lastArrival = [this] { return standing().gaps.section(u' ', 0, 0).toLongLong(); };
    const std::int64_t arrived = lastArrival();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QDateTime::currentSecsSinceEpoch() > arrived; }, 5000));
    entries.insert(entries.begin(), {u"3"_s, u"3"_s, u"https://x.example/3"_s, 5});
    askAgain(server);
    EXPECT_TRUE(QTest::qWaitFor([&] { return standing().items == 3; }, 5000));
    EXPECT_GT(lastArrival(), arrived);
    EXPECT_EQ(titlesIn(*openStoreToRead(storeFile).value()),
              (QStringList{u"News 1"_s, u"News 2"_s, u"News 3"_s}));

    // A paused one is asked no more, a removed one is gone.
    const std::size_t asked = server.seen.size();
    const auto store = openStore(storeFile);
    ASSERT_TRUE(SourceList(*store.value()).pause(name, true));
    ASSERT_TRUE(QTest::qWaitFor([&] { return network->sources().front()->definition().isPaused; }, 2000));
    network->askNow(name);
    QTest::qWait(600);
    EXPECT_EQ(server.seen.size(), asked);
    const std::size_t open = feed->sources().size();
    ASSERT_TRUE(SourceList(*store.value()).remove(name));
    EXPECT_TRUE(QTest::qWaitFor([&] { return feed->sources().size() + 1 == open; }, 2000));
}

TEST_F(NetworkSourcesTest, TakesTheSameNewsOnceWhoeverBringsItUnderWhateverName) {
    entries = {{u"1"_s, u"1"_s, u"https://x.example/1"_s, 3}, {u"2"_s, u"2"_s, u"https://x.example/2"_s, 2}};
    add(server);
    ASSERT_TRUE(hasTold(2));
    // Its identities change; another source has them under its own, and one item more.
    entries[0].identity = u"1b"_s;
    entries[1].identity = u"2b"_s;
    askAgain(server);
    FaultServer other([](const FaultServer::Seen&) {
        return FaultServer::whole("200 OK", "",
                                  rss({{u"other:1"_s, u"one"_s, u"http://x.example/1/?utm_source=o"_s, 3},
                                       {u"other:3"_s, u"3"_s, u"https://x.example/3"_s, 1}}));
    });
    add(other, u"/other"_s);
    ASSERT_TRUE(hasTold(3));
    // One of another service has both as well, by a link and by a URI, and one under a name that is none.
    FaultServer apart([](const FaultServer::Seen&) {
        return FaultServer::whole("200 OK", "",
                                  rss({{u"apart:1"_s, u"eins"_s, u"https://x.example/1"_s, 3},
                                       {u"2"_s, u"zwei"_s, u"https://apart.example/2"_s, 2},
                                       {u"apart:4"_s, u"4"_s, u"https://apart.example/4"_s, 1}}));
    });
    NetworkSource definition;
    definition.address = apart.url(u"/apart"_s);
    definition.service = ownService;
    add(definition);
    ASSERT_TRUE(hasTold(4));
    EXPECT_EQ(titlesIn(*openStoreToRead(storeFile).value()),
              (QStringList{u"News 1"_s, u"News 2"_s, u"News 3"_s, u"News 4"_s}));
    const auto store = openStore(storeFile);
    SourceList list(*store.value());
    NetworkSource titled = list.source(u"net:localhost/2"_s).value();
    titled.title = u"The \"other\" 報"_s;
    ASSERT_TRUE(list.change(titled));
    const QStringList of1{u"localhost"_s, titled.title};
    const QStringList ofApart{u"localhost/3"_s};
    EXPECT_EQ(origins(), (QList<QStringList>{of1.mid(1), of1.mid(0, 1) + ofApart, of1 + ofApart}));
}

TEST_F(NetworkSourcesTest, SaysWhatIsWrongAndKeepsWhatWasThere) {
    add(server);
    ASSERT_TRUE(hasTold(1));
    using Server = FaultServer;
    const QByteArray page = "<!DOCTYPE html><html><head><title>Blocked</title></head></html>";
    const QByteArray big5 = "Content-Type: text/xml; charset=big5\r\n";
    const QByteArray list = rss(entries);
    const QByteArray bomb = test::gzipOf(50'000'000);
    const struct {
        const char* what;
        std::optional<Server::Reply> reply;
        const ErrorCode* fault;
        SourceState::Kind state = SourceState::Failed;
    } cases[] = {
        {"firewall", Server::whole("403 Forbidden", "", page), &network_errors::forbidden},
        {"page", Server::whole("200 OK", "", page), &network_errors::pageInstead},
        {"portal", Server::whole("302 Found", "Location: http://192.168.7.1/login\r\n", ""),
         &network_errors::privateAddress},
        {"sign in", Server::whole("511 Sign in", "", page), &network_errors::signInNeeded},
        {"empty", Server::whole("200 OK", "", "  "), &network_errors::emptyAnswer},
        {"shrunk to nothing", Server::whole("200 OK", "", rss({})), &network_errors::emptyList,
         SourceState::Live},
        {"no item sound",
         Server::whole("200 OK", "",
                       "<rss version='2.0'><channel><item><guid>urn:9</guid></item></channel></rss>"),
         &network_errors::nothingTaken, SourceState::Live},
        {"clock off", Server::whole("200 OK", "Date: Sun, 06 Nov 1994 08:49:37 GMT\r\n", list),
         &network_errors::clockOff, SourceState::Live},
        {"wrong charset", Server::whole("200 OK", big5, list), nullptr, SourceState::Live},
        {"cut off", Server::Reply{"HTTP/1.1 200 OK\r\nContent-Length: 9999\r\n\r\n" + list},
         &network_errors::cutOff},
        {"bomb", Server::whole("200 OK", "Content-Encoding: gzip\r\n", bomb), &network_errors::bodyTooLarge},
        {"well again", std::nullopt, nullptr, SourceState::Live},
    };
    for (const auto& one : cases) {
        instead = one.reply;
        askAgain(server);
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                return standing().fault.value("code"_L1).toString() ==
                       QLatin1StringView(one.fault ? one.fault->key : "");
            },
            2000))
            << one.what << ": " << standing().fault.value("code"_L1).toString().toStdString();
        EXPECT_EQ(network->sources().front()->state().kind, one.state) << one.what;
    }
    server.close();
    for (QObject* socket : server.findChildren<QSslSocket*>())
        delete socket;
    network->sources().front()->askNow();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return network->sources().front()->state().kind == SourceState::Silent; }, 5000));
    EXPECT_EQ(titlesIn(*openStoreToRead(storeFile).value()), QStringList{u"News 1"_s});
    EXPECT_EQ(told().size(), 1);
}

TEST_F(NetworkSourcesTest, LosesNothingAndDoublesNothingWhenThePlugIsPulled) {
    test::LoopbackServer line;
    const auto publish = [&](int number) {
        const QString text = QString::number(number);
        entries.insert(entries.begin(), {text, text, u"https://x.example/"_s + text, 0});
        line.put("/feed", rss(entries), "application/rss+xml");
    };
    const auto isIn = [this](SourceState::Kind kind) {
        network->sources().front()->askNow();
        return QTest::qWaitFor([&] { return network->sources().front()->state().kind == kind; }, 5000);
    };
    publish(2);
    add(line.address(u"/feed"_s));
    ASSERT_TRUE(hasTold(2));
    line.unplug();
    publish(3);
    EXPECT_TRUE(isIn(SourceState::Silent));
    EXPECT_EQ(standing().fault.value("code"_L1).toString(), QLatin1StringView(network_errors::refused.key));
    line.plugIn();
    EXPECT_TRUE(isIn(SourceState::Live));
    ASSERT_TRUE(hasTold(3));
    EXPECT_TRUE(standing().fault.isEmpty());

    // Pulled again, the terminal ends meanwhile.
    line.unplug();
    publish(4);
    EXPECT_TRUE(isIn(SourceState::Silent));
    restart();
    EXPECT_TRUE(isIn(SourceState::Silent));
    line.plugIn();
    EXPECT_TRUE(isIn(SourceState::Live));
    ASSERT_TRUE(hasTold(4));
    QStringList titles = titlesIn(*openStoreToRead(storeFile).value());
    titles.sort();
    EXPECT_EQ(titles, (QStringList{u"News 1"_s, u"News 2"_s, u"News 3"_s, u"News 4"_s}));
    EXPECT_EQ(told().size(), 4);
}

TEST_F(NetworkSourcesTest, DialsNobodyDuringAnOutageNorWithoutSources) {
    feed->setConnected(false);
    add(server);
    QTest::qWait(700);
    EXPECT_EQ(server.connections, 0);
    feed->setConnected(true);
    EXPECT_TRUE(hasTold(1));
}

}  // namespace
}  // namespace wirepane
