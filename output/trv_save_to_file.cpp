// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/trv_save_to_file.h"

#include "headline_list/language_keys.h"
#include "output/page_printing.h"
#include "output/printable_story.h"
#include "output/saved_text.h"
#include "output/whole_file.h"

#include <QDir>

StoryForm TRVSaveToFile::Form() const {
    return &SavedStory;
}

NewsOutcome TRVSaveToFile::Output(const NewsItems& items, QWidget* parent,
                                  const std::optional<OutputTarget>& target) {
    BKQuoteInterface& news = News();
    const std::optional<OutputTarget> file = target ? target : Dialogs().AskFile(news, parent);
    return file ? SaveItemsTo(*file, news, items) : NewsOutcome();
}

NewsOutcome SaveItemsTo(const OutputTarget& target, BKQuoteInterface& backEnd, const NewsItems& items) {
    const QString name = QDir::toNativeSeparators(target.file);
    const auto failure = [&](const QString& why) {
        NewsOutcome outcome;
        outcome.failed = true;
        outcome.message = LangText(backEnd, keys::saveFailed).arg(name, why);
        return outcome;
    };
    const auto text = WriteNews(backEnd, items, target.type);
    if (!text)
        return failure(LangText(backEnd, keys::noCodePage));
    if (const auto why = WriteWholeFile(target.file, text->bytes, QIODevice::Text))
        return failure(*why);
    NewsOutcome outcome;
    outcome.count = static_cast<int>(text->bytes.size());
    if (text->replaced > 0)
        outcome.message =
            LangText(backEnd, keys::charactersReplaced).arg(QString::number(text->replaced), name);
    return outcome;
}

NewsOutcome TRVNewsPreview::Output(const NewsItems& items, QWidget* parent,
                                   const std::optional<OutputTarget>&) {
    NewsOutcome outcome;
    outcome.count = static_cast<int>(items.size());
    PreviewItems(News(), items, parent);
    return outcome;
}
