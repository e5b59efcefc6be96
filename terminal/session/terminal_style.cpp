// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/terminal_style.h"

#include "host/contract/colour_roles.h"
#include "host/controls/line_icon.h"
#include "host/controls/row_look.h"
#include "host/controls/thin_bar_style.h"
#include "host/views/quote_base_view.h"
#include "terminal/session/indicators.h"
#include "terminal/session/plates.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFrame>
#include <QLineEdit>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTextLayout>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int comboArrowWidth = 18;
constexpr int comboTextMargin = 4;
constexpr int arrowSide = 12;
constexpr int calendarSide = 14;
constexpr int menuBarPadding = 8;
constexpr int menuAir = 4;  // what an entry has over what its text needs

struct Metric {
    QStyle::PixelMetric metric;
    int pixels;
    bool grows = false;  // with the size of type
};

constexpr Metric metrics[] = {
    {QStyle::PM_DefaultFrameWidth, 1},
    {QStyle::PM_ButtonMargin, 8},
    {QStyle::PM_SmallIconSize, 16, true},
    {QStyle::PM_ButtonIconSize, 14, true},
    {QStyle::PM_IndicatorWidth, 14, true},
    {QStyle::PM_IndicatorHeight, 14, true},
    {QStyle::PM_ExclusiveIndicatorWidth, 14, true},
    {QStyle::PM_ExclusiveIndicatorHeight, 14, true},
    {QStyle::PM_ScrollBarExtent, thin_bar::widest},
    {QStyle::PM_ScrollBarSliderMin, 24},
    {QStyle::PM_SplitterWidth, 7},
    {QStyle::PM_TabBarTabHSpace, 24},
    {QStyle::PM_TabBarTabVSpace, 10},
    {QStyle::PM_TabBarBaseHeight, 1},
    {QStyle::PM_TabBarTabShiftVertical, 0},
    {QStyle::PM_MenuBarItemSpacing, 0},
    {QStyle::PM_MenuBarHMargin, 0},
    {QStyle::PM_MenuBarVMargin, 0},
    {QStyle::PM_MenuBarPanelWidth, 0},
    {QStyle::PM_MenuPanelWidth, 1},
    {QStyle::PM_MenuVMargin, 4},
    {QStyle::PM_ToolTipLabelFrameWidth, 6},
    {QStyle::PM_FocusFrameHMargin, 2},
    {QStyle::PM_FocusFrameVMargin, 2},
    {QStyle::PM_DockWidgetSeparatorExtent, 3},
    {QStyle::PM_ToolBarFrameWidth, 0},
    {QStyle::PM_ToolBarItemMargin, 0},
};

// What is drawn where an arrow points.
std::optional<LineIcon> arrowOf(QStyle::PrimitiveElement element) {
    switch (element) {
        case QStyle::PE_IndicatorArrowDown:
            return LineIcon::Down;
        case QStyle::PE_IndicatorArrowUp:
            return LineIcon::Prev;
        case QStyle::PE_IndicatorArrowLeft:
            return LineIcon::Left;
        case QStyle::PE_IndicatorArrowRight:
            return LineIcon::Right;
        default:
            return std::nullopt;
    }
}

// Icons and what stands beside text grow with it.
int grownWithType(int pixels) {
    return grown(pixels, QApplication::font());
}

void drawArrow(LineIcon icon, const QStyleOption& option, const QRect& place, int side, QPainter& painter) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(place).center());
    drawLineIcon(
        painter, icon, square,
        option.palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::PlaceholderText));
}

// The line to type in of a control that has drawn ground and outline itself.
bool isPartOfInput(const QWidget* widget) {
    const QWidget* parent = widget != nullptr ? widget->parentWidget() : nullptr;
    return qobject_cast<const QComboBox*>(parent) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(parent) != nullptr;
}

int lineHeight(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return qRound(line.height());
}

// A line edit takes account twice of characters that are higher than its font's own, as Chinese ones are: it
// sets them, and all beside them, too high by this.
int liftOf(const QLineEdit& line) {
    const QString text = line.displayText();
    const bool isPlain =
        std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 0x250; });
    return isPlain ? 0 : (lineHeight(text, line.font()) - lineHeight(u"0"_s, line.font())) / 2;
}

bool isInView(const QWidget* widget) {
    return widget != nullptr && qobject_cast<const TRVQuoteBaseView*>(widget->parentWidget()) != nullptr;
}

// With a part of the palette changed.
template <class Option>
Option recoloured(const Option& option, QPalette::ColorRole part, const QColor& colour) {
    Option changed(option);
    changed.palette.setColor(part, colour);
    return changed;
}

bool isLeftOut(QStyle::PrimitiveElement element) {
    return element == QStyle::PE_FrameFocusRect || element == QStyle::PE_FrameStatusBarItem ||
           element == QStyle::PE_PanelMenuBar;
}

void drawGroupFrame(const QStyleOption& option, QPainter& painter) {
    painter.setPen(option.palette.color(QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

}  // namespace

TerminalStyle::TerminalStyle() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {
    // What scrolls draws its contents anew when the keyboard comes or goes, not its frame.
    connect(qApp, &QApplication::focusChanged, this, [](QWidget* old, QWidget* now) {
        for (QWidget* widget : {old, now}) {
            if (auto* framed = qobject_cast<QFrame*>(widget))
                framed->update();
        }
    });
}

int TerminalStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    for (const Metric& own : metrics) {
        if (own.metric == metric)
            return own.grows ? grownWithType(own.pixels) : own.pixels;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int TerminalStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* answer) const {
    switch (hint) {
        // Drop-downs are lists under their boxes, quick with tens of thousands of items.
        case SH_ComboBox_Popup:
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_ScrollBar_Transient:
        case SH_EtchDisabledText:
            return 0;
        case SH_ToolTip_WakeUpDelay:
            return 500;
        case SH_Menu_SpaceActivatesItem:  // it ticks a box, so it ticks what looks like one
            return 1;
        default:
            return QProxyStyle::styleHint(hint, option, widget, answer);
    }
}

QSize TerminalStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                      const QWidget* widget) const {
    if (type == CT_MenuBarItem)
        return size + QSize(2 * menuBarPadding, 10);
    const QSize asked = QProxyStyle::sizeFromContents(type, option, size, widget);
    // The tab in front is written bolder than it has been measured.
    if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option); type == CT_TabBarTab && tab)
        return {std::max(asked.width(), tabWidth(*tab, widget->font())), asked.height()};
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type == CT_MenuItem && entry != nullptr && entry->menuItemType != QStyleOptionMenuItem::Separator)
        return asked + QSize(0, menuAir);
    if (type == CT_ComboBox)
        return asked + QSize(grownWithType(comboArrowWidth) - comboArrowWidth, 0);
    return asked;
}

QRect TerminalStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                    SubControl subControl, const QWidget* widget) const {
    if (control == CC_ComboBox) {
        const QRect& box = option->rect;
        const int arrowWidth = grownWithType(comboArrowWidth);
        if (subControl == SC_ComboBoxArrow)
            return visualRect(option->direction, box, box.adjusted(box.width() - arrowWidth, 0, 0, 0));
        if (subControl == SC_ComboBoxEditField)
            return visualRect(option->direction, box, box.adjusted(comboTextMargin, 1, -arrowWidth, -1));
    }
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr)
        return thin_bar::part(*bar, subControl);
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

QRect TerminalStyle::subElementRect(SubElement element, const QStyleOption* option,
                                    const QWidget* widget) const {
    QRect place = QProxyStyle::subElementRect(element, option, widget);
    // The text stands in the middle: room below moves it down.
    if (const auto* line = qobject_cast<const QLineEdit*>(widget); element == SE_LineEditContents && line)
        place.adjust(0, 0, 0, 2 * liftOf(*line));
    return place;
}

QIcon TerminalStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                  const QWidget* widget) const {
    return icon == SP_LineEditClearButton ? lineIcon(LineIcon::Close, QPalette::PlaceholderText)
                                          : QProxyStyle::standardIcon(icon, option, widget);
}

void TerminalStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (const auto arrow = arrowOf(element)) {
        drawArrow(*arrow, *option, option->rect, std::min(grownWithType(arrowSide), option->rect.width()),
                  *painter);
        return;
    }
    switch (element) {
        case PE_PanelButtonCommand:
            if (button != nullptr)
                drawButtonPlate(*button, *painter);
            break;
        case PE_PanelButtonTool:
            drawToolPlate(*option, *painter);
            break;
        case PE_IndicatorCheckBox:
        case PE_IndicatorItemViewItemCheck:
            drawCheckBox(*option, *painter);
            break;
        case PE_IndicatorRadioButton:
            drawRadioButton(*option, *painter);
            break;
        case PE_PanelLineEdit:
            if (frame != nullptr && frame->lineWidth > 0 && !isPartOfInput(widget))
                drawInput(*option, *painter, true);
            break;
        case PE_FrameLineEdit:
            drawInput(*option, *painter, false);
            break;
        case PE_IndicatorDockWidgetResizeHandle:
            drawSplitter(*option, *painter);
            break;
        case PE_FrameTabWidget:
        case PE_FrameGroupBox:
            drawGroupFrame(*option, *painter);
            break;
        case PE_Frame:
            drawListFrame(*option, *painter, isInView(widget));
            break;
        case PE_PanelTipLabel:
            painter->fillRect(option->rect, option->palette.color(QPalette::ToolTipBase));
            drawPopupFrame(*option, *painter);
            break;
        case PE_PanelMenu:
            painter->fillRect(option->rect, option->palette.color(QPalette::Window));
            break;
        case PE_FrameMenu:
            drawPopupFrame(*option, *painter);
            break;
        case PE_PanelStatusBar:
            painter->setPen(option->palette.color(QPalette::Mid));
            painter->drawLine(option->rect.topLeft(), option->rect.topRight());
            break;
        default:
            if (!isLeftOut(element))
                QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void TerminalStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    switch (element) {
        case CE_TabBarTabShape:
            break;  // with its label
        case CE_TabBarTabLabel:
            if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option))
                drawTab(*tab, *painter);
            break;
        case CE_PushButtonLabel:
            drawButtonLabel(*option, *painter, widget);
            break;
        case CE_HeaderSection:
        case CE_HeaderEmptyArea:
            drawHeading(*option, *painter);
            break;
        case CE_Splitter:
            drawSplitter(*option, *painter);
            break;
        case CE_MenuItem:
        case CE_MenuBarItem:
            drawMenuEntry(element, *option, *painter, widget);
            break;
        case CE_MenuBarEmptyArea:
            painter->fillRect(option->rect, option->palette.color(QPalette::Window));
            break;
        case CE_ProgressBarContents:
            if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option)) {
                const auto own = recoloured(*bar, QPalette::Highlight, bar->palette.color(QPalette::Link));
                QProxyStyle::drawControl(element, &own, painter, widget);
            }
            break;
        case CE_ToolBar:
            painter->fillRect(option->rect, option->palette.color(QPalette::Window));
            painter->setPen(option->palette.color(QPalette::Mid));
            painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
            break;
        default:
            QProxyStyle::drawControl(element, option, painter, widget);
    }
}

// The default button has its text on the accent. An icon stands a little off its text, both in the middle.
void TerminalStyle::drawButtonLabel(const QStyleOption& option, QPainter& painter,
                                    const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool onAccent = button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton) &&
                          button->state.testFlag(State_Enabled);
    if (!onAccent) {
        if (button != nullptr && !button->icon.isNull() && !button->text.isEmpty())
            drawIconAndText(*button, painter);
        else
            QProxyStyle::drawControl(CE_PushButtonLabel, &option, &painter, widget);
        return;
    }
    const QColor text = roleColour(ColourRole::OnAccent, option.palette.color(QPalette::Base));
    const auto own = recoloured(*button, QPalette::ButtonText, text);
    painter.save();
    QFont font = painter.font();
    font.setWeight(QFont::Medium);
    painter.setFont(font);
    QProxyStyle::drawControl(CE_PushButtonLabel, &own, &painter, widget);
    painter.restore();
}

void TerminalStyle::drawIconAndText(const QStyleOptionButton& button, QPainter& painter) const {
    constexpr int gap = 5;
    const bool enabled = button.state.testFlag(State_Enabled);
    const QSize text = button.fontMetrics.size(Qt::TextShowMnemonic, button.text);
    QRect place(0, 0, button.iconSize.width() + gap + text.width(), button.rect.height());
    place.moveCenter(button.rect.center());
    const QRect icon = visualRect(button.direction, button.rect,
                                  QRect(place.topLeft(), QSize(button.iconSize.width(), place.height())));
    button.icon.paint(&painter, icon, Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled);
    const QRect words =
        visualRect(button.direction, button.rect, place.adjusted(button.iconSize.width() + gap, 0, 0, 0));
    drawItemText(&painter, words,
                 Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextSingleLine | Qt::TextDontClip,
                 button.palette, enabled, button.text, QPalette::ButtonText);
}

void TerminalStyle::drawMenuEntry(ControlElement element, const QStyleOption& option, QPainter& painter,
                                  const QWidget* widget) const {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
    if (entry == nullptr)
        return;
    painter.fillRect(option.rect, option.palette.color(QPalette::Window));
    if (element == CE_MenuItem && entry->menuItemType == QStyleOptionMenuItem::Separator) {
        const QRect& place = option.rect;
        painter.fillRect(place.left(), place.center().y(), place.width(), 1,
                         option.palette.color(QPalette::Mid));
        return;
    }
    QStyleOptionMenuItem plain(*entry);
    if (entry->state.testFlag(State_Selected) && entry->state.testFlag(State_Enabled)) {
        drawMenuMark(option, painter);
        plain.state &= ~(State_Selected | State_Sunken);
    }
    if (element == CE_MenuBarItem) {
        drawItemText(&painter, option.rect,
                     Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip | Qt::TextSingleLine,
                     option.palette, entry->state.testFlag(State_Enabled), entry->text, QPalette::WindowText);
        return;
    }
    QProxyStyle::drawControl(element, &plain, &painter, widget);
}

void TerminalStyle::drawSpinBox(const QStyleOptionComplex& option, QPainter& painter,
                                const QWidget* widget) const {
    drawInput(option, painter, true);
    for (const auto& [part, icon] :
         {std::pair(SC_SpinBoxUp, LineIcon::Prev), std::pair(SC_SpinBoxDown, LineIcon::Next)})
        drawArrow(icon, option, proxy()->subControlRect(CC_SpinBox, &option, part, widget), grownWithType(8),
                  painter);
}

void TerminalStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_SpinBox) {
        drawSpinBox(*option, *painter, widget);
    } else if (control == CC_ScrollBar && bar != nullptr) {
        thin_bar::draw(*bar, *painter, widget);
    } else if (control == CC_ComboBox && (combo == nullptr || combo->frame)) {
        // Date pickers come with the option of a spin box.
        const bool isDate = qobject_cast<const QDateTimeEdit*>(widget) != nullptr;
        drawInput(*option, *painter, true);
        drawArrow(isDate ? LineIcon::Calendar : LineIcon::Down, *option,
                  subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget).adjusted(0, 0, -2, 0),
                  grownWithType(isDate ? calendarSide : arrowSide), *painter);
    } else if (const auto* tool = qstyleoption_cast<const QStyleOptionToolButton*>(option);
               control == CC_ToolButton && tool != nullptr) {
        // That a menu opens needs no arrow in the corner of the words.
        QStyleOptionToolButton plain(*tool);
        plain.features &= ~QStyleOptionToolButton::HasMenu;
        QProxyStyle::drawComplexControl(control, &plain, painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

}  // namespace wirepane
