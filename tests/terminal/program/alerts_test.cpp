// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What the user is told of as it comes, where he reads of it, and how he says what he wants to be told of.
#include "backend/feed/line_source.h"
#include "backend/feed/live_feed.h"
#include "backend/feed/written_lines.h"
#include "host/controls/rehearsal_dlg.h"
#include "host/controls/report_list.h"
#include "terminal/alerts/alert_model.h"
#include "terminal/alerts/alert_rules_page.h"
#include "terminal/alerts/alert_toast.h"
#include "terminal/alerts/alerts_window.h"
#include "terminal/session/alert_center.h"
#include "tests/support/answering.h"
#include "tests/terminal/program/frame_fixture.h"

#include <QAbstractButton>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace wirepane::test {

namespace {

class AlertsTest : public FrameFixture {
protected:
    AlertsTest() : FrameFixture(1280, true) {}

    void publish(const QString& title) {
        NewsItem item;
        item.service = 1;
        item.identity = QString::number(++items);
        item.time = host_clock::now();
        item.title = title;
        item.story = u"First line@@@@second line"_s;
        ASSERT_TRUE(session->backEnd().takeIn(item));
    }
    AlertDesk& desk() { return session->alerts().desk(); }
    AlertToast& toast() { return *session->frame().findChild<AlertToast*>(); }
    QStringList toastTexts() {
        QStringList texts;
        for (const QLabel* label : toast().findChildren<QLabel*>())
            texts += label->text();
        return texts;
    }

    int items = 0;
};

TEST_F(AlertsTest, WhatARuleMatchesIsToldInTheCornerWithoutTakingTheFocusAndListedWithItsReason) {
    AlertSettings rules = usualAlerts();
    rules.rules.push_back(rules.rules.front());
    rules.rules.back().name = u"gold"_s;
    rules.rules.back().query = u"gold -tin"_s;
    session->alerts().setRules(rules);
    const QWidget* focus = QApplication::focusWidget();
    publish(u"Copper"_s);
    publish(u"FLASH: Gold jumps"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return toast().isVisible(); }));
    EXPECT_EQ(toastTexts(), (QStringList{u"FLASH, gold"_s, QString(), u"FLASH: Gold jumps"_s}));
    EXPECT_EQ(QApplication::focusWidget(), focus);
    EXPECT_TRUE(session->frame().rect().contains(toast().geometry()));
    // Within the second it is told together.
    publish(u"Gold once more"_s);
    publish(u"Gold for ever"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return desk().entries().size() == 4; }));
    EXPECT_TRUE(toastTexts().contains(u"FLASH: Gold jumps"_s));
    ASSERT_TRUE(QTest::qWaitFor([this] { return toastTexts().contains(u"Gold for ever"_s); }));
    EXPECT_TRUE(toastTexts().contains(u"and 2 more"_s));
    EXPECT_EQ(desk().unseen(), 4);

    QTest::mouseClick(&toast(), Qt::LeftButton);
    EXPECT_FALSE(toast().isVisible());
    auto* window = session->frame().findChild<AlertsWindow*>();
    ASSERT_NE(window, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([this] { return desk().unseen() == 0; })) << "he reads them";
    const auto* list = window->findChild<QTreeView*>();
    EXPECT_EQ(list->model()->rowCount(), 4);
    EXPECT_EQ(list->currentIndex().row(), 0);
    EXPECT_EQ(window->findChild<QPlainTextEdit*>()->toPlainText(),
              u"Gold for ever\n\nFirst line\nsecond line"_s);
    const auto reasons = window->findChildren<QLabel*>();
    ASSERT_EQ(reasons.size(), 1);
    EXPECT_TRUE(reasons.front()->text().startsWith(u"The rule “gold” matched “Gold” in the title."_s))
        << reasons.front()->text().toStdString();
    // One that is not told is listed, and the row that he is on stays his.
    publish(u"Gold for ever"_s);
    ASSERT_TRUE(QTest::qWaitFor([list] { return list->model()->rowCount() == 5; }));
    EXPECT_EQ(list->currentIndex().row(), 1);
    EXPECT_EQ(list->model()->index(0, AlertModel::Outcome).data().toString(),
              u"Not told: said within the hour"_s);
}

TEST_F(AlertsTest, ATimeWithoutNewsIsToldOnceItIsOverUntilTheUserClosesIt) {
    AlertSettings rules;
    rules.rules = {usualAlerts().rules.front()};
    session->alerts().setRules(rules);
    const std::int64_t noon = host_clock::now();
    session->setConnected(false);
    host_clock::startAt(noon + 60);
    publish(u"FLASH: Gold jumps"_s);
    publish(u"Copper"_s);
    host_clock::startAt(noon + 120);
    EXPECT_EQ(session->frame().notices(), QString());
    session->setConnected(true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !session->frame().notices().isEmpty(); }, 20'000));
    const QString told = session->frame().notices();
    EXPECT_TRUE(told.startsWith(u"Cut off from 12:00:0"_s)) << told.toStdString();
    EXPECT_TRUE(told.endsWith(u" 2 headlines of that time came late, alerts among them: 1."_s))
        << told.toStdString();
    // A source that gives signs of life again.
    session->backEnd().setQuietSources({{u"Harbour"_s, false, noon}, {u"Slow"_s, true, noon}});
    session->backEnd().setQuietSources({});
    ASSERT_TRUE(QTest::qWaitFor([&] { return session->frame().notices() != told; }, 20'000));
    const QString both = session->frame().notices();
    EXPECT_TRUE(both.contains(u"No sign of life from Harbour between 12:00:0"_s)) << both.toStdString();
    EXPECT_FALSE(both.contains(u"Slow"_s));
    // Over a night it names the days.
    session->setConnected(false);
    host_clock::startAt(noon + 24 * 3600);
    session->setConnected(true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return session->frame().notices() != both; }, 20'000));
    EXPECT_TRUE(session->frame().notices().contains(u"Cut off from 03/02 12:02:0"_s))
        << session->frame().notices().toStdString();
}

TEST_F(AlertsTest, WhatIsMissingOfASourceThatNumbersItsNewsIsToldOnceNothingOfItIsUnderWay) {
    const auto source = std::make_shared<LineSource>();
    source->add(handshakeLine({u"desk"_s, 1, true}));
    session->feed().addSource(source);
    const auto bring = [&](std::int32_t number) {
        NewsItem item;
        item.service = 1;
        item.identity = u"desk:%1"_s.arg(number);
        item.time = host_clock::now();
        item.title = item.identity;
        item.sequence = number;
        source->add(itemLine(item));
    };
    const auto isTold = [this](const QString& text) {
        return QTest::qWaitFor([&] { return session->frame().notices().contains(text); }, 20'000);
    };
    for (const std::int32_t number : {11, 12, 16, 15})
        bring(number);
    EXPECT_TRUE(isTold(u"2 items of desk did not come, by its numbers: 13-14."_s));
    bring(14);
    EXPECT_TRUE(isTold(u"1 item of desk did not come, by its numbers: 13."_s));
    const QString told = session->frame().notices();
    bring(13);
    bring(17);
    ASSERT_TRUE(QTest::qWaitFor([&] { return session->feed().isIdle(); }));
    QTest::qWait(100);
    EXPECT_EQ(session->frame().notices(), told);
}

TEST_F(AlertsTest, TheSettingsTakeNoRuleThatCannotBeUnderstood) {
    session->alerts().setRules(usualAlerts());
    const auto change = [](QDialog& dialog) {
        auto* page = dialog.findChild<AlertRulesPage*>();
        auto* list = page->findChild<QListWidget*>();
        const auto write = [&](int row, const QString& field, const QString& text) {
            list->setCurrentRow(row);
            auto* edit = page->findChild<QLineEdit*>(field);
            edit->selectAll();
            QTest::keyClicks(edit, text);
        };
        QAbstractButton* save = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        EXPECT_EQ(list->count(), 2);
        write(0, u"query"_s, u"gold on:today"_s);
        save->click();
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_TRUE(page->showFault().contains(u"cannot be answered by a headline"_s));
        write(0, u"query"_s, u"gold"_s);
        write(1, u"name"_s, u"FLASH"_s);
        EXPECT_TRUE(page->showFault().contains(u"two rules"_s));
        write(1, u"name"_s, u"tin"_s);
        list->item(1)->setCheckState(Qt::Unchecked);
        page->findChild<QSpinBox*>(u"pause"_s)->setValue(-3);
        save->click();
    };
    answering<QDialog>([this] { emit session->frame().commanded(FrameCommand::Settings); }, change);
    const AlertSettings& rules = session->alerts().rules();
    ASSERT_EQ(rules.rules.size(), 2U);
    EXPECT_EQ(rules.rules[0].query, u"gold"_s);
    EXPECT_EQ(rules.rules[1].name, u"tin"_s);
    EXPECT_FALSE(rules.rules[1].isOn);
    EXPECT_EQ(rules.rules[1].pauseSeconds, 0);
    EXPECT_EQ(alertsFromJson(session->settings().alerts()), rules) << "they are kept";
}

TEST_F(AlertsTest, WhatAViewProposesIsOneMoreRuleThatTheUserDecidesOn) {
    session->alerts().setRules(usualAlerts());
    const auto propose = [this](const QString& query, int rows) {
        answering<QDialog>([&] { session->backEnd().proposeAlert(u"FLASH"_s, query); },
                           [rows](QDialog& dialog) {
                               auto* page = dialog.findChild<AlertRulesPage*>();
                               EXPECT_EQ(page->findChild<QListWidget*>()->count(), rows);
                               EXPECT_EQ(page->findChild<QLineEdit*>(u"query"_s)->text(), u"story:gold"_s);
                               EXPECT_TRUE(page->isVisible());
                               dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
                           });
    };
    propose(u"story:gold"_s, 3);
    propose(u"story:gold"_s, 3);
    const AlertSettings& rules = session->alerts().rules();
    ASSERT_EQ(rules.rules.size(), 3U);
    EXPECT_EQ(rules.rules[2].name, u"FLASH (2)"_s);
    EXPECT_EQ(rules.rules[2].query, u"story:gold"_s);
}

TEST_F(AlertsTest, ARuleIsTriedOnThePastBeforeItIsKeptAndWarnsOfMoreThanItsBudget) {
    AlertSettings rules;
    rules.rules = {AlertRule()};
    rules.rules.front().name = u"metals"_s;
    rules.rules.front().query = u"tin"_s;
    rules.rules.front().isOn = false;
    session->alerts().setRules(rules);
    for (const QString& title : {u"Tin"_s, u"Tin again"_s, u"Copper"_s})
        publish(title);
    ASSERT_TRUE(QTest::qWaitFor([this] { return desk().entries().size() == 2; }));
    const auto rehearse = [](RehearsalDlg& tried) {
        const auto* days = tried.findChild<ReportList*>();
        ASSERT_TRUE(QTest::qWaitFor([days] { return days->rowCount() == 30; }, 10'000));
        EXPECT_EQ(days->item(0, 0)->text(), u"2"_s);
        tried.findChild<QSpinBox*>()->setValue(1);
        tried.accept();
    };
    const auto change = [&](QDialog& dialog) {
        auto* page = dialog.findChild<AlertRulesPage*>();
        const auto buttons = page->findChildren<QPushButton*>();
        answering<RehearsalDlg>([&] { buttons.back()->click(); }, rehearse);
        page->findChild<QListWidget*>()->item(0)->setCheckState(Qt::Checked);
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    };
    answering<QDialog>([this] { emit session->frame().commanded(FrameCommand::Settings); }, change);
    ASSERT_EQ(session->alerts().rules().rules.size(), 1U);
    EXPECT_EQ(session->alerts().rules().rules.front().budget, 1);
    EXPECT_EQ(alertsFromJson(session->settings().alerts()), session->alerts().rules());
    publish(u"Tin jumps"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return toastTexts().contains(u"metals"_s); }));
    publish(u"Tin falls"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return toastTexts().contains(u"metals (more than 1 an hour)"_s); }));
}

}  // namespace

}  // namespace wirepane::test
