// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/trv_save_to_file.h"

#include "headline_list/language_keys.h"
#include "host/contract/whole_file.h"
#include "output/page_printing.h"
#include "output/printable_story.h"
#include "output/saved_text.h"

#include <QDir>

using namespace wirepane;

StoryForm TRVSaveToFile::storyForm() const {
    return &savedStory;
}

NewsOutcome TRVSaveToFile::output(const OutputItems& items, QWidget* parent,
                                  const std::optional<OutputTarget>& target) {
    BKQuoteInterface& news = newsBackEnd();
    const std::optional<OutputTarget> file = target ? target : outputDialogs().askFile(news, parent);
    return file ? saveItemsTo(*file, news, items) : NewsOutcome();
}

namespace wirepane {

NewsOutcome saveItemsTo(const OutputTarget& target, BKQuoteInterface& backEnd, const OutputItems& items) {
    const QString name = QDir::toNativeSeparators(target.file);
    const auto failure = [&](const QString& why) {
        NewsOutcome outcome;
        outcome.failed = true;
        outcome.message = langText(backEnd, keys::saveFailed).arg(name, why);
        return outcome;
    };
    const auto text = writeNews(backEnd, items, target.type);
    if (!text)
        return failure(langText(backEnd, keys::noCodePage));
    if (const auto why = writeWholeFile(target.file, text->bytes, QIODevice::Text))
        return failure(*why);
    NewsOutcome outcome;
    outcome.count = static_cast<int>(text->bytes.size());
    if (text->replaced > 0)
        outcome.message =
            langText(backEnd, keys::charactersReplaced).arg(QString::number(text->replaced), name);
    return outcome;
}

NewsOutcome TRVNewsPreview::output(const OutputItems& items, QWidget* parent,
                                   const std::optional<OutputTarget>&) {
    NewsOutcome outcome;
    outcome.count = static_cast<int>(items.size());
    previewItems(newsBackEnd(), items, parent);
    return outcome;
}

}  // namespace wirepane
