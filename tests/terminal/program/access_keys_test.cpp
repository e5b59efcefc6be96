// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The keys that menus and dialogs offer with Alt, and the names of what the keyboard reaches there, in every
// language.
#include "host/controls/quote_trv_change_symbol.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "search/search_ids.h"
#include "terminal/frame/frame_command.h"
#include "tests/support/accessible_names.h"
#include "tests/terminal/program/frame_fixture.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTimer>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

class AccessKeysTest : public FrameFixture {
protected:
    AccessKeysTest() : FrameFixture(1400) {}

    // No two of the captions have the same key.
    void checkCaptions(const QStringList& captions, const QString& where) const {
        QHash<QString, QString> byKey;
        for (const QString& caption : captions) {
            const QString key = QKeySequence::mnemonic(caption).toString();
            if (key.isEmpty())
                continue;
            EXPECT_FALSE(byKey.contains(key)) << qPrintable(session->language()) << ", " << qPrintable(where)
                                              << ": " << qPrintable(byKey[key] + u" and "_s + caption);
            byKey.insert(key, caption);
        }
        EXPECT_GT(byKey.size(), 0) << qPrintable(where) << " offers no key";
    }

    void checkWindow(QWidget& window) {
        ++windows;
        QStringList captions;
        int buttons = 0;
        for (const auto* button : window.findChildren<QAbstractButton*>()) {
            if (button->isVisible() && button->window() == &window && !button->text().isEmpty()) {
                captions.append(button->text());
                ++buttons;
            }
        }
        for (const auto* label : window.findChildren<QLabel*>()) {
            if (label->isVisible() && label->buddy() != nullptr)
                captions.append(label->text());
        }
        for (const auto* tabs : window.findChildren<QTabBar*>()) {
            for (int tab = 0; tabs->isVisible() && tab < tabs->count(); ++tab)
                captions.append(tabs->tabText(tab));
        }
        // OK and Cancel alone have their keys.
        if (buttons > 2)
            checkCaptions(captions, window.windowTitle());
        EXPECT_GT(checkAccessibleNames(window), 0);
    }

    void checkMenu(const QList<QAction*>& actions, const QString& where) const {
        QStringList captions;
        bool any = false;
        for (const QAction* action : actions) {
            captions.append(action->text());
            any |= !QKeySequence::mnemonic(action->text()).isEmpty();
            if (action->menu() != nullptr)
                checkMenu(action->menu()->actions(), action->text());
        }
        // Names of languages and of news services bring none.
        if (any)
            checkCaptions(captions, where);
    }

    // Does `open`, which waits for a dialog to be closed; `look`s at the dialog and closes it.
    void inDialog(const std::function<void()>& open, const std::function<void(QDialog&)>& look) {
        const QWidget* before = QApplication::activeModalWidget();
        bool seen = false;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || dialog == before)
                return;
            poll.stop();
            seen = true;
            checkWindow(*dialog);
            look(*dialog);
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

    void checkFrame() {
        checkMenu(session->frame().menuBar()->actions(), u"the menu bar"_s);
        TRVQuoteBaseView* view = session->workspace().active()->view;
        const CSuperSheetWnd* sheet = session->workspace().active()->access->sheetOf(0);
        const QPoint row = sheet->mapTo(view, QPoint(50, 50));
        QContextMenuEvent asked(QContextMenuEvent::Mouse, row, view->mapToGlobal(row));
        QApplication::sendEvent(view, &asked);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        EXPECT_GE(menu->actions().size(), 6) << "on a row of " << sheet->rowCount();
        checkMenu(menu->actions(), u"the menu of a row"_s);
        menu->close();
    }
    void checkFrameDialogs() {
        inDialog([this] { command(FrameCommand::Settings); },
                 [this](QDialog& dialog) {
                     selectTab(dialog, 1);
                     checkWindow(dialog);
                 });
        for (const FrameCommand id : {FrameCommand::ReadAsOf, FrameCommand::RenameView})
            inDialog([this, id] { command(id); });
    }
    void checkStoryWindow() {
        const OpenView& view = *session->workspace().active();
        while (view.access->state()[u"storyShowType"_s].toInt() != 0)
            command(ids::showTypeButton);
        view.access->sheetOf(0)->setActiveSelection(0, -1);
        command(ids::showStory);
        const auto dialogs = view.view->findChildren<QDialog*>();
        const auto story = std::find_if(dialogs.begin(), dialogs.end(), [](const QDialog* dialog) {
            return dialog->inherits("TRVNewsStory") && dialog->isVisible();
        });
        ASSERT_NE(story, dialogs.end());
        checkWindow(**story);
        (*story)->close();
        command(ids::showTypeButton);
    }
    // Of the two dialogs in which keywords are entered.
    void checkKeywordEntry(QDialog& dialog, int removeAll) {
        typeKeyword(dialog, u"gold"_s);
        inDialog([&] { click(dialog, removeAll); });
        selectTab(dialog, 1);
        checkWindow(dialog);
        click(dialog, search_ids::picker);
        auto* picker = dialog.findChild<QuoteTRVChangeSymbol*>();
        ASSERT_NE(picker, nullptr);
        checkWindow(*picker);
        picker->close();
    }
    void checkSearchDialogs() {
        inDialog([this] { command(ids::dealsSearchButton); },
                 [this](QDialog& dialog) { checkKeywordEntry(dialog, search_ids::removeAll); });
        inDialog([this] { command(ids::relationSearchButton); },
                 [this](QDialog& dialog) { checkKeywordEntry(dialog, search_ids::removeAllOfKeySet); });
    }
    void checkWarningDialogs() {
        inDialog([this] { command(ids::warningSearchButton); },
                 [this](QDialog& dialog) { inDialog([&] { click(dialog, search_ids::addWarning); }); });
    }

    int windows = 0;
};

TEST_F(AccessKeysTest, EachIsOfferedOnceInAMenuOrWindow) {
    for (const QString& code : Languages::codes()) {
        ASSERT_TRUE(session->setLanguage(code));
        ASSERT_TRUE(session->setSwitches({true, false}));
        checkFrame();
        checkFrameDialogs();
        checkStoryWindow();
        checkSearchDialogs();
        ASSERT_TRUE(session->setSwitches({false, true}));
        checkWarningDialogs();
    }
    EXPECT_EQ(windows, 3 * 15);
}

}  // namespace

}  // namespace wirepane
