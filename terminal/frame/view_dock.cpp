// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/view_dock.h"

#include "terminal/frame/link_group.h"
#include "terminal/frame/view_title_bar.h"

#include <QCloseEvent>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {
constexpr QSize smallest(260, 180);
}

ViewDock::ViewDock(int place, QWidget* parent) : QDockWidget(parent), bar(new ViewTitleBar(this)) {
    setObjectName(u"view-%1"_s.arg(place));
    setFeatures(DockWidgetClosable | DockWidgetMovable | DockWidgetFloatable);
    setTitleBarWidget(bar);
    setMinimumSize(smallest);
    connect(bar, &ViewTitleBar::groupChosen, this, &ViewDock::groupChosen);
    connect(bar, &ViewTitleBar::renameAsked, this, &ViewDock::renameAsked);
    connect(bar, &ViewTitleBar::closeAsked, this, &ViewDock::closeAsked);
    connect(bar, &ViewTitleBar::floatAsked, this, [this] { setFloating(!isFloating()); });
}

void ViewDock::setTitle(const QString& title, unsigned char group) {
    bar->setTitle(title);
    bar->setGroup(group);
    QString tab = group == 0 ? title : u"%1 · %2"_s.arg(link_groups::label(group), title);
    setWindowTitle(tab.replace(u'&', u"&&"_s));
}

void ViewDock::setActive(bool active) {
    bar->setActive(active);
}

void ViewDock::retranslate() {
    bar->retranslate();
}

bool ViewDock::event(QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress)
        emit pressed();
    return QDockWidget::event(event);
}

void ViewDock::closeEvent(QCloseEvent* event) {
    // Closing is the workspace's business: it keeps what belongs to the view.
    event->ignore();
    emit closeAsked();
}

}  // namespace wirepane
