// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

namespace wirepane {

// Who writes much into a database keeps a file beside it, in which who waits for a turn makes itself heard:
// so the first writes on while nobody waits, and ends early when somebody does.
QByteArray turnFileOf(const QString& databasePath);

// Of one who waits, again and again: what was heard before is forgotten. Any thread; nothing happens where
// nobody keeps the file.
void ringForTurn(const QString& databasePath);

// Hears who rings. Used by one thread at a time.
class TurnBell {
public:
    explicit TurnBell(const QString& databasePath) : path(turnFileOf(databasePath)) {}

    // From now on.
    void listen() { heard = lastRing(); }
    // Whether somebody has rung since then.
    bool hasRung() const { return lastRing() != heard; }

private:
    std::int64_t lastRing() const;

    const QByteArray path;
    std::int64_t heard = 0;
};

}  // namespace wirepane
