// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/limits.h"
#include "backend/store/staged_import.h"
#include "backend/store/store_reader.h"
#include "tests/backend/store/store_fixture.h"

#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

const QString absent = u"~"_s;

class VersionsTest : public StoreFixture {
protected:
    // "time title|story" of each version, the present one last; "~" is a story that is still to come.
    QString historyOf(const QString& identity) {
        const QStringList ids =
            rows(u"SELECT time || ' ' || sequence FROM headlines WHERE identity = '%1'"_s.arg(identity)
                     .toUtf8()
                     .constData());
        if (ids.size() != 1)
            return u"%1 rows"_s.arg(ids.size());
        const QStringList parts = ids.first().split(u' ');
        const HeadlineKey key{parts[0].toLongLong(), parts[1].toInt(), 1};
        StoreReader reader(*store);
        QStringList told;
        for (const NewsVersion& version : reader.versions(key))
            told += version.title + u'|' + version.story.value_or(absent);
        told += reader.headline(key)->title + u'|' + reader.story(key).value_or(absent);
        const NewsState state = reader.state(key);
        QString line = u"%1: "_s.arg(state.corrections) + told.join(u", "_s);
        if (state.withdrawal)
            line +=
                u" withdrawn at %1: "_s.arg(state.withdrawal->moment - at(9, 0)) + state.withdrawal->reason;
        return line;
    }
    NewsItem sent(int version, const QString& title, const QString& story, const QString& identity = u"x"_s) {
        NewsItem item = newsItem(1, identity, at(9, 0) + version, title);
        item.version = version;
        item.story = story == absent ? std::nullopt : std::optional(story);
        return item;
    }
    NewsItem withdrawal(int version, const QString& reason, const QString& title = {},
                        const QString& story = {}) {
        NewsItem item = sent(version, title, story);
        item.withdrawn = reason;
        return item;
    }
};

TEST_F(VersionsTest, KeepWhatWasAndTellAChangeFromTheSameAgain) {
    struct Step {
        const char* what;
        NewsItem item;
        QString history;
    };
    const Step steps[] = {
        {"first", sent(1, u"A"_s, absent), u"0: A|~"_s},
        {"its story comes", sent(1, u"A"_s, u"S"_s), u"0: A|S"_s},
        {"the same again", sent(2, u"A"_s, u"S"_s), u"0: A|S"_s},
        {"an older one", sent(1, u"Old"_s, u"Old"_s), u"0: A|S"_s},
        {"another title", sent(3, u"B"_s, u"S"_s), u"1: A|S, B|S"_s},
        {"another story", sent(4, u"B"_s, u"T"_s), u"2: A|S, B|S, B|T"_s},
        {"the story is to come again", sent(5, u"B"_s, absent), u"2: A|S, B|S, B|T, B|~"_s},
        {"and is the same", sent(5, u"B"_s, u"T"_s), u"2: A|S, B|S, B|T"_s},
        {"to come again", sent(6, u"B"_s, absent), u"2: A|S, B|S, B|T, B|~"_s},
        {"and is another", sent(6, u"B"_s, u"U"_s), u"3: A|S, B|S, B|T, B|U"_s},
        {"it has none any more", sent(7, u"B"_s, {}), u"4: A|S, B|S, B|T, B|U, B|"_s},
        {"withdrawn without a word", withdrawal(6, u"no"_s), u"4: A|S, B|S, B|T, B|U, B|"_s},
        {"the present version withdrawn", withdrawal(7, u"Not true."_s),
         u"4: A|S, B|S, B|T, B|U, B| withdrawn at 7: Not true."_s},
        {"once more", withdrawal(7, u"Again."_s), u"4: A|S, B|S, B|T, B|U, B| withdrawn at 7: Not true."_s},
        {"usable again", sent(8, u"B"_s, u"V"_s), u"4: A|S, B|S, B|T, B|U, B|V"_s},
        {"withdrawn with a title", withdrawal(9, {}, u"WITHDRAWN"_s),
         u"5: A|S, B|S, B|T, B|U, B|V, WITHDRAWN|V withdrawn at 9: "_s},
    };
    for (const Step& step : steps) {
        take(step.item);
        EXPECT_EQ(historyOf(u"x"_s), step.history) << step.what;
    }
    NewsItem unknown = withdrawal(1, u"why"_s);
    unknown.identity = u"never seen"_s;
    EXPECT_EQ(sentence(takeNews(unknown).outcome.reason.value()),
              u"It withdraws news that is not in the store.");
    unknown.title = u"Seen withdrawn"_s;
    take(unknown);
    EXPECT_EQ(historyOf(u"never seen"_s), u"0: Seen withdrawn| withdrawn at 1: why");
}

TEST_F(VersionsTest, AStoryThatIsPutInPlaceOfAnotherIsACorrection) {
    const StoredNews first = takeNews(sent(1, u"A"_s, {}));
    for (const auto& [story, history] : std::vector<std::pair<QString, QString>>{
             {u"S"_s, u"0: A|S"_s}, {u"S"_s, u"0: A|S"_s}, {u"T"_s, u"1: A|S, A|T"_s}}) {
        ASSERT_TRUE(writer->begin());
        ASSERT_TRUE(writer->takeStory(first.key, story));
        ASSERT_TRUE(writer->commit());
        EXPECT_EQ(historyOf(u"x"_s), history);
    }
}

TEST_F(VersionsTest, TheFirstAndTheLastStayWithinNumberAndSize) {
    for (int version = 1; version <= 40; ++version)
        take(sent(version, u"T%1"_s.arg(version), u"s"_s));
    EXPECT_EQ(rows("SELECT count(*), min(number), max(number) FROM versions"),
              QStringList(u"%1|1|39"_s.arg(limits::versions)));
    const QString large(limits::storyLength, u'x');
    for (int version = 41; version <= 46; ++version)
        take(sent(version, u"T%1"_s.arg(version), large));
    EXPECT_EQ(rows("SELECT count(*), min(number), max(number) FROM versions"), QStringList(u"5|1|45"_s));
}

// Random sends, alone and by an import that news overtakes, against a list of what each piece of news was.
TEST_F(VersionsTest, AgreeWithAListOfWhatWasSent) {
    std::mt19937 random(5);
    std::map<QString, QStringList> sentOf;
    std::map<QString, int> versionOf;
    const auto next = [&] {
        const QString identity = u"n%1"_s.arg(random() % 15);
        const QString title = QString(QChar(int(u'A' + random() % 2)));
        const QString story = QString(QChar(int(u'S' + random() % 3)));
        QStringList& known = sentOf[identity];
        if (const QString text = title + u'|' + story; known.isEmpty() || known.last() != text)
            known += text;
        return sent(++versionOf[identity], title, story, identity);
    };
    for (int round = 0; round < 12; ++round) {
        StagedImport import(*store);
        ASSERT_TRUE(round % 2 ? import.beginMany() : import.begin());
        for (int i = 0; i < 12; ++i)
            ASSERT_TRUE(import.take(next()));
        ASSERT_TRUE(import.commit());
        for (int i = 0; i < 4; ++i)
            ASSERT_EQ(take(next()), Take::TakenIn);
    }
    for (const auto& [identity, known] : sentOf)
        EXPECT_EQ(historyOf(identity), u"%1: "_s.arg(known.size() - 1) + known.join(u", "_s));
}

TEST_F(VersionsTest, LeaveWithTheirNews) {
    take(sent(1, u"A"_s, u"S"_s));
    take(sent(2, u"B"_s, u"S"_s));
    take(withdrawal(3, u"why"_s));
    ASSERT_EQ(rows("SELECT count(*) FROM versions, withdrawals"), QStringList(u"1"_s));
    take(sent(30 * 86'400, u"Newest"_s, {}, u"y"_s));
    for (int step = 0; step < 3; ++step)
        ASSERT_TRUE(writer->trim({.days = 1}, at(9, 0) + 20 * 86'400));
    EXPECT_EQ(rows("SELECT title FROM headlines"), QStringList(u"Newest"_s));
    EXPECT_EQ(rows("SELECT count(*) FROM versions UNION ALL SELECT count(*) FROM withdrawals"),
              (QStringList{u"0"_s, u"0"_s}));
}

}  // namespace
}  // namespace wirepane
