// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <benchmark/benchmark.h>

namespace wirepane {

// What the main function of every benchmark does. Windows are drawn off screen unless the environment says
// otherwise.
template <class Application>
int runBenchmarks(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

}  // namespace wirepane
