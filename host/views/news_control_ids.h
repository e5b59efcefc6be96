// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace wirepane {

// Numbers of the view's controls and commands: what GetDlgItem finds, what OnCommand takes. They stay what
// they are.
namespace ids {

// Controls of the control row and the tab strip.
inline constexpr int relationSearchButton = 3001;
inline constexpr int dealsSearchButton = 3002;
inline constexpr int categoryCombo = 3004;
inline constexpr int symbolCombo = 3005;
inline constexpr int warningSearchButton = 3006;
inline constexpr int searchButton = 3007;
inline constexpr int searchEdit = 3008;
inline constexpr int datePicker = 3009;
inline constexpr int serviceButton = 3010;
inline constexpr int serviceCombo = 3011;
inline constexpr int stopWaiting = 3012;    // a menu command, too
inline constexpr int putOutReady = 3013;    // a menu command alone
inline constexpr int askBeforeStop = 3014;  // what the button beside the notice does
inline constexpr int notice = 3015;
// Notices that can be acted on; menu commands, too.
inline constexpr int endNarrowing = 3016;
inline constexpr int readUnfiltered = 3017;
inline constexpr int searchAgain = 3018;
inline constexpr std::array noticeCommands{endNarrowing, readUnfiltered, searchAgain};
// Days with news; menu commands alone.
inline constexpr int earlierDay = 3019;  // the last one before the one that is shown
inline constexpr int laterDay = 3020;    // the first one after it, else the present day
inline constexpr int presentDay = 3021;
// Of the rows; menu commands alone.
inline constexpr int copyRows = 3022;      // the selected ones, as text
inline constexpr int openInWindow = 3023;  // the story of the current one
inline constexpr int searchLine = 3024;
inline constexpr int turnChanges = 3025;  // a menu command alone: of the story on show, or back to it
inline constexpr int markRead = 3026;     // these three menu commands alone: the selected rows
inline constexpr int markUnread = 3027;
inline constexpr int turnStar = 3028;
inline constexpr int markAllRead = 3029;  // a menu command alone: all rows of the list
inline constexpr int exportRows = 3030;   // a menu command alone: the news of all rows, to a file
inline constexpr int showNewest = 3031;   // the button over a list, and a menu command: to its top
inline constexpr int turnFold = 3032;     // a menu command alone: what is folded at the current row
inline constexpr int holdList = 3033;     // a menu command alone: the list stands still, or goes on
inline constexpr int turnPrices = 3040;   // a menu command alone: the columns of prices, or none
inline constexpr int tabStrip = 3100;
inline constexpr int pageDownButton = 8067;
inline constexpr int pageUpButton = 8068;
inline constexpr int printButton = 8069;
inline constexpr int saveAsButton = 8070;
inline constexpr int showTypeButton = 25458;

// Commands of menus.
inline constexpr int recoverHeadline = 2050;
inline constexpr int recoverStory = 2051;
inline constexpr int recoverHeadlineTable = 2053;
inline constexpr int firstServiceCommand = 5050;
inline constexpr int lastServiceCommand = 5060;
inline constexpr int changeCategoryState = 5061;
inline constexpr int showStory = 9270;
inline constexpr int printNews = 9271;
inline constexpr int saveNews = 9272;

// Child views: this plus their own number.
inline constexpr int firstChildView = 59648;
inline constexpr int storyPane = 1;
inline constexpr int relatedQuotes = 2;

inline constexpr int refreshTimer = 1;
inline constexpr int refreshDelayMs = 100;

}  // namespace ids

}  // namespace wirepane
