// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/lines/line_channel.h"

namespace wirepane {

void LineChannel::setHeld(bool nowHeld) {
    if (nowHeld == held)
        return;
    held = nowHeld;
    heldChanged();
}

void LineChannel::received(const QByteArray& bytes) {
    splitter.feed(
        bytes, [this](const QByteArray& line) { emit lineReceived(line); }, [this] { emit lineTooLong(); });
}

void LineChannel::receivedAll() {
    splitter.finish([this](const QByteArray& line) { emit lineReceived(line); });
    emit ended();
}

}  // namespace wirepane
