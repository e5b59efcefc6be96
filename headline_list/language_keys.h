// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QString>

class BKQuoteInterface;

namespace wirepane {

// The language keys of the module, in one table: their texts live in the host's catalogues.
namespace keys {

inline constexpr QLatin1StringView caption{"IDS_NEWSCTRLVIEW_STRING_NEWS"};
inline constexpr QLatin1StringView symbolNewsCaption{"IDS_MMSEXTENSION-MAINFRM_NEWSCTRLVIEW"};
inline constexpr QLatin1StringView noData{"IDC_BASEVIEW-STRING_NO_DATA"};

inline constexpr QLatin1StringView allNews{"IDS_MENU_8_1"};
inline constexpr QLatin1StringView categoryNews{"IDS_NEWSCTRLVIEW_STRING_CATEGORY_NEWS"};
inline constexpr QLatin1StringView symbolNews{"IDS_NEWSCTRLVIEW_STRING_SYMBOL_NEWS"};
inline constexpr QLatin1StringView searchNews{"IDS_NEWSCTRLVIEW_STRING_SEARCH_NEWS"};
inline constexpr QLatin1StringView relationSearchNews{"IDS_NEWSCTRLVIEW_STRING_RELATIONSEARCH_NEWS"};
inline constexpr QLatin1StringView warrantNews{"IDS_NEWSCTRLVIEW_STRING_WARRANT_NEWS"};
inline constexpr QLatin1StringView warningSearchNews{"IDS_NEWSCTRLVIEW_STRING_WARNINGSEARCH_NEWS"};

inline constexpr QLatin1StringView selectNewsService{"IDS_NEWSCTRLVIEW_STRING_SELECT_NEWS_SERVICE"};

inline constexpr QLatin1StringView searchButton{"IDS_NEWSCTRLVIEW_BUTTON_SEARCH"};
inline constexpr QLatin1StringView dealsSearchButton{"IDS_NEWSCTRLVIEW_BUTTON_DEALS_SEARCH"};
inline constexpr QLatin1StringView relationSearchButton{"IDS_NEWSCTRLVIEW_BUTTON_RELATION_SEARCH"};
inline constexpr QLatin1StringView warningSearchButton{"IDS_NEWSCTRLVIEW_BUTTON_WARNING_SEARCH"};
inline constexpr QLatin1StringView showTypeButton{"IDS_NEWSCTRLVIEW_BUTTON_SHOW_TYPE"};
inline constexpr QLatin1StringView pageDownButton{"IDS_NEWSCTRLVIEW_BUTTON_PAGE_DOWN"};
inline constexpr QLatin1StringView pageUpButton{"IDS_NEWSCTRLVIEW_BUTTON_PAGE_UP"};

inline constexpr QLatin1StringView storyDialogTitle{"IDS_DIALOG-STORY_TITLE"};
inline constexpr QLatin1StringView storyPrevious{"IDS_DIALOG-STORY_PREV_BUTTON"};
inline constexpr QLatin1StringView storyNext{"IDS_DIALOG-STORY_NEXT_BUTTON"};
inline constexpr QLatin1StringView storyPrint{"IDS_DIALOG-STORY_PRINT"};
inline constexpr QLatin1StringView storySaveAs{"IDS_DIALOG-STORY_SAVEAS"};

// Printed pages and saved files.
inline constexpr QLatin1StringView printDocument{"IDS_NEWSCTRLVIEW_STRING_NEWSPRINT"};
inline constexpr QLatin1StringView printFont{"IDS_SINGLETON-STRING_FONTNAME"};
inline constexpr QLatin1StringView printHeading{"IDS_NEWSCTRLVIEW_STRING_DETAILED_NEWS_DATA"};
inline constexpr QLatin1StringView newsNumber{"IDS_NEWSCTRLVIEW_NEWS_NO"};
inline constexpr QLatin1StringView newsTitle{"IDS_NEWSCTRLVIEW_STRING_NEWS_TITLE"};
inline constexpr QLatin1StringView newsStory{"IDS_NEWSCTRLVIEW_NEWS_STORY"};
inline constexpr QLatin1StringView fileFilter{"IDS_NEWSCTRLVIEW_STRING_FILE_FILTER"};
inline constexpr QLatin1StringView utf8FileFilter{"IDS_NEWSCTRLVIEW_STRING_FILE_FILTER_UTF8"};
// "%1": the file, or the printer; "%2": why.
inline constexpr QLatin1StringView saveFailed{"IDS_NEWSCTRLVIEW_STRING_SAVE_FAILED"};
inline constexpr QLatin1StringView printFailed{"IDS_NEWSCTRLVIEW_STRING_PRINT_FAILED"};
// Reasons.
inline constexpr QLatin1StringView noCodePage{"IDS_NEWSCTRLVIEW_STRING_NO_CODE_PAGE"};
inline constexpr QLatin1StringView printerGone{"IDS_NEWSCTRLVIEW_STRING_PRINTER_GONE"};
// "%1": its name.
inline constexpr QLatin1StringView noSuchPaper{"IDS_NEWSCTRLVIEW_STRING_NO_SUCH_PAPER"};
// "%1": how many characters, "%2": the file.
inline constexpr QLatin1StringView charactersReplaced{"IDS_NEWSCTRLVIEW_STRING_CHARACTERS_REPLACED"};
// What is waited for; "%1": how many pieces of news.
inline constexpr QLatin1StringView waitingToPrint{"IDS_NEWSCTRLVIEW_STRING_WAITING_TO_PRINT"};
inline constexpr QLatin1StringView waitingToSave{"IDS_NEWSCTRLVIEW_STRING_WAITING_TO_SAVE"};
inline constexpr QLatin1StringView waitingToPreview{"IDS_NEWSCTRLVIEW_STRING_WAITING_TO_PREVIEW"};
// "%1": how much of it is done, in hundredths.
inline constexpr QLatin1StringView printing{"IDS_NEWSCTRLVIEW_STRING_PRINTING"};
inline constexpr QLatin1StringView saving{"IDS_NEWSCTRLVIEW_STRING_SAVING"};
// The window that shows the pages before they are printed. "%1": the page, "%2": how many.
inline constexpr QLatin1StringView previewCaption{"IDS_NEWSCTRLVIEW_PREVIEW_CAPTION"};
inline constexpr QLatin1StringView previewMaking{"IDS_NEWSCTRLVIEW_PREVIEW_MAKING"};
inline constexpr QLatin1StringView previewPage{"IDS_NEWSCTRLVIEW_PREVIEW_PAGE"};
inline constexpr QLatin1StringView previewPreviousPage{"IDS_NEWSCTRLVIEW_PREVIEW_PREVIOUS_PAGE"};
inline constexpr QLatin1StringView previewNextPage{"IDS_NEWSCTRLVIEW_PREVIEW_NEXT_PAGE"};
inline constexpr QLatin1StringView previewSmaller{"IDS_NEWSCTRLVIEW_PREVIEW_SMALLER"};
inline constexpr QLatin1StringView previewLarger{"IDS_NEWSCTRLVIEW_PREVIEW_LARGER"};
inline constexpr QLatin1StringView previewFitWidth{"IDS_NEWSCTRLVIEW_PREVIEW_FIT_WIDTH"};
inline constexpr QLatin1StringView previewWholePage{"IDS_NEWSCTRLVIEW_PREVIEW_WHOLE_PAGE"};
inline constexpr QLatin1StringView previewClose{"IDS_NEWSCTRLVIEW_PREVIEW_CLOSE"};
inline constexpr QLatin1StringView stopWaiting{"IDS_NEWSCTRLVIEW_STRING_STOP_WAITING"};
// "%1": how many pieces of news.
inline constexpr QLatin1StringView putOutReady{"IDS_NEWSCTRLVIEW_STRING_PUT_OUT_READY"};
inline constexpr QLatin1StringView leftOut{"IDS_NEWSCTRLVIEW_STRING_LEFT_OUT"};
inline constexpr QLatin1StringView nothingToPutOut{"IDS_NEWSCTRLVIEW_STRING_NOTHING_TO_PUT_OUT"};

inline constexpr QLatin1StringView time{"IDS_NEWSCTRLVIEW_STRING_TIME"};
inline constexpr QLatin1StringView category{"IDS_NEWSCTRLVIEW_STRING_CATEGORY"};
inline constexpr QLatin1StringView title{"IDS_NEWSCTRLVIEW_STRING_TITLE"};
inline constexpr QLatin1StringView recover{"IDS_NEWSCTRLVIEW_STRING_RECOVER"};

// How long ago a headline came, in its tool tip. "%1": how many.
inline constexpr QLatin1StringView correctedMark{"IDS_NEWSCTRLVIEW_CORRECTED"};
inline constexpr QLatin1StringView correctedNumbers{"IDS_NEWSCTRLVIEW_CORRECTED_NUMBERS"};
// "%1": how many seconds.
inline constexpr QLatin1StringView correctedAfterReading{"IDS_NEWSCTRLVIEW_CORRECTED_AFTER_READING"};
inline constexpr QLatin1StringView turnChanges{"IDS_NEWSCTRLVIEW_TURN_CHANGES"};
inline constexpr QLatin1StringView showChanges{"IDS_NEWSCTRLVIEW_SHOW_CHANGES"};
inline constexpr QLatin1StringView hideChanges{"IDS_NEWSCTRLVIEW_HIDE_CHANGES"};
// Who has brought a piece of news, where several have. "%1": their names, with what stands between two of
// them.
inline constexpr QLatin1StringView severalSources{"IDS_NEWSCTRLVIEW_SEVERAL_SOURCES"};
inline constexpr QLatin1StringView betweenSources{"IDS_NEWSCTRLVIEW_BETWEEN_SOURCES"};
inline constexpr QLatin1StringView withdrawnMark{"IDS_NEWSCTRLVIEW_WITHDRAWN"};
inline constexpr QLatin1StringView markRead{"IDS_NEWSCTRLVIEW_MARK_READ"};
inline constexpr QLatin1StringView markUnread{"IDS_NEWSCTRLVIEW_MARK_UNREAD"};
inline constexpr QLatin1StringView markAllRead{"IDS_NEWSCTRLVIEW_MARK_ALL_READ"};
inline constexpr QLatin1StringView nothingMarked{"IDS_NEWSCTRLVIEW_NOTHING_MARKED"};
inline constexpr QLatin1StringView turnFold{"IDS_NEWSCTRLVIEW_TURN_FOLD"};
// "%1": how many.
inline constexpr QLatin1StringView foldedState{"IDS_NEWSCTRLVIEW_FOLDED_STATE"};
inline constexpr QLatin1StringView unfoldedState{"IDS_NEWSCTRLVIEW_UNFOLDED_STATE"};
inline constexpr QLatin1StringView holdList{"IDS_NEWSCTRLVIEW_HOLD_LIST"};
inline constexpr QLatin1StringView heldList{"IDS_NEWSCTRLVIEW_HELD_LIST"};
// "%1": how many have come meanwhile, "%2": how many of them key sets want.
inline constexpr QLatin1StringView heldWaiting{"IDS_NEWSCTRLVIEW_HELD_WAITING"};
inline constexpr QLatin1StringView heldMatching{"IDS_NEWSCTRLVIEW_HELD_MATCHING"};
// "%1": what one of these says.
inline constexpr QLatin1StringView letListGo{"IDS_NEWSCTRLVIEW_LET_LIST_GO"};
// "%1": how many headlines; what newAbove says.
inline constexpr QLatin1StringView newAbove{"IDS_NEWSCTRLVIEW_NEW_ABOVE"};
inline constexpr QLatin1StringView goToNewest{"IDS_NEWSCTRLVIEW_GO_TO_NEWEST"};
// "%1": the tab or the caption; "%2": how many.
inline constexpr QLatin1StringView withUnread{"IDS_NEWSCTRLVIEW_WITH_UNREAD"};
inline constexpr QLatin1StringView starNews{"IDS_NEWSCTRLVIEW_STAR"};
inline constexpr QLatin1StringView unreadState{"IDS_NEWSCTRLVIEW_STATE_UNREAD"};
inline constexpr QLatin1StringView starredState{"IDS_NEWSCTRLVIEW_STATE_STARRED"};
inline constexpr QLatin1StringView readBeforeState{"IDS_NEWSCTRLVIEW_STATE_READ_BEFORE"};
inline constexpr QLatin1StringView correctedTip{"IDS_NEWSCTRLVIEW_TIP_CORRECTED"};
inline constexpr QLatin1StringView withdrawnTip{"IDS_NEWSCTRLVIEW_TIP_WITHDRAWN"};
inline constexpr QLatin1StringView withdrawnWhyTip{"IDS_NEWSCTRLVIEW_TIP_WITHDRAWN_WHY"};
inline constexpr QLatin1StringView secondsAgo{"IDS_NEWSCTRLVIEW_TIP_SECONDS_AGO"};
inline constexpr QLatin1StringView minutesAgo{"IDS_NEWSCTRLVIEW_TIP_MINUTES_AGO"};
inline constexpr QLatin1StringView hoursAgo{"IDS_NEWSCTRLVIEW_TIP_HOURS_AGO"};
inline constexpr QLatin1StringView daysAgo{"IDS_NEWSCTRLVIEW_TIP_DAYS_AGO"};

// What tips say about dates and about data that is missing.
inline constexpr QLatin1StringView onlySelect{"IDS_NEWSCTRLVIEW_STRING_ONLYSELECT"};
inline constexpr QLatin1StringView inSomeDays{"IDS_NEWSCTRLVIEW_STRING_INSOMEDAYS"};
inline constexpr QLatin1StringView afterDays{"IDS_NEWSCTRLVIEW_STRING_AFTERDAYS"};
inline constexpr QLatin1StringView clearService{"IDS_NEWSCTRLVIEW_STRING_CLEAR_SERVICE"};
inline constexpr QLatin1StringView offlineSince{"IDS_NEWSCTRLVIEW_STRING_OFFLINE_SINCE"};
inline constexpr QLatin1StringView betweenNames{"IDS_NEWSCTRLVIEW_STRING_BETWEEN_NAMES"};
inline constexpr QLatin1StringView invalidDate{"IDS_NEWSCTRLVIEW_STRING_INVALID_DATE1"};
inline constexpr QLatin1StringView classNotFound{"IDS_NEWSCTRLVIEW_STRING_NEWS_CLASS_NOT_FOUND"};
inline constexpr QLatin1StringView symbolNewsNotFound{"IDS_NEWSCTRLVIEW_STRING_SYMBOL_NEWS_NOT_FOUND"};

// What the view says about searches.
inline constexpr QLatin1StringView searching{"IDS_NEWSCTRLVIEW_STRING_NEWS_SEARCHING"};
inline constexpr QLatin1StringView newsNotFound{"IDS_NEWSCTRLVIEW_STRING_NEWS_NOT_FOUND"};
inline constexpr QLatin1StringView invalidSearch{"IDS_NEWSCTRLVIEW_STRING_INVALIDATE_SEARCH"};
inline constexpr QLatin1StringView reinput{"IDS_NEWSCTRLVIEW_STRING_REINPUT"};
inline constexpr QLatin1StringView searchAsText{"IDS_NEWSCTRLVIEW_STRING_SEARCH_AS_TEXT"};
inline constexpr QLatin1StringView invalidValue{"IDS_NEWSCTRLVIEW_STRING_INVALIDATE_VALUE"};
inline constexpr QLatin1StringView invalidPaste{"IDS_NEWSCTRLVIEW_STRING_INVALIDATE_PASTE"};

// What the control row tells of a list, and what a click on it does. "%1": the symbol.
inline constexpr QLatin1StringView noticeNarrowed{"IDS_NEWSCTRLVIEW_NOTICE_NARROWED"};
inline constexpr QLatin1StringView noticeFiltered{"IDS_NEWSCTRLVIEW_NOTICE_FILTERED"};
inline constexpr QLatin1StringView noticeUnfiltered{"IDS_NEWSCTRLVIEW_NOTICE_UNFILTERED"};
// "%1": when it was searched.
inline constexpr QLatin1StringView noticeAsOf{"IDS_NEWSCTRLVIEW_NOTICE_AS_OF"};
inline constexpr QLatin1StringView noticeSilent{"IDS_NEWSCTRLVIEW_NOTICE_SILENT"};
inline constexpr QLatin1StringView noticeNothingNew{"IDS_NEWSCTRLVIEW_NOTICE_NOTHING_NEW"};
inline constexpr QLatin1StringView noticeBeforeOutage{"IDS_NEWSCTRLVIEW_NOTICE_BEFORE_BREAK"};

// What empty lists say. "%1": the key that opens the dialog.
inline constexpr QLatin1StringView hintNoNews{"IDS_NEWSCTRLVIEW_HINT_NO_NEWS"};
inline constexpr QLatin1StringView hintNoWarrantNews{"IDS_NEWSCTRLVIEW_HINT_NO_WARRANT_NEWS"};
inline constexpr QLatin1StringView hintNoKeySet{"IDS_NEWSCTRLVIEW_HINT_NO_KEY_SET"};
inline constexpr QLatin1StringView hintNoMatch{"IDS_NEWSCTRLVIEW_HINT_NO_MATCH"};
inline constexpr QLatin1StringView hintNoWarningTerm{"IDS_NEWSCTRLVIEW_HINT_NO_WARNING_TERM"};
// "%2": the keywords in force.
inline constexpr QLatin1StringView hintWarningTerm{"IDS_NEWSCTRLVIEW_HINT_WARNING_TERM"};
// "%2": the key that goes to the search box.
inline constexpr QLatin1StringView hintSearch{"IDS_NEWSCTRLVIEW_HINT_SEARCH"};

// What empty lists say where they offer a way out.
// "%1": the day.
inline constexpr QLatin1StringView emptyDay{"IDS_NEWSCTRLVIEW_EMPTY_DAY"};
inline constexpr QLatin1StringView emptyShowDay{"IDS_NEWSCTRLVIEW_EMPTY_SHOW_DAY"};
inline constexpr QLatin1StringView emptyNoService{"IDS_NEWSCTRLVIEW_EMPTY_NO_SERVICE"};
inline constexpr QLatin1StringView emptyChooseServices{"IDS_NEWSCTRLVIEW_EMPTY_CHOOSE_SERVICES"};
inline constexpr QLatin1StringView emptyShowAllNews{"IDS_NEWSCTRLVIEW_EMPTY_SHOW_ALL_NEWS"};
inline constexpr QLatin1StringView emptyNothing{"IDS_NEWSCTRLVIEW_EMPTY_NOTHING"};
// "%1": the category or symbol.
inline constexpr QLatin1StringView emptyOfSubject{"IDS_NEWSCTRLVIEW_EMPTY_OF_SUBJECT"};
inline constexpr QLatin1StringView emptyRelation{"IDS_NEWSCTRLVIEW_EMPTY_RELATION"};
inline constexpr QLatin1StringView emptyChooseKeySets{"IDS_NEWSCTRLVIEW_EMPTY_CHOOSE_KEY_SETS"};
inline constexpr QLatin1StringView emptyWarningTerm{"IDS_NEWSCTRLVIEW_EMPTY_WARNING_TERM"};
inline constexpr QLatin1StringView emptyChooseTerms{"IDS_NEWSCTRLVIEW_EMPTY_CHOOSE_TERMS"};
inline constexpr QLatin1StringView emptySearch{"IDS_NEWSCTRLVIEW_EMPTY_SEARCH"};
inline constexpr QLatin1StringView emptyBeginSearch{"IDS_NEWSCTRLVIEW_EMPTY_BEGIN_SEARCH"};
// In a story pane without a story.
inline constexpr QLatin1StringView emptyStory{"IDS_NEWSCTRLVIEW_EMPTY_STORY"};
inline constexpr QLatin1StringView emptyReadNewest{"IDS_NEWSCTRLVIEW_EMPTY_READ_NEWEST"};
// In quotes without symbols: before a headline is chosen, of one that names none.
inline constexpr QLatin1StringView emptyQuotes{"IDS_NEWSCTRLVIEW_EMPTY_QUOTES"};
inline constexpr QLatin1StringView noRelatedSymbols{"IDS_QUOTE-SYMBOLGROUP_NEWSRELATEQUOTE_NONE"};
inline constexpr QLatin1StringView emptyLookUpSymbol{"IDS_NEWSCTRLVIEW_EMPTY_LOOK_UP_SYMBOL"};
// "%1": a word that was searched for.
inline constexpr QLatin1StringView emptyQuotedWord{"IDS_NEWSCTRLVIEW_EMPTY_QUOTED_WORD"};
// "%1": the words, each in quotes.
inline constexpr QLatin1StringView emptyNotFound{"IDS_NEWSCTRLVIEW_EMPTY_NOT_FOUND"};
// What else would find something. "%1": how much; of the last one: what goes, and "%2" how much.
inline constexpr QLatin1StringView offerServices{"IDS_NEWSCTRLVIEW_OFFER_SERVICES"};
inline constexpr QLatin1StringView offerStories{"IDS_NEWSCTRLVIEW_OFFER_STORIES"};
inline constexpr QLatin1StringView offerDays{"IDS_NEWSCTRLVIEW_OFFER_DAYS"};
inline constexpr QLatin1StringView offerWithout{"IDS_NEWSCTRLVIEW_OFFER_WITHOUT"};

// On the line over what was found. "%1": a number; a day; a moment; milliseconds; the part of the condition.
inline constexpr QLatin1StringView foundCount{"IDS_NEWSCTRLVIEW_FOUND_COUNT"};
inline constexpr QLatin1StringView foundSince{"IDS_NEWSCTRLVIEW_FOUND_SINCE"};
inline constexpr QLatin1StringView foundUntil{"IDS_NEWSCTRLVIEW_FOUND_UNTIL"};
inline constexpr QLatin1StringView foundTook{"IDS_NEWSCTRLVIEW_FOUND_TOOK"};
inline constexpr QLatin1StringView foundTakeOut{"IDS_NEWSCTRLVIEW_FOUND_TAKE_OUT"};
inline constexpr QLatin1StringView foundNewest{"IDS_NEWSCTRLVIEW_FOUND_NEWEST"};
inline constexpr QLatin1StringView foundEnter{"IDS_NEWSCTRLVIEW_FOUND_ENTER"};
inline constexpr QLatin1StringView foundAwaited{"IDS_NEWSCTRLVIEW_FOUND_AWAITED"};

// Files of the news of a list. "%1": how many, else the file; "%2": the file, else the reason.
inline constexpr QLatin1StringView exportList{"IDS_NEWSCTRLVIEW_EXPORT_LIST"};
inline constexpr QLatin1StringView exportRunning{"IDS_NEWSCTRLVIEW_EXPORT_RUNNING"};
inline constexpr QLatin1StringView exportStopped{"IDS_NEWSCTRLVIEW_EXPORT_STOPPED"};
inline constexpr QLatin1StringView exportWritten{"IDS_NEWSCTRLVIEW_EXPORT_WRITTEN"};
inline constexpr QLatin1StringView exportNotWritten{"IDS_NEWSCTRLVIEW_EXPORT_NOT_WRITTEN"};
inline constexpr QLatin1StringView exportUnreadable{"IDS_NEWSCTRLVIEW_EXPORT_UNREADABLE"};

// Searches with names, at the search box. "%1": a number or a name.
inline constexpr QLatin1StringView saveSearch{"IDS_NEWSCTRLVIEW_SAVED_SAVE"};
inline constexpr QLatin1StringView savedName{"IDS_NEWSCTRLVIEW_SAVED_NAME"};
inline constexpr QLatin1StringView savedReplace{"IDS_NEWSCTRLVIEW_SAVED_REPLACE"};
inline constexpr QLatin1StringView savedToday{"IDS_NEWSCTRLVIEW_SAVED_TODAY"};
inline constexpr QLatin1StringView savedManage{"IDS_NEWSCTRLVIEW_SAVED_MANAGE"};
inline constexpr QLatin1StringView savedAsAlert{"IDS_NEWSCTRLVIEW_SAVED_AS_ALERT"};
inline constexpr QLatin1StringView savedAsKeySet{"IDS_NEWSCTRLVIEW_SAVED_AS_KEY_SET"};
inline constexpr QLatin1StringView savedAsWarning{"IDS_NEWSCTRLVIEW_SAVED_AS_WARNING"};
inline constexpr QLatin1StringView savedDelete{"IDS_NEWSCTRLVIEW_SAVED_DELETE"};
inline constexpr QLatin1StringView savedAskDelete{"IDS_NEWSCTRLVIEW_SAVED_ASK_DELETE"};
inline constexpr QLatin1StringView savedImport{"IDS_NEWSCTRLVIEW_SAVED_IMPORT"};
inline constexpr QLatin1StringView savedExport{"IDS_NEWSCTRLVIEW_SAVED_EXPORT"};
inline constexpr QLatin1StringView savedFiles{"IDS_NEWSCTRLVIEW_SAVED_FILES"};
// "%1": the file; "%2": the reason.
inline constexpr QLatin1StringView savedFileFailed{"IDS_NEWSCTRLVIEW_SAVED_FILE_FAILED"};
// "%1": the line; "%2": what stands there.
inline constexpr QLatin1StringView savedNotText{"IDS_NEWSCTRLVIEW_SAVED_NOT_TEXT"};
inline constexpr QLatin1StringView savedNoName{"IDS_NEWSCTRLVIEW_SAVED_NO_NAME"};
inline constexpr QLatin1StringView savedNoSearch{"IDS_NEWSCTRLVIEW_SAVED_NO_SEARCH"};
inline constexpr QLatin1StringView savedWrongQuery{"IDS_NEWSCTRLVIEW_SAVED_WRONG_QUERY"};
inline constexpr QLatin1StringView savedNameTwice{"IDS_NEWSCTRLVIEW_SAVED_NAME_TWICE"};
inline constexpr QLatin1StringView savedTooMany{"IDS_NEWSCTRLVIEW_SAVED_TOO_MANY"};
inline constexpr QLatin1StringView savedFull{"IDS_NEWSCTRLVIEW_SAVED_FULL"};

// The columns of prices.
inline constexpr QLatin1StringView priceThen{"IDS_NEWSCTRLVIEW_STRING_PRICE_THEN"};
inline constexpr QLatin1StringView showPrices{"IDS_NEWSCTRLVIEW_STRING_SHOW_PRICES"};
inline constexpr QLatin1StringView priceThenTip{"IDS_NEWSCTRLVIEW_STRING_PRICE_THEN_TIP"};
inline constexpr QLatin1StringView largestMove{"IDS_NEWSCTRLVIEW_STRING_LARGEST_MOVE"};
inline constexpr QLatin1StringView largestMoveTip{"IDS_NEWSCTRLVIEW_STRING_LARGEST_MOVE_TIP"};

// What controls without a text are called.
inline constexpr QLatin1StringView nameOfEarlierSearches{"IDS_NEWSCTRLVIEW_NAME_EARLIER_SEARCHES"};
inline constexpr QLatin1StringView nameOfModes{"IDS_NEWSCTRLVIEW_NAME_MODES"};
inline constexpr QLatin1StringView allServices{"IDS_NEWSCTRLVIEW_STRING_ALL_SERVICES"};
inline constexpr QLatin1StringView servicesAsBefore{"IDS_NEWSCTRLVIEW_STRING_SERVICES_AS_BEFORE"};
inline constexpr QLatin1StringView onlyThis{"IDS_NEWSCTRLVIEW_STRING_ONLY_THIS"};
inline constexpr QLatin1StringView onlyThisService{"IDS_NEWSCTRLVIEW_STRING_ONLY_THIS_SERVICE"};
inline constexpr QLatin1StringView today{"IDS_NEWSCTRLVIEW_STRING_TODAY"};
inline constexpr QLatin1StringView yesterday{"IDS_NEWSCTRLVIEW_STRING_YESTERDAY"};
inline constexpr QLatin1StringView nameOfDate{"IDS_NEWSCTRLVIEW_NAME_DATE"};
inline constexpr QLatin1StringView nameOfMarket{"IDS_NEWSCTRLVIEW_NAME_MARKET"};
inline constexpr QLatin1StringView nameOfSymbol{"IDS_NEWSCTRLVIEW_NAME_SYMBOL"};
inline constexpr QLatin1StringView nameOfSearchText{"IDS_NEWSCTRLVIEW_NAME_SEARCH_TEXT"};
inline constexpr QLatin1StringView nameOfStory{"IDS_NEWSCTRLVIEW_NAME_STORY"};

// The markets of the symbol mode.
inline constexpr QLatin1StringView stockExchange{"IDS_NEWSCTRLVIEW_MARKET_STOCK_EXCHANGE"};
inline constexpr QLatin1StringView emergingBoard{"IDS_NEWSCTRLVIEW_MARKET_EMERGING_BOARD"};
inline constexpr QLatin1StringView hongKong{"IDS_NEWSCTRLVIEW_MARKET_HONG_KONG"};

// The context menu.
inline constexpr QLatin1StringView showCategory{"IDS_NEWSCTRLVIEW_STRING_SHOW_CATEGORY"};
inline constexpr QLatin1StringView recoverHeadlineList{"IDS_NEWSCTRLVIEW_STRING_RECOVER_HEADLINELIST"};
inline constexpr QLatin1StringView recoverStory{"IDS_NEWSCTRLVIEW_STRING_RECOVER_STORY"};
inline constexpr QLatin1StringView detailedStory{"IDS_NEWSCTRLVIEW_STRING_DETAILED_STORY"};
inline constexpr QLatin1StringView printNews{"IDS_NEWSCTRLVIEW_STRING_PRINT_NEWS"};
inline constexpr QLatin1StringView saveAsNews{"IDS_NEWSCTRLVIEW_STRING_SAVE_AS_NEWS"};

inline constexpr QLatin1StringView storyRemark{"IDS_NEWSCTRLVIEW_STRING_PS"};
inline constexpr QLatin1StringView noStory{"IDS_NEWSCTRLVIEW_STRING_NO_NEWS_STORY"};
inline constexpr QLatin1StringView waitForUpdate{"IDS_NEWSCTRLVIEW_STRING_WAIT_FOR_UPDATE"};

// What can be done in a story, and in its window. "%1": what is selected.
inline constexpr QLatin1StringView storyCopy{"IDS_NEWSCTRLVIEW_STORY_COPY"};
inline constexpr QLatin1StringView storySelectAll{"IDS_NEWSCTRLVIEW_STORY_SELECT_ALL"};
inline constexpr QLatin1StringView storyInWindow{"IDS_NEWSCTRLVIEW_STORY_IN_WINDOW"};
inline constexpr QLatin1StringView storySearch{"IDS_NEWSCTRLVIEW_STORY_SEARCH"};
inline constexpr QLatin1StringView storySmaller{"IDS_NEWSCTRLVIEW_STORY_SMALLER"};
inline constexpr QLatin1StringView storyLarger{"IDS_NEWSCTRLVIEW_STORY_LARGER"};
inline constexpr QLatin1StringView storyPin{"IDS_NEWSCTRLVIEW_STORY_PIN"};

// The term to be replaced after conversion to simplified characters, and what replaces it. Spelled so.
inline constexpr QLatin1StringView replaceNews{"IDS_NEWSCTRLVIEW_STRING_REPLASE_NEWS"};
inline constexpr QLatin1StringView replaceMessage{"IDS_NEWSCTRLVIEW_STRING_REPLASE_MESSAGE"};

}  // namespace keys

// The text of a key in the language in force.
QString langText(BKQuoteInterface& backEnd, QLatin1StringView key);

}  // namespace wirepane
