// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "output/output_run.h"
#include "output/saved_text.h"

namespace wirepane {

// One saved file: its text is made a few lines at a time, and written when it is whole.
class SaveRun : public OutputRun {
public:
    SaveRun(OutputTarget target, BKQuoteInterface& backEnd, const OutputItems& items, Told told);

    void stop() override { stopped = true; }
    double progress() const override { return writer.progress(); }

protected:
    bool step() override;

private:
    const OutputTarget target;
    BKQuoteInterface& backEnd;
    NewsWriter writer;
    bool stopped = false;
};

}  // namespace wirepane
