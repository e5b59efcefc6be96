// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/search_line.h"

#include "headline_list/cell_texts.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/symbol_name.h"
#include "host/controls/chip_line.h"
#include "host/views/news_control_ids.h"
#include "news_view/control_set.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"
#include "search/condition_parts.h"
#include "search/condition_texts.h"
#include "search/search_desk.h"

#include <QLocale>

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString shownNumber(int number) {
    return QLocale(QLocale::English).toString(number);
}

}  // namespace

SearchLine::SearchLine(ViewContext& viewContext, const CommonParts& commonParts, const SearchDesk& desk,
                       Replace search)
    : context(viewContext), parts(commonParts), searches(desk), replace(std::move(search)) {}

void SearchLine::create() {
    auto* line = new ChipLine(&parts.window);
    line->hide();
    parts.controls.take(ids::searchLine, *line);
    connect(line, &ChipLine::taken, this, &SearchLine::takeOut);
}

void SearchLine::watch(CSuperSheetWnd& grid) {
    const QAbstractItemModel* const rows = grid.model();
    connect(rows, &QAbstractItemModel::rowsInserted, this, &SearchLine::followRows);
    connect(rows, &QAbstractItemModel::rowsRemoved, this, &SearchLine::followRows);
    connect(rows, &QAbstractItemModel::layoutChanged, this, &SearchLine::followRows);
    connect(rows, &QAbstractItemModel::modelReset, this, &SearchLine::followRows);
}

void SearchLine::followRows() {
    counted.reset();
    followSoon();
}

// From the event loop: once for what changes together.
void SearchLine::followSoon() {
    if (parts.controls.find<ChipLine>(ids::searchLine) == nullptr || std::exchange(isPosted, true))
        return;
    QMetaObject::invokeMethod(this, &SearchLine::follow, Qt::QueuedConnection);
}

void SearchLine::follow() {
    isPosted = false;
    auto* line = parts.controls.find<ChipLine>(ids::searchLine);
    if (line == nullptr || line->isHidden())
        return;
    const ListIndex list = context.shownList();
    const SearchDesk::Course course = searches.courseOf(list);
    if (!course.isSent) {
        // Where empty lists say why, this one does.
        const bool isSaid = list != ListIndex::Search || parts.settings.options[ViewOption::EmptyStates];
        line->tell({isSaid ? QString() : langText(parts.backEnd, keys::emptySearch), {}, {}, {}});
        return;
    }
    line->setKeyboardBefore(parts.controls.find<QWidget>(
        list == ListIndex::Search ? ids::dealsSearchButton : ids::warningSearchButton));
    ChipLineText text = conditionText(searches.foundUnder(list));
    const HeadlineTable& found = context.listOf(list).headlineTable();
    if (course.isAwaited && found.empty()) {
        text.sum = langText(parts.backEnd, keys::foundAwaited);
    } else {
        text.sum = langText(parts.backEnd, course.isNewestOnly ? keys::foundNewest : keys::foundCount)
                       .arg(shownNumber(found.size()));
        QStringList details{detailsOf(found)};
        if (course.isNewestOnly)
            details.prepend(
                langText(parts.backEnd, course.isAwaited ? keys::foundAwaited : keys::foundEnter));
        details += langText(parts.backEnd, keys::foundUntil)
                       .arg(localTime(course.until).toString(u"yyyy/MM/dd hh:mm"_s));
        if (course.took)
            details += langText(parts.backEnd, keys::foundTook)
                           .arg(shownNumber(static_cast<int>(course.took->count())));
        details.removeAll(QString());
        text.details = details.join(u" · "_s);
    }
    line->tell(text);
}

ChipLineText SearchLine::conditionText(const CSearch& found) const {
    ChipLineText text;
    text.lead = scopeText(found.scope);
    if (isAnyEnough(found))
        text.lead += u" · "_s + searchMethodText(numberOf(SearchMethod::Any));
    const auto add = [&](const QString& part) {
        text.chips.push_back({part, langText(parts.backEnd, keys::foundTakeOut).arg(part)});
    };
    for (const QString& word : wordsOf(found))
        add(word);
    for (const CSymbolInfo& symbol : found.symbols)
        add((symbol.code + u' ' + symbolName(parts.backEnd, symbol).value_or(QString())).trimmed());
    return text;
}

QString SearchLine::detailsOf(const HeadlineTable& found) {
    if (found.empty())
        return {};
    const ListIndex list = context.shownList();
    if (!counted || counted->list != list)
        counted = Counted{list, found.countsOfServices()};
    QStringList details;
    const std::array<int, 256>& counts = counted->ofServices;
    for (std::size_t service = 0; service < counts.size(); ++service) {
        if (counts[service] == 0)
            continue;
        QString name;
        parts.backEnd.BKQNEWS_bGetShortNameByService(name, static_cast<unsigned char>(service));
        details += name + u' ' + shownNumber(counts[service]);
    }
    const QString oldest = localTime(found.at(found.size() - 1).time).toString(u"yyyy/MM/dd"_s);
    details += langText(parts.backEnd, keys::foundSince).arg(oldest);
    return details.join(u" · "_s);
}

void SearchLine::takeOut(int part) {
    const CSearch found = searches.foundUnder(context.shownList());
    const std::size_t words = wordsOf(found).size();
    const auto index = static_cast<std::size_t>(part);
    replace(index < words ? withoutWord(found, index) : withoutSymbol(found, index - words));
    follow();
    // The chip that comes next has the keyboard; where there is none, the rows.
    auto* line = parts.controls.find<ChipLine>(ids::searchLine);
    CSuperSheetWnd* grid = context.listOf(context.shownList()).grid();
    if (line != nullptr && line->told().chips.size() <= index && grid != nullptr)
        grid->setFocus();
}

}  // namespace wirepane
