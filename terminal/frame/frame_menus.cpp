// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/frame_menus.h"

#include "host/controls/line_icon.h"
#include "terminal/frame/link_badge.h"
#include "terminal/frame/main_frame.h"
#include "terminal/translations/terminal_text.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include <array>
#include <optional>
#include <span>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

struct Entry {
    FrameCommand command;
    TextId text;
    QLatin1StringView shortcuts;  // portable names, "; " between two of them
    bool ofView = false;          // needs an active view
    bool startsGroup = false;
    bool ofModule = false;  // the view itself has the shortcut; the menu only tells of it
};

constexpr std::array fileEntries{
    Entry{FrameCommand::NewView, TextId::NewView, "Ctrl+N"_L1},
    Entry{FrameCommand::NewSymbolView, TextId::NewSymbolView, "Ctrl+Shift+N"_L1},
    Entry{FrameCommand::DuplicateView, TextId::DuplicateView, "Ctrl+D"_L1, true},
    Entry{FrameCommand::CloseView, TextId::CloseView, "Ctrl+W"_L1, true},
    Entry{FrameCommand::ImportNews, TextId::ImportNews, "Ctrl+O"_L1, false, true},
    Entry{FrameCommand::SaveAs, TextId::SaveNews, "Ctrl+S"_L1, true},
    Entry{FrameCommand::Print, TextId::PrintNews, "Ctrl+P"_L1, true},
    Entry{FrameCommand::PrintPreview, TextId::PrintPreview, "Ctrl+Shift+P"_L1, true},
    Entry{FrameCommand::GoToSymbolBox, TextId::GoToSymbolBox, "Ctrl+K; Ctrl+L"_L1, false, true},
    Entry{FrameCommand::ReadAsOf, TextId::ReadAsOf, "Ctrl+G"_L1},
    Entry{FrameCommand::Settings, TextId::Settings, "Ctrl+,"_L1},
    Entry{FrameCommand::Quit, TextId::Quit, "Ctrl+Q"_L1, false, true},
};

constexpr std::array newsEntries{
    Entry{FrameCommand::NewsSearch, TextId::NewsSearch, "Ctrl+F"_L1, true, false, true},
    Entry{FrameCommand::NewsServices, TextId::NewsServices, "F7"_L1, true, false, true},
    Entry{FrameCommand::NewsDate, TextId::NewsDate, "F8"_L1, true, false, true},
    Entry{FrameCommand::NewsEarlierDay, TextId::NewsEarlierDay, "Alt+Left"_L1, true, false, true},
    Entry{FrameCommand::NewsLaterDay, TextId::NewsLaterDay, "Alt+Right"_L1, true, false, true},
    Entry{FrameCommand::NewsToday, TextId::NewsToday, "Alt+Home"_L1, true, false, true},
    Entry{FrameCommand::NewsNextPage, TextId::NewsNextPage, "Alt+PgDown"_L1, true, true, true},
    Entry{FrameCommand::NewsPreviousPage, TextId::NewsPreviousPage, "Alt+PgUp"_L1, true, false, true},
    Entry{FrameCommand::NewsOpenInWindow, TextId::NewsOpenInWindow, "Ctrl+Return"_L1, true, false, true},
    Entry{FrameCommand::NewsMarkRead, TextId::NewsMarkRead, "Ctrl+R"_L1, true, true, true},
    Entry{FrameCommand::NewsMarkUnread, TextId::NewsMarkUnread, "Ctrl+U"_L1, true, false, true},
    Entry{FrameCommand::NewsStar, TextId::NewsStar, "Ctrl+J"_L1, true, false, true},
    Entry{FrameCommand::NewsMarkAllRead, TextId::NewsMarkAllRead, "Ctrl+Shift+A"_L1, true, false, true},
    Entry{FrameCommand::NewsLayout, TextId::NewsLayout, "F9"_L1, true, true, true},
    Entry{FrameCommand::Sources, TextId::NewsSources, "Ctrl+Shift+O"_L1, false, true},
    Entry{FrameCommand::Alerts, TextId::AlertsMenu, "Ctrl+Shift+B"_L1},
};

constexpr std::array fontEntries{
    Entry{FrameCommand::BreakingNews, TextId::BreakingNews, "Ctrl+B"_L1, false, true},
    Entry{FrameCommand::FontLarger, TextId::FontLarger, "Ctrl++; Ctrl+="_L1, false, true},
    Entry{FrameCommand::FontSmaller, TextId::FontSmaller, "Ctrl+-"_L1},
};

constexpr std::array densityEntries{
    Entry{FrameCommand::CompactRows, TextId::CompactRows, "Ctrl+Shift+R"_L1, true, true},
};

constexpr std::array windowEntries{
    Entry{FrameCommand::NextView, TextId::NextView, "Ctrl+Tab; Ctrl+F6"_L1, true},
    Entry{FrameCommand::PreviousView, TextId::PreviousView, "Ctrl+Shift+Tab; Ctrl+Shift+F6"_L1, true},
    Entry{FrameCommand::RenameView, TextId::RenameView, "F2"_L1, true, true},
    Entry{FrameCommand::FloatView, TextId::FloatView, "Ctrl+Shift+F"_L1, true},
};

constexpr std::array helpEntries{
    Entry{FrameCommand::Guide, TextId::Guide, "F1"_L1},
    Entry{FrameCommand::Keys, TextId::Keys, "?"_L1},
    Entry{FrameCommand::About, TextId::About, ""_L1, false, true},
};

constexpr std::array arrangeEntries{
    Entry{FrameCommand::ArrangeColumns, TextId::ArrangeColumns, "Ctrl+Shift+1"_L1, true},
    Entry{FrameCommand::ArrangeRows, TextId::ArrangeRows, "Ctrl+Shift+2"_L1, true},
    Entry{FrameCommand::ArrangeTabs, TextId::ArrangeTabs, "Ctrl+Shift+3"_L1, true},
};

// Icons only where a button has one, too.
std::optional<LineIcon> iconOf(FrameCommand command) {
    switch (command) {
        case FrameCommand::SaveAs:
            return LineIcon::Save;
        case FrameCommand::Print:
            return LineIcon::Print;
        case FrameCommand::NewsSearch:
            return LineIcon::Search;
        case FrameCommand::NewsServices:
            return LineIcon::Services;
        case FrameCommand::NewsDate:
            return LineIcon::Calendar;
        case FrameCommand::NewsNextPage:
            return LineIcon::Next;
        case FrameCommand::NewsPreviousPage:
            return LineIcon::Prev;
        case FrameCommand::NewsLayout:
            return LineIcon::LayoutRight;
        case FrameCommand::NewsOpenInWindow:
        case FrameCommand::FloatView:
            return LineIcon::Window;
        case FrameCommand::CloseView:
            return LineIcon::Close;
        case FrameCommand::Sources:
            return LineIcon::Feed;
        case FrameCommand::Alerts:
            return LineIcon::Bell;
        default:
            return std::nullopt;
    }
}

void addEntries(MainFrame& frame, QMenu& menu, std::span<const Entry> entries, const MenuState& state) {
    for (const Entry& entry : entries) {
        if (entry.startsGroup)
            menu.addSeparator();
        const auto keys = QKeySequence::listFromString(entry.shortcuts, QKeySequence::PortableText);
        QAction* action = menu.addAction(terminalText(entry.text));
        if (entry.ofModule)
            action->setText(action->text() + u'\t' + keys.constFirst().toString(QKeySequence::NativeText));
        else
            action->setShortcuts(keys);
        if (const auto icon = iconOf(entry.command))
            action->setIcon(lineIcon(*icon));
        action->setEnabled(!entry.ofView || state.activeView != 0);
        QObject::connect(action, &QAction::triggered, &frame,
                         [&frame, command = entry.command] { emit frame.commanded(command); });
    }
}

struct Choice {
    TextId text;
    QString value;
};

// A menu of which one entry is in force.
template <class Chosen>
void addChoices(QMenu& menu, const QList<Choice>& choices, const QString& current, const Chosen& chosen) {
    auto* group = new QActionGroup(&menu);
    for (const Choice& choice : choices) {
        QAction* action = menu.addAction(terminalText(choice.text));
        action->setCheckable(true);
        action->setChecked(choice.value == current);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &menu,
                         [chosen, value = choice.value] { chosen(value); });
    }
}

void addFileMenu(MainFrame& frame, const MenuState& state) {
    QMenu* menu = frame.menuBar()->addMenu(terminalText(TextId::FileMenu));
    addEntries(frame, *menu, fileEntries, state);
    if (!state.store)
        return;
    const bool isSample = *state.store == StoreKind::Sample;
    auto* other = new QAction(terminalText(isSample ? TextId::OwnStore : TextId::SampleStore), menu);
    QObject::connect(other, &QAction::triggered, &frame,
                     [&frame] { emit frame.commanded(FrameCommand::OtherStore); });
    QAction* quit = menu->actions().constLast();
    menu->insertAction(quit, other);
    menu->insertSeparator(other);
}

void addLookMenu(MainFrame& frame, const MenuState& state) {
    QMenu* menu = frame.menuBar()->addMenu(terminalText(TextId::ViewMenu));
    addChoices(*menu->addMenu(terminalText(TextId::SchemeMenu)),
               {{TextId::SchemeLight, u"light"_s},
                {TextId::SchemeDark, u"dark"_s},
                {TextId::SchemeContrast, u"contrast"_s}},
               state.scheme, [&frame](const QString& value) { emit frame.schemeChosen(value); });
    addChoices(*menu->addMenu(terminalText(TextId::LanguageMenu)),
               {{TextId::LanguageEnglish, u"en"_s},
                {TextId::LanguageTraditionalChinese, u"zh-TW"_s},
                {TextId::LanguageSimplifiedChinese, u"zh-CN"_s}},
               state.language, [&frame](const QString& value) { emit frame.languageChosen(value); });
    addEntries(frame, *menu, fontEntries, state);
    addEntries(frame, *menu, densityEntries, state);
    QAction* compact = menu->actions().back();
    compact->setCheckable(true);
    compact->setChecked(state.compactRows);
}

// The open views, the first nine with Alt and their place in the list as a shortcut.
void addViewList(MainFrame& frame, QMenu& menu, const MenuState& state) {
    constexpr qsizetype withShortcut = 9;
    auto* group = new QActionGroup(&menu);
    menu.addSeparator();
    for (qsizetype i = 0; i < state.views.size(); ++i) {
        const ListedView& view = state.views[i];
        QString text = view.title;
        text.replace(u'&', u"&&"_s);
        QAction* action = menu.addAction(i < withShortcut ? u"&%1  %2"_s.arg(i + 1).arg(text) : text);
        if (i < withShortcut)
            action->setShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + i)));
        action->setCheckable(true);
        action->setChecked(view.number == state.activeView);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &frame,
                         [&frame, number = view.number] { emit frame.viewChosen(number); });
    }
}

void addWindowMenu(MainFrame& frame, const MenuState& state) {
    QMenu* menu = frame.menuBar()->addMenu(terminalText(TextId::ViewsMenu));
    addEntries(frame, *menu, windowEntries, state);
    addEntries(frame, *menu->addMenu(terminalText(TextId::ArrangeMenu)), arrangeEntries, state);
    QMenu* links = menu->addMenu(terminalText(TextId::LinkMenu));
    links->setEnabled(state.activeView != 0);
    addLinkGroups(*links, state.linkGroup, true, true,
                  [&frame](unsigned char group) { emit frame.linkChosen(group); });
    if (!state.views.isEmpty())
        addViewList(frame, *menu, state);
}

}  // namespace

void addFrameMenus(MainFrame& frame, const MenuState& state) {
    addFileMenu(frame, state);
    addEntries(frame, *frame.menuBar()->addMenu(terminalText(TextId::NewsMenu)), newsEntries, state);
    addLookMenu(frame, state);
    addWindowMenu(frame, state);
    addEntries(frame, *frame.menuBar()->addMenu(terminalText(TextId::HelpMenu)), helpEntries, state);
}

}  // namespace wirepane
