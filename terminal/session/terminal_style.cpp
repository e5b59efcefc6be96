// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/terminal_style.h"

#include "terminal/session/indicators.h"

#include <QApplication>
#include <QFrame>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int separatorWidth = 3;
constexpr int tabStripe = 2;
constexpr qreal corner = 3;
constexpr int comboArrowWidth = 16;
constexpr int comboTextMargin = 4;

// A plate that is pressed, pointed at, or at rest.
void drawPlate(const QStyleOption& option, QPainter& painter) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool down = option.state & (QStyle::State_Sunken | QStyle::State_On);
    const bool hovered = enabled && option.state.testFlag(QStyle::State_MouseOver);
    const QColor ground = option.palette.color(enabled ? QPalette::Button : QPalette::Window);
    const bool dark = ground.lightness() < 128;
    QColor fill = ground;
    if (down)
        fill = dark ? ground.darker(120) : ground.darker(112);
    else if (hovered)
        fill = dark ? ground.lighter(125) : ground.lighter(103);
    const bool focused = enabled && option.state.testFlag(QStyle::State_HasFocus);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(option.palette.color(focused ? QPalette::Highlight : QPalette::Mid));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter.restore();
}

void drawEditFrame(const QStyleOption& option, QPainter& painter) {
    const bool focused = option.state.testFlag(QStyle::State_HasFocus);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(option.palette.color(focused ? QPalette::Highlight : QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter.restore();
}

// Around a text or a list.
void drawFrame(const QStyleOption& option, QPainter& painter) {
    const bool focused = option.state.testFlag(QStyle::State_HasFocus);
    painter.setPen(option.palette.color(focused ? QPalette::Highlight : QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

// A tab of a strip at the top of what it belongs to.
void drawTab(const QStyleOption& option, QPainter& painter) {
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
    const QPalette& palette = option.palette;
    painter.fillRect(option.rect, palette.color(selected  ? QPalette::Base
                                                : hovered ? QPalette::Button
                                                          : QPalette::Window));
    QRect line = option.rect;
    if (selected) {
        line.setHeight(tabStripe);
        painter.fillRect(line, palette.color(QPalette::Highlight));
    }
    painter.setPen(palette.color(QPalette::Mid));
    painter.drawLine(option.rect.topRight(), option.rect.bottomRight());
}

void drawHeaderSection(const QStyleOption& option, QPainter& painter) {
    painter.fillRect(option.rect, option.palette.color(QPalette::Button));
    painter.setPen(option.palette.color(QPalette::Mid));
    painter.drawLine(option.rect.topRight(), option.rect.bottomRight());
    painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
}

void drawArrow(const QStyle& style, const QStyleOption& option, const QRect& place, QPainter& painter,
               const QWidget* widget) {
    QStyleOption arrow(option);
    const int side = std::min({place.width(), place.height(), 12});
    arrow.rect = QRect(place.center() - QPoint(side / 2, side / 2), QSize(side, side));
    style.drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, widget);
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
    switch (metric) {
        case PM_DockWidgetSeparatorExtent:
            return separatorWidth;
        case PM_ToolBarFrameWidth:
        case PM_ToolBarItemMargin:
        case PM_TabBarTabShiftVertical:
            return 0;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int TerminalStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* answer) const {
    switch (hint) {
        // Drop-downs are lists under their boxes, quick with tens of thousands of items.
        case SH_ComboBox_Popup:
        case SH_DialogButtonBox_ButtonsHaveIcons:
            return 0;
        case SH_Menu_SpaceActivatesItem:  // it ticks a box, so it ticks what looks like one
            return 1;
        default:
            return QProxyStyle::styleHint(hint, option, widget, answer);
    }
}

QRect TerminalStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                    SubControl subControl, const QWidget* widget) const {
    if (control == CC_ComboBox) {
        const QRect& box = option->rect;
        if (subControl == SC_ComboBoxArrow)
            return visualRect(option->direction, box, box.adjusted(box.width() - comboArrowWidth, 0, 0, 0));
        if (subControl == SC_ComboBoxEditField)
            return visualRect(option->direction, box, box.adjusted(comboTextMargin, 1, -comboArrowWidth, -1));
    }
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

void TerminalStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
    switch (element) {
        case PE_PanelButtonCommand:
            drawPlate(*option, *painter);
            break;
        case PE_IndicatorCheckBox:
        case PE_IndicatorItemViewItemCheck:
            drawCheckBox(*option, *painter);
            break;
        case PE_IndicatorRadioButton:
            drawRadioButton(*option, *painter);
            break;
        case PE_FrameLineEdit:
            drawEditFrame(*option, *painter);
            break;
        case PE_IndicatorDockWidgetResizeHandle:
            painter->fillRect(option->rect, option->palette.color(QPalette::Mid));
            break;
        case PE_FrameTabWidget:
            painter->setPen(option->palette.color(QPalette::Mid));
            painter->setBrush(option->palette.color(QPalette::Base));
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
            break;
        case PE_Frame:
            drawFrame(*option, *painter);
            break;
        case PE_FrameMenu:
            painter->setPen(option->palette.color(QPalette::Mid));
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
            break;
        case PE_PanelStatusBar:
            painter->setPen(option->palette.color(QPalette::Mid));
            painter->drawLine(option->rect.topLeft(), option->rect.topRight());
            break;
        case PE_FrameFocusRect:
        case PE_FrameStatusBarItem:
            break;
        default:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void TerminalStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    if (element == CE_TabBarTabShape && tab != nullptr &&
        (tab->shape == QTabBar::RoundedNorth || tab->shape == QTabBar::TriangularNorth)) {
        drawTab(*option, *painter);
    } else if (element == CE_HeaderSection) {
        drawHeaderSection(*option, *painter);
    } else if (element == CE_ToolBar) {
        painter->fillRect(option->rect, option->palette.color(QPalette::Window));
        painter->setPen(option->palette.color(QPalette::Mid));
        painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void TerminalStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control == CC_SpinBox) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        drawEditFrame(*option, *painter);
        return;
    }
    if (control != CC_ComboBox || combo == nullptr || !combo->frame) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    QStyleOptionComboBox plate(*combo);
    if (combo->editable)
        plate.palette.setColor(QPalette::Button, combo->palette.color(QPalette::Base));
    drawPlate(plate, *painter);
    drawArrow(*this, *option, subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget), *painter,
              widget);
}

}  // namespace wirepane
