// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The keys that menus and dialogs offer with Alt, and the names of what the keyboard reaches there, in every
// language.
#include "tests/support/accessible_names.h"
#include "tests/terminal/program/every_window.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

class AccessKeysTest : public EveryWindow {
protected:
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

    void look(QWidget& window) override {
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
        // OK and Cancel alone have their keys; the desk's buttons have shortcuts.
        if (buttons > 2 && qobject_cast<QDialog*>(&window) != nullptr)
            checkCaptions(captions, window.windowTitle());
        EXPECT_TRUE(checkAccessibleNames(window) > 0 || qobject_cast<QDialog*>(&window) == nullptr);
    }

    void lookAtMenu(const QList<QAction*>& actions, const QString& where) override {
        QStringList captions;
        bool any = false;
        for (const QAction* action : actions) {
            captions.append(action->text());
            any |= !QKeySequence::mnemonic(action->text()).isEmpty();
            if (action->menu() != nullptr)
                lookAtMenu(action->menu()->actions(), action->text());
        }
        // Names of languages and of news services bring none.
        if (any)
            checkCaptions(captions, where);
    }

    int windows = 0;
};

TEST_F(AccessKeysTest, EachIsOfferedOnceInAMenuOrWindow) {
    for (const QString& code : Languages::codes()) {
        ASSERT_TRUE(session->setLanguage(code));
        lookAtAll();
    }
    EXPECT_EQ(windows, 3 * 27);
}

}  // namespace

}  // namespace wirepane
