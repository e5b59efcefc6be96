// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/alert_teller.h"

#include "terminal/alerts/alert_toast.h"

#include <QLabel>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {
namespace {

class Teller : public testing::Test {
protected:
    Teller() {
        window.resize(800, 600);
        window.show();
    }
    static AlertRule rule(const QString& name, int toastSeconds, bool hasNotice, const QString& sound) {
        AlertRule made;
        made.name = name;
        made.hasToast = toastSeconds >= 0;
        made.toastSeconds = std::max(0, toastSeconds);
        made.hasNotice = hasNotice;
        made.sound = sound;
        return made;
    }
    static AlertEntry entry(const QString& name, std::int32_t number) {
        AlertEntry made;
        made.rule = name;
        made.headline = {1, number, 1};
        made.title = u"title %1"_s.arg(number);
        made.matched = 1000;
        return made;
    }

    QWidget window;
    AlertToast toast{window};
    QStringList played;
    QStringList noticed;
    AlertTeller teller{
        toast,
        {[this](const QString& sound) { played << sound; },
         [this](const QString& name, const QString& title) { noticed << name + u'|' + title; }}};
    const std::vector<AlertRule> rules{rule(u"corner"_s, 5, false, {}),
                                       rule(u"stays"_s, 0, false, u"chime"_s),
                                       rule(u"desk"_s, -1, true, u"knock"_s), rule(u"mute"_s, -1, false, {})};
};

TEST_F(Teller, TellsInEachWayThatTheRuleHasAndTogetherWithinASecond) {
    teller.tell({entry(u"mute"_s, 1)}, rules);
    EXPECT_FALSE(toast.isVisible());
    teller.tell({entry(u"desk"_s, 2)}, rules);
    EXPECT_FALSE(toast.isVisible());
    EXPECT_EQ(noticed, QStringList{u"desk|title 2"_s});
    EXPECT_EQ(played, QStringList{u"knock"_s});
    teller.tell({entry(u"stays"_s, 3), entry(u"desk"_s, 3)}, rules);
    teller.tell({entry(u"desk"_s, 4), entry(u"corner"_s, 4)}, rules);
    EXPECT_EQ(noticed.size(), 1) << "at most one a second";
    ASSERT_TRUE(QTest::qWaitFor([this] { return noticed.size() == 2; }));
    EXPECT_TRUE(noticed.last().startsWith(u"desk ("_s)) << "and one more";
    EXPECT_TRUE(noticed.last().endsWith(u"|title 4"_s));
    EXPECT_EQ(played, (QStringList{u"knock"_s, u"chime"_s}));
    EXPECT_TRUE(toast.isVisible());
}

TEST_F(Teller, AToastStaysAsLongAsTheOneThatStaysLongest) {
    toast.tell(u"a"_s, u"b"_s, 1, 1);
    toast.tell(u"a"_s, u"b"_s, 1, 0);
    toast.tell(u"a"_s, u"b"_s, 1, 1);
    QTest::qWait(1300);
    EXPECT_TRUE(toast.isVisible()) << "one of them is to stay until it is closed";
    toast.hide();
    toast.tell(u"a"_s, u"b"_s, 1, 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !toast.isVisible(); }));
}

}  // namespace
}  // namespace wirepane
