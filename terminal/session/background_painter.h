// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/worker_thread.h"
#include "host/contract/page_painting.h"

#include <set>

namespace wirepane {

// Paints printed pages on a thread of its own, one print after the other, while the windows go on. Interface
// thread only. What is still to be painted is stopped when it goes, and leaves no half file.
class BackgroundPainter : public PagePainter {
public:
    ~BackgroundPainter() override;

    void paint(const std::shared_ptr<PagesToPaint>& pages,
               std::function<void(const PaintOutcome&)> told) override;

private:
    std::set<std::shared_ptr<PagesToPaint>> underWay;
    CallQueue answers;    // lives on the interface thread
    WorkerThread worker;  // goes first
};

}  // namespace wirepane
