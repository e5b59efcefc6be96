// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "output/trv_news_print.h"

// Saves news to a text file, at once or when everything that it needs has come.
class TRVSaveToFile : public TRVNewsPrint {
public:
    using TRVNewsPrint::TRVNewsPrint;

protected:
    wirepane::NewsOutcome output(const wirepane::OutputItems& items, QWidget* parent,
                                 const std::optional<wirepane::OutputTarget>& target) override;
    wirepane::StoryForm storyForm() const override;
};

namespace wirepane {

// Shows the pages that would be printed.
class TRVNewsPreview : public TRVNewsPrint {
public:
    using TRVNewsPrint::TRVNewsPrint;

protected:
    NewsOutcome output(const OutputItems& items, QWidget* parent,
                       const std::optional<OutputTarget>& target) override;
};

// Writes the items to the target; `message` tells of characters that the file type could not hold.
NewsOutcome saveItemsTo(const OutputTarget& target, BKQuoteInterface& backEnd, const OutputItems& items);

}  // namespace wirepane
