// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/trv_news_print.h"

#include "output/left_out.h"
#include "output/page_printing.h"
#include "output/print_run.h"
#include "output/printable_story.h"

#include <QPrinter>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <utility>

using namespace wirepane;

TRVNewsPrint::TRVNewsPrint(BKQuoteInterface& newsBackEnd, OutputDialogs& outputDialogs, QWidget& window)
    : backEnd(newsBackEnd), dialogs(outputDialogs), parentWindow(window) {}

TRVNewsPrint::~TRVNewsPrint() {
    *alive = false;
    NewsOutcome stopped;
    stopped.failed = true;
    for (const Run& run : runs) {
        if (run.target && run.target->told)
            run.target->told(stopped);
    }
}

StoryForm TRVNewsPrint::storyForm() const {
    return &printedStory;
}

OutputItems TRVNewsPrint::gather(const std::vector<CHeadlineTable>& entries,
                                 const std::vector<unsigned char>& services) const {
    OutputItems items = gatherNews(backEnd, entries, services, storyForm());
    for (OutputItem& item : items)
        item.wholeTitle = wholeTitles;
    return items;
}

NewsOutcome TRVNewsPrint::putOut(OutputItems items, QWidget* parent,
                                 const std::optional<OutputTarget>& target) {
    if (busy) {
        queue.push_back({std::move(items), {}, target});
        NewsOutcome later;
        later.waiting = true;
        return later;
    }
    const std::shared_ptr<bool> here = alive;
    NewsOutcome outcome = outputAlone(items, parent, target);
    if (*here)
        putOutSettled();
    return outcome;
}

void TRVNewsPrint::wait(OutputItems items, const std::vector<unsigned char>& services,
                        const std::optional<OutputTarget>& target) {
    requestMissing(backEnd, items);
    queue.push_back({std::move(items), services, target});
    takeAnswer();
}

int TRVNewsPrint::awaitedCount() const {
    std::ptrdiff_t awaited = 0;
    for (const Pending& pending : queue)
        awaited += std::count_if(pending.items.begin(), pending.items.end(),
                                 [](const OutputItem& item) { return !item.isSettled(); });
    return static_cast<int>(awaited);
}

int TRVNewsPrint::readyCount() const {
    std::size_t ready = 0;
    for (const Pending& pending : queue) {
        if (!isSettled(pending.items))
            ready += completeItems(pending.items).size();
    }
    return static_cast<int>(ready);
}

void TRVNewsPrint::forgetAwaited() {
    std::erase_if(queue, [](const Pending& pending) { return !isSettled(pending.items); });
    if (onAwaited)
        onAwaited();
}

void TRVNewsPrint::putOutReady() {
    for (Pending& pending : queue) {
        if (completeItems(pending.items).empty())
            continue;
        for (OutputItem& item : pending.items)
            item.leftOut = !item.isComplete();
    }
    forgetAwaited();
    putOutSoon();
}

void TRVNewsPrint::RespHeadLine(const std::vector<CHeadlineTable>& entries) {
    for (Pending& pending : queue)
        takeTitles(backEnd, pending.items, entries, pending.services);
    takeAnswer();
}

void TRVNewsPrint::RespStory(const CHeadlineTable& entry) {
    for (Pending& pending : queue)
        takeStory(backEnd, pending.items, entry);
    takeAnswer();
}

void TRVNewsPrint::takeAnswer() {
    if (onAwaited && !queue.empty())
        onAwaited();
    putOutSoon();
}

// The user may be asked, and the back end's delivery shall not wait for that.
void TRVNewsPrint::putOutSoon() {
    const bool settled = std::any_of(queue.begin(), queue.end(),
                                     [](const Pending& pending) { return isSettled(pending.items); });
    if (!settled || std::exchange(soon, true))
        return;
    QTimer::singleShot(0, &parentWindow, [this, here = alive] {
        if (!*here)
            return;
        soon = false;
        putOutSettled();
    });
}

// From the last list to the first. Lists may come and be completed while one is put out.
void TRVNewsPrint::putOutSettled() {
    const std::shared_ptr<bool> here = alive;
    while (*here && !busy) {
        const auto settled = std::find_if(queue.rbegin(), queue.rend(),
                                          [](const Pending& pending) { return isSettled(pending.items); });
        if (settled == queue.rend())
            return;
        const Pending pending = std::move(*settled);
        queue.erase(std::next(settled).base());
        const NewsOutcome outcome = outputAlone(pending.items, nullptr, pending.target);
        if (*here && !outcome.underWay)
            tellFinished(pending.target, outcome);
    }
}

NewsOutcome TRVNewsPrint::outputAlone(const OutputItems& items, QWidget* parent,
                                      const std::optional<OutputTarget>& target) {
    const std::shared_ptr<bool> here = alive;
    busy = true;
    const NewsOutcome outcome = outputSettled(items, parent != nullptr ? parent : &parentWindow, target);
    if (*here)
        busy = outcome.underWay;
    return outcome;
}

NewsOutcome TRVNewsPrint::outputSettled(const OutputItems& items, QWidget* parent,
                                        const std::optional<OutputTarget>& target) {
    BKQuoteInterface& news = backEnd;
    const OutputItems complete = completeItems(items);
    if (complete.empty() && !items.empty())
        return nothingToPutOut(news);
    const std::size_t leftOut = items.size() - complete.size();
    NewsOutcome outcome = output(complete, parent, target);
    if (outcome.underWay)
        runs.back().leftOut = leftOut;
    else
        tellLeftOut(news, leftOut, outcome);
    return outcome;
}

NewsOutcome TRVNewsPrint::output(const OutputItems& items, QWidget* parent,
                                 const std::optional<OutputTarget>& target) {
    BKQuoteInterface& news = backEnd;
    std::shared_ptr<PagesToPaint> pages;
    if (target) {
        const auto pdf = pagesForPdf(*target, news);
        if (const auto* cannot = std::get_if<NewsOutcome>(&pdf))
            return *cannot;
        pages = std::get<0>(pdf);
    } else {
        const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
        const std::shared_ptr<bool> here = alive;
        if (!dialogs.askPrinter(*printer, parent) || !*here)
            return {};
        pages = pagesFor(printer, news);
    }
    const bool isTold = !target || target->told;
    const NewsAct act{.kind = NewsAct::Kind::Printed, .news = keysOf(items), .words = pages->file};
    if (!isTold || PagePainter::installed() == nullptr)
        return noted(act, printInOneGo(pages, news, items));
    return start(target, act, [&](OutputRun::Told told) {
        return std::make_unique<PrintRun>(pages, std::make_unique<PageMaking>(*pages, news, items), news,
                                          std::move(told));
    });
}

// --- What goes on beside everything else ---

NewsOutcome TRVNewsPrint::noted(const NewsAct& act, const NewsOutcome& outcome) const {
    if (!outcome.failed && outcome.count > 0)
        NewsDiary::tell(parentWindow, act);
    return outcome;
}

NewsOutcome TRVNewsPrint::start(const std::optional<OutputTarget>& target, NewsAct act,
                                const MakeRun& makeRun) {
    const int number = ++runsBegun;
    OutputRun::Told told{[this] { handedOver(); },
                         [this] {
                             if (onAwaited)
                                 onAwaited();
                         },
                         [this, number](const NewsOutcome& outcome) { endRun(number, outcome); }};
    runs.push_back({number, makeRun(std::move(told)), target, std::move(act)});
    NewsOutcome outcome;
    outcome.underWay = true;
    return outcome;
}

void TRVNewsPrint::handedOver() {
    busy = false;
    if (onHandedOver)
        onHandedOver();
    putOutSoon();
}

void TRVNewsPrint::endRun(int number, NewsOutcome outcome) {
    const auto ended =
        std::find_if(runs.begin(), runs.end(), [&](const Run& run) { return run.number == number; });
    Run run = std::move(*ended);
    runs.erase(ended);
    run.run.release()->deleteLater();
    noted(run.act, outcome);
    tellLeftOut(backEnd, run.leftOut, outcome);
    if (onAwaited)
        onAwaited();
    tellFinished(run.target, outcome);
}

void TRVNewsPrint::tellFinished(const std::optional<OutputTarget>& target, const NewsOutcome& outcome) {
    if (target && target->told)
        target->told(outcome);
    if (onFinished)
        onFinished(outcome);
}

void TRVNewsPrint::stopRuns() {
    for (const Run& run : runs)
        run.run->stop();
}

std::optional<double> TRVNewsPrint::progress() const {
    for (const Run& run : runs) {
        if (run.run->isLong())
            return run.run->progress();
    }
    return std::nullopt;
}
