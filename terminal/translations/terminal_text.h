// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>

namespace wirepane {

// The terminal's own texts. Their keys stand in one table, so that each can be checked against the
// catalogues.
enum class TextId {
    AppTitle,
    FileMenu,
    ViewMenu,
    LanguageMenu,
    SchemeMenu,
    ReadAsOf,
    Quit,
    SchemeLight,
    SchemeDark,
    FontLarger,
    FontSmaller,
    LanguageEnglish,
    LanguageTraditionalChinese,
    LanguageSimplifiedChinese,
    ReadAsOfTitle,
    ReadAsOfExplanation,
    ReadAsOfNow,
    FeedLive,
    FeedReconnecting,
    FeedOnlyRead,
    FeedLate,
    FeedSample,
    SourceConnecting,
    SourceStale,
    SourceFailed,
    ServicesCount,
    AsOf,
    ViewsMenu,
    ArrangeMenu,
    LinkMenu,
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
    Settings,
    LinkNone,
    LinkGroup,
    LinkHint,
    SymbolBar,
    SymbolPrompt,
    SymbolUnknown,
    RenameTitle,
    RenamePrompt,
    EmptyDesk,
    OfflineSince,
    DatedAhead,
    CloseButton,
    FloatButton,
    SettingsTitle,
    SettingsGeneral,
    SettingsNews,
    SettingsLanguage,
    SettingsScheme,
    SettingsFont,
    SettingsPoints,
    SettingsNormalSearch,
    SettingsNormalSearchHelp,
    SettingsWarningSearch,
    SettingsWarningSearchHelp,
    SettingsBothSearches,
    SettingsReopen,
    ViewFailed,
    Accept,
    Cancel,
    PrintNews,
    PrintPreview,
    SaveNews,
    BreakingNews,
    IndexingStore,
    HelpMenu,
    Guide,
    GuideTitle,
    ImportNews,
    ImportTitle,
    ImportAllKinds,
    ImportAnyFile,
    ImportRunning,
    ImportComplete,
    ImportPartial,
    ImportCancelled,
    ImportFailed,
    ImportLeftOut,
    ImportNotStarted,
    NoChineseFont,
};

// The text in the language in force.
QString terminalText(TextId id);

// The keys of all of them.
std::span<const char* const> terminalTextKeys();

}  // namespace wirepane
