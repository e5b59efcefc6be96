// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/save_run.h"

#include "output/trv_save_to_file.h"

namespace wirepane {

SaveRun::SaveRun(OutputTarget fileTarget, BKQuoteInterface& newsBackEnd, const OutputItems& items,
                 Told whoIsTold)
    : OutputRun(std::move(whoIsTold)),
      target(std::move(fileTarget)),
      backEnd(newsBackEnd),
      writer(newsBackEnd, items, target.type) {}

bool SaveRun::step() {
    if (stopped) {
        NewsOutcome outcome;
        outcome.failed = true;
        end(outcome);
        return false;
    }
    if (writer.step())
        return true;
    end(saveText(target, backEnd, writer.take()));
    return false;
}

}  // namespace wirepane
