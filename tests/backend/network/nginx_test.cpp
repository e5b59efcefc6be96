// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Requests against a web server as publishers run it: what it does of itself is taken as it is meant.
#include "backend/network/http_fetch.h"
#include "backend/network/network_errors.h"
#include "tests/backend/network/run_authority.h"

#include <QDateTime>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

const QString configuration =
    uR"(
daemon off;
master_process off;  # as whoever runs the test
pid %1/nginx.pid;
error_log %1/error.log;
events { worker_connections 64; }
http {
    access_log %1/access.log;
    client_body_temp_path %1; proxy_temp_path %1; fastcgi_temp_path %1; uwsgi_temp_path %1; scgi_temp_path %1;
    types { application/rss+xml xml; }
    gzip on; gzip_types *; gzip_min_length 1;
    server {
        listen 127.0.0.1:%2;
        listen 127.0.0.1:%3 ssl;
        ssl_certificate %4.pem;
        ssl_certificate_key %4.key;
        root %1;
        location = /loop { return 301 /loop; }
        location = /moved { return 301 /feed.xml; }
        location = /clear { return 302 http://localhost:%2/feed.xml; }
        location = /often { add_header Retry-After 120 always; return 429; }
        location = /busy { add_header Retry-After 7 always; return 503; }
    }
}
)"_s;

quint16 freePort() {
    QTcpServer probe;
    EXPECT_TRUE(probe.listen(QHostAddress::LocalHost));
    return probe.serverPort();
}

class NginxTest : public testing::Test {
protected:
    void SetUp() override {
        program = QStandardPaths::findExecutable(u"nginx"_s, {u"/usr/sbin"_s, u"/usr/bin"_s});
        if (program.isEmpty())
            GTEST_SKIP() << "nginx is missing";
        write(u"feed.xml"_s, feed);
    }
    ~NginxTest() override { stop(); }

    void write(const QString& name, const QByteArray& content) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    // Beside "feed.xml", with the certificate of this name.
    void serve(const QString& certificate) {
        stop();
        authority.make(certificate, certificate == "other"_L1 ? u"other.example"_s : u"localhost"_s,
                       certificate == "expired"_L1 ? u"-days -1"_s : u"-days 5"_s);
        write(u"nginx.conf"_s, configuration.arg(folder.path())
                                   .arg(port)
                                   .arg(tlsPort)
                                   .arg(authority.path(certificate))
                                   .toUtf8());
        server.start(program, {u"-c"_s, folder.filePath(u"nginx.conf"_s)});
        ASSERT_TRUE(QTest::qWaitFor([this] { return isListening(); }, 10'000))
            << server.readAllStandardError().toStdString();
    }
    void stop() {
        server.kill();
        server.waitForFinished();
    }
    bool isListening() const {
        QTcpSocket probe;
        probe.connectToHost(QHostAddress(QHostAddress::LocalHost), tlsPort);
        return probe.waitForConnected(100);
    }
    HttpAnswer ask(const QString& path, const Validators& known = {}) {
        HttpRequest request;
        request.address = QUrl(u"http://localhost:%1%2"_s.arg(port).arg(path));
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
    QString program;
    QTemporaryDir folder;
    RunAuthority authority;
    quint16 port = freePort();
    quint16 tlsPort = freePort();
    QProcess server;
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
    write(u"feed.xml"_s, "<rss/>");
    const HttpAnswer changed = ask(u"/feed.xml"_s, first.validators);
    EXPECT_EQ(changed.body, "<rss/>");
    EXPECT_NE(changed.validators.etag, first.validators.etag);

    QFile log(folder.filePath(u"access.log"_s));
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
    stop();
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
