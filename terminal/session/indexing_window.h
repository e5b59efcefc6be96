// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/translations/terminal_text.h"

#include <QElapsedTimer>
#include <QProgressDialog>

#include <cstdint>
#include <memory>

namespace wirepane {

// A window that tells how far something is that is done to a store before the terminal opens: its search
// index is made anew, or it is filled. It comes up when that takes longer than half a second, and goes with
// this object. Events are handled meanwhile, so that nothing else may be at work yet.
class IndexingWindow {
public:
    // Says what is being done.
    explicit IndexingWindow(TextId what = TextId::IndexingStore) : told(what) { started.start(); }

    void tell(std::int64_t done, std::int64_t total);

private:
    TextId told;
    QElapsedTimer started;
    std::unique_ptr<QProgressDialog> window;
};

}  // namespace wirepane
