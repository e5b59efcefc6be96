// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/socket_server.h"

#include <QFileInfo>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace wirepane;

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
    EXPECT_TRUE(refused.error().contains(name));
}

}  // namespace
