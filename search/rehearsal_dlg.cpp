// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/rehearsal_dlg.h"

#include "host/contract/lang_text.h"
#include "host/controls/window_id.h"
#include "search/dialog_controls.h"
#include "search/report_list.h"
#include "search/search_ids.h"
#include "search/search_keys.h"

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

constexpr int usualBudget = 20;
constexpr int mostBudget = 100000;
constexpr std::size_t mostHitsShown = 200;
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

}  // namespace

RehearsalDlg::RehearsalDlg(KeySetRehearsal& rehearsals, KeySetRehearsal::KeySet keySet, TitlesOf titlesOfKeys,
                           QWidget* parent)
    : QDialog(parent), titlesOf(std::move(titlesOfKeys)) {
    setWindowId(this, search_ids::rehearsal);
    setWindowTitle(langText(search_keys::rehearsalTitle));
    auto* column = new QVBoxLayout(this);
    summary = addLabel(this, search_ids::rehearsalSummary);
    summary->setText(langText(search_keys::rehearsalRuns));
    column->addWidget(summary);
    column->addLayout(createBudget());
    column->addLayout(createFigures(), 1);
    hits = new ReportList(
        std::array{
            ReportColumn{langText(search_keys::rehearsalTime), timeWidth, Qt::AlignLeft, {momentText(0)}},
            ReportColumn{langText(search_keys::rehearsalHit), 0}},
        this);
    setWindowId(hits, search_ids::rehearsalHits);
    hits->setAccessibleName(langText(search_keys::rehearsalHit));
    column->addWidget(hits, 1);
    auto* close = makeButton(this, search_ids::ok, langText(search_keys::rehearsalClose));
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

QLayout* RehearsalDlg::createBudget() {
    budget = new QSpinBox(this);
    setWindowId(budget, search_ids::rehearsalBudget);
    budget->setRange(1, mostBudget);
    budget->setValue(usualBudget);
    auto* caption = new QLabel(langText(search_keys::rehearsalBudget), this);
    caption->setTextFormat(Qt::PlainText);
    caption->setBuddy(budget);
    warning = addLabel(this, search_ids::rehearsalWarning);
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
    days = createList(search_ids::rehearsalDays, search_keys::rehearsalDay, search_keys::rehearsalCount);
    words =
        createList(search_ids::rehearsalWords, search_keys::rehearsalBrought, search_keys::rehearsalCount);
    exclusions = createList(search_ids::rehearsalExclusions, search_keys::rehearsalExcluded,
                            search_keys::rehearsalSaved);
    auto* row = new QHBoxLayout;
    for (ReportList* list : {days, words, exclusions})
        row->addWidget(list);
    return row;
}

void RehearsalDlg::show(const std::optional<Rehearsal>& outcome) {
    rehearsal = outcome;
    if (!rehearsal) {
        summary->setText(langText(search_keys::rehearsalFailed));
        return;
    }
    QString text = langText(search_keys::rehearsalSummary).arg(rehearsal->hits.size()).arg(rehearsal->tried);
    if (!rehearsal->hours.empty())
        text += u'\n' + langText(search_keys::rehearsalBusiest)
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
    const std::vector<HeadlineKey> newest(
        rehearsal->hits.begin(), rehearsal->hits.begin() + static_cast<std::ptrdiff_t>(std::min(
                                                               rehearsal->hits.size(), mostHitsShown)));
    const QStringList titles = titlesOf(newest);
    for (std::size_t hit = 0; hit < newest.size(); ++hit)
        hits->setRow(static_cast<int>(hit),
                     {momentText(newest[hit].time), titles.value(static_cast<qsizetype>(hit))});
    warn();
}

void RehearsalDlg::warn() {
    if (!rehearsal)
        return;
    const int over = rehearsal->hoursOver(budget->value());
    warning->setText(over > 0 ? langText(search_keys::rehearsalOver).arg(over)
                              : langText(search_keys::rehearsalWithin));
    QFont font = this->font();
    font.setBold(over > 0);
    warning->setFont(font);
}

}  // namespace wirepane
