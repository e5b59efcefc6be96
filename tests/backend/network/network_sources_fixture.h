// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/network_sources.h"
#include "tests/backend/feed/live_source_fixture.h"
#include "tests/backend/network/fault_server.h"

namespace wirepane {

struct Entry {
    QString identity;
    QString title;
    QString link;
    int minutes = 0;  // before the present
};

inline QByteArray rss(const std::vector<Entry>& entries) {
    QString text = u"<rss version='2.0'><channel><title>T</title>"_s;
    for (const Entry& entry : entries) {
        const QDateTime time =
            QDateTime::fromSecsSinceEpoch(host_clock::now() / 60 * 60 - entry.minutes * 60, Qt::UTC);
        text +=
            u"<item><guid>urn:%1</guid><title>News %2</title><link>%3</link><pubDate>%4</pubDate></item>"_s
                .arg(entry.identity, entry.title, entry.link, time.toString(Qt::ISODate));
    }
    return (text + u"</channel></rss>"_s).toUtf8();
}

class NetworkSourcesTest : public LiveSourceTest {
protected:
    NetworkSourcesTest() { start(); }
    ~NetworkSourcesTest() override { network.reset(); }

    void start() { network = std::make_unique<NetworkSources>(*backEnd, *feed, nullptr); }
    void restart() {
        network.reset();
        backEnd->run([](StoreWriter&) {});
        end();
        open();
        start();
    }
    // As another program does.
    QString add(const FaultServer& of, const QString& path = u"/feed"_s) { return add(of.url(path)); }
    QString add(const QUrl& address) {
        NetworkSource source;
        source.address = address;
        return add(source);
    }
    QString add(NetworkSource source) {
        source.isTyped = true;
        const auto store = openStore(storeFile);
        return SourceList(*store.value()).add(source).value();
    }
    SourceStanding standing(int index = 0) { return network->sources().at(std::size_t(index))->standing(); }
    bool hasAsked(const FaultServer& of, std::size_t times) {
        return QTest::qWaitFor([&] { return of.seen.size() >= times && feed->isIdle(); }, 5000);
    }
    // Of all news, newest first: who brought it.
    QList<QStringList> origins() {
        QList<QStringList> origins;
        std::vector<CHeadlineTable> table;
        backEnd->checkForNews();
        backEnd->BKQNEWS_iGetHeadlineTable(1, table, int(TableKind::ByDate), u"20260302"_s);
        for (const CHeadlineTable& entry : table)
            origins += backEnd->originsOf(keyOf(entry));
        return origins;
    }
    void askAgain(const FaultServer& of) {
        const std::size_t before = of.seen.size();
        for (const auto& source : network->sources())
            source->askNow();
        EXPECT_TRUE(hasAsked(of, before + 1));
        QTest::qWait(50);
    }

    std::vector<Entry> entries{{u"1"_s, u"1"_s, u"https://x.example/1"_s, 3}};
    std::optional<FaultServer::Reply> instead;  // in place of the entries
    FaultServer server{[this](const FaultServer::Seen& seen) {
        if (instead)
            return *instead;
        const QByteArray body = rss(entries);
        const QByteArray etag = '"' + QByteArray::number(qHash(body)) + '"';
        return seen.headers.value("if-none-match") == etag
                   ? FaultServer::whole("304 Not Modified", "", "")
                   : FaultServer::whole("200 OK", "ETag: " + etag + "\r\n", body);
    }};
    std::unique_ptr<NetworkSources> network;
};

}  // namespace wirepane
