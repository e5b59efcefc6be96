// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/interrupt.h"

#include <csignal>
#include <utility>

namespace wirepane {

namespace {

std::function<void()> onInterrupt;

void handle(int) {
    onInterrupt();
}

}  // namespace

OnInterrupt::OnInterrupt(std::function<void()> action) {
    onInterrupt = std::move(action);
    std::signal(SIGINT, &handle);
    std::signal(SIGTERM, &handle);
}

OnInterrupt::~OnInterrupt() {
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    onInterrupt = nullptr;
}

}  // namespace wirepane
