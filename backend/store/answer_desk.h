// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <array>
#include <functional>
#include <vector>

namespace wirepane {

// What a back end can be made to keep back, as a slow source does.
enum class Held { Headlines, Stories, Tables, Search };

// Gives answers: at once, or from the event loop, in the order in which they were handed in; those of a kind
// that is held wait until it is let go. Answers that nobody has got yet are dropped with the desk. Interface
// thread.
class AnswerDesk {
public:
    using Answer = std::function<void()>;

    bool isHeld(Held kind) const { return of(kind).held; }
    void hold(Held kind) { of(kind).held = true; }
    // Gives what waits, at once.
    void release(Held kind);

    void give(Held kind, const Answer& answer);
    void giveLater(Held kind, const Answer& answer);

private:
    struct Line {
        bool held = false;
        std::vector<Answer> waiting;
    };
    Line& of(Held kind) { return lines.at(static_cast<std::size_t>(kind)); }
    const Line& of(Held kind) const { return lines.at(static_cast<std::size_t>(kind)); }

    std::array<Line, 4> lines;
    QObject eventLoop;
};

}  // namespace wirepane
