// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/trv_news_print.h"

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
    return GatherNews(backEnd, entries, services, Form());
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
        vPutOutComplete();
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
                                 [](const NewsItem& item) { return !item.bIsComplete(); });
    return static_cast<int>(awaited);
}

void TRVNewsPrint::vForgetAwaited() {
    std::erase_if(queue, [](const Pending& pending) { return !bIsComplete(pending.items); });
    if (onAwaited)
        onAwaited();
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
    const bool complete = std::any_of(queue.begin(), queue.end(),
                                      [](const Pending& pending) { return bIsComplete(pending.items); });
    if (!complete || std::exchange(soon, true))
        return;
    QTimer::singleShot(0, &parentWindow, [this, here = alive] {
        if (!*here)
            return;
        soon = false;
        vPutOutComplete();
    });
}

// From the last list to the first. Lists may come and be completed while one is put out.
void TRVNewsPrint::vPutOutComplete() {
    const std::shared_ptr<bool> here = alive;
    while (*here && !busy) {
        const auto complete = std::find_if(queue.rbegin(), queue.rend(),
                                           [](const Pending& pending) { return bIsComplete(pending.items); });
        if (complete == queue.rend())
            return;
        const Pending pending = std::move(*complete);
        queue.erase(std::next(complete).base());
        const NewsOutcome outcome = OutputAlone(pending.items, nullptr, pending.target);
        if (*here && onFinished)
            onFinished(outcome);
    }
}

NewsOutcome TRVNewsPrint::OutputAlone(const NewsItems& items, QWidget* parent,
                                      const std::optional<OutputTarget>& target) {
    const std::shared_ptr<bool> here = alive;
    busy = true;
    const NewsOutcome outcome = Output(items, parent != nullptr ? parent : &parentWindow, target);
    if (*here)
        busy = false;
    return outcome;
}

NewsOutcome TRVNewsPrint::Output(const NewsItems& items, QWidget* parent,
                                 const std::optional<OutputTarget>& target) {
    BKQuoteInterface& news = backEnd;
    if (target)
        return PrintNewsToPdf(*target, news, items);
    QPrinter printer(QPrinter::HighResolution);
    const std::shared_ptr<bool> here = alive;
    if (!dialogs.bAskPrinter(printer, parent) || !*here)
        return {};
    return PrintNews(printer, news, items);
}
