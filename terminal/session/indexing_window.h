// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

#include <cstdint>
#include <memory>

namespace wirepane {

// A window that tells how far the search index of a store is made anew before the terminal opens. It comes up
// when that takes longer than half a second, and goes with this object. Events are handled meanwhile, so that
// nothing else may be at work yet.
class IndexingWindow {
public:
    IndexingWindow() { started.start(); }

    void tell(std::int64_t done, std::int64_t total);

private:
    QElapsedTimer started;
    std::unique_ptr<QProgressDialog> window;
};

}  // namespace wirepane
