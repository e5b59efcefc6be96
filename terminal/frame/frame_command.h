// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// What the menus of the main frame can be told to do, beside the choices that carry a value.
enum class FrameCommand {
    NewView,
    NewSymbolView,
    DuplicateView,
    CloseView,
    RenameView,
    FloatView,
    NextView,
    PreviousView,
    ArrangeColumns,
    ArrangeRows,
    ArrangeTabs,
    GoToSymbolBox,
    ImportNews,
    Print,
    PrintPreview,
    SaveAs,
    BreakingNews,
    ReadAsOf,
    Present,
    Sources,
    Alerts,
    NewsSearch,
    NewsServices,
    NewsDate,
    NewsEarlierDay,
    NewsLaterDay,
    NewsToday,
    NewsNextPage,
    NewsPreviousPage,
    NewsLayout,
    NewsOpenInWindow,
    NewsMarkRead,
    NewsMarkUnread,
    NewsStar,
    NewsMarkAllRead,
    Settings,
    FontLarger,
    FontSmaller,
    CompactRows,
    OtherStore,
    Guide,
    Keys,
    About,
    Quit,
};

}  // namespace wirepane
