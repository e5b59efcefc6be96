// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/main_frame.h"

#include "terminal/frame/frame_menus.h"
#include "terminal/frame/view_desk.h"
#include "terminal/translations/terminal_text.h"

#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QLabel* statusLabel(QStatusBar* bar, int stretch) {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    // A long path must not keep the window wide.
    label->setMinimumWidth(1);
    bar->addWidget(label, stretch);
    return label;
}

}  // namespace

MainFrame::MainFrame()
    : viewDesk(new ViewDesk(this)),
      feedLabel(statusLabel(statusBar(), 0)),
      storeLabel(statusLabel(statusBar(), 1)),
      servicesLabel(statusLabel(statusBar(), 0)),
      asOfLabel(statusLabel(statusBar(), 0)) {
    setCentralWidget(viewDesk);
    retranslate();
}

void MainFrame::buildMenus() {
    // One of the old menus may be running the command that makes them anew.
    const auto old = menuBar()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
    menuBar()->clear();
    for (QMenu* menu : old)
        menu->deleteLater();
    addFileMenu(*this);
    addViewMenu(*this, checkedScheme, checkedLanguage);
}

void MainFrame::retranslate() {
    buildMenus();
    showCaption(caption);
}

void MainFrame::showChoices(const QString& scheme, const QString& language) {
    if (scheme == checkedScheme && language == checkedLanguage)
        return;
    checkedScheme = scheme;
    checkedLanguage = language;
    buildMenus();
}

void MainFrame::showStatus(const FrameStatus& status) {
    feedLabel->setText(terminalText(status.connected ? TextId::FeedConnected : TextId::FeedDisconnected));
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

void MainFrame::resizeDesk(const QSize& size) {
    // What surrounds the desk is known once the layout has been made with the texts of this moment.
    ensurePolished();
    const QSize around(0, menuBar()->sizeHint().height() + statusBar()->sizeHint().height());
    resize(size + around);
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
