// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/notice_bar.h"

#include <QAction>
#include <QLabel>
#include <QStyle>

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
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(label);
    const QAction* close = addAction(style()->standardIcon(QStyle::SP_TitleBarCloseButton), QString());
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
    show();
}

QString NoticeBar::text() const {
    return label->text();
}

void NoticeBar::showOrHide() {
    setVisible(!label->text().isEmpty());
}

}  // namespace wirepane
