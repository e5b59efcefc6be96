// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/source_list.h"

#include "backend/network/network_errors.h"
#include "backend/store/store_file.h"
#include "backend/store/store_reader.h"
#include "tests/backend/feed/feed_fixture.h"
#include "tests/support/qt_printers.h"

#include <QJsonDocument>

#include <set>

namespace wirepane {
namespace {

NetworkSource sourceAt(const QString& address) {
    NetworkSource source;
    source.address = QUrl(address);
    return source;
}

TEST(NetworkSource, StandsInJsonAsItIs) {
    NetworkSource source = sourceAt(u"https://news.example/list.json?lang=zh"_s);
    source.name = u"net:news.example"_s;
    source.title = u"公告 “A”"_s;
    source.kind = NetworkKind::Table;
    source.mapping = u"/home/u/m.json"_s;
    source.service = 16;
    source.categoryRule = CategoryRule::Always;
    source.category = u"公告"_s;
    source.market = 22;
    source.language = u"zh-TW"_s;
    source.interval = 60;
    source.greatestAge = 0;
    source.authorisation = Authorisation::Header;
    source.field = u"X-Key"_s;
    source.secret = u"net:news.example"_s;
    source.authority = u"/a.pem"_s;
    source.certificate = u"/c.pem"_s;
    source.certificateKey = u"/k.pem"_s;
    source.isTyped = source.isPaused = true;
    const auto back = networkSource(QJsonDocument::fromJson(QJsonDocument(toJson(source)).toJson()).object());
    ASSERT_TRUE(back);
    EXPECT_EQ(back.value(), source);
    // What is as usual is left out.
    EXPECT_EQ(toJson(sourceAt(u"https://a.example/"_s)).keys(), QStringList{u"address"_s});
}

TEST(NetworkSource, ThatIsNotSoundIsRefused) {
    const struct {
        const char* json;
        const ErrorCode* fault;  // null: it is sound
    } cases[] = {
        {R"({"address": "https://a.example/f"})", nullptr},
        {R"({"address": "https://a.example/f", "service": 0})", nullptr},
        {R"({"address": "https://a.example/f", "interval": 15, "later": {"x": 1}})", nullptr},
        {R"({"address": "file:///tmp/a.xml", "typed": true})", nullptr},
        {R"({"address": "wss://a.example/f", "kind": "websocket"})", nullptr},
        {R"({})", &network_errors::noAddress},
        {R"({"address": "ftp://a.example/f"})", &network_errors::noAddress},
        {R"({"address": "https:///f"})", &network_errors::noAddress},
        {R"({"address": "file://host/f", "typed": true})", &network_errors::noAddress},
        {R"({"address": "file:///tmp/a.xml"})", &network_errors::fileNotTyped},
        {R"({"address": "https://me:pw@a.example/f"})", &network_errors::secretInAddress},
        {R"({"address": "https://a.example/f", "interval": 14})", &network_errors::fieldWrong},
        {R"({"address": "https://a.example/f", "service": 256})", &network_errors::fieldWrong},
        {R"({"address": "https://a.example/f", "service": 1.5})", &network_errors::fieldWrong},
        {R"({"address": "https://a.example/f", "kind": "gopher"})", &network_errors::fieldWrong},
        {R"({"address": "https://a.example/f", "typed": "yes"})", &network_errors::fieldWrong},
        {R"({"address": "https://a.example/f", "language": "zh\r\nX: 1"})", &network_errors::fieldWrong},
        {R"({"address": "https://a.example/f", "field": "X:"})", &network_errors::fieldWrong},
        {R"({"address": "https://a.example/f", "authorisation": "bearer"})",
         &network_errors::authorisationIncomplete},
        {R"({"address": "https://a.example/f", "authorisation": "header", "secret": "s"})",
         &network_errors::authorisationIncomplete},
    };
    for (const auto& one : cases) {
        const auto source = networkSource(QJsonDocument::fromJson(one.json).object());
        EXPECT_EQ(source ? nullptr : source.error().code, one.fault) << one.json;
        EXPECT_FALSE(!source && sentence(source.error()).contains("pw"_L1)) << one.json;
    }
}

class SourceListTest : public FeedFixture {
protected:
    QStringList order() {
        QStringList names;
        const auto sources = list.sources();
        for (const NetworkSource& source : sources.value())
            names += source.name;
        return names;
    }
    QString add(const QString& address) { return list.add(sourceAt(address)).value(); }

    SourceList list{*store};
};

TEST_F(SourceListTest, KeepsTheOrderOfTheUserUnderNamesForGood) {
    EXPECT_EQ(add(u"https://a.example/1"_s), u"net:a.example"_s);
    EXPECT_EQ(add(u"https://b.example/"_s), u"net:b.example"_s);
    EXPECT_EQ(add(u"https://a.example/2"_s), u"net:a.example/2"_s);
    ASSERT_TRUE(list.move(u"net:a.example/2"_s, 0));
    EXPECT_EQ(order(), (QStringList{u"net:a.example/2"_s, u"net:a.example"_s, u"net:b.example"_s}));
    ASSERT_TRUE(list.move(u"net:a.example/2"_s, 99));
    ASSERT_TRUE(list.remove(u"net:a.example"_s));
    EXPECT_EQ(order(), (QStringList{u"net:b.example"_s, u"net:a.example/2"_s}));
    ASSERT_TRUE(list.pause(u"net:b.example"_s, true));
    // Another program sees it so.
    const auto reading = openStoreToRead(store->path());
    SourceList other(*reading.value());
    EXPECT_TRUE(other.source(u"net:b.example"_s).value().isPaused);
    EXPECT_EQ(other.revision().value(), list.revision().value());
    const QString nobody = u"net:c.example"_s;
    for (const Done& done : {list.remove(nobody), list.move(nobody, 0), list.pause(nobody, true)})
        EXPECT_EQ(done.error().code, &network_errors::noSource);
    EXPECT_EQ(other.revision().value(), 7);  // of which none was a failure
}

TEST_F(SourceListTest, GivesASourceThatIsToBeReadAServiceOfItsOwn) {
    const struct {
        const char* what;
        QString title;
        QString mapping;
        unsigned char wanted;
        bool isPaused;
        unsigned char given;
        QString name;  // of its service
    } cases[] = {
        {"named after itself", u"A\tPaper"_s, {}, ownService, false, 255, u"A Paper"_s},
        {"after its host", {}, {}, ownService, false, 254, u"a.example"_s},
        {"not yet", u"Later"_s, {}, ownService, true, ownService, {}},
        {"as the user chose", u"B"_s, {}, 2, false, 2, u"Market News"_s},
        {"as its mapping says", u"C"_s, u"exchange_announcements"_s, ownService, false, 16,
         u"Stock Exchange"_s},
        {"not one that another is to have", u"D"_s, {}, 253, false, 253, {}},
        {"but the next", u"E"_s, {}, ownService, false, 252, u"E"_s},
    };
    StoreReader reader(*store);
    for (const auto& one : cases) {
        NetworkSource source = sourceAt(u"https://a.example/"_s);
        source.title = one.title;
        source.mapping = one.mapping;
        source.service = one.wanted;
        source.isPaused = one.isPaused;
        const QString name = list.add(source).value();
        EXPECT_EQ(list.source(name).value().service, one.given) << one.what;
        const auto service = reader.service(one.given);
        EXPECT_EQ(service ? service->fullName : QString(), one.name) << one.what;
    }
    // It comes with the first moment in which it is read, and stays.
    for (const bool isPaused : {false, true, false}) {
        ASSERT_TRUE(list.pause(u"net:a.example/3"_s, isPaused));
        EXPECT_EQ(list.source(u"net:a.example/3"_s).value().service, 251);
    }
    // News stays in its service, which nobody gets a second time.
    ASSERT_TRUE(list.remove(u"net:a.example"_s));
    NetworkSource source = sourceAt(u"https://b.example/"_s);
    source.service = ownService;
    for (int i = 0; i < 250; ++i)
        ASSERT_TRUE(list.add(source));
    EXPECT_EQ(list.sources().value().back().service, 1) << "where none is left";
    std::set<unsigned char> services;
    const std::vector<NetworkSource> all = list.sources().value();
    for (const NetworkSource& each : all)
        services.insert(each.service);
    EXPECT_FALSE(services.contains(255) || services.contains(23) || services.contains(22));
}

TEST_F(SourceListTest, ForgetsPositionAndStandingWithTheSource) {
    const auto keepPosition = [this](const QString& name) {
        ASSERT_TRUE(writer->begin());
        ASSERT_TRUE(writer->keepPosition(name, u"etag"_s));
        ASSERT_TRUE(writer->commit());
    };
    const QString name = add(u"https://a.example/1"_s);
    SourceStanding standing;
    standing.lastTry = 5;
    standing.fault = errorValue(makeError<network_errors::listFull>(3));
    standing.gaps = u"x"_s;
    const std::int64_t before = list.revision().value();
    ASSERT_TRUE(list.keepStandings({{name, standing}, {u"net:gone"_s, standing}}));
    EXPECT_EQ(list.revision().value(), before);
    EXPECT_EQ(list.standing(name).value(), standing);
    EXPECT_EQ(list.standing(u"net:gone"_s).value(), SourceStanding());
    keepPosition(name);

    // Another title is the same source; another address is another one.
    NetworkSource changed = list.source(name).value();
    changed.title = u"A"_s;
    ASSERT_TRUE(list.change(changed));
    EXPECT_EQ(writer->positionOf(name).value(), u"etag"_s);
    changed.address = QUrl(u"https://a.example/3"_s);
    ASSERT_TRUE(list.change(changed));
    EXPECT_EQ(writer->positionOf(name).value(), QString());

    keepPosition(name);
    ASSERT_TRUE(list.remove(name));
    EXPECT_EQ(writer->positionOf(name).value(), QString());
    EXPECT_EQ(list.standing(name).value(), SourceStanding());
}

}  // namespace
}  // namespace wirepane
