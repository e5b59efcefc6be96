// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace wirepane {

// While it lives, Ctrl+C and a polite kill call `action` instead of ending the program. One at a time.
class OnInterrupt {
public:
    // `action` runs inside a signal: it may do no more than set an atomic flag.
    explicit OnInterrupt(std::function<void()> action);
    OnInterrupt(const OnInterrupt&) = delete;
    OnInterrupt& operator=(const OnInterrupt&) = delete;
    ~OnInterrupt();
};

}  // namespace wirepane
