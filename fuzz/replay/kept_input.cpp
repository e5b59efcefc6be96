// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "fuzz/replay/kept_input.h"

#include <csignal>
#include <cstdio>
#include <string>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace wirepane {

namespace {

std::string path;
QByteArray kept;

void write() {
    std::FILE* const file = path.empty() ? nullptr : std::fopen(path.c_str(), "wb");
    if (file == nullptr)
        return;
    std::fwrite(kept.constData(), 1, std::size_t(kept.size()), file);
    std::fclose(file);
    path.clear();
}

void writeAndEnd(int signal) {
    write();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

}  // namespace

KeptInput::KeptInput(const char* targetName) {
    path = "fuzz_replay_" + std::string(targetName) + ".input";
    std::remove(path.c_str());
    std::signal(SIGABRT, writeAndEnd);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(write);
#else
    std::signal(SIGSEGV, writeAndEnd);
    std::signal(SIGFPE, writeAndEnd);
#endif
}

KeptInput::~KeptInput() {
    path.clear();
    std::signal(SIGABRT, SIG_DFL);
}

void KeptInput::set(const QByteArray& bytes) {
    kept = bytes;
}

}  // namespace wirepane
