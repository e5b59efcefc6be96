// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// A morning by script: news that comes in bursts, late, twice and corrected, with breaks and a kill in the
// middle, before three views and fifty alert rules. What was told, kept silent, marked and shown is counted
// here from the same news, by other means. WIREPANE_MORNING_HEADLINES: how many, 1,500 at first.
#include "tests/terminal/program/program_runner.h"
#include "tests/terminal/program/script_client.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <set>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

constexpr int lateSeconds = 3600;
constexpr int atOnce = 50;              // headlines between two looks at the alerts
constexpr std::ptrdiff_t recent = 200;  // headlines, of which some are sent again

struct Headline {
    int service = 0;
    qint64 time = 0;
    int number = 0;
    QStringList words;

    QString title() const { return words.join(u' '); }
    QString key() const { return u"%1/%2/%3"_s.arg(service).arg(time).arg(number); }
    QJsonObject toJson() const {
        return {{u"service"_s, service},      {u"time"_s, time},       {u"seq"_s, number},
                {u"title"_s, title()},        {u"category"_s, 1},      {u"symbol"_s, QString()},
                {u"related"_s, QJsonArray()}, {u"story"_s, u"Text."_s}};
    }
};

// A rule, and in other words what it wants.
struct Rule {
    QString query;
    std::vector<QString> any;  // one of them stands in the title
    QString also;              // so does this; empty: no matter
    QString never;             // this does not
    QStringList phrase;        // these stand one behind the other
    int service = 0;           // 0: any
    bool isOn = true;
    bool onlyConnected = false;
    int pause = 0;  // seconds, longer than the test, or 0

    bool wants(const Headline& headline) const {
        const QStringList& words = headline.words;
        const bool hasAny = any.empty() || std::ranges::any_of(any, [&](const QString& word) {
                                return words.contains(word, Qt::CaseInsensitive);
                            });
        bool hasPhrase = phrase.isEmpty();
        for (qsizetype at = 0; at + phrase.size() <= words.size() && !hasPhrase; ++at)
            hasPhrase = words.mid(at, phrase.size()) == phrase;
        return hasAny && hasPhrase && (also.isEmpty() || words.contains(also)) &&
               (never.isEmpty() || !words.contains(never)) && (service == 0 || headline.service == service);
    }
};

class MorningTest : public testing::Test {
protected:
    MorningTest() {
        for (int i = 0; i < 300; ++i)
            words << (i % 3 == 0 ? QString(QChar(0x4e00 + 7 * i)) + QChar(0x5b57 + i) : latinWord(i));
        makeRules();
    }
    static QString latinWord(int number) {
        QString word = u"Q"_s;
        for (int rest = number + 100; rest > 0; rest /= 26)
            word += QChar(u'a' + rest % 26);
        return word + u"z"_s;
    }
    QString wordAt(std::size_t number) const {
        return words.at(qsizetype(number % std::size_t(words.size())));
    }
    // Rules of seven kinds, over words that are in one title of forty each.
    void makeRules() {
        for (std::size_t i = 0; i < 50; ++i) {
            const QString a = wordAt(5 * i), b = wordAt(5 * i + 1), c = wordAt(5 * i + 2);
            Rule rule;
            switch (i % 7) {
                case 0:
                    rule = {a, {a}, {}, {}, {}};
                    break;
                case 1:
                    rule = {u"%1 -%2"_s.arg(a, b), {a}, {}, b, {}};
                    break;
                case 2:
                    rule = {u"title:%1 | %2"_s.arg(a, b), {a, b}, {}, {}, {}};
                    break;
                case 3:
                    rule = {u"(%1 | %2) -%3"_s.arg(a, b, c), {a, b}, {}, c, {}};
                    break;
                case 4:
                    rule = {u"\"%1 %2\" | \"%1 %2\""_s.arg(a, b), {}, {}, {}, {a, b}};
                    break;
                case 5:
                    rule = {u"%1 service:16"_s.arg(a), {a}, {}, {}, {}, 16};
                    break;
                default:
                    rule = {u"(%1 | %2) %3"_s.arg(a, b, c), {a, b}, c, {}, {}};
                    break;
            }
            rule.isOn = i % 9 != 8;
            rule.onlyConnected = i % 5 == 4;
            rule.pause = i % 11 == 3 ? 86'400 : 0;
            rules.push_back(rule);
        }
    }
    QJsonObject rulesAsJson() const {
        QJsonArray all;
        for (std::size_t i = 0; i < rules.size(); ++i)
            all.append(QJsonObject{{u"name"_s, nameOf(i)},
                                   {u"query"_s, rules[i].query},
                                   {u"on"_s, rules[i].isOn},
                                   {u"pause"_s, rules[i].pause},
                                   {u"onlyConnected"_s, rules[i].onlyConnected}});
        return {{u"rules"_s, all}};
    }
    static QString nameOf(std::size_t rule) { return u"r%1"_s.arg(rule); }

    // What has come so far, and what was told of it.
    void start(const QString& now) {
        script = std::make_unique<ScriptClient>(QStringList{u"--store"_s, scratch.path(u"news.wirepane"_s),
                                                            u"--config"_s, scratch.path(u"config"_s),
                                                            u"--now"_s, now, u"--lang"_s, u"en"_s});
        const QJsonObject quietly{{u"own"_s, true}, {u"settings"_s, QJsonObject{{u"FollowNewest"_s, false}}}};
        for (int view = 0; view < 3; ++view)
            script->result(u"view.open"_s, quietly);
        script->result(u"feed.connect"_s, QJsonObject{{u"on"_s, true}});
        isConnected = true;
    }
    void connectFeed(bool on) {
        takeAlerts();
        script->result(u"feed.connect"_s, QJsonObject{{u"on"_s, on}});
        isConnected = on;
    }
    Headline made() {
        Headline headline;
        headline.service = std::array{1, 2, 16}[random() % 3];
        headline.number = ++count;
        headline.time = morning + count % 60;
        for (int i = 0; i < 8; ++i)
            headline.words << wordAt(random());
        if (random() % 40 == 0)
            headline.time -= lateSeconds;
        return headline;
    }
    // As it comes to the store; the rules say of it what they say then.
    void push(const Headline& headline) {
        script->result(u"feed.push"_s, headline.toJson());
        const bool isNew = !present.contains(headline.key());
        if (!isNew && present[headline.key()].title() == headline.title())
            return;
        present[headline.key()] = headline;
        had.insert(headline.key() + headline.title());
        ++arrivals;
        if (!isNew && isRead.contains(headline.key()))
            isRead[headline.key()] = false;
        for (std::size_t i = 0; i < rules.size(); ++i) {
            if (rules[i].wants(headline))
                expected << nameOf(i) + u' ' + headline.key() + u' ' + headline.title() + u": "_s +
                                outcome(i, headline);
        }
    }
    QString outcome(std::size_t rule, const Headline& headline) {
        const QString what = nameOf(rule) + headline.title();
        if (!rules[rule].isOn)
            return u"off"_s;
        if (said.contains(what))
            return u"duplicate"_s;
        said.insert(what);
        if (headline.time < morning)
            return u"late"_s;
        if (rules[rule].onlyConnected && !isConnected)
            return u"disconnected"_s;
        if (rules[rule].pause > 0 && paused.contains(rule))
            return u"pause"_s;
        paused.insert(rule);
        return u"told"_s;
    }
    // Waits until all that has come was tried.
    void takeAlerts() {
        for (int wait = 0; wait < 1500; ++wait) {
            const QJsonObject list = script->result(u"alert.list"_s).toObject();
            const QJsonArray entries = list[u"entries"_s].toArray();
            for (const auto& value : entries) {
                const QJsonObject entry = value.toObject();
                const QString key = u"%1/%2/%3"_s.arg(entry[u"service"_s].toInt())
                                        .arg(entry[u"time"_s].toInteger())
                                        .arg(entry[u"seq"_s].toInt());
                alerts[entry[u"number"_s].toInteger()] = entry[u"rule"_s].toString() + u' ' + key + u' ' +
                                                         entry[u"title"_s].toString() + u": "_s +
                                                         entry[u"outcome"_s].toString();
            }
            if (list[u"looked"_s].toInt() >= arrivals && alerts.size() >= std::size_t(expected.size()))
                return;
            script->result(u"wait"_s, QJsonObject{{u"ms"_s, 20}});
        }
        QStringList missing = expected;
        for (const auto& [number, text] : alerts)
            missing.removeOne(text);
        ADD_FAILURE() << "not all was tried: " << missing.join(u'\n').toStdString();
    }
    QStringList told() const {
        QStringList all;
        for (const auto& [number, text] : alerts)
            all << text;
        return all;
    }
    static int headlines() {
        const int wanted = qEnvironmentVariableIntValue("WIREPANE_MORNING_HEADLINES");
        return wanted > 0 ? wanted : 1500;
    }

    Scratch scratch;
    std::unique_ptr<ScriptClient> script;
    const qint64 morning = QDateTime::fromString(u"2026-03-02T09:29:01"_s, Qt::ISODate).toSecsSinceEpoch();
    std::mt19937 random{11};
    QStringList words;
    std::vector<Rule> rules;
    bool isConnected = true;
    int count = 0;
    bool wasKilled = false;
    int arrivals = 0;
    std::map<QString, Headline> present;
    std::map<QString, bool> isRead;  // what was marked; false: it was corrected since
    std::set<QString> said;
    std::set<QString> had;  // keys, each with a title that it had
    std::set<std::size_t> paused;
    QStringList expected;              // in the order of coming
    std::map<qint64, QString> alerts;  // by number
};

}  // namespace

TEST_F(MorningTest, AgreesWithACountByOtherMeans) {
    start(u"2026-03-02T09:00:00"_s);
    script->result(u"alert.setRules"_s, rulesAsJson());
    ASSERT_EQ(script->endInput(), 0);
    start(u"2026-03-02T09:30:00"_s);
    const int all = headlines();
    std::vector<Headline> sent;
    while (count < all) {
        const int part = count * 8 / all;
        if (const bool isBreak = part == 2 || part == 5; isBreak == isConnected)
            connectFeed(!isBreak);
        // Each at most once before it is looked at: of what is corrected twice, the last counts.
        std::vector<Headline> known(sent.end() - std::min(std::ptrdiff_t(sent.size()), recent), sent.end());
        for (int i = 0; i < atOnce; ++i) {
            Headline next = made();
            if (const auto kind = random() % 20; kind < 3 && !known.empty()) {
                const auto again = known.begin() + std::ptrdiff_t(random() % known.size());
                if (kind == 0)
                    again->words.front() = wordAt(random());  // corrected under its key
                if (kind == 1)
                    next.words = again->words;  // the same said by another
                else
                    next = *again;  // or once more as it is
                known.erase(again);
            }
            if (!present.contains(next.key()) || present[next.key()].title() == next.title() ||
                !had.contains(next.key() + next.title()))
                push(next);
            std::erase_if(sent, [&](const Headline& other) { return other.key() == next.key(); });
            sent.push_back(present[next.key()]);
        }
        const Headline& read = sent[random() % sent.size()];
        script->result(u"mark.set"_s, QJsonObject{{u"key"_s, read.toJson()}, {u"state"_s, u"read"_s}});
        isRead[read.key()] = true;
        // In the middle, without having been looked at, of what just came.
        if (part == 4 && !wasKilled) {
            wasKilled = true;
            for (int i = 0; i < atOnce; ++i)
                push(made());
            script->kill();
            sent.clear();  // pushes count their versions anew, and do not replace what was pushed before
            start(u"2026-03-02T09:31:00"_s);
        }
        takeAlerts();
        if (HasFailure())
            return;
    }
    connectFeed(true);

    const QStringList toldNow = told();
    const auto without = [](QStringList some, const QStringList& others) {
        for (const QString& other : others)
            some.removeOne(other);
        return some.join(u'\n').toStdString();
    };
    EXPECT_EQ(without(toldNow, expected), "") << "told, and not expected";
    EXPECT_EQ(without(expected, toldNow), "") << "expected, and not told";
    const auto differs = std::ranges::mismatch(toldNow, expected);
    EXPECT_TRUE(differs.in1 == toldNow.end() && differs.in2 == expected.end())
        << "not in the order of coming, from " << differs.in1 - toldNow.begin() << " of " << toldNow.size()
        << " on: " << toldNow.value(differs.in1 - toldNow.begin()).toStdString();
    std::map<QString, int> outcomes;
    for (const QString& text : expected)
        ++outcomes[text.section(u": "_s, -1)];
    for (const QString& outcome :
         {u"told"_s, u"off"_s, u"disconnected"_s, u"duplicate"_s, u"late"_s, u"pause"_s})
        EXPECT_GT(outcomes[outcome], 0) << outcome.toStdString();

    for (const auto& [key, headline] : present) {
        const QJsonObject mark =
            script->result(u"mark.get"_s, QJsonObject{{u"key"_s, headline.toJson()}}).toObject();
        const auto known = isRead.find(key);
        const bool wasRead = known != isRead.end() && !known->second;
        // What was published before there was a store is nobody's news.
        const QString unread = headline.time < morning ? u"seen"_s : u"new"_s;
        const QString state = known != isRead.end() && known->second ? u"read"_s : unread;
        EXPECT_EQ(mark[u"state"_s].toString(), state) << key.toStdString();
        EXPECT_EQ(mark[u"readBefore"_s].toBool(), wasRead) << key.toStdString();
    }
    for (int view = 1; view <= 3; ++view) {
        const QJsonObject grid =
            script->result(u"grid.read"_s, QJsonObject{{u"view"_s, view}, {u"list"_s, 0}}).toObject();
        EXPECT_EQ(grid[u"rows"_s].toInt(), int(present.size())) << view;
    }
}

}  // namespace wirepane
