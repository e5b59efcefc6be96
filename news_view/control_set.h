// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QFont>
#include <QHash>
#include <QPointer>
#include <QWidget>

class BKQuoteInterface;
class TRVVirtualBaseView;

namespace wirepane {
enum class ListIndex : int;
enum class StoryShowType : unsigned short;
struct ViewLayout;

// The controls of a news view: creates them, finds them by number, gives them their texts, places, fonts, and
// shows those of a mode. A control that was not created is skipped everywhere. Buttons send their number as a
// command.
class ControlSet {
public:
    // Both must outlive the set; the controls belong to the view's window.
    ControlSet(TRVVirtualBaseView& view, BKQuoteInterface& backEnd);

    void CreateTypeBtn();
    void CreateFunctionBtn();
    // The line of notices, and the buttons of those that can be acted on. Hidden.
    void createNotices();
    // A child of the view's window that another one has created.
    void take(int id, QWidget& control);
    void createServiceButton(const QRect& rectangle);
    void createTabStrip(const QRect& rectangle);
    void createDatePicker(const QRect& rectangle, const QDate& date);
    void createCategoryCombo(const QRect& rectangle);
    // The controls of the symbol, search, relation-search and warning-term modes.
    void CreateControls(ListIndex mode, const QRect& rectangle, const QFont& font);

    // Adds the mode's tab, when there is a tab strip.
    void addTab(ListIndex mode);
    // The index of the mode's tab; 0 when there is none.
    int tabIndexOf(int mode) const;

    // Shows the controls of the mode and hides the other switchable ones.
    void showControlsOf(ListIndex mode);
    void place(const ViewLayout& layout);
    // Gives the buttons their icons; that of the layout button is the one of the present layout.
    void showIcons(StoryShowType showType);
    // What the button needs for its icon and its text; 0 when there is no such button.
    int neededWidth(int id) const;
    void setFont(const QFont& font);
    // Sets every text in the language in force.
    void loadTexts();

    // A control of a kind by its number; null when there is none.
    template <class Control>
    Control* find(int id) const {
        return qobject_cast<Control*>(controls.value(id).data());
    }

private:
    void addButton(int id, const QRect& rectangle);
    template <class Control>
    Control* add(int id, const QRect& rectangle);

    TRVVirtualBaseView& view;
    BKQuoteInterface& backEnd;
    QHash<int, QPointer<QWidget>> controls;  // by number: every pushed headline asks for some
};

}  // namespace wirepane
