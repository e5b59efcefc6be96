// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/news_diary.h"
#include "output/output_dialogs.h"
#include "output/output_item.h"
#include "output/output_run.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QWidget;

namespace wirepane {}  // namespace wirepane

// Prints news, at once or when everything that it needs has come, and then from the event loop: never within
// the back end's call. A list of news that waits stays in a queue until the back end's answers have completed
// it; a queue goes with its owner, whatever still waits. What will not come is left out, and the outcome says
// of how much. The saver and the preview differ in what they do
// with complete news only. Where the host has a PagePainter, pages are made and painted beside everything
// else; what is to be printed meanwhile waits until they have been handed over. Interface thread only.
class TRVNewsPrint {
public:
    // All must outlive this. `parentWindow` is the parent of dialogs that are given no other.
    TRVNewsPrint(BKQuoteInterface& backEnd, wirepane::OutputDialogs& dialogs, QWidget& parentWindow);
    TRVNewsPrint(const TRVNewsPrint&) = delete;
    TRVNewsPrint& operator=(const TRVNewsPrint&) = delete;
    virtual ~TRVNewsPrint();

    // Titles of several lines are put out whole from here on, in files of code page 950 excepted. At first:
    // without their tail.
    void setWholeTitles(bool on) { wholeTitles = on; }
    // What is at hand of these entries, titles with any of `services`.
    wirepane::OutputItems gather(const std::vector<CHeadlineTable>& entries,
                                 const std::vector<unsigned char>& services) const;
    // Puts settled news out. Without a target the user is asked. While other news is being put out it waits
    // for its turn.
    wirepane::NewsOutcome putOut(wirepane::OutputItems items, QWidget* parent,
                                 const std::optional<wirepane::OutputTarget>& target);
    // Asks the back end for what is missing, once, and puts the news out when it is settled.
    void wait(wirepane::OutputItems items, const std::vector<unsigned char>& services,
              const std::optional<wirepane::OutputTarget>& target);
    bool isWaiting() const { return !queue.empty(); }
    // How many pieces of news are waited for: they lack their title or their story.
    int awaitedCount() const;
    // How many pieces of the news that waits for others are complete.
    int readyCount() const;
    // Waits no longer: news that waits is never put out; what is complete of it is put out without the rest.
    void forgetAwaited();
    void putOutReady();

    // What is under way is printed no further, and leaves no half file.
    void stopRuns();
    // How much of it is done, from 0 to 1, when it takes more than half a second.
    std::optional<double> progress() const;

    // What the back end answers.
    void RespHeadLine(const std::vector<CHeadlineTable>& entries);
    void RespStory(const CHeadlineTable& entry);

    // Is told when awaitedCount or progress may have changed.
    void setOnAwaited(std::function<void()> told) { onAwaited = std::move(told); }
    // Is told when the pages of what is under way have been handed over: the next can be printed.
    void setOnHandedOver(std::function<void()> told) { onHandedOver = std::move(told); }
    // Is told what came of news that had waited or was under way.
    void setOnFinished(std::function<void(const wirepane::NewsOutcome&)> told) {
        onFinished = std::move(told);
    }

protected:
    // Puts the items out. May run an event loop in which the owner goes.
    virtual wirepane::NewsOutcome output(const wirepane::OutputItems& items, QWidget* parent,
                                         const std::optional<wirepane::OutputTarget>& target);
    // Tells the host's diary, when it has been done, what has been put out where.
    wirepane::NewsOutcome noted(const wirepane::NewsAct& act, const wirepane::NewsOutcome& outcome) const;
    using MakeRun = std::function<std::unique_ptr<wirepane::OutputRun>(wirepane::OutputRun::Told)>;
    // Begins a run, whose outcome is told later: also to the target, where there is one that is.
    wirepane::NewsOutcome start(const std::optional<wirepane::OutputTarget>& target, wirepane::NewsAct act,
                                const MakeRun& makeRun);
    // False when this has gone.
    std::shared_ptr<const bool> aliveMark() const { return alive; }
    // How stories that are at hand are written.
    virtual wirepane::StoryForm storyForm() const;

    BKQuoteInterface& newsBackEnd() const { return backEnd; }
    wirepane::OutputDialogs& outputDialogs() const { return dialogs; }

private:
    struct Pending {
        wirepane::OutputItems items;
        std::vector<unsigned char> services;
        std::optional<wirepane::OutputTarget> target;
    };
    struct Run {
        int number = 0;
        std::unique_ptr<wirepane::OutputRun> run;
        std::optional<wirepane::OutputTarget> target;
        wirepane::NewsAct act;
        std::size_t leftOut = 0;
    };
    void handedOver();
    void endRun(int number, wirepane::NewsOutcome outcome);
    void tellFinished(const std::optional<wirepane::OutputTarget>& target,
                      const wirepane::NewsOutcome& outcome);
    wirepane::NewsOutcome outputAlone(const wirepane::OutputItems& items, QWidget* parent,
                                      const std::optional<wirepane::OutputTarget>& target);
    void takeAnswer();
    wirepane::NewsOutcome outputSettled(const wirepane::OutputItems& items, QWidget* parent,
                                        const std::optional<wirepane::OutputTarget>& target);
    void putOutSoon();
    void putOutSettled();

    BKQuoteInterface& backEnd;
    wirepane::OutputDialogs& dialogs;
    QWidget& parentWindow;
    std::vector<Pending> queue;
    std::vector<Run> runs;
    int runsBegun = 0;
    std::function<void()> onAwaited;
    std::function<void()> onHandedOver;
    std::function<void(const wirepane::NewsOutcome&)> onFinished;
    bool busy = false;
    bool soon = false;  // putOutSettled is on its way
    bool wholeTitles = false;
    std::shared_ptr<bool> alive = std::make_shared<bool>(true);
};
