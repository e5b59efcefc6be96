// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/rows_export.h"

#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/news_diary.h"
#include "host/controls/heap_dialog.h"
#include "host/controls/plain_caption.h"
#include "search/dialog_controls.h"
#include "search/search_keys.h"

#include <QDir>
#include <QFileDialog>
#include <QLocale>
#include <QProgressDialog>
#include <QStringList>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int progressAfterMs = 700;
const QStringList fileFilters{u"CSV (*.csv)"_s, u"JSON (*.json)"_s, u"ninjs (*.ndjson)"_s,
                              u"UTF-8 (*.txt)"_s};

QString endingOf(const QString& filter) {
    return filter.section(u"*."_s, 1).chopped(1);
}

}  // namespace

RowsExport::RowsExport(BKQuoteInterface& newsBackEnd, QWidget& viewWindow, Calls given)
    : backEnd(newsBackEnd), window(viewWindow), calls(std::move(given)) {}

RowsExport::~RowsExport() {
    delete progress;
}

bool RowsExport::isPossible() const {
    return !writing && dynamic_cast<NewsRowFiles*>(&backEnd) != nullptr;
}

void RowsExport::ask(std::vector<CHeadlineTable> entries) {
    if (entries.empty() || !isPossible())
        return;
    const HeapDialog dialog(new QFileDialog(&window, captionWithoutKey(langText(backEnd, keys::exportList))));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters(fileFilters);
    dialog->setDefaultSuffix(endingOf(fileFilters.front()));
    QObject::connect(
        dialog.get(), &QFileDialog::filterSelected, dialog.get(),
        [shown = dialog.get()](const QString& filter) { shown->setDefaultSuffix(endingOf(filter)); });
    dialog->selectFile(u"news"_s);
    if (runOver(&window, dialog.get()) != QDialog::Accepted || !dialog)
        return;
    write(std::move(entries), dialog->selectedFiles().constFirst());
}

void RowsExport::write(std::vector<CHeadlineTable> entries, const QString& file) {
    const auto form = newsRowFormOfFile(file);
    if (!form) {
        calls.saveText(entries, {file, NewsFileType::Utf8, {}, true, {}});
        return;
    }
    auto* files = dynamic_cast<NewsRowFiles*>(&backEnd);
    if (files == nullptr)
        return;
    showProgress(static_cast<int>(entries.size()));
    std::vector<HeadlineKey> keys;
    for (const CHeadlineTable& entry : entries)
        keys.push_back(keyOf(entry));
    writing = files->writeRowFile(
        std::move(entries), *form, file,
        {[this](int done) {
             if (progress)
                 progress->setValue(done);
         },
         [this, file, keys = std::move(keys)](const RowFileOutcome& outcome) {
             finish(file, outcome);
             if (outcome.end == RowFileOutcome::End::Written)
                 NewsDiary::tell(window, {.kind = NewsAct::Kind::Saved, .news = keys, .words = file});
         }});
}

void RowsExport::showProgress(int most) {
    delete progress;
    progress = new QProgressDialog(langText(backEnd, keys::exportRunning),
                                   langText(backEnd, search_keys::cancel), 0, most, &window);
    progress->setMinimumDuration(progressAfterMs);
    // The last entry is not the end: the file takes its place then.
    progress->setAutoReset(false);
    progress->setAutoClose(false);
    QObject::connect(progress, &QProgressDialog::canceled, &window, [this] {
        writing.reset();
        progress->deleteLater();
        calls.tell(langText(backEnd, keys::exportStopped));
    });
    progress->setValue(0);
}

void RowsExport::finish(const QString& file, const RowFileOutcome& outcome) {
    delete progress;
    writing.reset();
    calls.tell(sentenceOf(QDir::toNativeSeparators(file), outcome));
}

QString RowsExport::sentenceOf(const QString& file, const RowFileOutcome& outcome) const {
    switch (outcome.end) {
        case RowFileOutcome::End::Written:
            return langText(backEnd, keys::exportWritten)
                .arg(QLocale(QLocale::English).toString(outcome.rows), file);
        case RowFileOutcome::End::NotWritten:
            return langText(backEnd, keys::exportNotWritten).arg(file, outcome.reason);
        case RowFileOutcome::End::Unreadable:
            return langText(backEnd, keys::exportUnreadable).arg(file);
        case RowFileOutcome::End::Stopped:
            break;
    }
    return langText(backEnd, keys::exportStopped);
}

}  // namespace wirepane
