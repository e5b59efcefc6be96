// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "news_view/common_parts.h"

#include <QDate>
#include <QRect>

#include <functional>

class CNewsRelateSymbolQuoteView;
class CSuperSheetWnd;

namespace wirepane {
class EntrySource;

}  // namespace wirepane

class QMetaObject;

namespace wirepane {
class StoryStage;

}  // namespace wirepane

class TRVCfgIO2;
class TRVQuoteBaseView;

namespace wirepane {
struct RowLook;
struct ViewSettingPath;
class ViewOptions;

// How the rows of the quotes beside a story look.
RowLook quoteLook(const ViewOptions& options);

// Creates what a view shows, once each: the story pane and the quotes beside it, and by the enabled functions
// the grids, their tabs and their controls. Interface thread only.
class ViewBuilder {
public:
    // What others do with what was created.
    struct Calls {
        std::function<QDate()> pickedDate;  // for the date picker
        std::function<void(CSuperSheetWnd&, ListIndex)> connectGrid;
        std::function<void()> connectDatePicker;
        std::function<void()> connectSearchEdit;
        std::function<void()> createSearchLine;
        std::function<void()> connectCategoryCombo;
    };

    // All that is referred to outlives the builder. `view` is the window of the parts.
    ViewBuilder(TRVQuoteBaseView& view, const CommonParts& parts, StoryStage& stage, Calls calls);

    // A pane for the stories of these entries, on the stage.
    void createStoryPane(EntrySource& entries, TRVCfgIO2* settings, const ViewSettingPath& path);
    // The list of the quotes of the story's symbols, on the stage; null where it is there, or has no pane.
    CNewsRelateSymbolQuoteView* createQuotes(const ViewSettingPath& path);
    // The controls, the tabs and the grids of the enabled functions, and the grid of a list.
    void createControls();
    void vInitialSheetWnd(ListIndex list, const QRect& place);
    // A child view of a class, visible; null when that fails.
    TRVQuoteBaseView* CreateView(const QMetaObject& kind, const QString& name, int id, const QRect& place);

private:
    bool isOffered(ListIndex mode) const;
    void createMode(ListIndex mode, const QRect& gridPlace, const QRect& row);
    void createControlsOf(ListIndex mode, const QRect& row);

    TRVQuoteBaseView& view;
    const CommonParts parts;
    StoryStage& stage;
    const Calls calls;
};

}  // namespace wirepane
