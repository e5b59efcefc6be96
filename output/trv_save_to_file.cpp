// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/trv_save_to_file.h"

#include "headline_list/language_keys.h"
#include "host/contract/whole_file.h"
#include "host/controls/heap_dialog.h"
#include "output/print_preview.h"
#include "output/printable_story.h"
#include "output/save_run.h"

#include <QDateTime>
#include <QDir>

using namespace wirepane;

namespace {

constexpr qsizetype longSave = 500'000;  // characters: some 10 ms

// The day of the news, and its title.
QString proposedName(const OutputItem& item) {
    return QDateTime::fromSecsSinceEpoch(item.entry.time).toString(QStringLiteral("yyyy-MM-dd ")) +
           item.title;
}

}  // namespace

StoryForm TRVSaveToFile::storyForm() const {
    return &savedStory;
}

NewsOutcome TRVSaveToFile::output(const OutputItems& items, QWidget* parent,
                                  const std::optional<OutputTarget>& target) {
    BKQuoteInterface& news = newsBackEnd();
    const std::shared_ptr<const bool> here = aliveMark();
    if (!target && !items.empty())
        outputDialogs().proposeName(proposedName(items.front()));
    const std::optional<OutputTarget> file = target ? target : outputDialogs().askFile(news, parent);
    if (!file || !*here)
        return {};
    qsizetype characters = 0;
    for (const OutputItem& item : items)
        characters += item.story.size();
    const NewsAct act{.kind = NewsAct::Kind::Saved, .news = keysOf(items), .words = file->file};
    if (characters < longSave || (target && !target->told))
        return noted(act, saveItemsTo(*file, news, items));
    return start(target, act, [&](OutputRun::Told told) {
        return std::make_unique<SaveRun>(*file, news, items, std::move(told));
    });
}

namespace wirepane {

NewsOutcome saveText(const OutputTarget& target, BKQuoteInterface& backEnd,
                     const std::optional<SavedText>& text) {
    const QString name = QDir::toNativeSeparators(target.file);
    const auto failure = [&](const QString& why) {
        NewsOutcome outcome;
        outcome.failed = true;
        outcome.message = langText(backEnd, keys::saveFailed).arg(name, why);
        return outcome;
    };
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

NewsOutcome saveItemsTo(const OutputTarget& target, BKQuoteInterface& backEnd, const OutputItems& items) {
    return saveText(target, backEnd, writeNews(backEnd, items, target.type));
}

NewsOutcome TRVNewsPreview::output(const OutputItems& items, QWidget* parent,
                                   const std::optional<OutputTarget>&) {
    const std::shared_ptr<const bool> here = aliveMark();
    HeapDialog preview(new PrintPreview(newsBackEnd(), items, parent));
    const bool isToPrint = preview->exec() == QDialog::Accepted;
    preview.destroy();
    if (isToPrint && *here)
        return TRVNewsPrint::output(items, parent, std::nullopt);
    NewsOutcome outcome;
    outcome.count = static_cast<int>(items.size());
    return outcome;
}

}  // namespace wirepane
