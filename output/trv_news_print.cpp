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

TRVNewsPrint::TRVNewsPrint(BKQuoteInterface& newsBackEnd, OutputDialogs& outputDialogs, QWidget& window)
    : backEnd(newsBackEnd), dialogs(outputDialogs), parentWindow(window) {}

TRVNewsPrint::~TRVNewsPrint() {
    *alive = false;
}

StoryForm TRVNewsPrint::Form() const {
    return &PrintedStory;
}

NewsItems TRVNewsPrint::Gather(const std::vector<CHeadlineTable>& entries,
                               const std::vector<unsigned char>& services) const {
    NewsItems items = GatherNews(backEnd, entries, services, Form());
    for (NewsItem& item : items)
        item.wholeTitle = wholeTitles;
    return items;
}

NewsOutcome TRVNewsPrint::PutOut(NewsItems items, QWidget* parent,
                                 const std::optional<OutputTarget>& target) {
    if (busy) {
        queue.push_back({std::move(items), {}, target});
        NewsOutcome later;
        later.waiting = true;
        return later;
    }
    const std::shared_ptr<bool> here = alive;
    NewsOutcome outcome = OutputAlone(items, parent, target);
    if (*here)
        vPutOutSettled();
    return outcome;
}

void TRVNewsPrint::vWait(NewsItems items, const std::vector<unsigned char>& services,
                         const std::optional<OutputTarget>& target) {
    RequestMissing(backEnd, items);
    queue.push_back({std::move(items), services, target});
    vTakeAnswer();
}

int TRVNewsPrint::iAwaited() const {
    std::ptrdiff_t awaited = 0;
    for (const Pending& pending : queue)
        awaited += std::count_if(pending.items.begin(), pending.items.end(),
                                 [](const NewsItem& item) { return !item.bIsSettled(); });
    return static_cast<int>(awaited);
}

int TRVNewsPrint::iReady() const {
    std::size_t ready = 0;
    for (const Pending& pending : queue) {
        if (!bIsSettled(pending.items))
            ready += Complete(pending.items).size();
    }
    return static_cast<int>(ready);
}

void TRVNewsPrint::vForgetAwaited() {
    std::erase_if(queue, [](const Pending& pending) { return !bIsSettled(pending.items); });
    if (onAwaited)
        onAwaited();
}

void TRVNewsPrint::vPutOutReady() {
    for (Pending& pending : queue) {
        if (Complete(pending.items).empty())
            continue;
        for (NewsItem& item : pending.items)
            item.leftOut = !item.bIsComplete();
    }
    vForgetAwaited();
    vPutOutSoon();
}

void TRVNewsPrint::RespHeadLine(const std::vector<CHeadlineTable>& entries) {
    for (Pending& pending : queue)
        TakeTitles(backEnd, pending.items, entries, pending.services);
    vTakeAnswer();
}

void TRVNewsPrint::RespStory(const CHeadlineTable& entry) {
    for (Pending& pending : queue)
        TakeStory(backEnd, pending.items, entry);
    vTakeAnswer();
}

void TRVNewsPrint::vTakeAnswer() {
    if (onAwaited && !queue.empty())
        onAwaited();
    vPutOutSoon();
}

// The user may be asked, and the back end's delivery shall not wait for that.
void TRVNewsPrint::vPutOutSoon() {
    const bool settled = std::any_of(queue.begin(), queue.end(),
                                     [](const Pending& pending) { return bIsSettled(pending.items); });
    if (!settled || std::exchange(soon, true))
        return;
    QTimer::singleShot(0, &parentWindow, [this, here = alive] {
        if (!*here)
            return;
        soon = false;
        vPutOutSettled();
    });
}

// From the last list to the first. Lists may come and be completed while one is put out.
void TRVNewsPrint::vPutOutSettled() {
    const std::shared_ptr<bool> here = alive;
    while (*here && !busy) {
        const auto settled = std::find_if(queue.rbegin(), queue.rend(),
                                          [](const Pending& pending) { return bIsSettled(pending.items); });
        if (settled == queue.rend())
            return;
        const Pending pending = std::move(*settled);
        queue.erase(std::next(settled).base());
        const NewsOutcome outcome = OutputAlone(pending.items, nullptr, pending.target);
        if (*here && onFinished)
            onFinished(outcome);
    }
}

NewsOutcome TRVNewsPrint::OutputAlone(const NewsItems& items, QWidget* parent,
                                      const std::optional<OutputTarget>& target) {
    const std::shared_ptr<bool> here = alive;
    busy = true;
    const NewsOutcome outcome = OutputSettled(items, parent != nullptr ? parent : &parentWindow, target);
    if (*here)
        busy = false;
    return outcome;
}

NewsOutcome TRVNewsPrint::OutputSettled(const NewsItems& items, QWidget* parent,
                                        const std::optional<OutputTarget>& target) {
    BKQuoteInterface& news = backEnd;
    const NewsItems complete = Complete(items);
    if (complete.empty() && !items.empty())
        return NothingToPutOut(news);
    NewsOutcome outcome = Output(complete, parent, target);
    TellLeftOut(news, items.size() - complete.size(), outcome);
    return outcome;
}

NewsOutcome TRVNewsPrint::Output(const NewsItems& items, QWidget* parent,
                                 const std::optional<OutputTarget>& target) {
    BKQuoteInterface& news = backEnd;
    if (target)
        return PrintItemsToPdf(*target, news, items);
    QPrinter printer(QPrinter::HighResolution);
    const std::shared_ptr<bool> here = alive;
    if (!dialogs.bAskPrinter(printer, parent) || !*here)
        return {};
    return PrintItems(printer, news, items);
}
