// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Programs that feed: greeted, answered, ended and started again.
#include "backend/feed/program_source.h"

#include "tests/backend/feed/live_source_fixture.h"

#include <QFile>

namespace wirepane {

namespace {

// Says what position it was answered, then sends the news behind it, one piece at each start.
const QString script =
    uR"(
printf '{"wirepane":{"source":"counted","service":1}}\n'
read answer
printf '%s\n' "$answer" >> "$1/answers"
next=$(($(printf '%s' "$answer" | tr -dc 0-9) + 1))
printf '{"wirepane":{"item":{"service":1,"identity":"n:%d","time":1772420400,"title":"News %d."},"position":"%d"}}\n' \
    $next $next $next
[ "$2" = stays ] && cat > /dev/null
echo broken off >&2
exit 3
)"_s;

class ProgramSourceTest : public LiveSourceTest {
protected:
    std::shared_ptr<ProgramSource> program(const QString& ending, const QString& file = u"/bin/sh"_s) {
        return std::make_shared<ProgramSource>(u"counter"_s, file,
                                               QStringList{u"-c"_s, script, u"sh"_s, folder.path(), ending});
    }
    QString stateNow() const {
        for (const SourceReport& report : feed->sources()) {
            if (report.name == u"counter"_s)
                return nameOf(report.state.kind) +
                       (report.state.reason ? u": "_s + sentence(*report.state.reason) : QString());
        }
        return u"none"_s;
    }
    QByteArray answers() const {
        QFile file(folder.filePath(u"answers"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(ProgramSourceTest, GoesOnBehindItsPositionAfterEveryOutage) {
    feed->addSource(program(u"stays"_s));
    EXPECT_TRUE(hasTold(1));
    EXPECT_EQ(stateNow(), u"live"_s);
    feed->setConnected(false);
    EXPECT_EQ(stateNow(), u"offline"_s);
    feed->setConnected(true);
    EXPECT_TRUE(hasTold(2));
    EXPECT_EQ(told().removeDuplicates(), 0);
    EXPECT_EQ(answers(), "{\"position\":\"\"}\n{\"position\":\"1\"}\n");
}

TEST_F(ProgramSourceTest, WhatEndsOrCannotBeStartedIsSaid) {
    feed->addSource(program(u"ends"_s));
    EXPECT_TRUE(hasTold(1)) << "what it sent before is taken";
    EXPECT_TRUE(QTest::qWaitFor([&] { return stateNow().startsWith(u"failed"_s); }));
    EXPECT_EQ(stateNow(), u"failed: /bin/sh has ended: broken off"_s);
    feed->addSource(program(u"ends"_s, u"/nowhere/program"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const auto all = feed->sources();
        return std::any_of(all.begin(), all.end(), [](const SourceReport& report) {
            return report.state.reason && sentence(*report.state.reason).contains(u"/nowhere/program"_s);
        });
    }));
}

}  // namespace

}  // namespace wirepane
