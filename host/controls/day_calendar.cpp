// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/day_calendar.h"

#include "host/contract/colour_roles.h"
#include "host/controls/line_icon.h"

#include <QBoxLayout>
#include <QEvent>
#include <QPainter>
#include <QPushButton>
#include <QTextCharFormat>
#include <QToolButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qreal corner = 4;
constexpr qreal dotRadius = 1.5;
constexpr qreal dotAbove = 5;  // the middle of the dot above the lower edge
constexpr int edge = 6;        // between the outline and what it holds
constexpr int weeks = 6;
constexpr int daysOfWeek = 7;

}  // namespace

DayCalendar::DayCalendar(QWidget* parent)
    : QCalendarWidget(parent), buttons(new QWidget(this)), row(new QHBoxLayout(buttons)) {
    setVerticalHeaderFormat(NoVerticalHeader);
    row->setContentsMargins(8, 6, 8, 8);
    row->addStretch(1);
    buttons->hide();
    if (auto* column = qobject_cast<QBoxLayout*>(layout())) {
        column->setContentsMargins(edge, edge, edge, edge);
        column->addWidget(buttons);
    }
    dress();
}

void DayCalendar::setDayStates(std::function<DayState(const QDate&)> states) {
    stateOf = std::move(states);
    updateCells();
}

void DayCalendar::addDayButton(const QString& text, std::function<QDate()> day) {
    auto* button = new QPushButton(text, buttons);
    button->setAutoDefault(false);
    row->insertWidget(row->count() - 1, button);
    buttons->show();
    connect(button, &QPushButton::clicked, this, [this, pick = std::move(day)] {
        setSelectedDate(pick());
        emit activated(selectedDate());
    });
}

void DayCalendar::clearDayButtons() {
    const auto present = buttons->findChildren<QPushButton*>();
    for (QPushButton* button : present)
        delete button;
}

// The base knows nothing of the buttons, which would take the room of the last weeks, nor of the dots, and
// sets its days close together.
QSize DayCalendar::minimumSizeHint() const {
    const int line = fontMetrics().height();
    QSize size = QCalendarWidget::minimumSizeHint() + QSize(2 * edge, 2 * edge + weeks * line / 2);
    size.setWidth(qMax(size.width(), daysOfWeek * 2 * line + 2 * edge));
    if (!buttons->isHidden())
        size = QSize(qMax(size.width(), buttons->sizeHint().width()),
                     size.height() + buttons->sizeHint().height());
    return size;
}

// Weekends are days as all others, also in their headings, and the bar above them is no selection.
void DayCalendar::dress() {
    QTextCharFormat plain;
    plain.setForeground(palette().color(QPalette::PlaceholderText));
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        setWeekdayTextFormat(day, plain);
    QTextCharFormat heading;
    heading.setForeground(palette().color(QPalette::PlaceholderText));
    heading.setBackground(palette().color(QPalette::Window));
    setHeaderTextFormat(heading);
    if (auto* bar = findChild<QWidget*>(u"qt_calendar_navigationbar"_s)) {
        bar->setBackgroundRole(QPalette::Window);
        orderTitle(*bar);
    }
    for (const auto& [name, icon] : {std::pair(u"qt_calendar_prevmonth"_s, LineIcon::Left),
                                     std::pair(u"qt_calendar_nextmonth"_s, LineIcon::Right)}) {
        if (auto* step = findChild<QToolButton*>(name))
            step->setIcon(lineIcon(icon));
    }
}

// The base names the month first in every language.
void DayCalendar::orderTitle(const QWidget& bar) const {
    auto* places = qobject_cast<QBoxLayout*>(bar.layout());
    auto* month = findChild<QWidget*>(u"qt_calendar_monthbutton"_s);
    auto* year = findChild<QWidget*>(u"qt_calendar_yearbutton"_s);
    if (places == nullptr || month == nullptr || year == nullptr)
        return;
    const QString form = locale().dateFormat(QLocale::LongFormat);
    const bool isYearFirst = form.indexOf(u'y') < form.indexOf(u'M');
    if (isYearFirst == (places->indexOf(year) < places->indexOf(month)))
        return;
    places->removeWidget(month);
    places->insertWidget(places->indexOf(year) + (isYearFirst ? 1 : 0), month);
}

void DayCalendar::changeEvent(QEvent* event) {
    QCalendarWidget::changeEvent(event);
    const bool isOther = event->type() == QEvent::PaletteChange || event->type() == QEvent::LocaleChange;
    if (isOther && row != nullptr)
        dress();
}

// It lies over a list of much the same ground.
void DayCalendar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Dark));
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void DayCalendar::paintCell(QPainter* painter, const QRect& place, QDate date) const {
    const DayState state = stateOf ? stateOf(date) : DayState();
    const bool isSelected = date == selectedDate();
    const bool isOtherMonth = date.month() != monthShown() || date.year() != yearShown();
    const QPalette colours = palette();
    QColor text = colours.color(isOtherMonth ? QPalette::PlaceholderText : QPalette::Text);
    painter->save();
    painter->fillRect(place, colours.color(QPalette::Window));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    if (isSelected) {
        text = roleColour(ColourRole::OnAccent, colours.color(QPalette::HighlightedText));
        painter->setBrush(roleColour(ColourRole::Accent, colours.color(QPalette::Highlight)));
        painter->drawRoundedRect(QRectF(place).adjusted(2, 1, -2, -1), corner, corner);
    } else if (state.isOutOfRange || date < minimumDate() || date > maximumDate()) {
        text = colours.color(QPalette::Disabled, QPalette::Text);
    }
    if (state.hasNews) {
        painter->setBrush(text);
        painter->drawEllipse(QPointF(QRectF(place).center().x(), place.bottom() + 1 - dotAbove), dotRadius,
                             dotRadius);
    }
    painter->setPen(text);
    painter->drawText(place.adjusted(0, 0, 0, -static_cast<int>(dotAbove)), Qt::AlignCenter,
                      QString::number(date.day()));
    painter->restore();
}

}  // namespace wirepane
