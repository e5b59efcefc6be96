// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// Notices on a bus of the test's own.
#include "terminal/alerts/desktop_notices.h"

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace wirepane {

// A desktop that shows notices.
class FakeDesktop : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList capabilities;
    QStringList shown;

public slots:
    Q_SCRIPTABLE QStringList GetCapabilities() { return capabilities; }
    Q_SCRIPTABLE uint Notify(const QString& program, uint replaces, const QString&, const QString& title,
                             const QString& text, const QStringList& actions, const QVariantMap&, int) {
        shown << u"%1|%2|%3|%4|%5"_s.arg(program).arg(replaces).arg(title, text, actions.join(u','));
        return uint(shown.size());
    }

signals:
    Q_SCRIPTABLE void ActionInvoked(uint notice, const QString& action);
};

namespace {

class DesktopNoticesTest : public testing::Test {
protected:
    // One for all: a process asks for the address of its bus once.
    static void SetUpTestSuite() {
        daemon = std::make_unique<QProcess>();
        daemon->start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        if (daemon->waitForReadyRead())
            qputenv("DBUS_SESSION_BUS_ADDRESS", daemon->readLine().trimmed());
    }
    static void TearDownTestSuite() {
        daemon->kill();
        daemon->waitForFinished();
        daemon.reset();
    }
    void SetUp() override {
        if (daemon->state() != QProcess::Running)
            GTEST_SKIP() << "there is no dbus-daemon";
    }
    void TearDown() override {
        QDBusConnection bus(name);
        bus.unregisterService(u"org.freedesktop.Notifications"_s);
        QDBusConnection::disconnectFromBus(name);
    }
    void serve() {
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
        ASSERT_TRUE(bus.registerObject(u"/org/freedesktop/Notifications"_s, &desktop,
                                       QDBusConnection::ExportScriptableContents));
        ASSERT_TRUE(bus.registerService(u"org.freedesktop.Notifications"_s));
    }

    // A connection that was let go may live on for a while.
    const QString name = QString::fromLatin1(testing::UnitTest::GetInstance()->current_test_info()->name());
    static inline std::unique_ptr<QProcess> daemon;
    FakeDesktop desktop;
};

TEST_F(DesktopNoticesTest, AreShownAsPlainTextsAndOpenWhatTheyTellOf) {
    desktop.capabilities = {u"body"_s, u"body-markup"_s, u"actions"_s};
    serve();
    DesktopNotices notices;
    int opened = 0;
    QObject::connect(&notices, &DesktopNotices::opened, &notices, [&opened] { ++opened; });
    notices.tell(u"FLASH"_s, u"A <b>& B"_s);
    notices.tell(u"FLASH"_s, u"Second"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return desktop.shown.size() == 2; }));
    EXPECT_EQ(desktop.shown, (QStringList{u"Wirepane|0|FLASH|A &lt;b&gt;&amp; B|default,"_s,
                                          u"Wirepane|0|FLASH|Second|default,"_s}));
    // The answer to the last one may be under way.
    QTest::qWait(100);
    emit desktop.ActionInvoked(77, u"default"_s);  // another program's
    emit desktop.ActionInvoked(2, u"other"_s);
    emit desktop.ActionInvoked(2, u"default"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return opened > 0; }));
    EXPECT_EQ(opened, 1);
}

TEST_F(DesktopNoticesTest, KeepTheirTextWhereTheDesktopKnowsNoMarkup) {
    serve();
    DesktopNotices notices;
    notices.tell(u"FLASH"_s, u"A & B"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !desktop.shown.isEmpty(); }));
    EXPECT_EQ(desktop.shown, QStringList{u"Wirepane|0|FLASH|A & B|"_s});
}

TEST_F(DesktopNoticesTest, AreNothingWithoutADesktop) {
    {
        DesktopNotices notices;
        notices.tell(u"FLASH"_s, u"A"_s);
    }
    serve();
    QTest::qWait(50);
    EXPECT_TRUE(desktop.shown.isEmpty());
}

}  // namespace
}  // namespace wirepane

#include "desktop_notices_test.moc"
