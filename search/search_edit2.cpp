// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/search_edit2.h"

#include "headline_list/language_keys.h"
#include "host/contract/lang_text.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

using namespace Qt::StringLiterals;
using namespace wirepane;

SearchEdit2::SearchEdit2(QWidget* parent) : SEdit(parent) {}

void SearchEdit2::keyPressEvent(QKeyEvent* event) {
    const bool pastes = event->key() == Qt::Key_Insert && event->modifiers().testFlag(Qt::ShiftModifier);
    if (takesQueries)
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

void SearchEdit2::refuse(QLatin1StringView key) {
    if (owner != nullptr)
        owner->showTip({mapToGlobal(QPoint(0, 0)), size()}, langText(key));
}
