// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// How a headline list looks where its settings ask for more than the plain columns.
#include "headline_list/headline_columns.h"
#include "headline_list/headline_list.h"
#include "headline_list/language_keys.h"
#include "headline_list/list_state.h"
#include "headline_list/row_tip.h"
#include "headline_list/title_chips.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/clock.h"
#include "host/contract/headline_looks.h"
#include "host/contract/news_record.h"
#include "host/contract/query/search_hits.h"
#include "host/contract/reading_marks.h"
#include "host/controls/row_look.h"
#include "host/controls/row_tints.h"

#include <QHeaderView>
#include <QStringList>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int pricesShown = 2;  // ViewOption::PriceColumns

}  // namespace

void HeadlineList::setOptions(const ViewOptions& options) {
    state->options = options;
    if (sheet == nullptr)
        return;
    sheet->setLook(rowLook(options));
    sheet->stretchLast(options[ViewOption::StretchTitles] || options[ViewOption::MeasuredColumns]);
    measureColumns();
}

// --- Columns ---

void HeadlineList::measureColumns() {
    state->serviceNames.clear();
    if (sheet != nullptr) {
        state->prices.show(*sheet, state->options.value(ViewOption::PriceColumns) == pricesShown);
        sheet->stretchInstead(state->prices.areShown() ? placeOf(HeadlineColumn::Title, owner.GetNewsType())
                                                       : -1);
    }
    if (sheet == nullptr || !state->options[ViewOption::MeasuredColumns])
        return;
    QStringList headings;
    for (const HeadlineColumnKind& column : headlineColumns)
        headings << langText(backEnd, column.headerKey);
    state->widths.measure({sheet->font(), sheet->headingFont(), headings, owner.topicNames()},
                          state->options.value(ViewOption::RowGutter), kind.showDate);
    applyWidths();
}

std::optional<bool> HeadlineList::showsPrices() const {
    const int setting = state->options.value(ViewOption::PriceColumns);
    return setting > 0 && state->prices.arePossible() ? std::optional(setting == pricesShown) : std::nullopt;
}

void HeadlineList::applyWidths() {
    showColumn(HeadlineColumn::Time, true);
    showColumn(HeadlineColumn::Category, state->categoryShown);
    // It is stretched over what the others leave.
    constexpr int leastOfTitle = 120;
    sheet->vSetColWidth(placeOf(HeadlineColumn::Title, owner.GetNewsType()), leastOfTitle);
}

void HeadlineList::showColumn(HeadlineColumn column, bool show) {
    if (column == HeadlineColumn::Category)
        state->categoryShown = show;
    const int place = placeOf(column, owner.GetNewsType());
    const int width = show ? state->widths.of(column) : 0;
    if (sheet == nullptr || place < 0 || sheet->colWidth(place) == width)
        return;
    sheet->vSetColWidth(place, width);
    sheet->viewport()->update();
}

void HeadlineList::takeDraggedWidth(int place, int width) {
    const HeadlineColumnKind* column = columnAt(place);
    if (column == nullptr || !state->widths.isMeasuring())
        return;
    state->widths.setByHand(column->column, width);
    applyWidths();
}

QString HeadlineList::keptWidths() const {
    return state->widths.keptText();
}

void HeadlineList::restoreWidths(const QString& kept) {
    state->widths.restore(kept);
    if (state->widths.isMeasuring())
        applyWidths();
}

// --- Rows ---

SheetChip HeadlineList::chip(const QString& cellText, int column) const {
    const HeadlineColumnKind* shown = columnAt(column);
    const bool isTitle = shown != nullptr && shown->column == HeadlineColumn::Title;
    return isTitle && state->options[ViewOption::TitleChips] ? chipOfTitle(cellText) : SheetChip{};
}

void HeadlineList::markHits(std::shared_ptr<const HitFinder> finder) {
    if (state->hits == finder)
        return;
    state->hits = std::move(finder);
    if (sheet != nullptr)
        sheet->layTextsOutAnew();
}

QList<SheetHit> HeadlineList::hits(const QString& cellText, int column) const {
    constexpr std::size_t most = 100;
    const HeadlineColumnKind* shown = columnAt(column);
    if (state->hits == nullptr || shown == nullptr || shown->column != HeadlineColumn::Title)
        return {};
    QList<SheetHit> marked;
    for (const SearchHit& hit : state->hits->hitsIn(cellText, HitPlace::Title, most))
        marked.append({hit.start, hit.length, hit.word});
    return marked;
}

bool HeadlineList::holdsFigures(int column) const {
    const HeadlineColumnKind* shown = columnAt(column);
    return state->prices.holds(column) || (shown != nullptr && shown->column == HeadlineColumn::Time);
}

QString HeadlineList::serviceName(unsigned char service) const {
    const auto known = state->serviceNames.constFind(service);
    if (known != state->serviceNames.cend())
        return *known;
    QString name;
    backEnd.BKQNEWS_bGetShortNameByService(name, service);
    return *state->serviceNames.insert(service, name);
}

bool HeadlineList::isTitleOfRow(int row, int column) const {
    const HeadlineColumnKind* shown = columnAt(column);
    return shown != nullptr && shown->column == HeadlineColumn::Title && row >= 0 && row < table.size();
}

QString HeadlineList::tag(int row, int column) const {
    return state->options[ViewOption::ServiceTags] && isTitleOfRow(row, column)
               ? serviceName(table.at(row).service)
               : QString();
}

HeadlineLook HeadlineList::lookOf(int row) const {
    return state->looks != nullptr && state->options[ViewOption::AlertLooks] && row >= 0 && row < table.size()
               ? state->looks->lookOf(keyOf(table.at(row)))
               : HeadlineLook();
}

QColor HeadlineList::highlight(int row, int) const {
    return rowTint(lookOf(row).tint);
}

// --- What became of the news ---

NewsState HeadlineList::newsState(int row) const {
    return state->options[ViewOption::RecordMarks] && state->record != nullptr
               ? state->record->newsState(keyOf(table.at(row)))
               : NewsState();
}

void HeadlineList::showStateAgain(const HeadlineKey& key) {
    const int row = table.rowOf(key);
    if (sheet != nullptr && row >= 0)
        sheet->invalidateRow(row);
}

QString HeadlineList::mark(int row, int column) const {
    if (!isTitleOfRow(row, column))
        return {};
    const NewsState news = newsState(row);
    QStringList marks{foldMark(row)};
    if (const auto reading = readingMark(row); reading && reading->isStarred)
        marks << u"\u2605"_s;
    marks << lookOf(row).tag;
    if (news.withdrawal)
        marks << langText(backEnd, keys::withdrawnMark);
    // A title that says so itself says it in its chip.
    const WrittenCells* written = cellsOf(row);
    const bool isSaid =
        written != nullptr && saysCorrected(chip(written->textOf(HeadlineColumn::Title), column));
    if (news.corrections > 0 && !news.withdrawal && !isSaid)
        marks << langText(backEnd, keys::correctedMark);
    marks.removeAll(QString());
    return marks.join(u' ');
}

bool HeadlineList::isStruck(int row, int column) const {
    return isTitleOfRow(row, column) && newsState(row).withdrawal.has_value();
}

// --- What the reader has done with it ---

std::optional<ReadingMark> HeadlineList::readingMark(int row) const {
    if (!state->options[ViewOption::ReadingMarks] || state->marks == nullptr || !state->marks->canMark() ||
        row < 0 || row >= table.size())
        return std::nullopt;
    return state->marks->markOf(keyOf(table.at(row)));
}

SheetCells::Tone HeadlineList::tone(int row) const {
    const std::optional<ReadingMark> mark = readingMark(row);
    if (!mark)
        return Tone::Plain;
    return mark->state == ReadingState::New    ? Tone::Unread
           : mark->state == ReadingState::Seen ? Tone::Seen
                                               : Tone::Read;
}

QString HeadlineList::readingWords(int row) const {
    QStringList words;
    if (const std::optional<ReadingMark> mark = readingMark(row)) {
        if (mark->isStarred)
            words << langText(backEnd, keys::starredState);
        if (mark->wasRead)
            words << langText(backEnd, keys::readBeforeState);
        else if (mark->state == ReadingState::New)
            words << langText(backEnd, keys::unreadState);
    }
    return words.join(u", "_s);
}

// The tone and the star have no words on screen.
QString HeadlineList::spokenText(int row, int column) const {
    QStringList parts{text(row, column)};
    if (isTitleOfRow(row, column)) {
        const NewsState news = newsState(row);
        if (!news.isAsFirstSent())
            parts << langText(backEnd, news.withdrawal ? keys::withdrawnMark : keys::correctedMark);
        parts << readingWords(row) << lookOf(row).tag << foldWords(row);
    }
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

QString HeadlineList::toolTip(int row) const {
    const WrittenCells* written = cellsOf(row);
    if (!state->options[ViewOption::RowTips] || written == nullptr)
        return {};
    const CHeadlineTable& entry = table.at(row);
    const QString words = readingWords(row);
    return rowTip(backEnd, written->textOf(HeadlineColumn::Title), serviceName(entry.service),
                  written->textOf(HeadlineColumn::Category), entry.time, host_clock::now()) +
           recordTip(backEnd, newsState(row)) + (words.isEmpty() ? QString() : u'\n' + words);
}

// --- Rows that have just come ---

// What has come late, as all that a source held before it was first read, is told in its place, but is not
// new.
void HeadlineList::noteArrival(const CHeadline& headline) {
    if (!Arrivals::isNew(headline.time, host_clock::now()))
        return;
    const bool animates = sheet->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, sheet) > 0;
    if (!state->options[ViewOption::MarkArrivals] || !animates || !sheet->isVisible())
        return;
    state->arrivals.note(keyOf(headline), state->clock.elapsed());
    if (!state->fading.isActive())
        state->fading.start(Arrivals::stepMs);
}

int HeadlineList::arrival(int row) const {
    if (state->arrivals.isEmpty() || row < 0 || row >= table.size())
        return 0;
    return state->arrivals.stepOf(keyOf(table.at(row)), state->clock.elapsed());
}

// Only rows on screen that fade are drawn again, and once more when they have faded.
void HeadlineList::fade() {
    if (sheet != nullptr) {
        for (const int row : sheet->rowsOnScreen()) {
            if (state->arrivals.holds(keyOf(table.at(row))))
                sheet->repaintRow(row);
        }
    }
    state->arrivals.forgetFaded(state->clock.elapsed());
    if (state->arrivals.isEmpty())
        state->fading.stop();
}

}  // namespace wirepane
