// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/output_jobs.h"

#include "headline_list/language_keys.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "news_view/story_stage.h"

#include <QPointer>
#include <QWidget>

#include <numeric>

namespace wirepane {

OutputJobs::OutputJobs(BKQuoteInterface& newsBackEnd, OutputDialogs& dialogs, Surroundings surroundings)
    : backEnd(newsBackEnd),
      around(std::move(surroundings)),
      printer(backEnd, dialogs, around.window),
      saver(backEnd, dialogs, around.window),
      previewer(backEnd, dialogs, around.window) {
    for (TRVNewsPrint* job : jobs()) {
        job->setOnAwaited(around.awaitedChanged);
        job->setOnHandedOver([this, button = job == &saver ? ids::saveAsButton : ids::printButton] {
            setEnabled(button, true);
        });
        job->setOnFinished([this](const NewsOutcome& outcome) { tell(outcome); });
    }
}

NewsOutcome OutputJobs::print(const std::vector<CHeadlineTable>& entries,
                              const std::optional<OutputTarget>& target) {
    return putOut(printer, ids::printButton, entries, target);
}

NewsOutcome OutputJobs::save(const std::vector<CHeadlineTable>& entries,
                             const std::optional<OutputTarget>& target) {
    return putOut(saver, ids::saveAsButton, entries, target);
}

NewsOutcome OutputJobs::preview(const std::vector<CHeadlineTable>& entries) {
    return putOut(previewer, ids::printButton, entries, std::nullopt);
}

NewsOutcome OutputJobs::putOut(TRVNewsPrint& job, int button, const std::vector<CHeadlineTable>& entries,
                               const std::optional<OutputTarget>& target) {
    if (entries.empty())
        return {};
    const std::vector<unsigned char> services = around.titles();
    job.setWholeTitles(around.wholeTitles());
    OutputItems items = job.gather(entries, services);
    if (!isSettled(items)) {
        job.wait(std::move(items), services, target);
        NewsOutcome outcome;
        outcome.waiting = true;
        return outcome;
    }
    return target ? job.putOut(std::move(items), nullptr, target) : ask(job, button, std::move(items));
}

NewsOutcome OutputJobs::ask(TRVNewsPrint& job, int button, OutputItems items) {
    const QPointer<QWidget> window = &around.window;
    QWidget* dialog = around.stage.dialogOnShow();
    around.stage.leaveTop();
    setEnabled(button, false);
    NewsOutcome outcome = job.putOut(std::move(items), dialog, std::nullopt);
    // The jobs have gone with their window: nobody is left to tell it.
    if (window == nullptr) {
        outcome.message.clear();
        return outcome;
    }
    setEnabled(button, !outcome.underWay);
    around.stage.applyWindowStyle();
    return outcome;
}

void OutputJobs::setEnabled(int button, bool on) {
    if (QWidget* control = dlgItem(&around.window, button))
        control->setEnabled(on);
}

void OutputJobs::tell(const NewsOutcome& outcome) {
    if (!outcome.message.isEmpty())
        around.tell(outcome.message);
}

void OutputJobs::takeHeadlines(const std::vector<CHeadlineTable>& entries) {
    for (TRVNewsPrint* job : jobs())
        job->RespHeadLine(entries);
}

void OutputJobs::takeStory(const CHeadlineTable& entry) {
    for (TRVNewsPrint* job : jobs())
        job->RespStory(entry);
}

bool OutputJobs::isWaiting() const {
    return awaited() != std::array<int, 3>{} || printer.progress() || saver.progress() ||
           previewer.progress();
}

std::array<int, 3> OutputJobs::awaited() const {
    return {printer.awaitedCount(), saver.awaitedCount(), previewer.awaitedCount()};
}

QString OutputJobs::awaitedText() const {
    constexpr std::array texts{keys::waitingToPrint, keys::waitingToSave, keys::waitingToPreview};
    const std::array<int, 3> counts = awaited();
    QStringList told;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (counts[i] > 0)
            told.append(langText(backEnd, texts[i]).arg(counts[i]));
    }
    for (const auto& [progress, text] :
         {std::pair(printer.progress(), keys::printing), std::pair(previewer.progress(), keys::printing),
          std::pair(saver.progress(), keys::saving)}) {
        if (progress)
            told.append(langText(backEnd, text).arg(static_cast<int>(100 * *progress)));
    }
    return told.join(QStringLiteral(" · "));
}

std::vector<MenuEntry> OutputJobs::waitingCommands() const {
    std::vector<MenuEntry> entries;
    if (!isWaiting())
        return entries;
    if (const int complete = ready(); complete > 0)
        entries.push_back({ids::putOutReady, langText(backEnd, keys::putOutReady).arg(complete), {}});
    entries.push_back({ids::stopWaiting, langText(backEnd, keys::stopWaiting), {}});
    return entries;
}

int OutputJobs::ready() const {
    return printer.readyCount() + saver.readyCount() + previewer.readyCount();
}

void OutputJobs::stopWaiting() {
    for (TRVNewsPrint* job : jobs()) {
        job->forgetAwaited();
        job->stopRuns();
    }
}

void OutputJobs::putOutReady() {
    for (TRVNewsPrint* job : jobs())
        job->putOutReady();
}

}  // namespace wirepane
