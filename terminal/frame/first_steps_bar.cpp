// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/first_steps_bar.h"

#include "terminal/translations/terminal_text.h"

#include <QKeySequence>
#include <QLabel>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace wirepane {

FirstStepsBar::FirstStepsBar(QWidget* parent)
    : QToolBar(parent), steps(new QLabel), hideButton(new QToolButton) {
    setObjectName(u"firstSteps"_s);
    setMovable(false);
    setFloatable(false);
    setBackgroundRole(QPalette::Highlight);
    setAutoFillBackground(true);
    steps->setTextFormat(Qt::RichText);
    steps->setMinimumWidth(1);
    steps->setContentsMargins(8, 4, 8, 4);
    steps->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(steps);
    addWidget(hideButton);
    connect(hideButton, &QToolButton::clicked, this, [this] {
        hide();
        emit dismissed();
    });
    retranslate();
    hide();
}

void FirstStepsBar::retranslate() {
    QString text = terminalText(TextId::FirstSteps).toHtmlEscaped();
    text.replace(u"    "_s, u"&nbsp;&nbsp;&nbsp;&nbsp; "_s);
    for (const QKeySequence& key :
         {QKeySequence(Qt::Key_Down), QKeySequence(Qt::Key_F3), QKeySequence(Qt::CTRL | Qt::Key_O)})
        text = text.arg(u"<b>%1</b>"_s.arg(key.toString(QKeySequence::NativeText)));
    steps->setText(text.arg(u"<b>?</b>"_s));
    hideButton->setText(terminalText(TextId::FirstStepsHide));
}

}  // namespace wirepane
