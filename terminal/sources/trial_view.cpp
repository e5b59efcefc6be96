// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/trial_view.h"

#include "host/contract/colour_roles.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/terminal_text.h"

#include <QDateTime>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int fewestRows = 5;

QString sentenceOf(const TrialReport& report) {
    if (report.fault)
        return shownText(*report.fault);
    if (!report.links.empty())
        return countText(TextId::TrialPage, static_cast<qint64>(report.links.size()));
    if (report.items == 0 && report.reason)
        return countText(TextId::TrialRejected, report.rejected).arg(shownText(*report.reason));
    if (report.items == 0 && report.left > 0)
        return countText(TextId::TrialTooOld, report.left);
    if (report.items == 0)
        return terminalText(TextId::TrialNothing);
    return terminalText(TextId::TrialItems).arg(report.items).arg(report.rejected);
}

}  // namespace

TrialView::TrialView(QWidget* parent) : QWidget(parent), label(new QLabel), list(new QTreeWidget) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAlternatingRowColors(true);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->header()->setStretchLastSection(true);
    list->setMinimumHeight(list->fontMetrics().height() * 3 / 2 * fewestRows);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(4);
    column->addWidget(label);
    column->addWidget(list, 1);
    showNotAsked();
}

void TrialView::showNotAsked() {
    list->clear();
    list->setHeaderLabels({terminalText(TextId::TrialTime), terminalText(TextId::TrialTopic),
                           terminalText(TextId::TrialHeadline)});
    list->setAccessibleName(terminalText(TextId::TrialTitle));
    tell(terminalText(TextId::TrialNotAsked), false);
}

void TrialView::showAsking() {
    list->clear();
    tell(terminalText(TextId::TrialAsking), false);
}

void TrialView::show(const TrialReport& report) {
    list->clear();
    tell(sentenceOf(report), report.fault || (report.items == 0 && report.links.empty()));
    const QDate today = QDate::currentDate();
    for (const TrialItem& item : report.first) {
        const QDateTime time = QDateTime::fromSecsSinceEpoch(item.time);
        new QTreeWidgetItem(list, {time.toString(time.date() == today ? u"HH:mm"_s : u"MM/dd HH:mm"_s),
                                   item.category, item.title});
    }
}

QString TrialView::sentence() const {
    return label->text();
}

int TrialView::items() const {
    return list->topLevelItemCount();
}

void TrialView::tell(const QString& text, bool isFault) {
    QPalette colours;
    if (isFault)
        colours.setColor(QPalette::WindowText,
                         roleColour(ColourRole::Flash, palette().color(QPalette::WindowText)));
    label->setPalette(colours);
    label->setText(text);
}

}  // namespace wirepane
