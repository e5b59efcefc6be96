// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/notice_bar.h"

#include "host/controls/line_icon.h"

#include <QAction>
#include <QEvent>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace wirepane {

NoticeBar::NoticeBar(QWidget* parent) : QToolBar(parent), label(new QLabel) {
    setObjectName(u"notice"_s);
    setMovable(false);
    setFloatable(false);
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMargin(4);
    label->setIndent(4);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    label->installEventFilter(this);
    addWidget(label);
    const QAction* close = addAction(lineIcon(LineIcon::Close), QString());
    connect(close, &QAction::triggered, this, [this] {
        label->clear();
        hide();
    });
    hide();
}

void NoticeBar::tell(const QString& sentence) {
    QStringList told = label->text().split(u'\n', Qt::SkipEmptyParts);
    if (!told.contains(sentence))
        told.append(sentence);
    label->setText(told.join(u'\n'));
    fitHeight();
    show();
}

// A bar asks for the height of a narrow text, whatever its width is.
void NoticeBar::fitHeight() {
    if (!label->text().isEmpty())
        label->setMaximumHeight(label->heightForWidth(label->width()));
}

bool NoticeBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == label && event->type() == QEvent::Resize)
        fitHeight();
    return QToolBar::eventFilter(watched, event);
}

QString NoticeBar::text() const {
    return label->text();
}

void NoticeBar::showOrHide() {
    setVisible(!label->text().isEmpty());
}

}  // namespace wirepane
