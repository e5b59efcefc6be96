// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/status_line.h"

#include "host/contract/colour_roles.h"
#include "host/controls/line_icon.h"
#include "terminal/translations/terminal_text.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTimeZone>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int minute = 60;
constexpr int hour = 60 * minute;
constexpr qreal fontShare = 0.9;  // of the controls' size

QString link(const QString& name, TextId text) {
    const QColor colour = QApplication::palette().color(QPalette::Link);
    return u"<a href='%1' style='color:%2; text-decoration:none'>%3</a>"_s.arg(
        name, colour.name(), terminalText(text).toHtmlEscaped());
}

QString ageText(std::int64_t seconds) {
    if (seconds < minute)
        return terminalText(TextId::SecondsAgo).arg(seconds);
    if (seconds < hour)
        return terminalText(TextId::MinutesAgo).arg(seconds / minute);
    return terminalText(TextId::HoursAgo).arg(seconds / hour);
}

QString headlinesText(const FrameStatus& status) {
    if (status.headlines < 0)
        return {};
    const QString all = countText(TextId::HeadlineCount, status.headlines);
    return status.unread.isEmpty() ? all : all + u" · "_s + terminalText(TextId::UnreadOf).arg(status.unread);
}

// What searches do not find, or find in another way than they will.
QString indexText(const FrameStatus& status) {
    if (status.searchBacklog > 0)
        return countText(TextId::SearchBacklog, status.searchBacklog);
    return status.searchRenewal ? terminalText(TextId::SearchRenewal).arg(*status.searchRenewal) : QString();
}

// Which day the list is of, where that is not to be taken for granted.
QString dayText(const FrameStatus& status) {
    const auto textOf = [](TextId text, const QDate& day) {
        return terminalText(text).arg(day.toString(u"yyyy/MM/dd"_s)).toHtmlEscaped();
    };
    if (status.shownDay.isValid())
        return textOf(TextId::ShownDay, status.shownDay) + u"&nbsp;&nbsp;&nbsp;"_s +
               link(u"today"_s, TextId::ShowToday);
    return status.newDay.isValid() ? textOf(TextId::NewDay, status.newDay) : QString();
}

QString lastText(const FrameStatus& status) {
    if (status.lastHeadline == 0)
        return {};
    const QString time = QDateTime::fromSecsSinceEpoch(status.lastHeadline).toString(u"HH:mm:ss"_s);
    return terminalText(TextId::LastHeadline)
        .arg(time, ageText(std::max<std::int64_t>(0, status.now - status.lastHeadline)));
}

// With the place that the zone is named after, or in languages that write it otherwise its distance from UTC.
QString clockText(std::int64_t now) {
    const QDateTime time = QDateTime::fromSecsSinceEpoch(now);
    const QString zone = QString::fromUtf8(QTimeZone::systemTimeZoneId());
    QString place = zone.mid(zone.lastIndexOf(u'/') + 1).replace(u'_', u' ');
    if (QLocale().language() != QLocale::English)
        place = time.toOffsetFromUtc(time.offsetFromUtc()).toString(u"t"_s).remove(u"UTC"_s);
    return u"%1 %2"_s.arg(time.toString(u"HH:mm:ss"_s), place).trimmed();
}

// What one can do about the news that there is.
QString offers(const FrameStatus& status) {
    if (status.isInvented)
        return link(u"import"_s, TextId::StatusImport) + u"&nbsp;&nbsp;&nbsp;"_s +
               link(u"connect"_s, TextId::StatusConnect);
    return status.hasNoSource ? link(u"connect"_s, TextId::NoSourcesAdd) : QString();
}

void showColoured(QLabel* label, const QString& text, ColourRole role) {
    QPalette colours;
    colours.setColor(QPalette::WindowText,
                     roleColour(role, QApplication::palette().color(QPalette::WindowText)));
    label->setPalette(colours);
    label->setText(text);
}

void showText(QLabel* label, const QString& text) {
    label->setText(text);
    label->setVisible(!text.isEmpty());
}

}  // namespace

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent),
      feed(addLabel()),
      actions(addLabel()),
      last(addLabel()),
      asOf(addLabel()),
      present(new QPushButton(this)),
      day(addLabel()),
      index(addLabel()),
      headlines(addLabel()),
      services(addLabel()),
      servicesIcon(new QLabel(services)),
      alerts(new QPushButton(this)),
      clock(addLabel()) {
    for (QLabel* links : {actions, day}) {
        links->setTextFormat(Qt::RichText);
        links->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    }
    for (QLabel* weak : {last, index, headlines, services, clock})
        weak->setForegroundRole(QPalette::PlaceholderText);
    present->setAutoDefault(false);
    alerts->setAutoDefault(false);
    alerts->setFlat(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 0, 8, 0);
    row->setSpacing(12);
    for (QWidget* part : std::initializer_list<QWidget*>{feed, actions, last, asOf, present, day})
        row->addWidget(part);
    row->addStretch(1);
    for (QWidget* part : std::initializer_list<QWidget*>{index, headlines, services, alerts, clock})
        row->addWidget(part);
    connect(alerts, &QPushButton::clicked, this, &StatusLine::alertsAsked);
    connect(actions, &QLabel::linkActivated, this,
            [this](const QString& name) { name == "import"_L1 ? emit importAsked() : emit connectAsked(); });
    connect(day, &QLabel::linkActivated, this, &StatusLine::todayAsked);
    connect(present, &QPushButton::clicked, this, &StatusLine::presentAsked);
}

QLabel* StatusLine::addLabel() {
    auto* label = new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    return label;
}

// A little smaller than what is read.
void StatusLine::fitFont() {
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * fontShare);
    if (this->font() != font)
        setFont(font);
}

void StatusLine::show(const FrameStatus& status) {
    const ColourRole tone = status.isLive && !status.isInvented ? ColourRole::Good : ColourRole::Warning;
    showColoured(feed, u"●  "_s + status.feed, tone);
    QStringList tips = status.feedTip.split(u'\n', Qt::SkipEmptyParts);
    tips.append(QDir::toNativeSeparators(status.storeFile));
    feed->setToolTip(tips.join(u'\n').toHtmlEscaped().replace(u'\n', u"<br>"_s));
    showText(actions, offers(status));
    last->setText(status.isInvented ? QString() : lastText(status));
    showColoured(asOf, status.asOf.isEmpty() ? QString() : terminalText(TextId::AsOf).arg(status.asOf),
                 ColourRole::Warning);
    asOf->setVisible(!status.asOf.isEmpty());
    present->setText(terminalText(TextId::Present));
    present->setVisible(!status.asOf.isEmpty());
    showText(day, dayText(status));
    index->setText(indexText(status));
    showText(headlines, headlinesText(status));
    showText(services,
             status.services < 0
                 ? QString()
                 : countText(terminalText(TextId::ServicesCount).arg(status.services), status.allServices));
    const int side = fontMetrics().height();
    servicesIcon->setPixmap(lineIcon(LineIcon::Services, QPalette::PlaceholderText)
                                .pixmap(QSize(side, side), devicePixelRatioF()));
    servicesIcon->setGeometry(0, 0, side, services->height());
    services->setContentsMargins(side + 4, 0, 0, 0);
    alerts->setIcon(lineIcon(LineIcon::Bell));
    alerts->setText(status.alerts > 0 ? QString::number(status.alerts) : QString());
    alerts->setAccessibleName(countText(TextId::AlertCount, status.alerts));
    alerts->setToolTip(terminalText(TextId::AlertsOpen));
    clock->setText(clockText(status.now));
    giveRoom();
}

// What one needs least gives way where all together are too wide.
void StatusLine::giveRoom() {
    const std::array parts{services, last, index, headlines};
    for (QLabel* part : parts)
        part->setHidden(part->text().isEmpty());
    for (QLabel* part : parts) {
        if (layout()->totalSizeHint().width() <= width())
            return;
        part->hide();
    }
}

void StatusLine::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    giveRoom();
}

}  // namespace wirepane
