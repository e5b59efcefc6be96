// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/rehearsal_dlg.h"

#include "host/contract/lang_text.h"
#include "host/controls/report_list.h"
#include "host/controls/window_id.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int characters = 110;
constexpr int rowsOfFigures = 10;
constexpr int rowsOfHits = 8;
constexpr int timeWidth = 120;
constexpr int countWidth = 60;

QString momentText(std::int64_t moment) {
    return QDateTime::fromSecsSinceEpoch(moment).toString(u"yyyy/MM/dd HH:mm"_s);
}

QLabel* addLabel(QDialog* dialog, int id) {
    auto* label = new QLabel(dialog);
    setWindowId(label, id);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

// "%1", "%2": numbers, or an hour and a number.
namespace keys {

constexpr QLatin1StringView title{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_TITLE"};
constexpr QLatin1StringView runs{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_RUNS"};
constexpr QLatin1StringView failed{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_FAILED"};
constexpr QLatin1StringView summary{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_SUMMARY"};
constexpr QLatin1StringView busiest{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BUSIEST"};
constexpr QLatin1StringView budget{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BUDGET"};
constexpr QLatin1StringView over{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_OVER"};
constexpr QLatin1StringView within{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_WITHIN"};
constexpr QLatin1StringView day{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_DAY"};
constexpr QLatin1StringView count{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_COUNT"};
constexpr QLatin1StringView brought{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_BROUGHT"};
constexpr QLatin1StringView excluded{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_EXCLUDED"};
constexpr QLatin1StringView saved{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_SAVED"};
constexpr QLatin1StringView time{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_TIME"};
constexpr QLatin1StringView hit{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_HIT"};
constexpr QLatin1StringView close{"IDS_DIALOG-DEAL-SEARCH_REHEARSAL_CLOSE"};

}  // namespace keys

}  // namespace

RehearsalDlg::RehearsalDlg(KeySetRehearsal& rehearsals, KeySetRehearsal::KeySet keySet, int present,
                           QWidget* parent)
    : QDialog(parent) {
    setWindowId(this, rehearsal_ids::dialog);
    setWindowTitle(langText(keys::title));
    auto* column = new QVBoxLayout(this);
    summary = addLabel(this, rehearsal_ids::summary);
    summary->setText(langText(keys::runs));
    column->addWidget(summary);
    column->addLayout(createBudget(present));
    column->addLayout(createFigures(), 1);
    hits = new ReportList(
        std::array{ReportColumn{langText(keys::time), timeWidth, Qt::AlignLeft, {momentText(0)}},
                   ReportColumn{langText(keys::hit), 0}},
        this);
    setWindowId(hits, rehearsal_ids::hits);
    hits->setAccessibleName(langText(keys::hit));
    column->addWidget(hits, 1);
    auto* close = new QPushButton(langText(keys::close), this);
    setWindowId(close, rehearsal_ids::close);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    column->addWidget(close, 0, Qt::AlignRight);
    for (ReportList* list : {days, words, exclusions})
        list->setMinimumHeight(list->heightOf(rowsOfFigures));
    hits->setMinimumHeight(hits->heightOf(rowsOfHits));
    resize(characters * fontMetrics().averageCharWidth(), sizeHint().height());
    running = rehearsals.rehearseKeySet(std::move(keySet),
                                        [this](const std::optional<Rehearsal>& outcome) { show(outcome); });
}

QLayout* RehearsalDlg::createBudget(int present) {
    budget = new QSpinBox(this);
    setWindowId(budget, rehearsal_ids::budget);
    budget->setRange(1, largestBudget);
    budget->setValue(present);
    auto* caption = new QLabel(langText(keys::budget), this);
    caption->setTextFormat(Qt::PlainText);
    caption->setBuddy(budget);
    warning = addLabel(this, rehearsal_ids::warning);
    connect(budget, &QSpinBox::valueChanged, this, &RehearsalDlg::warn);
    auto* row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(budget);
    row->addWidget(warning, 1);
    return row;
}

ReportList* RehearsalDlg::createList(int id, QLatin1StringView what, QLatin1StringView count) {
    auto* list = new ReportList(std::array{ReportColumn{langText(count), countWidth, Qt::AlignRight},
                                           ReportColumn{langText(what), 0}},
                                this);
    setWindowId(list, id);
    list->setAccessibleName(langText(what));
    return list;
}

QLayout* RehearsalDlg::createFigures() {
    days = createList(rehearsal_ids::days, keys::day, keys::count);
    words = createList(rehearsal_ids::words, keys::brought, keys::count);
    exclusions = createList(rehearsal_ids::exclusions, keys::excluded, keys::saved);
    auto* row = new QHBoxLayout;
    for (ReportList* list : {days, words, exclusions})
        row->addWidget(list);
    return row;
}

void RehearsalDlg::show(const std::optional<Rehearsal>& outcome) {
    rehearsal = outcome;
    if (!rehearsal) {
        summary->setText(langText(keys::failed));
        return;
    }
    QString text = langText(keys::summary).arg(rehearsal->hits.size()).arg(rehearsal->tried);
    if (!rehearsal->hours.empty())
        text += u'\n' + langText(keys::busiest)
                            .arg(momentText(rehearsal->hours.front().begin))
                            .arg(rehearsal->hours.front().hits);
    summary->setText(text);
    // The last day first: it is what the user remembers.
    int row = 0;
    for (auto day = rehearsal->days.rbegin(); day != rehearsal->days.rend(); ++day)
        days->setRow(row++, {QString::number(day->hits), day->day.toString(u"yyyy/MM/dd"_s)});
    const auto fill = [](ReportList& list, const std::vector<Rehearsal::Word>& found) {
        int next = 0;
        for (const Rehearsal::Word& word : found)
            list.setRow(next++, {QString::number(word.hits), word.text});
    };
    fill(*words, rehearsal->bringing);
    fill(*exclusions, rehearsal->exclusions);
    int hit = 0;
    for (const QString& title : std::as_const(rehearsal->titles)) {
        hits->setRow(hit, {momentText(rehearsal->hits[static_cast<std::size_t>(hit)].time), title});
        ++hit;
    }
    warn();
}

int RehearsalDlg::hitsAnHour() const {
    return budget->value();
}

void RehearsalDlg::warn() {
    if (!rehearsal)
        return;
    const int over = rehearsal->hoursOver(budget->value());
    warning->setText(over > 0 ? langText(keys::over).arg(over) : langText(keys::within));
    QFont font = this->font();
    font.setBold(over > 0);
    warning->setFont(font);
}

}  // namespace wirepane
