// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The Sources page, by keyboard alone, over a server on this machine.
#include "terminal/sources/sources_window.h"

#include "backend/network/network_errors.h"
#include "host/contract/clock.h"
#include "host/controls/super_sheet_wnd.h"
#include "terminal/sources/source_dialog.h"
#include "terminal/sources/trial_view.h"
#include "terminal/translations/terminal_text.h"
#include "tests/support/loopback_server.h"
#include "tests/support/qt_printers.h"
#include "tests/terminal/program/frame_fixture.h"
#include "tests/terminal/sources/announcements.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QTimer>
#include <QTreeView>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace wirepane::test {
namespace {

class SourcesWindowTest : public FrameFixture {
protected:
    explicit SourcesWindowTest(bool isEmpty = false) : FrameFixture(1200, isEmpty) {
        server.put("/list.json", announcements(), "application/json");
        server.put("/page", "<html><head><link rel=alternate type=application/rss+xml title=Post href=/feed>",
                   "text/html");
        server.put("/feed",
                   "<rss><channel><title>T</title><item><guid>a:1</guid><title>First</title>"
                   "<pubDate>Mon, 02 Mar 2026 01:00:00 GMT</pubDate></item></channel></rss>",
                   "application/rss+xml");
        emit session->frame().commanded(FrameCommand::Sources);
        window = session->frame().findChild<SourcesWindow*>();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([this] { return window->isActiveWindow(); }));
    }

    // Types the address and Enter; when the trial has answered, does `inDialog`, which closes the dialog.
    void addByKeyboard(const QString& address, const std::function<void(SourceDialog&)>& inDialog) {
        bool seen = false;
        const QDeadlineTimer patience(5000);
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            auto* dialog = qobject_cast<SourceDialog*>(QApplication::activeModalWidget());
            const bool isShown = dialog != nullptr && isAnswered(*dialog);
            if (!isShown && !patience.hasExpired())
                return;
            EXPECT_TRUE(isShown);
            if (dialog == nullptr)
                return;
            poll.stop();
            seen = true;
            inDialog(*dialog);
        });
        poll.start(5);
        QTest::keyClicks(QApplication::focusWidget(), address);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_TRUE(seen);
    }
    static bool isAnswered(const SourceDialog& dialog) {
        const auto buttons = dialog.findChildren<QPushButton*>();
        return std::all_of(buttons.begin(), buttons.end(),
                           [](const QPushButton* button) { return button->isEnabled(); });
    }
    bool lists(std::size_t count) {
        return QTest::qWaitFor([&] { return desk().sources().size() == count; });
    }
    SourceDesk& desk() { return session->sources().desk(); }
    QTreeView* list() { return window->findChild<QTreeView*>(); }
    void answerBox(QMessageBox::StandardButton answer) {
        QTimer::singleShot(0, window, [answer] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            box->button(answer)->click();
        });
    }

    LoopbackServer server;
    SourcesWindow* window = nullptr;
};

TEST_F(SourcesWindowTest, ASourceIsAddedPausedAndRemovedByKeyboard) {
    addByKeyboard(server.address(u"/list.json"_s).toString(), [](SourceDialog& dialog) {
        EXPECT_EQ(dialog.findChild<TrialView*>()->items(), 2);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    ASSERT_TRUE(lists(1));
    const NetworkSource added = desk().sources()[0].source;
    EXPECT_EQ(added.kind, NetworkKind::Table);
    EXPECT_EQ(added.mapping, u"exchange_announcements"_s);
    EXPECT_EQ(added.service, 16) << "that of the mapping";
    EXPECT_TRUE(added.isTyped);
    EXPECT_EQ(window->focusWidget(), list());
    QTest::keyClick(list(), Qt::Key_Space);
    ASSERT_TRUE(QTest::qWaitFor([this] { return desk().sources()[0].source.isPaused; }));
    answerBox(QMessageBox::Cancel);
    QTest::keyClick(list(), Qt::Key_Delete);
    answerBox(QMessageBox::Ok);
    QTest::keyClick(list(), Qt::Key_Delete);
    EXPECT_TRUE(lists(0));
}

TEST_F(SourcesWindowTest, AFeedThatAPageNamesIsOfferedAndNotTakenForTyped) {
    addByKeyboard(server.address(u"/page"_s).toString(), [this](SourceDialog& dialog) {
        EXPECT_EQ(dialog.source().title, u"Post"_s);
        EXPECT_EQ(dialog.source().address.path(), u"/feed"_s);
        EXPECT_FALSE(dialog.source().isTyped);
        // Nobody typed that address of this machine.
        EXPECT_EQ(dialog.findChild<TrialView*>()->items(), 0);
        EXPECT_EQ(server.requests, 1);
        dialog.reject();
    });
}

TEST_F(SourcesWindowTest, WhatIsReadyMadeIsOnlyTakenWhenItsTermsAreSaidToBeRead) {
    ASSERT_EQ(list()->model()->rowCount(), 1);
    list()->setFocus();
    answerBox(QMessageBox::Cancel);
    QTest::keyClick(list(), Qt::Key_Space);
    QTest::qWait(50);
    EXPECT_TRUE(desk().sources().empty());
}

TEST_F(SourcesWindowTest, SourcesAreMovedAndListsComeAndGoPaused) {
    const QString opml =
        scratch.write(u"in.opml"_s, R"(<opml><body><outline text="One" xmlUrl="https://one.example/"/>
        <outline text="Two" xmlUrl="https://two.example/"/></body></opml>)");
    window->importList(opml);
    ASSERT_TRUE(lists(2));
    EXPECT_TRUE(desk().sources()[0].source.isPaused && desk().sources()[1].source.isPaused);
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
    QApplication::activeModalWidget()->close();
    list()->setCurrentIndex(list()->model()->index(0, 0));
    QTest::keyClick(list(), Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return desk().sources()[0].source.title == u"Two"_s; }));
    EXPECT_EQ(list()->currentIndex().row(), 1) << "the moved one stays the current one";
    window->exportList(scratch.path(u"out.opml"_s));
    QFile written(scratch.path(u"out.opml"_s));
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    const QByteArray text = written.readAll();
    EXPECT_LT(text.indexOf("two.example"), text.indexOf("one.example"));
}

class FirstSourceTest : public SourcesWindowTest {
protected:
    FirstSourceTest() : SourcesWindowTest(true) {}

    // What the trial tells of the source that is current, asked by keyboard.
    QString tested() {
        list()->setFocus();
        QTest::keyClick(list(), Qt::Key_Tab);
        QTest::keyClick(window->focusWidget(), Qt::Key_Space);
        EXPECT_TRUE(QTest::qWaitFor([this] { return trialView().sentence() != asking(); }));
        return trialView().sentence();
    }
    bool listsBothAnnouncements() {
        const auto* sheet = session->workspace().newest()->access->sheetOf(0);
        return QTest::qWaitFor([sheet] { return sheet->model()->rowCount() == 2; });
    }
    TrialView& trialView() { return *window->findChild<TrialView*>(); }
    static QString asking() { return terminalText(TextId::TrialAsking); }
};

TEST_F(FirstSourceTest, ANewSourceHasAServiceOfItsOwnThatViewsTick) {
    server.put(
        "/today",
        "<rss><channel><title>A Paper</title><item><guid>a:1</guid><title>Told today</title><pubDate>" +
            QDateTime::fromSecsSinceEpoch(host_clock::now() - 60).toString(Qt::RFC2822Date).toUtf8() +
            "</pubDate></item></channel></rss>",
        "application/rss+xml");
    addByKeyboard(server.address(u"/today"_s).toString(),
                  [](const SourceDialog&) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); });
    ASSERT_TRUE(lists(1));
    const int service = desk().sources()[0].source.service;
    EXPECT_EQ(service, 255);
    const NewsViewAccess& view = *session->workspace().newest()->access;
    QVariantMap entry;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const QVariantList services = view.state()[u"services"_s].toList();
        entry = services.isEmpty() ? QVariantMap() : services.back().toMap();
        return entry[u"id"_s].toInt() == service;
    }));
    EXPECT_EQ(entry[u"name"_s].toString(), u"A Paper"_s);
    EXPECT_TRUE(entry[u"selected"_s].toBool());
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const auto keys = view.keysOf(0, 0, 1000);
        return std::any_of(keys.begin(), keys.end(),
                           [&](const HeadlineKey& key) { return key.service == service; });
    }));
}

// Notes when the list of a view is painted with so many rows.
class PaintWatch : public QObject {
public:
    PaintWatch(QAbstractItemView* of, int count) : view(of), rows(count) {
        view->viewport()->installEventFilter(this);
    }
    bool isPainted = false;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        isPainted = isPainted || (event->type() == QEvent::Paint && view->model()->rowCount() == rows);
        return QObject::eventFilter(watched, event);
    }

private:
    QAbstractItemView* view;
    int rows;
};

TEST_F(FirstSourceTest, NewsIsPaintedAsSoonAsItIsAnswered) {
    const auto publish = [this](int count) {
        QByteArray items;
        for (int i = 0; i < count; ++i)
            items +=
                "<item><guid>a:" + QByteArray::number(i) + "</guid><title>Told</title><pubDate>" +
                QDateTime::fromSecsSinceEpoch(host_clock::now() - 60).toString(Qt::RFC2822Date).toUtf8() +
                "</pubDate></item>";
        server.put("/today", "<rss><channel><title>T</title>" + items + "</channel></rss>",
                   "application/rss+xml");
    };
    publish(1);
    addByKeyboard(server.address(u"/today"_s).toString(),
                  [](const SourceDialog&) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); });
    auto* sheet = session->workspace().newest()->access->sheetOf(0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return sheet->model()->rowCount() == 1; }));
    publish(2);
    const int asked = server.requests;
    PaintWatch watch(sheet, 2);
    // One that has changed is asked at once.
    NetworkSource renamed = desk().sources()[0].source;
    renamed.title = u"Renamed"_s;
    desk().change(renamed, {}, [](const Done& done) { EXPECT_TRUE(done); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.requests > asked; }));
    QElapsedTimer sinceAnswer;
    sinceAnswer.start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return watch.isPainted; }));
    RecordProperty("answer_to_painted_row_ms", static_cast<int>(sinceAnswer.elapsed()));
    EXPECT_LT(sinceAnswer.elapsed(), 300);
}

TEST_F(FirstSourceTest, WhatAListNamesOfThePrivateNetworkIsNotDialledEvenWhenItIsSwitchedOn) {
    const QString feed = server.address(u"/feed"_s).toString();
    const QString withSecret = QString(feed).replace(u"//"_s, u"//me:geheim@"_s) + u"?token=geheim"_s;
    const QString list =
        u"<opml><body><outline text=\"A\" xmlUrl=\"%1\"/><outline text=\"B\" xmlUrl=\"%2\"/>"
        "<outline text=\"again\" xmlUrl=\"%1\"/><outline xmlUrl=\"file:///etc/passwd\"/>"
        "<outline text=\"C\" xmlUrl=\"http://192.168.7.1/feed\"/></body></opml>"_s;
    window->importList(scratch.write(u"in.opml"_s, list.arg(feed, withSecret).toUtf8()));
    ASSERT_TRUE(lists(3));
    for (const ListedSource& each : desk().sources()) {
        EXPECT_EQ(each.source.service, ownService) << "none before it is read";
        EXPECT_FALSE(each.source.isTyped);
        EXPECT_FALSE(each.source.address.toString().contains(u"geheim"_s));
        desk().pause(each.source.name, false, [](const Done& done) { EXPECT_TRUE(done); });
    }
    const auto isRefused = [](const ListedSource& each) {
        return each.standing.fault[u"code"_s].toString() ==
               QLatin1StringView(network_errors::privateAddress.key);
    };
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            const auto& all = desk().sources();
            return std::all_of(all.begin(), all.end(), isRefused);
        },
        10'000));
    EXPECT_EQ(server.requests, 0);
}

TEST_F(FirstSourceTest, AnExchangesListIsAddedTestedWithoutItsServerAndFoundAgainInEachLanguage) {
    EXPECT_FALSE(trialView().sentence().isEmpty()) << "what an empty table is for";
    addByKeyboard(server.address(u"/list.json"_s).toString(),
                  [](const SourceDialog&) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); });
    ASSERT_TRUE(lists(1));
    ASSERT_TRUE(listsBothAnnouncements());
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->isActiveWindow(); }));
    QSet<QString> told;
    for (const QString& language : {u"en"_s, u"zh-TW"_s, u"zh-CN"_s}) {
        SCOPED_TRACE(language.toStdString());
        ASSERT_TRUE(session->setLanguage(language));
        QCoreApplication::processEvents();
        told += trialView().sentence();
        server.unplug();
        told += tested();
        EXPECT_EQ(trialView().items(), 0);
        EXPECT_TRUE(listsBothAnnouncements()) << "what was there stays";
        server.plugIn();
        told += tested();
        EXPECT_EQ(trialView().items(), 2);
    }
    EXPECT_EQ(told.size(), 9) << QStringList(told.begin(), told.end()).join(u'\n').toStdString();
}

}  // namespace
}  // namespace wirepane::test
