// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/trv_news_print.h"

#include "output/left_out.h"
#include "output/page_printing.h"
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
        if (*here && onFinished)
            onFinished(outcome);
    }
}

NewsOutcome TRVNewsPrint::outputAlone(const OutputItems& items, QWidget* parent,
                                      const std::optional<OutputTarget>& target) {
    const std::shared_ptr<bool> here = alive;
    busy = true;
    const NewsOutcome outcome = outputSettled(items, parent != nullptr ? parent : &parentWindow, target);
    if (*here)
        busy = false;
    return outcome;
}

NewsOutcome TRVNewsPrint::outputSettled(const OutputItems& items, QWidget* parent,
                                        const std::optional<OutputTarget>& target) {
    BKQuoteInterface& news = backEnd;
    const OutputItems complete = completeItems(items);
    if (complete.empty() && !items.empty())
        return nothingToPutOut(news);
    NewsOutcome outcome = output(complete, parent, target);
    tellLeftOut(news, items.size() - complete.size(), outcome);
    return outcome;
}

NewsOutcome TRVNewsPrint::output(const OutputItems& items, QWidget* parent,
                                 const std::optional<OutputTarget>& target) {
    BKQuoteInterface& news = backEnd;
    if (target)
        return printItemsToPdf(*target, news, items);
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    const std::shared_ptr<bool> here = alive;
    if (!dialogs.askPrinter(*printer, parent) || !*here)
        return {};
    return printItems(printer, news, items);
}
