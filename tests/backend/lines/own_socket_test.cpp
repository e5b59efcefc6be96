// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/lines/own_socket.h"

#include "backend/feed/feed_client.h"
#include "backend/lines/socket_server.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr uid_t anotherUser = 65534;

// A socket of whoever calls, that listens or has been left by a program that died.
int bound(const QString& path, bool listens) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path);
    std::memcpy(address.sun_path, name.constData(), std::size_t(name.size()));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    EXPECT_EQ(bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_TRUE(!listens || listen(socket, 5) == 0);
    return socket;
}

bool answers(const QString& path) {
    QLocalSocket client;
    client.connectToServer(path);
    return client.waitForConnected(1000);
}

// Does something as another user; this process must be the system's own.
pid_t asAnotherUser(const std::function<int()>& act) {
    const pid_t child = fork();
    if (child == 0)
        _exit(setgid(anotherUser) == 0 && setuid(anotherUser) == 0 ? act() : 99);
    return child;
}

TEST(OwnSocketTest, WhatStandsAtThePathStaysUnlessNobodyListensThere) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"feed"_s);
    const QString kept = folder.filePath(u"news.wirepane"_s);
    QFile file(kept);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("a store") == 7);
    file.close();

    const Result<std::unique_ptr<OwnSocket>> overFile = OwnSocket::listen(kept);
    ASSERT_FALSE(overFile);
    EXPECT_EQ(sentence(overFile.error()),
              u"The local socket %1 cannot be opened: there is something of this name that is "
              u"no socket."_s.arg(kept));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "a store");
    ASSERT_TRUE(QFile::link(kept, path));
    EXPECT_FALSE(OwnSocket::listen(path));
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    ASSERT_TRUE(QFile::remove(path) && QDir().mkdir(path));
    EXPECT_FALSE(OwnSocket::listen(path));
    ASSERT_TRUE(QDir().rmdir(path));

    const int live = bound(path, true);
    EXPECT_FALSE(OwnSocket::listen(path));
    EXPECT_TRUE(answers(path));
    close(live);
    ASSERT_TRUE(QFileInfo::exists(path));
    auto own = OwnSocket::listen(path);
    ASSERT_TRUE(own) << qPrintable(sentence(own.error()));
    EXPECT_EQ(QFileInfo(path).permissions() & (QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                               QFileDevice::ReadOther | QFileDevice::WriteOther),
              0);
    // Taken away at the end, but nothing else that stands there by then.
    own.value().reset();
    EXPECT_FALSE(QFileInfo::exists(path));
    own = OwnSocket::listen(path);
    ASSERT_TRUE(own && QFile::remove(path));
    close(bound(path, false));
    own.value().reset();
    EXPECT_TRUE(QFileInfo::exists(path));

    EXPECT_FALSE(OwnSocket::listen(folder.filePath(QString(200, u'x'))));
    EXPECT_FALSE(OwnSocket::listen(folder.filePath(u"none/feed"_s)));
}

TEST(OwnSocketTest, ASocketWhoseClientsAllWaitIsInUse) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"feed"_s);
    const int live = bound(path, true);
    std::vector<std::unique_ptr<QLocalSocket>> clients;
    for (int i = 0; i < 20; ++i) {
        clients.push_back(std::make_unique<QLocalSocket>());
        clients.back()->connectToServer(path);
    }
    EXPECT_FALSE(OwnSocket::listen(path));
    EXPECT_TRUE(QFileInfo::exists(path));
    close(live);
}

TEST(OwnSocketTest, NamesStandInAFolderOfTheUsersOwn) {
    const QByteArray runtimeBefore = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray temporaryBefore = qgetenv("TMPDIR");
    const QTemporaryDir folder;
    const QString open = folder.filePath(u"open"_s);
    const QString made = folder.filePath(u"wirepane-%1"_s.arg(geteuid()));
    ASSERT_TRUE(QDir().mkdir(open));
    qputenv("TMPDIR", QFile::encodeName(folder.path()));

    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
    EXPECT_EQ(socketPath(u"feed"_s).value(), folder.filePath(u"feed"_s));
    EXPECT_EQ(socketPath(u"/a/feed"_s).value(), u"/a/feed");
    // Others may look in.
    chmod(QFile::encodeName(open).constData(), 0755);
    for (const QByteArray& other : {QFile::encodeName(open), QByteArray("/nowhere"), QByteArray()}) {
        qputenv("XDG_RUNTIME_DIR", other);
        EXPECT_EQ(socketPath(u"feed"_s).value(), made + u"/feed"_s);
        struct stat found {};
        ASSERT_EQ(stat(QFile::encodeName(made).constData(), &found), 0);
        EXPECT_EQ(found.st_mode & 07777, 0700U);
    }
    chmod(QFile::encodeName(made).constData(), 0770);
    EXPECT_EQ(sentence(socketPath(u"feed"_s).error()),
              u"The folder %1 for local sockets is not this user's alone."_s.arg(made));
    ASSERT_TRUE(QDir().rmdir(made) && QDir().mkdir(open + u"/mine"_s) && QFile::link(open, made));
    EXPECT_FALSE(socketPath(u"feed"_s));
    qputenv("XDG_RUNTIME_DIR", runtimeBefore);
    qputenv("TMPDIR", temporaryBefore);
}

TEST(OwnSocketTest, OtherUsersAreNeitherServedNorTrusted) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only the system's own user can act as another";
    const QTemporaryDir folder;
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0777), 0);
    const QString path = folder.filePath(u"feed"_s);
    SocketServer server;
    int served = 0;
    QObject::connect(&server, &SocketServer::connected, &server, [&] { ++served; });
    ASSERT_TRUE(server.listen(path));
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0777), 0);
    const QByteArray name = QFile::encodeName(path);
    const pid_t visitor = asAnotherUser([&name] {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path, name.constData(), std::size_t(name.size()));
        const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        char byte = 0;
        if (connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
            return 1;
        return read(socket, &byte, 1) == 0 ? 0 : 2;
    });
    int status = -1;
    ASSERT_TRUE(QTest::qWaitFor([&] { return waitpid(visitor, &status, WNOHANG) == visitor; }));
    EXPECT_EQ(status, 0);
    EXPECT_EQ(served, 0);

    // A name that another user was first to take.
    const QString squatted = folder.filePath(u"squatted"_s);
    const pid_t squatter = asAnotherUser([&squatted] {
        const int socket = bound(squatted, true);
        chmod(QFile::encodeName(squatted).constData(), 0777);
        char byte = 0;
        const int client = accept(socket, nullptr, nullptr);
        return read(client, &byte, 1) == 0 ? 0 : 1;
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFileInfo(squatted).permissions() & QFileDevice::WriteOther; }));
    EXPECT_TRUE(sentence(OwnSocket::listen(squatted).error()).contains(u"it belongs to another user"));
    QString failure;
    {
        FeedClient client(squatted, {});
        QObject::connect(&client, &FeedClient::failed, &client,
                         [&](const QString& sentence) { failure = sentence; });
        client.send("news");
        client.start(1);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !failure.isEmpty(); }));
    }
    EXPECT_EQ(failure, u"The local socket %1 belongs to another user; nothing was sent."_s.arg(squatted));
    ASSERT_TRUE(QTest::qWaitFor([&] { return waitpid(squatter, &status, WNOHANG) == squatter; }));
    EXPECT_EQ(status, 0);
}

}  // namespace

}  // namespace wirepane
