// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>

#include <chrono>
#include <map>
#include <set>

namespace wirepane {

// Lets a few of many senders at a time keep a line here that is longer than their share, so that what they
// keep together is bounded; the others wait their turn. One thread.
class LongLines {
public:
    static constexpr std::size_t mostAtOnce = 2;

    // One that sends nothing of its line for longer than `silence`, while others wait, is to lose its place.
    explicit LongLines(std::chrono::milliseconds silence) : longestSilence(silence) {}

    // Whether this sender may go on with its long line. One that may not is among those that wait.
    bool admit(const void* sender);
    // The sender has sent something.
    void heard(const void* sender);
    // The sender keeps no long line any more.
    void leave(const void* sender);
    bool anybodyWaits() const { return !waiting.empty(); }
    // Those whose silence is longer than allowed; nobody as long as nobody waits.
    std::set<const void*> silent() const;

private:
    std::chrono::milliseconds longestSilence;
    std::map<const void*, QElapsedTimer> admitted;  // since each was heard of
    std::set<const void*> waiting;
};

}  // namespace wirepane
