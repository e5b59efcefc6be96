// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/page_painting.h"

#include <vector>

namespace wirepane {

// A host's painter that paints when it is told to, so that a test can look at what is under way.
class HeldPainter : public PagePainter {
public:
    struct Job {
        std::shared_ptr<PagesToPaint> pages;
        std::function<void(const PaintOutcome&)> told;
    };

    HeldPainter() { install(this); }
    void paint(const std::shared_ptr<PagesToPaint>& pages,
               std::function<void(const PaintOutcome&)> told) override {
        jobs.push_back({pages, std::move(told)});
    }
    void paintNext() {
        const Job job = std::move(jobs.front());
        jobs.erase(jobs.begin());
        job.told(paintPages(*job.pages));
    }

    std::vector<Job> jobs;
};

}  // namespace wirepane
