// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/frame_menus.h"

#include "terminal/frame/main_frame.h"
#include "terminal/translations/terminal_text.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

struct Choice {
    TextId text;
    QString value;
};

// A menu of which one entry is in force.
template <class Chosen>
void addChoices(QMenu& menu, const QList<Choice>& choices, const QString& current, const Chosen& chosen) {
    auto* group = new QActionGroup(&menu);
    for (const Choice& choice : choices) {
        QAction* action = menu.addAction(terminalText(choice.text));
        action->setCheckable(true);
        action->setChecked(choice.value == current);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &menu,
                         [chosen, value = choice.value] { chosen(value); });
    }
}

}  // namespace

void addFileMenu(MainFrame& frame) {
    QMenu* menu = frame.menuBar()->addMenu(terminalText(TextId::FileMenu));
    QAction* readAsOf = menu->addAction(terminalText(TextId::ReadAsOf));
    readAsOf->setShortcut(Qt::CTRL | Qt::Key_G);
    QObject::connect(readAsOf, &QAction::triggered, &frame, &MainFrame::readAsOfChosen);
    menu->addSeparator();
    QAction* quit = menu->addAction(terminalText(TextId::Quit));
    quit->setShortcut(Qt::CTRL | Qt::Key_Q);
    QObject::connect(quit, &QAction::triggered, &frame, &MainFrame::close);
}

void addViewMenu(MainFrame& frame, const QString& scheme, const QString& language) {
    QMenu* menu = frame.menuBar()->addMenu(terminalText(TextId::ViewMenu));
    addChoices(*menu->addMenu(terminalText(TextId::SchemeMenu)),
               {{TextId::SchemeLight, u"light"_s}, {TextId::SchemeDark, u"dark"_s}}, scheme,
               [&frame](const QString& value) { emit frame.schemeChosen(value); });
    addChoices(*menu->addMenu(terminalText(TextId::LanguageMenu)),
               {{TextId::LanguageEnglish, u"en"_s},
                {TextId::LanguageTraditionalChinese, u"zh-TW"_s},
                {TextId::LanguageSimplifiedChinese, u"zh-CN"_s}},
               language, [&frame](const QString& value) { emit frame.languageChosen(value); });
    menu->addSeparator();
    QAction* larger = menu->addAction(terminalText(TextId::FontLarger));
    larger->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    QObject::connect(larger, &QAction::triggered, &frame, [&frame] { emit frame.fontStepChosen(1); });
    QAction* smaller = menu->addAction(terminalText(TextId::FontSmaller));
    smaller->setShortcut(Qt::CTRL | Qt::Key_Minus);
    QObject::connect(smaller, &QAction::triggered, &frame, [&frame] { emit frame.fontStepChosen(-1); });
}

}  // namespace wirepane
