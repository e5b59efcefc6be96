// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace wirepane {

// Keeps the bytes that a target is running on: when the program ends in the middle of it (a promise broken, a
// fault, a finding of the sanitizers) they are left in the file "fuzz_replay_NAME.input" of the working
// folder. One at a time.
class KeptInput {
public:
    explicit KeptInput(const char* targetName);
    ~KeptInput();
    KeptInput(const KeptInput&) = delete;
    KeptInput& operator=(const KeptInput&) = delete;

    void set(const QByteArray& bytes);
};

}  // namespace wirepane
