// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// A user gone wild: keys, clicks, wheel turns and menu choices while headlines arrive. WIREPANE_INPUTS is the
// number of inputs, a few thousand without it.
#include "headline_list/language_keys.h"
#include "host/views/news_control_ids.h"
#include "tests/news_view/view_fixture.h"

#include <QApplication>
#include <QMenu>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace wirepane {

class RandomInputTest : public NewsViewTest {
protected:
    int below(int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }

    QWidget* someWidget() {
        QWidget* window = waiting() != nullptr ? waiting() : view.get();
        QList<QWidget*> shown{window};
        const auto children = window->findChildren<QWidget*>();
        for (QWidget* child : children) {
            // Printing and saving ask the system's dialogs, which wait for a real user.
            const int id = windowId(child);
            if (child->isVisible() && child->window() == window->window() && id != ids::printButton &&
                id != ids::saveAsButton)
                shown.append(child);
        }
        return shown.at(below(static_cast<int>(shown.size())));
    }

    void hitSomeKey() {
        static constexpr Qt::Key keys[] = {
            Qt::Key_Up,     Qt::Key_Down,   Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,  Qt::Key_End,
            Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Return, Qt::Key_Escape,   Qt::Key_Space, Qt::Key_F6,
            Qt::Key_F3,     Qt::Key_F5,     Qt::Key_F7,     Qt::Key_F8,       Qt::Key_F9,    Qt::Key_E,
            Qt::Key_Insert, Qt::Key_Delete, Qt::Key_A,      Qt::Key_1,        Qt::Key_Menu,  Qt::Key_C};
        static constexpr Qt::KeyboardModifiers held[] = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                                         Qt::ControlModifier, Qt::AltModifier};
        const Qt::Key key = keys[below(std::size(keys))];
        const auto modifiers = Qt::KeyboardModifiers(held[below(std::size(held))]);
        QWidget* focus = QApplication::focusWidget();
        QWidget* target = focus != nullptr && below(4) > 0 ? focus : someWidget();
        // Headers and the like never have the keyboard.
        if (target->isWindow() || target->focusPolicy() != Qt::NoFocus)
            QTest::keyClick(target, key, modifiers);
    }

    void clickSomewhere() {
        QWidget* target = someWidget();
        const QPoint point(below(std::max(1, target->width())), below(std::max(1, target->height())));
        if (below(6) == 0)
            QTest::mouseDClick(target, Qt::LeftButton, {}, point);
        else
            QTest::mouseClick(target, Qt::LeftButton, {}, point);
    }

    void turnWheel() {
        QWidget* target = someWidget();
        const QPoint point = target->rect().center();
        const QPoint angle(below(3) == 0 ? 120 : 0, below(5) * 120 - 240);
        QWheelEvent wheel(point, target->mapToGlobal(point), {}, angle, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &wheel);
    }

    void useMenu() {
        view->OnContextMenu(view->mapToGlobal(QPoint(below(1000), below(700))));
        const QPointer<QMenu> menu(qobject_cast<QMenu*>(QApplication::activePopupWidget()));
        if (menu == nullptr || menu->actions().isEmpty())
            return;
        QAction* action = menu->actions().at(below(static_cast<int>(menu->actions().size())));
        const int id = action->data().toInt();
        if (id != ids::printNews && id != ids::saveNews)
            action->trigger();
        if (menu)
            menu->close();
    }

    // The menu, drop-down or dialog that waits for the user.
    static QWidget* waiting() {
        QWidget* popup = QApplication::activePopupWidget();
        return popup != nullptr ? popup : QApplication::activeModalWidget();
    }

    void workOnWaiting() {
        QWidget* window = waiting();
        if (window == nullptr)
            return;
        if (below(3) == 0)
            window->close();
        else
            hitSomeKey();
    }

    void doSomething() {
        switch (below(8)) {
            case 0:
                clickSomewhere();
                break;
            case 1:
                turnWheel();
                break;
            case 2:
                useMenu();
                break;
            case 3:
                push(backEnd.services[static_cast<std::size_t>(below(6))], 9, below(60), 100 + below(5000),
                     below(3) == 0 ? u"2330"_s : QString());
                break;
            default:
                hitSomeKey();
        }
    }

    std::mt19937 random{20260302};
    static QStringList complaints;
};

// What item models, and Qt where it was called wrongly, complain of.
QStringList RandomInputTest::complaints;

TEST_F(RandomInputTest, NothingBreaks) {
    complaints.clear();
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext& context, const QString& message) {
            // The off-screen platform tells what it does not do, and clicks may go where nothing takes them.
            if (!message.startsWith("This plugin does not support"_L1) &&
                !message.endsWith("not accepted by receiving widget"_L1))
                complaints.append(QString::fromLatin1(context.category) + u": "_s + message);
        });
    const auto restored = qScopeGuard([before] { qInstallMessageHandler(before); });
    const QByteArray wanted = qgetenv("WIREPANE_INPUTS");
    const int inputs = wanted.isEmpty() ? 2000 : wanted.toInt();
    for (int i = 0; i < 50; ++i)
        addNews(backEnd.services[static_cast<std::size_t>(i % 6)], 8, i, i + 1, 1 + i % 2, u"2330"_s);
    for (const QLatin1StringView key : {keys::waitingToSave, keys::waitingToPrint})
        backEnd.texts[key] = u"%1 to come"_s;
    open({{u"EnabledFunctions"_s, 0x7F}, {u"SymbolID"_s, u"2330"_s}});
    // A dialog or a menu may wait in a loop of its own: input goes on, and in the end it is closed. What is
    // done there may open the next dialog, in whose loop this timer must fire again: it is done from a call
    // of its own.
    QTimer whileWaiting;
    QObject::connect(&whileWaiting, &QTimer::timeout, &frame, [this] {
        if (waiting() != nullptr)
            QTimer::singleShot(0, &frame, [this] { workOnWaiting(); });
    });
    whileWaiting.start(1);
    focusGrid();
    for (int i = 0; i < inputs; ++i) {
        doSomething();
        if (i % 16 == 0)
            QApplication::processEvents();
        const int mode = state(u"mode"_s).toInt();
        const CSuperSheetWnd* sheet = view->pGetCurrSheetView();
        ASSERT_LE(sheet->cptGetFocusNdx().y(), view->iGetHeadlineTableSize(mode) - 1) << i;
        ASSERT_EQ(view->iGetHeadlineTableSize(mode), sheet->rowCount()) << i;
        ASSERT_EQ(complaints, QStringList()) << i;
    }
}

}  // namespace wirepane
