// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "output/saved_text.h"
#include "output/trv_news_print.h"

// Saves news to a text file, at once or when everything that it needs has come. More than a window would wait
// for is made beside everything else.
class TRVSaveToFile : public TRVNewsPrint {
public:
    using TRVNewsPrint::TRVNewsPrint;

protected:
    wirepane::NewsOutcome output(const wirepane::OutputItems& items, QWidget* parent,
                                 const std::optional<wirepane::OutputTarget>& target) override;
    wirepane::StoryForm storyForm() const override;
};

namespace wirepane {

// Shows the pages that would be printed, and prints them where the user wants that then.
class TRVNewsPreview : public TRVNewsPrint {
public:
    using TRVNewsPrint::TRVNewsPrint;

protected:
    NewsOutcome output(const OutputItems& items, QWidget* parent,
                       const std::optional<OutputTarget>& target) override;
};

// Writes a text to the target, or tells why not; nothing: this system cannot write the file type.
NewsOutcome saveText(const OutputTarget& target, BKQuoteInterface& backEnd,
                     const std::optional<SavedText>& text);
// Writes the items to the target; `message` tells of characters that the file type could not hold.
NewsOutcome saveItemsTo(const OutputTarget& target, BKQuoteInterface& backEnd, const OutputItems& items);

}  // namespace wirepane
