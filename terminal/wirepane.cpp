// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/program.h"

using namespace wirepane;

int main(int argc, char** argv) {
    return wirepane::runProgram(argc, argv);
}
