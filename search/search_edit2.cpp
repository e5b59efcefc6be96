// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/search_edit2.h"

#include "headline_list/language_keys.h"
#include "host/contract/lang_text.h"
#include "host/controls/line_icon.h"
#include "host/controls/plain_caption.h"

#include <QAction>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>

#include <utility>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

constexpr int widestOffer = 600;

}  // namespace

SearchEdit2::SearchEdit2(QWidget* parent) : SEdit(parent) {}

void SearchEdit2::keyPressEvent(QKeyEvent* event) {
    const bool pastes = event->key() == Qt::Key_Insert && event->modifiers().testFlag(Qt::ShiftModifier);
    if (arrow != nullptr && event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier))
        dropDown();
    else if (takesQueries)
        SEdit::keyPressEvent(event);
    else if (pastes)
        refuse(keys::invalidPaste);
    else if (event->text() == u" "_s)
        refuse(keys::invalidValue);
    else
        SEdit::keyPressEvent(event);
}

// What has been composed comes without keys: its blanks go, the rest is taken.
void SearchEdit2::inputMethodEvent(QInputMethodEvent* event) {
    QString composed = event->commitString();
    if (takesQueries || !composed.contains(u' ')) {
        SEdit::inputMethodEvent(event);
        return;
    }
    QInputMethodEvent taken(event->preeditString(), event->attributes());
    taken.setCommitString(composed.remove(u' '), event->replacementStart(), event->replacementLength());
    SEdit::inputMethodEvent(&taken);
    refuse(keys::invalidValue);
}

void SearchEdit2::offerTexts(std::function<QStringList()> texts) {
    offered = std::move(texts);
    showArrow();
}

void SearchEdit2::offerMore(std::function<void(QMenu&)> fill) {
    fillMore = std::move(fill);
    showArrow();
}

void SearchEdit2::showArrow() {
    if (arrow == nullptr) {
        arrow = addAction(lineIcon(LineIcon::Down, QPalette::Text), QLineEdit::TrailingPosition);
        connect(arrow, &QAction::triggered, this, &SearchEdit2::dropDown);
    }
}

void SearchEdit2::nameOffer(const QString& name) {
    if (arrow != nullptr)
        arrow->setText(name);
}

void SearchEdit2::dropDown() {
    const QStringList texts = offered ? offered() : QStringList();
    if (texts.empty() && !fillMore)
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setMinimumWidth(width());
    for (const QString& text : texts) {
        const QString shown = fontMetrics().elidedText(text, Qt::ElideRight, widestOffer);
        menu->addAction(captionOfName(shown), this, [this, text] {
            setText(text);
            emit returnPressed();
        });
    }
    if (fillMore)
        fillMore(*menu);
    menu->setActiveAction(menu->actions().front());
    menu->popup(mapToGlobal(QPoint(0, height())));
}

void SearchEdit2::refuse(QLatin1StringView key) {
    if (owner != nullptr)
        owner->showTip({mapToGlobal(QPoint(0, 0)), size()}, langText(key));
}
