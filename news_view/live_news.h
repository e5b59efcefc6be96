// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/intake.h"
#include "news_view/common_parts.h"

#include <functional>
#include <vector>

namespace wirepane {
class ViewContext;
struct HeadlinePlace;

// Headlines that arrive, are replaced and go while the view is open, and the lists that they concern.
// Interface thread only.
class LiveNews {
public:
    struct Calls {
        // What the view stands at: whether it has a day, its dates, what is chosen, the ticked key sets.
        std::function<IntakeState()> choices;
        // Rows of a list have come, gone or moved.
        std::function<void(ListIndex, const HeadlinePlace&)> rowsMoved;
        // A row has come into a list, moved or new.
        std::function<void(ListIndex, const PushedHeadline&)> rowCame;
        // The next story that is to be shown is, also the same row's.
        std::function<void()> forgetShownStory;
        // A headline was pushed, whether or not a list takes it.
        std::function<void(const CHeadline&, const QString& categoryId)> wasPushed;
    };
    LiveNews(ViewContext& context, const CommonParts& parts, Calls calls);

    void push(const PushedHeadline& pushed);
    // A headline that is not pushed may have been replaced: its rows leave the lists that it no longer
    // concerns.
    void replace(const PushedHeadline& pushed);
    // A headline that was replaced no longer has this key: its rows leave the lists.
    void takeOut(const HeadlineKey& key);

private:
    IntakeState state() const;
    bool replaceElsewhere(const PushedHeadline& pushed, const std::vector<IntakeTarget>& targets,
                          const IntakeState& state);
    void listsChanged();

    ViewContext& context;
    const CommonParts parts;
    const Calls calls;
};

}  // namespace wirepane
