// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/shortcuts.h"

#include "headline_list/headline_list.h"
#include "host/controls/my_rich_edit.h"
#include "host/controls/s_date_time_ctrl.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "news_view/command_keys.h"
#include "news_view/control_set.h"
#include "news_view/story_stage.h"
#include "news_view/view_context.h"
#include "search/search_edit2.h"

#include <QAbstractButton>
#include <QShortcut>

#include <algorithm>
#include <array>
#include <functional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// What is told of the shortcuts that are no commands.
constexpr std::array otherHints{
    CommandKey{"F3"_L1, ids::searchEdit},
    CommandKey{"Shift+F3"_L1, ids::dealsSearchButton},
    CommandKey{"Shift+F3"_L1, ids::relationSearchButton},
    CommandKey{"Shift+F3"_L1, ids::warningSearchButton},
    CommandKey{"F8"_L1, ids::datePicker},
    CommandKey{"Ctrl+PgDown"_L1, ids::tabStrip},
};

constexpr std::array tabOrder{
    ids::tabStrip,       ids::showTypeButton, ids::serviceButton,     ids::relationSearchButton,
    ids::datePicker,     ids::categoryCombo,  ids::serviceCombo,      ids::symbolCombo,
    ids::searchEdit,     ids::searchButton,   ids::dealsSearchButton, ids::warningSearchButton,
    ids::stopWaiting,    ids::endNarrowing,   ids::readUnfiltered,    ids::searchAgain,
    ids::pageDownButton, ids::pageUpButton,   ids::saveAsButton,      ids::printButton,
};

}  // namespace

Shortcuts::Shortcuts(ViewContext& context, Surroundings surroundings)
    : view(context), around(std::move(surroundings)) {}

void Shortcuts::create() {
    const auto add = [this](QLatin1StringView key, const std::function<void()>& act) {
        auto* shortcut = new QShortcut(QKeySequence(QString(key)), &around.window);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(shortcut, &QShortcut::activated, &around.window, act);
    };
    for (const CommandKey& command : commandKeys)
        add(command.key, [this, id = command.id] { around.carryOut(id); });
    add("Ctrl+PgDown"_L1, [this] { stepMode(1); });
    add("Ctrl+PgUp"_L1, [this] { stepMode(-1); });
    add("F3"_L1, [this] { goToSearchEdit(); });
    add("Ctrl+F"_L1, [this] { goToSearchEdit(); });
    add("Shift+F3"_L1, [this] { openSearchOfMode(); });
    add("F8"_L1, [this] { openCalendar(); });
    add("F6"_L1, [this] { changePane(); });
}

void Shortcuts::loadToolTips() {
    const auto hint = [this](const CommandKey& command) {
        QWidget* control = dlgItem(&around.window, command.id);
        if (control == nullptr)
            return;
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        const QString name = button != nullptr ? button->text() : control->accessibleName();
        const QKeySequence key{QString(command.key)};
        control->setToolTip(u"%1 (%2)"_s.arg(name, key.toString(QKeySequence::NativeText)).toHtmlEscaped());
        const auto shortcuts = around.window.findChildren<QShortcut*>(Qt::FindDirectChildrenOnly);
        for (QShortcut* shortcut : shortcuts) {
            if (shortcut->key() == key)
                shortcut->setWhatsThis(name);
        }
    };
    for (const CommandKey& command : commandKeys)
        hint(command);
    for (const CommandKey& command : otherHints)
        hint(command);
    if (QWidget* stop = dlgItem(&around.window, ids::stopWaiting))
        stop->setToolTip(stop->accessibleName().toHtmlEscaped());
}

void Shortcuts::setTabOrder() {
    QWidget* last = nullptr;
    const auto follow = [&last](QWidget* next) {
        if (last != nullptr && next != nullptr)
            QWidget::setTabOrder(last, next);
        if (next != nullptr)
            last = next;
    };
    for (const int id : tabOrder)
        follow(dlgItem(&around.window, id));
    for (const ListKind& kind : listKinds)
        follow(view.listOf(kind.index).grid());
    for (QWidget* part : {around.stage.paneTitle(), around.stage.paneText(), around.stage.quotesGrid()})
        follow(part);
}

void Shortcuts::stepMode(int step) {
    auto* strip = around.controls.find<CXTPTabControl>(ids::tabStrip);
    if (strip == nullptr || strip->count() == 0)
        return;
    strip->SetCurSel((strip->curSel() + step + strip->count()) % strip->count());
    around.tabChosen();
}

bool Shortcuts::goToMode(ListIndex mode) {
    if (view.shownList() == mode)
        return true;
    auto* strip = around.controls.find<CXTPTabControl>(ids::tabStrip);
    if (strip == nullptr || view.listOf(mode).grid() == nullptr)
        return false;
    strip->SetCurSel(around.controls.tabIndexOf(static_cast<int>(mode)));
    around.tabChosen();
    return true;
}

void Shortcuts::goToSearchEdit() {
    auto* edit = around.controls.find<SearchEdit2>(ids::searchEdit);
    if (edit == nullptr || !goToMode(ListIndex::Search))
        return;
    edit->setFocus(Qt::ShortcutFocusReason);
    edit->selectAll();
}

void Shortcuts::openSearchOfMode() {
    for (const int id : {ids::dealsSearchButton, ids::relationSearchButton, ids::warningSearchButton}) {
        const QWidget* button = dlgItem(&around.window, id);
        if (button == nullptr || !button->isVisible())
            continue;
        around.carryOut(id);
        return;
    }
}

void Shortcuts::openCalendar() {
    auto* picker = around.controls.find<SDateTimeCtrl>(ids::datePicker);
    // The keyboard is the calendar's while it is open, and is back where it was afterwards.
    if (picker != nullptr && goToMode(ListIndex::All))
        picker->dropDown();
}

// From the list to the story beside it, to the quotes of its symbols, and back to the list.
void Shortcuts::changePane() {
    std::vector<QWidget*> panes{view.listOf(view.shownList()).grid(), around.stage.paneText(),
                                around.stage.quotesGrid()};
    std::erase_if(panes, [](const QWidget* pane) { return pane == nullptr || !pane->isVisible(); });
    if (panes.empty())
        return;
    const auto current =
        std::find_if(panes.begin(), panes.end(), [](const QWidget* pane) { return pane->hasFocus(); });
    const bool last = current == panes.end() || current + 1 == panes.end();
    (last ? panes.front() : *(current + 1))->setFocus(Qt::ShortcutFocusReason);
}

}  // namespace wirepane
