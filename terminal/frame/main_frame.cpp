// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/main_frame.h"

#include "terminal/frame/notice_bar.h"
#include "terminal/frame/symbol_box.h"
#include "terminal/frame/view_desk.h"
#include "terminal/frame/view_dock.h"
#include "terminal/translations/terminal_text.h"

#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QLabel* statusLabel(QStatusBar* bar, int stretch) {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    // A long path must not keep the window wide.
    label->setMinimumWidth(1);
    label->setContentsMargins(0, 0, 12, 0);
    bar->addWidget(label, stretch);
    return label;
}

QToolBar* barWith(QWidget* content) {
    auto* bar = new QToolBar;
    bar->setObjectName(u"symbol"_s);
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->layout()->setContentsMargins(0, 0, 0, 0);
    bar->addWidget(content);
    return bar;
}

// The lamp of the feed's state before its name.
QString withLamp(const QString& text, bool live) {
    const QString colour = live ? u"#2f9e58"_s : u"#d0672c"_s;
    return u"<span style='color:%1'>●</span>&nbsp;&nbsp;%2"_s.arg(colour, text.toHtmlEscaped());
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
      symbolBar(barWith(symbols)),
      feedLabel(statusLabel(statusBar(), 0)),
      storeLabel(statusLabel(statusBar(), 1)),
      servicesLabel(statusLabel(statusBar(), 0)),
      asOfLabel(statusLabel(statusBar(), 0)) {
    feedLabel->setTextFormat(Qt::RichText);
    statusBar()->setContentsMargins(8, 0, 8, 0);
    statusBar()->setSizeGripEnabled(false);
    setCentralWidget(viewDesk);
    addToolBar(symbolBar);
    addToolBarBreak();
    addToolBar(notice);
    notice->hide();
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
    feedLabel->setText(withLamp(status.feed, status.isLive));
    feedLabel->setToolTip(status.feedTip.toHtmlEscaped().replace(u'\n', u"<br>"_s));
    storeLabel->setText(QDir::toNativeSeparators(status.storeFile));
    servicesLabel->setText(terminalText(TextId::ServicesCount).arg(status.services));
    asOfLabel->setText(status.asOf.isEmpty() ? QString() : terminalText(TextId::AsOf).arg(status.asOf));
    asOfLabel->setVisible(!status.asOf.isEmpty());
}

void MainFrame::showCaption(const QString& viewCaption) {
    caption = viewCaption;
    const QString application = terminalText(TextId::AppTitle);
    setWindowTitle(caption.isEmpty() ? application : u"%1 – %2"_s.arg(caption, application));
}

void MainFrame::showNotice(const QString& sentence) {
    notice->tell(sentence);
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
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        emit languageChanged();
    } else if (event->type() == QEvent::ActivationChange) {
        emit activationChanged(isActiveWindow() ? 1 : 0);
    }
}

}  // namespace wirepane
