// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/lines/socket_server.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

TEST(SocketServerTest, SpeaksWithSeveralClientsAndLetsThemGo) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"automation"_s);
    SocketServer server;
    QByteArrayList received;
    int ended = 0;
    QObject::connect(&server, &SocketServer::connected, &server, [&](LineChannel* channel) {
        QObject::connect(channel, &LineChannel::lineReceived, channel, [&, channel](const QByteArray& line) {
            received.append(line);
            channel->send("answer to " + line + '\n');
        });
        QObject::connect(channel, &LineChannel::ended, channel, [&] { ++ended; });
    });
    ASSERT_TRUE(server.listen(name));
    const auto others =
        QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ReadOther | QFileDevice::WriteOther;
    EXPECT_FALSE(QFileInfo(name).permissions() & others);

    QLocalSocket first;
    QLocalSocket second;
    first.connectToServer(name);
    second.connectToServer(name);
    ASSERT_TRUE(first.waitForConnected() && second.waitForConnected());
    first.write("one\n");
    second.write("two without a line feed");
    ASSERT_TRUE(QTest::qWaitFor([&] { return first.canReadLine(); }));
    EXPECT_EQ(first.readLine(), "answer to one\n");
    second.disconnectFromServer();
    ASSERT_TRUE(QTest::qWaitFor([&] { return ended == 1; }));
    EXPECT_EQ(received, (QByteArrayList{"one", "two without a line feed"}));

    SocketServer rival;
    const Done refused = rival.listen(name);
    ASSERT_FALSE(refused);
    EXPECT_TRUE(sentence(refused.error()).contains(name));
}

// Clients that are connected to a server, and what the server has heard of them.
class BusyServer {
public:
    explicit BusyServer(std::chrono::milliseconds silence = std::chrono::seconds(5)) : server(silence) {
        QObject::connect(&server, &SocketServer::connected, &server, [this](LineChannel* channel) {
            channels.push_back(channel);
            QObject::connect(channel, &LineChannel::lineReceived, channel,
                             [this](const QByteArray& line) { received.append(line.left(8)); });
            QObject::connect(channel, &LineChannel::ended, channel, [this] { ++ended; });
        });
        EXPECT_TRUE(server.listen(name));
    }
    QLocalSocket& client() {
        clients.push_back(std::make_unique<QLocalSocket>());
        clients.back()->connectToServer(name);
        EXPECT_TRUE(clients.back()->waitForConnected());
        QCoreApplication::processEvents();
        return *clients.back();
    }
    // Until nothing more is taken of the clients.
    qint64 unsent() const {
        qint64 before = -1;
        qint64 now = 0;
        while (before != now) {
            before = now;
            QTest::qWait(100);
            now = 0;
            for (const auto& client : clients)
                now += client->bytesToWrite();
        }
        return now;
    }

    const QTemporaryDir folder;
    const QString name = folder.filePath(u"feed"_s);
    SocketServer server;
    std::vector<LineChannel*> channels;
    std::vector<std::unique_ptr<QLocalSocket>> clients;
    QByteArrayList received;
    int ended = 0;
};

constexpr qint64 megabyte = 1024 * 1024;

TEST(SocketServerTest, AHeldClientWaitsAndLosesNothing) {
    BusyServer busy;
    QLocalSocket& client = busy.client();
    ASSERT_TRUE(QTest::qWaitFor([&] { return busy.channels.size() == 1; }));
    busy.channels[0]->setHeld(true);
    for (int i = 0; i < 80; ++i)
        client.write(QByteArray::number(i).leftJustified(100'000) + '\n');
    client.write("the end");
    EXPECT_GT(busy.unsent(), 7 * megabyte);
    EXPECT_TRUE(busy.received.isEmpty());
    busy.channels[0]->setHeld(false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return client.bytesToWrite() == 0; }, 20000));
    busy.channels[0]->setHeld(true);
    client.disconnectFromServer();
    QTest::qWait(100);
    EXPECT_EQ(busy.ended, 0);
    busy.channels[0]->setHeld(false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return busy.ended == 1; }));
    ASSERT_EQ(busy.received.size(), 81);
    for (int i = 0; i < 80; ++i)
        EXPECT_EQ(busy.received[i].trimmed(), QByteArray::number(i));
    EXPECT_EQ(busy.received.back(), "the end");
}

TEST(SocketServerTest, HalfLinesOfManyClientsTakeLittleRoom) {
    BusyServer busy;
    constexpr int many = 20;
    for (int i = 0; i < many; ++i)
        busy.client().write(QByteArray(2 * megabyte, 'x'));
    EXPECT_GT(busy.unsent(), (many - qint64(LongLines::mostAtOnce)) * megabyte);
    EXPECT_TRUE(busy.received.isEmpty());
    // Nobody is kept out for good.
    for (const auto& client : busy.clients)
        client->write("\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return busy.received.size() == many; }, 20000));
    EXPECT_EQ(busy.unsent(), 0);
}

TEST(SocketServerTest, WhoStopsInALongLineLosesHisPlaceToWhoWaits) {
    BusyServer busy(std::chrono::milliseconds(200));
    for (std::size_t i = 0; i < LongLines::mostAtOnce; ++i)
        busy.client().write(QByteArray(megabyte, 'x'));
    EXPECT_EQ(busy.unsent(), 0);
    QTest::qWait(500);
    EXPECT_EQ(busy.ended, 0);
    busy.client().write(QByteArray(megabyte, 'y') + '\n');
    ASSERT_TRUE(QTest::qWaitFor([&] { return busy.received.size() == 1; }));
    EXPECT_EQ(busy.received[0], "yyyyyyyy");
    EXPECT_GE(busy.ended, 1);
}

TEST(SocketServerTest, MoreClientsThanItServesWait) {
    BusyServer busy;
    for (std::size_t i = 0; i < SocketServer::mostClients + 5; ++i)
        busy.client().write("line\n");
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return busy.received.size() == qsizetype(SocketServer::mostClients); }));
    QTest::qWait(100);
    EXPECT_EQ(busy.channels.size(), SocketServer::mostClients);
    for (int i = 0; i < 5; ++i)
        busy.clients[std::size_t(i)]->disconnectFromServer();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return busy.received.size() == qsizetype(SocketServer::mostClients) + 5; }));
}

TEST(SocketServerTest, AClientThatTakesNoAnswersIsNotListenedTo) {
    BusyServer busy;
    QLocalSocket& client = busy.client();
    client.setReadBufferSize(1024);
    ASSERT_TRUE(QTest::qWaitFor([&] { return busy.channels.size() == 1; }));
    int asked = 0;
    QObject::connect(busy.channels[0], &LineChannel::lineReceived, busy.channels[0], [&] {
        ++asked;
        busy.channels[0]->send(QByteArray(megabyte, 'a') + '\n');
    });
    for (int i = 0; i < 40; ++i) {
        client.write(QByteArray(50'000, 'q') + '\n');
        client.flush();
    }
    busy.unsent();
    EXPECT_LT(asked, 15);
    client.setReadBufferSize(0);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            client.readAll();
            return asked == 40;
        },
        20000));
}

}  // namespace

}  // namespace wirepane
