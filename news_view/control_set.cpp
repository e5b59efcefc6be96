// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/control_set.h"

#include "headline_list/language_keys.h"
#include "host/controls/line_icon.h"
#include "host/controls/plain_caption.h"
#include "host/controls/quote_combo_box_auto.h"
#include "host/controls/s_button.h"
#include "host/controls/s_date_time_ctrl.h"
#include "host/controls/sc_combo_box.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "host/views/news_control_ids.h"
#include "host/views/virtual_base_view.h"
#include "news_view/mode_table.h"
#include "news_view/notice_line.h"
#include "news_view/view_layout.h"
#include "search/search_edit2.h"

#include <QLineEdit>

#include <algorithm>
#include <array>

namespace wirepane {

namespace {

struct ButtonText {
    int id;
    QLatin1StringView key;
};

constexpr std::array buttonTexts{
    ButtonText{ids::serviceButton, keys::selectNewsService},
    ButtonText{ids::relationSearchButton, keys::relationSearchButton},
    ButtonText{ids::dealsSearchButton, keys::dealsSearchButton},
    ButtonText{ids::warningSearchButton, keys::warningSearchButton},
    ButtonText{ids::searchButton, keys::searchButton},
    ButtonText{ids::showTypeButton, keys::showTypeButton},
    ButtonText{ids::pageDownButton, keys::pageDownButton},
    ButtonText{ids::pageUpButton, keys::pageUpButton},
    ButtonText{ids::printButton, keys::storyPrint},
    ButtonText{ids::saveAsButton, keys::storySaveAs},
};

struct ButtonIcon {
    int id;
    LineIcon icon;
};

constexpr std::array buttonIcons{
    ButtonIcon{ids::serviceButton, LineIcon::Services},
    ButtonIcon{ids::relationSearchButton, LineIcon::Relation},
    ButtonIcon{ids::dealsSearchButton, LineIcon::Advanced},
    ButtonIcon{ids::warningSearchButton, LineIcon::Bell},
    ButtonIcon{ids::searchButton, LineIcon::Search},
    ButtonIcon{ids::pageDownButton, LineIcon::Next},
    ButtonIcon{ids::pageUpButton, LineIcon::Prev},
    ButtonIcon{ids::saveAsButton, LineIcon::Save},
    ButtonIcon{ids::printButton, LineIcon::Print},
};

LineIcon iconOf(StoryShowType showType) {
    if (showType == StoryShowType::Right)
        return LineIcon::LayoutRight;
    return showType == StoryShowType::Below ? LineIcon::LayoutBelow : LineIcon::LayoutList;
}

// Controls without words on them, as they are called.
constexpr std::array controlNames{
    ButtonText{ids::tabStrip, keys::nameOfModes},     ButtonText{ids::datePicker, keys::nameOfDate},
    ButtonText{ids::categoryCombo, keys::category},   ButtonText{ids::serviceCombo, keys::nameOfMarket},
    ButtonText{ids::symbolCombo, keys::nameOfSymbol}, ButtonText{ids::searchEdit, keys::nameOfSearchText},
    ButtonText{ids::stopWaiting, keys::stopWaiting},
};

struct Placement {
    int id;
    QRect ViewLayout::*place;
};

constexpr std::array placements{
    Placement{ids::tabStrip, &ViewLayout::tabStrip},
    Placement{ids::showTypeButton, &ViewLayout::showTypeButton},
    Placement{ids::serviceButton, &ViewLayout::serviceButton},
    Placement{ids::relationSearchButton, &ViewLayout::relationButton},
    Placement{ids::warningSearchButton, &ViewLayout::warningButton},
    Placement{ids::datePicker, &ViewLayout::datePicker},
    Placement{ids::categoryCombo, &ViewLayout::categoryCombo},
    Placement{ids::serviceCombo, &ViewLayout::serviceCombo},
    Placement{ids::symbolCombo, &ViewLayout::symbolCombo},
    Placement{ids::searchLine, &ViewLayout::searchLine},
    Placement{ids::searchEdit, &ViewLayout::searchEdit},
    Placement{ids::searchButton, &ViewLayout::searchButton},
    Placement{ids::dealsSearchButton, &ViewLayout::dealsButton},
    Placement{ids::pageDownButton, &ViewLayout::pageDown},
    Placement{ids::pageUpButton, &ViewLayout::pageUp},
    Placement{ids::saveAsButton, &ViewLayout::saveAs},
    Placement{ids::printButton, &ViewLayout::print},
};

}  // namespace

ControlSet::ControlSet(TRVVirtualBaseView& newsView, BKQuoteInterface& newsBackEnd)
    : view(newsView), backEnd(newsBackEnd) {}

template <class Control>
Control* ControlSet::add(int id, const QRect& rectangle) {
    auto* control = new Control(&view);
    take(id, *control);
    control->setGeometry(rectangle);
    return control;
}

void ControlSet::addButton(int id, const QRect& rectangle) {
    auto* button = add<SButton>(id, rectangle);
    QObject::connect(button, &SButton::clicked, &view, [this, id] { view.onCommand(id); });
    button->show();
}

void ControlSet::CreateTypeBtn() {
    addButton(ids::showTypeButton, {});
}

void ControlSet::CreateFunctionBtn() {
    for (const int id : {ids::pageDownButton, ids::pageUpButton, ids::saveAsButton, ids::printButton})
        addButton(id, {});
}

void ControlSet::createNotices() {
    add<NoticeLine>(ids::notice, {})->hide();
    for (const int id : ids::noticeCommands) {
        auto* button = add<NoticeButton>(id, {});
        QObject::connect(button, &SButton::clicked, &view, [this, id] { view.onCommand(id); });
        button->hide();
    }
    auto* button = add<SButton>(ids::stopWaiting, {});
    QObject::connect(button, &SButton::clicked, &view, [this] { view.onCommand(ids::askBeforeStop); });
    button->setText(QStringLiteral("\u00D7"));
    button->hide();
}

void ControlSet::take(int id, QWidget& control) {
    setWindowId(&control, id);
    controls.insert(id, &control);
}

void ControlSet::createServiceButton(const QRect& rectangle) {
    addButton(ids::serviceButton, rectangle);
}

void ControlSet::createTabStrip(const QRect& rectangle) {
    auto* strip = add<CXTPTabControl>(ids::tabStrip, rectangle);
    QObject::connect(strip, &CXTPTabControl::selChange, &view, [this] { view.onCommand(ids::tabStrip); });
    strip->show();
}

void ControlSet::createDatePicker(const QRect& rectangle, const QDate& date) {
    add<SDateTimeCtrl>(ids::datePicker, rectangle)->showDate(date);
}

void ControlSet::createCategoryCombo(const QRect& rectangle) {
    auto* combo = add<SCComboBox>(ids::categoryCombo, rectangle);
    QObject::connect(combo, &SCComboBox::selChange, &view, [this] { view.onCommand(ids::categoryCombo); });
}

void ControlSet::CreateControls(ListIndex mode, const QRect& rectangle, const QFont& font) {
    switch (mode) {
        case ListIndex::Symbol:
            for (SCComboBox* combo :
                 {add<SCComboBox>(ids::serviceCombo, rectangle),
                  static_cast<SCComboBox*>(add<CQuoteComboBoxAuto>(ids::symbolCombo, rectangle))}) {
                combo->setFont(font);
                const int id = windowId(combo);
                QObject::connect(combo, &SCComboBox::selChange, &view, [this, id] { view.onCommand(id); });
            }
            break;
        case ListIndex::Search:
            add<SearchEdit2>(ids::searchEdit, rectangle)->setFont(font);
            addButton(ids::searchButton, rectangle);
            addButton(ids::dealsSearchButton, rectangle);
            break;
        case ListIndex::Relation:
            addButton(ids::relationSearchButton, rectangle);
            break;
        case ListIndex::WarningTerm:
            addButton(ids::warningSearchButton, rectangle);
            break;
        default:
            break;
    }
}

void ControlSet::addTab(ListIndex mode) {
    if (auto* strip = find<CXTPTabControl>(ids::tabStrip))
        strip->appendTab(langText(backEnd, modeOf(mode).captionKey), static_cast<int>(mode));
}

int ControlSet::tabIndexOf(int mode) const {
    const auto* strip = find<CXTPTabControl>(ids::tabStrip);
    for (int i = 0; strip != nullptr && i < strip->count(); ++i) {
        if (strip->itemData(i) == mode)
            return i;
    }
    return 0;
}

void ControlSet::showControlsOf(ListIndex mode) {
    const auto shown = modeOf(mode).controls;
    for (const int id : switchableControls()) {
        if (QWidget* control = controls.value(id))
            control->setVisible(std::find(shown.begin(), shown.end(), id) != shown.end());
    }
}

void ControlSet::place(const ViewLayout& layout) {
    for (const Placement& placement : placements) {
        if (QWidget* control = controls.value(placement.id))
            control->setGeometry(layout.*placement.place);
    }
}

void ControlSet::showIcons(StoryShowType showType) {
    for (const ButtonIcon& row : buttonIcons) {
        if (auto* button = find<SButton>(row.id); button != nullptr && button->icon().isNull())
            button->setIcon(lineIcon(row.icon));
    }
    if (auto* button = find<SButton>(ids::showTypeButton))
        button->setIcon(lineIcon(iconOf(showType)));
}

int ControlSet::neededWidth(int id) const {
    const auto* button = find<SButton>(id);
    return button != nullptr ? button->widthWithIcon() : 0;
}

void ControlSet::setFont(const QFont& font) {
    for (const Placement& placement : placements) {
        if (QWidget* control = controls.value(placement.id))
            control->setFont(font);
    }
}

void ControlSet::loadTexts() {
    // Several views share a window, in which no key can stand for a button of each: they have shortcuts.
    for (const ButtonText& text : buttonTexts) {
        if (auto* button = find<SButton>(text.id))
            button->setText(captionWithoutKey(langText(backEnd, text.key)));
    }
    for (const ButtonText& name : controlNames) {
        QWidget* control = controls.value(name.id);
        if (control == nullptr)
            continue;
        control->setAccessibleName(langText(backEnd, name.key));
        // Where one can type into a combo, the line in it has the keyboard.
        if (auto* combo = qobject_cast<QComboBox*>(control); combo != nullptr && combo->isEditable())
            combo->lineEdit()->setAccessibleName(control->accessibleName());
    }
    if (auto* edit = find<SearchEdit2>(ids::searchEdit))
        edit->nameOffer(langText(backEnd, keys::nameOfEarlierSearches));
    auto* strip = find<CXTPTabControl>(ids::tabStrip);
    for (int i = 0; strip != nullptr && i < strip->count(); ++i) {
        if (const auto mode = listOfNumber(strip->itemData(i)))
            strip->showTabText(i, langText(backEnd, modeOf(*mode).captionKey));
    }
}

}  // namespace wirepane
