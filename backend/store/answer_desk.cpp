// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/answer_desk.h"

#include <utility>

namespace wirepane {

void AnswerDesk::release(Held kind) {
    of(kind).held = false;
    // An answer may lead to another request, and that to another answer.
    for (const Answer& answer : std::exchange(of(kind).waiting, {}))
        answer();
}

void AnswerDesk::give(Held kind, const Answer& answer) {
    if (isHeld(kind))
        of(kind).waiting.push_back(answer);
    else
        answer();
}

void AnswerDesk::giveLater(Held kind, const Answer& answer) {
    QMetaObject::invokeMethod(
        &eventLoop, [this, kind, answer] { give(kind, answer); }, Qt::QueuedConnection);
}

}  // namespace wirepane
