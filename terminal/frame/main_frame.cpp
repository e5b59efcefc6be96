// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/main_frame.h"

#include "terminal/frame/first_steps_bar.h"
#include "terminal/frame/notice_bar.h"
#include "terminal/frame/status_line.h"
#include "terminal/frame/symbol_box.h"
#include "terminal/frame/view_desk.h"
#include "terminal/frame/view_dock.h"
#include "terminal/translations/terminal_text.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int statusHeight = 24;

QToolBar* barWith(QWidget* content) {
    auto* bar = new QToolBar;
    bar->setObjectName(u"symbol"_s);
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->layout()->setContentsMargins(0, 0, 0, 0);
    bar->addWidget(content);
    return bar;
}

// Entries of menus that go keep their shortcuts until they are gone.
void discard(QMenu* menu) {
    const auto actions = menu->findChildren<QAction*>();
    for (QAction* action : actions)
        action->setShortcuts(QList<QKeySequence>());
    menu->deleteLater();
}

}  // namespace

MainFrame::MainFrame()
    : viewDesk(new ViewDesk(this)),
      viewDocks(*this),
      symbols(new SymbolBox),
      notice(new NoticeBar),
      firstSteps(new FirstStepsBar),
      symbolBar(barWith(symbols)),
      statusLine(new StatusLine) {
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(statusLine, 1);
    connect(statusLine, &StatusLine::importAsked, this, [this] { emit commanded(FrameCommand::ImportNews); });
    connect(statusLine, &StatusLine::connectAsked, this, [this] { emit commanded(FrameCommand::Sources); });
    connect(statusLine, &StatusLine::presentAsked, this, [this] { emit commanded(FrameCommand::Present); });
    connect(statusLine, &StatusLine::alertsAsked, this, [this] { emit commanded(FrameCommand::Alerts); });
    connect(statusLine, &StatusLine::todayAsked, this, [this] { emit commanded(FrameCommand::NewsToday); });
    setCentralWidget(viewDesk);
    addToolBar(symbolBar);
    addToolBarBreak();
    addToolBar(notice);
    notice->hide();
    addToolBarBreak();
    addToolBar(firstSteps);
    firstSteps->hide();
    connect(firstSteps, &FirstStepsBar::dismissed, this, [this] {
        showsFirstSteps = false;
        emit firstStepsDismissed();
    });
    // A story window that has the keyboard is the application's, too.
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        emit activationChanged(state == Qt::ApplicationActive ? 1 : 0);
    });
    connect(symbols, &SymbolBox::left, this, [this] { emit viewChosen(menuState.activeView); });
    retranslate();
}

QMenu* MainFrame::createPopupMenu() {
    // Bars and docks are not switched on and off one by one.
    return nullptr;
}

void MainFrame::buildMenus() {
    // One of the old menus may be running the command that makes them anew.
    const auto old = menuBar()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
    menuBar()->clear();
    for (QMenu* menu : old)
        discard(menu);
    addFrameMenus(*this, menuState);
}

void MainFrame::retranslate() {
    buildMenus();
    symbols->retranslate();
    firstSteps->retranslate();
    viewDesk->setHint(terminalText(TextId::EmptyDesk));
    showCaption(caption);
}

void MainFrame::showChoices(const MenuState& state) {
    if (state == menuState)
        return;
    menuState = state;
    buildMenus();
}

void MainFrame::showStatus(const FrameStatus& status) {
    statusLine->show(status);
    fitStatusBar();
}

void MainFrame::fitStatusBar() {
    statusLine->fitFont();
    statusBar()->setMinimumHeight(std::max(statusHeight, statusLine->sizeHint().height()));
}

void MainFrame::showCaption(const QString& viewCaption) {
    caption = viewCaption;
    const QString application = terminalText(TextId::AppTitle);
    setWindowTitle(caption.isEmpty() ? application : u"%1 – %2"_s.arg(caption, application));
}

void MainFrame::showNotice(const QString& sentence) {
    notice->tell(sentence);
}

void MainFrame::showFirstSteps() {
    showsFirstSteps = true;
    firstSteps->show();
}

QString MainFrame::notices() const {
    return notice->text();
}

void MainFrame::resizeDesk(const QSize& size) {
    // What surrounds the desk is known once the layout has been made with the texts of this moment.
    ensurePolished();
    const QSize around(0, menuBar()->sizeHint().height() + symbolBar->sizeHint().height() +
                              statusBar()->sizeHint().height());
    resize(size + around);
}

bool MainFrame::restoreArrangement(const QByteArray& stored) {
    const bool restored = viewDocks.restore(stored);
    // A stored state knows of the bars, too, but it is not what decides on them.
    symbolBar->show();
    notice->showOrHide();
    firstSteps->setVisible(showsFirstSteps);
    for (ViewDock* dock : viewDocks.all())
        dock->show();
    return restored;
}

void MainFrame::showDesk(bool shown) {
    viewDesk->setVisible(shown);
}

void MainFrame::closeEvent(QCloseEvent* event) {
    emit closing();
    QMainWindow::closeEvent(event);
}

void MainFrame::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitStatusBar();
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        emit languageChanged();
    }
}

}  // namespace wirepane
