// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "news_view/command_menu.h"
#include "output/trv_save_to_file.h"

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace wirepane {
class StoryStage;

// Printing, saving and previewing the news of one view: three jobs, each with what it waits for. What the
// user is to know of news that had waited is told as it comes. Interface thread only.
class OutputJobs {
public:
    // What the jobs need of the view around them.
    struct Surroundings {
        QWidget& window;                    // of the questions; holds the buttons that ask them
        StoryStage& stage;                  // whose dialog makes room for a question
        std::function<bool()> wholeTitles;  // whether titles stay whole
        std::function<std::vector<unsigned char>()> titles;  // the services that are asked for titles
        std::function<void()> awaitedChanged;                // what is waited for may have changed
        std::function<void(const QString&)> tell;            // a sentence for the user
    };

    // All that is referred to outlives the jobs.
    OutputJobs(BKQuoteInterface& backEnd, OutputDialogs& dialogs, Surroundings surroundings);

    // Puts the news of these entries out, when it has all come: without a target the user is asked, meanwhile
    // the story dialog leaves the top and the button that asks is off, for pages until they have been handed
    // to the host that paints them. The window may go, and the jobs with it, while he is. Nothing happens
    // without entries.
    NewsOutcome print(const std::vector<CHeadlineTable>& entries, const std::optional<OutputTarget>& target);
    NewsOutcome save(const std::vector<CHeadlineTable>& entries, const std::optional<OutputTarget>& target);
    NewsOutcome preview(const std::vector<CHeadlineTable>& entries);
    // Tells what came of it, when there is something to tell.
    void tell(const NewsOutcome& outcome);

    // What the back end answers.
    void takeHeadlines(const std::vector<CHeadlineTable>& entries);
    void takeStory(const CHeadlineTable& entry);

    // Whether any job waits or takes long, and in words what each waits for and how far it is; empty:
    // nothing.
    bool isWaiting() const;
    QString awaitedText() const;
    // How many pieces of news each job waits for: printing, saving, the preview.
    std::array<int, 3> awaited() const;
    // What the user can do about it: nothing while no job waits.
    std::vector<MenuEntry> waitingCommands() const;
    // How many pieces of the news that waits are complete.
    int ready() const;
    // What is still waited for is put out no more, nor what waited with it, nor the rest of what is being
    // printed; what is complete is put out, without the rest.
    void stopWaiting();
    void putOutReady();

private:
    std::array<TRVNewsPrint*, 3> jobs() { return {&printer, &saver, &previewer}; }
    std::array<const TRVNewsPrint*, 3> jobs() const { return {&printer, &saver, &previewer}; }
    NewsOutcome putOut(TRVNewsPrint& job, int button, const std::vector<CHeadlineTable>& entries,
                       const std::optional<OutputTarget>& target);
    NewsOutcome ask(TRVNewsPrint& job, int button, OutputItems items);
    void setEnabled(int button, bool on);

    BKQuoteInterface& backEnd;
    Surroundings around;
    TRVNewsPrint printer;
    TRVSaveToFile saver;
    TRVNewsPreview previewer;
};

}  // namespace wirepane
