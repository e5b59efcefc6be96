// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/searches.h"

#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/language_keys.h"
#include "headline_list/outages.h"
#include "headline_list/table_reading.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/clock.h"
#include "host/contract/news_diary.h"
#include "host/contract/symbol_name.h"
#include "host/controls/heap_dialog.h"
#include "host/controls/registered_message.h"
#include "host/controls/xt_tip_window.h"
#include "host/views/news_control_ids.h"
#include "news_view/application_switches.h"
#include "news_view/control_set.h"
#include "news_view/list_tip.h"
#include "news_view/news_services.h"
#include "news_view/view_context.h"
#include "news_view/view_settings.h"
#include "search/adv_search_dlg.h"
#include "search/dialog_controls.h"
#include "search/query_entry.h"
#include "search/search_ids.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int waitTipTimeMs = 100000;
constexpr int shortTipWindowMs = 2000;
constexpr unsigned char futuresMarket = 1;
constexpr unsigned char commodityMarket = 0x6D;

QString wordsOf(const CSearch& condition) {
    return QStringList(condition.keywords.begin(), condition.keywords.end()).join(u' ');
}

}  // namespace

Searches::Searches(ViewContext& viewContext, const CommonParts& commonParts,
                   std::function<bool()> showsStoryNow)
    : context(viewContext),
      parts(commonParts),
      showsStory(std::move(showsStoryNow)),
      conditions(parts.backEnd),
      firstFound(parts, conditions, [this](const FirstFound::Found& found) { showTyped(found); }),
      shortTip(new CXTTipWindow(&parts.window)) {}

// --- The search box ---

void Searches::connectEdit() {
    auto* edit = parts.controls.find<SearchEdit2>(ids::searchEdit);
    edit->setOwner(this);
    edit->setTakesQueries(parts.settings.options[ViewOption::SearchQueries]);
    if (parts.settings.options[ViewOption::SearchHistory])
        edit->offerTexts([this] { return textsToOffer(); });
    firstFound.follow(*edit);
    QObject::connect(edit, &SEdit::returnPressed, &parts.window, [this] { searchForText(); });
}

QStringList Searches::textsToOffer() const {
    constexpr std::size_t most = 20;
    const std::vector<QString>& history = conditions.searchHistory();
    QStringList texts(history.rbegin(),
                      history.rbegin() + static_cast<std::ptrdiff_t>(std::min(most, history.size())));
    return texts;
}

QString Searches::textOfEdit() const {
    const auto* edit = parts.controls.find<SEdit>(ids::searchEdit);
    return edit != nullptr ? edit->text() : QString();
}

void Searches::searchForText() {
    if (parts.services.selectedCount() == 0) {
        send();
        return;
    }
    const QString text = textOfEdit().trimmed();
    if (text.isEmpty()) {
        tipAtEdit(langText(parts.backEnd, keys::invalidSearch));
        return;
    }
    const std::optional<SearchLanguage> language = languageOf(text);
    if (!language)
        return;
    conditions.takeQuickSearch(text, host_clock::now(), *language);
    send();
}

void Searches::searchServices() {
    const CSearch found = conditions.foundUnder(ListIndex::Search);
    if (!parts.settings.options[ViewOption::SearchLine] || found.keywords.empty()) {
        searchForText();
        return;
    }
    conditions.ordinary = found;
    send();
}

std::optional<SearchLanguage> Searches::languageOf(const QString& text) {
    if (parts.settings.options[ViewOption::SearchQueries])
        return askLanguage(&parts.window, text);
    if (text.contains(u"AND"_s) || text.contains(u"OR"_s)) {
        tellError(&parts.window, langText(parts.backEnd, keys::reinput));
        return std::nullopt;
    }
    return SearchLanguage::Plain;
}

void Searches::tipAtEdit(const QString& text) {
    if (const auto* edit = parts.controls.find<SEdit>(ids::searchEdit))
        showTip({edit->mapToGlobal(QPoint(0, 0)), edit->size()}, text);
}

void Searches::showTip(const QRect& rectangle, const QString& text) {
    QPoint middle = rectangle.topLeft() + QPoint(rectangle.width() / 2, rectangle.height() / 2);
    // Below the box, one sees what one goes on typing.
    if (parts.settings.options[ViewOption::SearchQueries])
        middle.ry() += 3 * rectangle.height() / 2;
    shortTip->vShow(middle, text, shortTipWindowMs);
}

QVariantMap Searches::shortTipState() const {
    return {{u"visible"_s, shortTip->isVisible()}, {u"text"_s, shortTip->text()}};
}

// --- Sending ---

void Searches::compose() {
    SearchMemory& memory = conditions.memory;
    HeapDialog dialog(new CAdvSearchDlg(conditions.edited, memory.keywordPool, memory.recent, &parts.window,
                                        parts.settings.options[ViewOption::SearchQueries]));
    const bool accepted = dialog->DoModal() == search_ids::ok;
    if (!dialog)
        return;
    dialog->readResult(conditions.edited, memory.keywordPool, memory.recent);
    dialog.destroy();
    // Nobody answers for a search that is not in force any more.
    if (!accepted && !(conditions.ordinary == conditions.edited))
        stopWaiting();
    conditions.ordinary = conditions.edited;
    context.placeNotices();
    if (!accepted)
        return;
    send();
    // To the list of what is found, wherever in the view the dialog was asked for.
    CSuperSheetWnd* sheet = context.listOf(context.shownList()).grid();
    if (sheet != nullptr && !conditions.ordinary.keywords.empty())
        sheet->setFocus();
}

void Searches::send() {
    const ListIndex shown = context.shownList();
    HeadlineList& list = context.listOf(shown);
    CSearch* condition = conditions.conditionOf(shown);
    if (condition == nullptr || list.grid() == nullptr)
        return;
    if (condition->keywords.empty()) {
        tipAtEdit(langText(parts.backEnd, keys::invalidSearch));
        return;
    }
    firstFound.stop();
    SearchDesk::completeMethod(*condition);
    // What was found while it was typed stays until there is an answer.
    const bool showsTyped = conditions.courseOf(shown).isTyped;
    const bool awaited = conditions.takeSearchText(textOfEdit());
    // A wait tip that is still up must not name a search that nobody waits for any more.
    if (awaited || waitTipIsUp()) {
        parts.tip.showOver(list.grid(), conditions.waitText(*condition), waitTipTimeMs);
        waitTipText = parts.tip.text();
    }
    conditions.sendSearch(shown, parts.services.liveServices(), awaited,
                          {host_clock::now(), parts.outages.ended()});
    NewsDiary::tell(parts.window, {.kind = NewsAct::Kind::Searched, .words = wordsOf(*condition)});
    if (showsTyped && awaited) {
        conditions.noteNewestOnly(shown);
        context.placeNotices();
        return;
    }
    list.setTable(
        readTables(parts.backEnd, parts.services.currentServices(), TableKind::Search, searchTableKey));
    showFound(shown, false);
    if (list.headlineTable().empty())
        firstFound.find(*condition,
                        [this, shown](const FirstFound::Found& found) { showFirst(shown, found); });
}

bool Searches::waitTipIsUp() const {
    return parts.tip.isUp() && !waitTipText.isEmpty() && parts.tip.text() == waitTipText;
}

void Searches::stopWaiting() {
    if (forgetPending(parts.services.liveServices()))
        parts.tip.stop();
}

void Searches::endNarrowing() {
    conditions.endNarrowing(context.shownList());
    send();
}

void Searches::replace(const CSearch& condition) {
    const ListIndex shown = context.shownList();
    CSearch* inForce = conditions.conditionOf(shown);
    if (inForce == nullptr)
        return;
    const CSearch before = conditions.foundUnder(shown);
    auto* edit = parts.controls.find<SEdit>(ids::searchEdit);
    if (shown == ListIndex::Search && edit != nullptr &&
        before.keywords == std::vector{edit->text().trimmed()})
        edit->setText(condition.keywords.empty() ? QString() : condition.keywords.front());
    if (condition.keywords.empty()) {
        stopWaiting();
        conditions.endSearch(shown);
        context.listOf(shown).setTable(TableRuns());
        showFound(shown, false);
    } else {
        *inForce = condition;
        send();
    }
}

void Searches::show(const CSearch& condition) {
    if (auto* edit = parts.controls.find<SEdit>(ids::searchEdit))
        edit->setText(condition.keywords.size() == 1 ? condition.keywords.front() : QString());
    conditions.edited = conditions.ordinary = condition;
    send();
}

// --- Results ---

void Searches::showTyped(const FirstFound::Found& found) {
    HeadlineList& list = context.listOf(ListIndex::Search);
    if (context.shownList() != ListIndex::Search || list.grid() == nullptr)
        return;
    stopWaiting();
    conditions.takeTyped(found.condition, {host_clock::now(), parts.outages.ended()}, found.took,
                         found.isAll);
    list.setTable({found.newest});
    showFound(ListIndex::Search, true);
}

void Searches::showFirst(ListIndex index, const FirstFound::Found& found) {
    HeadlineList& list = context.listOf(index);
    const SearchDesk::Course course = conditions.courseOf(index);
    const bool isInForce = course.isAwaited && conditions.foundUnder(index) == found.condition;
    // What a service has answered is more than this.
    const bool hasMore = !course.isNewestOnly && !list.headlineTable().empty();
    if (!isInForce || hasMore || list.grid() == nullptr || found.newest.empty())
        return;
    parts.tip.stop();
    conditions.noteNewestOnly(index);
    if (course.isNewestOnly) {
        refillInPlace(index, {found.newest});
    } else {
        list.setTable({found.newest});
        showFound(index, true);
    }
}

void Searches::refillInPlace(ListIndex index, const TableRuns& found) {
    HeadlineList& list = context.listOf(index);
    context.readInPlace(index, [&] {
        list.setTable(found);
        list.refill();
        return true;
    });
    if (list.headlineTable().empty() && context.shownList() == index)
        context.showStory();
}

void Searches::showFound(ListIndex index, bool selectFirst) {
    HeadlineList& list = context.listOf(index);
    list.refill();
    if (list.headlineTable().empty())
        context.setStatusText({});
    else if (selectFirst)
        list.grid()->setActiveSelection(0, -1);
    // An answer opens no window; one that is open follows the rows. Without rows there is no story: that of
    // a row that went would stand beside an empty list.
    const bool isStoryAsked = !selectFirst || list.headlineTable().empty() || showsStory();
    if (context.shownList() == index && isStoryAsked)
        context.showStory();
    context.placeNotices();
}

void Searches::takeAnswer(const CSearch& condition, unsigned char service) {
    const auto kind = conditions.kindOfAnswer(condition);
    if (!kind)
        return;
    const bool toWarningTerm = *kind == TableKind::Search && parts.switches.showWarningSearch;
    const ListIndex target = toWarningTerm ? ListIndex::WarningTerm : ListIndex::Search;
    HeadlineList& list = context.listOf(target);
    if (list.grid() == nullptr)
        return;
    const bool isSearch = *kind == TableKind::Search;
    const bool newestStand =
        isSearch && conditions.courseOf(target).isNewestOnly && conditions.foundUnder(target) == condition;
    const bool isDue = !isSearch || conditions.takeAnswerDue(condition, service, host_clock::now());
    const bool othersPending = isSearch && isDue && markAnswered(parts.services.liveServices(), service);
    if (isDue && !othersPending)
        parts.tip.stop();
    if (newestStand && conditions.courseOf(target).isAwaited)
        return;
    const TableRuns found =
        readEveryTable(parts.backEnd, parts.services.currentServices(), *kind, searchTableKey);
    if (isDue && !newestStand) {
        list.setTable(found);
        showFound(target, true);
    } else {
        refillInPlace(target, found);
    }
    if (newestStand)
        context.placeNotices();
    // Where empty lists say why, this one does.
    const bool isSaid = parts.settings.options[ViewOption::EmptyStates];
    if (isDue && list.headlineTable().empty() && !othersPending && !isSaid)
        parts.tip.showOver(list.grid(), langText(parts.backEnd, keys::newsNotFound));
}

// --- What changes results ---

void Searches::notePushed(const CHeadline& headline) {
    if (context.shownList() == ListIndex::WarningTerm)
        pushed[headline.service] = headline;
}

void Searches::searchForPushed() {
    const std::map<unsigned char, CHeadline> newest = std::exchange(pushed, {});
    if (context.shownList() != ListIndex::WarningTerm || conditions.warningTerm.keywords.empty())
        return;
    for (const auto& [service, headline] : newest)
        searchFor(conditions.warningTerm, ListIndex::WarningTerm, headline, searchTableKey);
}

void Searches::searchFor(CSearch& condition, ListIndex index, const CHeadline& headline, const QString& key) {
    HeadlineList& list = context.listOf(index);
    if (list.grid() == nullptr)
        return;
    SearchDesk::completeMethod(condition);
    conditions.ask(condition, headline.service);
    // The answer brings the rows of all services.
    if (parts.settings.options[ViewOption::KeepWarningRows])
        return;
    list.setTable(readServiceTable(parts.backEnd, headline.service, TableKind::Search, key));
    list.refill();
    const int row = list.headlineTable().rowOfNumber(keyOf(headline));
    if (row >= 0 && list.headlineTable().rowOf(keyOf(headline)) < 0)
        list.vInsertHeadline(row, headline, true);
}

void Searches::followSymbol(const CSymbolInfo& symbol) {
    const ListIndex shown = context.shownList();
    const CSearch condition = shown == ListIndex::Relation      ? conditions.second
                              : shown == ListIndex::WarningTerm ? conditions.warningTerm
                                                                : conditions.ordinary;
    if (!condition.keywords.empty())
        narrow(condition, symbol);
}

void Searches::updateSymbolPicker(const std::vector<CSymbolUpdateInfo>& updates) {
    static const QEvent::Type treeUpdate = registerMessage(u"MSG_SYMBOLUPDATE_TREEDLG"_s);
    auto* dialog = parts.window.findChild<KeywordEntryDlg*>();
    if (dialog == nullptr || updates.empty())
        return;
    sendRegisteredMessage(dialog, treeUpdate,
                          updates.size() == 1 ? reinterpret_cast<quintptr>(&updates.front()) : 0);
}

void Searches::narrow(const CSearch& condition, const CSymbolInfo& wanted) {
    const ListIndex shown = context.shownList();
    const bool warningTermsFollow = !parts.settings.options[ViewOption::WarningTermsStandFast];
    if (shown == ListIndex::WarningTerm && !warningTermsFollow)
        return;
    CSymbolInfo symbol = wanted;
    const bool isFuture = parts.backEnd.bIsFromTheSameAuthServiceID(futuresMarket, symbol.market) == 1 ||
                          symbol.market == commodityMarket;
    if (isFuture && !parts.backEnd.bGetCommodityIDBySymbolID(symbol.code, symbol.market, wanted.code))
        return;
    const bool hasSymbol = !condition.symbols.empty() && !condition.symbols.front().code.isEmpty();
    if ((shown == ListIndex::WarningTerm && hasSymbol) ||
        (shown != ListIndex::Search && shown != ListIndex::WarningTerm)) {
        send();
        return;
    }
    if (!symbolName(parts.backEnd, symbol))
        return;
    conditions.narrow(condition, symbol, warningTermsFollow);
    send();
}

}  // namespace wirepane
