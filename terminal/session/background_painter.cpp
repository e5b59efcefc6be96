// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/background_painter.h"

namespace wirepane {

BackgroundPainter::~BackgroundPainter() {
    for (const auto& pages : underWay)
        pages->stopped = true;
}

void BackgroundPainter::paint(const std::shared_ptr<PagesToPaint>& pages,
                              std::function<void(const PaintOutcome&)> told) {
    underWay.insert(pages);
    worker.post([this, pages, told = std::move(told)] {
        answers.post([this, pages, told, painted = paintPages(*pages)] {
            underWay.erase(pages);
            told(painted);
        });
    });
}

}  // namespace wirepane
