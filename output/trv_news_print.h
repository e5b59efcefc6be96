// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "output/news_item.h"
#include "output/output_dialogs.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QWidget;

// Prints news, at once or when everything that it needs has come, and then from the event loop: never within
// the back end's call. A list of news that waits stays in a queue until the back end's answers have completed
// it; a queue goes with its owner, whatever still waits. What will not come is left out, and the outcome says
// of how much. The saver and the preview differ in what they do
// with complete news only. Interface thread only.
class TRVNewsPrint {
public:
    // All must outlive this. `parentWindow` is the parent of dialogs that are given no other.
    TRVNewsPrint(BKQuoteInterface& backEnd, OutputDialogs& dialogs, QWidget& parentWindow);
    TRVNewsPrint(const TRVNewsPrint&) = delete;
    TRVNewsPrint& operator=(const TRVNewsPrint&) = delete;
    virtual ~TRVNewsPrint();

    // Titles of several lines are put out whole from here on, in files of code page 950 excepted. At first:
    // without their tail.
    void vSetWholeTitles(bool on) { wholeTitles = on; }
    // What is at hand of these entries, titles with any of `services`.
    NewsItems Gather(const std::vector<CHeadlineTable>& entries,
                     const std::vector<unsigned char>& services) const;
    // Puts settled news out. Without a target the user is asked. While other news is being put out it waits
    // for its turn.
    NewsOutcome PutOut(NewsItems items, QWidget* parent, const std::optional<OutputTarget>& target);
    // Asks the back end for what is missing, once, and puts the news out when it is settled.
    void vWait(NewsItems items, const std::vector<unsigned char>& services,
               const std::optional<OutputTarget>& target);
    bool bIsWaiting() const { return !queue.empty(); }
    // How many pieces of news are waited for: they lack their title or their story.
    int iAwaited() const;
    // How many pieces of the news that waits for others are complete.
    int iReady() const;
    // Waits no longer: news that waits is never put out; what is complete of it is put out without the rest.
    void vForgetAwaited();
    void vPutOutReady();

    // What the back end answers.
    void RespHeadLine(const std::vector<CHeadlineTable>& entries);
    void RespStory(const CHeadlineTable& entry);

    // Is told when iAwaited may have changed.
    void vSetOnAwaited(std::function<void()> told) { onAwaited = std::move(told); }
    // Is told what came of news that had waited.
    void vSetOnFinished(std::function<void(const NewsOutcome&)> told) { onFinished = std::move(told); }

protected:
    // Puts the items out. May run an event loop in which the owner goes.
    virtual NewsOutcome Output(const NewsItems& items, QWidget* parent,
                               const std::optional<OutputTarget>& target);
    // How stories that are at hand are written.
    virtual StoryForm Form() const;

    BKQuoteInterface& News() const { return backEnd; }
    OutputDialogs& Dialogs() const { return dialogs; }

private:
    struct Pending {
        NewsItems items;
        std::vector<unsigned char> services;
        std::optional<OutputTarget> target;
    };
    NewsOutcome OutputAlone(const NewsItems& items, QWidget* parent,
                            const std::optional<OutputTarget>& target);
    void vTakeAnswer();
    NewsOutcome OutputSettled(const NewsItems& items, QWidget* parent,
                              const std::optional<OutputTarget>& target);
    void vPutOutSoon();
    void vPutOutSettled();

    BKQuoteInterface& backEnd;
    OutputDialogs& dialogs;
    QWidget& parentWindow;
    std::vector<Pending> queue;
    std::function<void()> onAwaited;
    std::function<void(const NewsOutcome&)> onFinished;
    bool busy = false;
    bool soon = false;  // vPutOutSettled is on its way
    bool wholeTitles = false;
    std::shared_ptr<bool> alive = std::make_shared<bool>(true);
};
