// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/controls/quote_trv_change_symbol.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "search/search_ids.h"
#include "terminal/automation/user_input.h"
#include "terminal/frame/frame_command.h"
#include "terminal/sources/sources_window.h"
#include "tests/terminal/program/frame_fixture.h"

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QContextMenuEvent>
#include <QDateEdit>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTimer>

#include <algorithm>
#include <functional>

namespace wirepane::test {

// Goes through the windows, dialogs and menus of the terminal in the language in force, and has each looked
// at.
class EveryWindow : public FrameFixture {
protected:
    EveryWindow() : FrameFixture(1400) {}

    virtual void look(QWidget& window) = 0;
    virtual void lookAtMenu(const QList<QAction*>& actions, const QString& where) = 0;

    void lookAtAll() {
        QCoreApplication::processEvents();  // texts follow the language
        ASSERT_TRUE(session->setSwitches({true, false}));
        visitFrame();
        visitModes();
        visitFrameDialogs();
        visitSources();
        visitStoryWindow();
        visitSearchDialogs();
        ASSERT_TRUE(session->setSwitches({false, true}));
        visitWarningDialogs();
    }

    // Does `open`, which waits for a dialog to be closed; looks at the dialog, does `inIt` and closes it.
    void inDialog(const std::function<void()>& open, const std::function<void(QDialog&)>& inIt) {
        const QWidget* before = QApplication::activeModalWidget();
        bool seen = false;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || dialog == before)
                return;
            poll.stop();
            seen = true;
            look(*dialog);
            inIt(*dialog);
            dialog->reject();
        });
        poll.start(1);
        open();
        EXPECT_TRUE(QTest::qWaitFor([&] { return seen; }));
    }
    void inDialog(const std::function<void()>& open) {
        inDialog(open, [](const QDialog&) {});
    }

    void command(int id) { session->workspace().active()->view->onCommand(id); }
    void command(FrameCommand id) { emit session->frame().commanded(id); }
    static void click(const QDialog& dialog, int id) {
        qobject_cast<QAbstractButton*>(dlgItem(&dialog, id))->click();
    }
    static void selectTab(const QDialog& dialog, int tab) {
        dialog.findChild<QTabBar*>()->setCurrentIndex(tab);
    }
    static void typeKeyword(const QDialog& dialog, const QString& keyword) {
        auto* line = qobject_cast<QLineEdit*>(dlgItem(&dialog, search_ids::keywordEdit));
        line->setText(keyword);
        QTest::keyClick(line, Qt::Key_Return);
    }

    void visitFrame() {
        lookAtMenu(session->frame().menuBar()->actions(), QStringLiteral("the menu bar"));
        TRVQuoteBaseView* view = session->workspace().active()->view;
        const CSuperSheetWnd* sheet = session->workspace().active()->access->sheetOf(0);
        const QPoint row = sheet->mapTo(view, QPoint(50, 50));
        QContextMenuEvent asked(QContextMenuEvent::Mouse, row, view->mapToGlobal(row));
        QApplication::sendEvent(view, &asked);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        EXPECT_GE(menu->actions().size(), 6) << "on a row of " << sheet->rowCount();
        lookAtMenu(menu->actions(), QStringLiteral("the menu of a row"));
        menu->close();
    }
    // The desk in each mode, with what its empty lists say.
    void visitModes() {
        const OpenView& view = *session->workspace().active();
        auto* tabs = qobject_cast<QTabBar*>(dlgItem(view.view, ids::tabStrip));
        ASSERT_NE(tabs, nullptr);
        for (int tab = 0; tab < tabs->count(); ++tab) {
            clickTab(*tabs, tab);
            QCoreApplication::processEvents();
            look(session->frame());
        }
        clickTab(*tabs, 0);
        look(*qobject_cast<QDateEdit*>(dlgItem(view.view, ids::datePicker))->calendarWidget());
        auto* services = qobject_cast<QAbstractButton*>(dlgItem(view.view, ids::serviceButton));
        QTimer::singleShot(0, services, [services] { services->click(); });
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        QWidget* popup = QApplication::activePopupWidget();
        look(*popup);
        popup->close();
    }
    void visitFrameDialogs() {
        inDialog([this] { command(FrameCommand::Settings); },
                 [this](QDialog& dialog) {
                     selectTab(dialog, 1);
                     look(dialog);
                 });
        for (const FrameCommand id : {FrameCommand::ReadAsOf, FrameCommand::RenameView, FrameCommand::Keys})
            inDialog([this, id] { command(id); });
    }
    // The page, and the dialog of a source that is not there.
    void visitSources() {
        command(FrameCommand::Sources);
        auto* sources = session->frame().findChild<SourcesWindow*>();
        ASSERT_NE(sources, nullptr);
        QCoreApplication::processEvents();
        look(*sources);
        auto* address = sources->findChild<QLineEdit*>();
        address->setText(QStringLiteral("/no/such/file"));
        inDialog([address] { QTest::keyClick(address, Qt::Key_Return); },
                 [this](QDialog& dialog) {
                     selectTab(dialog, 1);
                     look(dialog);
                 });
        delete sources;
    }
    void visitStoryWindow() {
        const OpenView& view = *session->workspace().active();
        while (view.access->state()[QStringLiteral("storyShowType")].toInt() != 0)
            command(ids::showTypeButton);
        view.access->sheetOf(0)->setActiveSelection(0, -1);
        command(ids::showStory);
        const auto dialogs = view.view->findChildren<QDialog*>();
        const auto story = std::find_if(dialogs.begin(), dialogs.end(), [](const QDialog* dialog) {
            return dialog->inherits("TRVNewsStory") && dialog->isVisible();
        });
        ASSERT_NE(story, dialogs.end());
        look(**story);
        (*story)->close();
        command(ids::showTypeButton);
    }
    // Of the two dialogs in which keywords are entered.
    void visitKeywordEntry(QDialog& dialog, int removeAll) {
        typeKeyword(dialog, QStringLiteral("gold"));
        inDialog([&] { click(dialog, removeAll); });
        selectTab(dialog, 1);
        look(dialog);
        click(dialog, search_ids::picker);
        auto* picker = dialog.findChild<QuoteTRVChangeSymbol*>();
        ASSERT_NE(picker, nullptr);
        look(*picker);
        picker->close();
    }
    void visitSearchDialogs() {
        inDialog([this] { command(ids::dealsSearchButton); },
                 [this](QDialog& dialog) { visitKeywordEntry(dialog, search_ids::removeAll); });
        inDialog([this] { command(ids::relationSearchButton); },
                 [this](QDialog& dialog) { visitKeywordEntry(dialog, search_ids::removeAllOfKeySet); });
    }
    void visitWarningDialogs() {
        inDialog([this] { command(ids::warningSearchButton); },
                 [this](QDialog& dialog) { inDialog([&] { click(dialog, search_ids::addWarning); }); });
    }
};

}  // namespace wirepane::test
