// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/endurance/desk.h"

#include "backend/alerts/alert_looks.h"
#include "host/contract/fixed_services.h"
#include "host/contract/search_control.h"
#include "host/contract/view_options.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "search/news_key_search_dlg.h"
#include "search/search_ids.h"
#include "tests/support/grid_cells.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>
#include <iterator>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int patienceMs = 3'600'000;  // a busy machine is none of its business
constexpr unsigned char emptyService = 250;
constexpr int allMode = static_cast<int>(ListIndex::All);
constexpr int warrantMode = static_cast<int>(ListIndex::Warrant);
constexpr int relationMode = static_cast<int>(ListIndex::Relation);
constexpr int searchMode = static_cast<int>(ListIndex::Search);
constexpr int warningMode = static_cast<int>(ListIndex::WarningTerm);

CSearch conditionOf(const QString& word, SearchLanguage language = SearchLanguage::Plain) {
    CSearch condition;
    condition.keywords = {word};
    condition.method = 1;
    condition.language = language;
    return condition;
}

void writeSwitches(const QString& folder, int view) {
    QFile file(QDir(folder).filePath(u"Application.ini"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[NewsCtrlSearchView]\n");
    file.write(view == desk::relating ? "ShowNormalSearch=1\n" : "");
    file.write(view == desk::warning ? "ShowWarningSearch=1\n" : "");
}

// What a terminal writes for its views: the names of topics as the module reads them.
void writeTopics(const QString& folder, EmbeddedBackEnd& backEnd) {
    std::vector<QString> ids;
    std::vector<QString> names;
    backEnd.bNewsAPI_GetNewsCatId(1, ids, names);
    QFile file(QDir(folder).filePath(u"NewsService.ini"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write((u"[CONFIG]\nCatId="_s + QStringList(ids.begin(), ids.end()).join(u',') + u"\nSHORTNAME="_s +
                QStringList(names.begin(), names.end()).join(u',') + u'\n')
                   .toUtf8());
}

QMap<QString, QVariant> firstSettings(int view) {
    QMap<QString, QVariant> values{{u"EnabledFunctions"_s, 0x7F}, {u"SymbolID"_s, u"2330"_s}};
    if (view == desk::relating)
        values[u"!RVNEWS_NEWSKEY_KEYWORDSETTING"_s] =
            QStringList{u"C:1 T:1,2,3,4 K:RATE"_s, u"C:1 T:-999 K:COPPER"_s};
    if (view == desk::warning) {
        values[u"WarningSearchItems"_s] = QStringList{conditionOf(desk::warningWord).GetString()};
        values[u"WarningSearchItemOrder"_s] = 1;
    }
    return values;
}

// The combo names the categories of the ticked services, rising from 1 as far as any of them has them.
void chooseCategory(TRVNewsCtrlView& view, int entry) {
    auto* combo = qobject_cast<QComboBox*>(dlgItem(&view, ids::categoryCombo));
    if (combo == nullptr || combo->count() == 0)
        return;
    combo->setCurrentIndex(std::min(entry, combo->count() - 1));
    view.OnSelchangeComboIndex();
}

// The date picker is on show with all news alone, and picking reads no other list: that of the warrants, the
// other list of the picked day, is read when it is shown next.
void pickDay(TRVNewsCtrlView& view, const QDate& day) {
    view.SwitchFunction(allMode);
    view.bChangeDate(day);
}

void chooseSymbol(TRVNewsCtrlView& view, const QString& code) {
    auto* combo = qobject_cast<QComboBox*>(dlgItem(&view, ids::symbolCombo));
    combo->setCurrentIndex(combo->findText(code, Qt::MatchContains));
    view.OnSelchangeComboSymbol();
}

// Hears the answers to searches.
class AnswerCount : public NewsReceiver {
public:
    explicit AnswerCount(QString wanted) : word(std::move(wanted)) {}
    void RespSearchHeadLineTable(const CSearch& condition, unsigned char) override {
        count += condition.keywords.front() == word ? 1 : 0;
    }
    int count = 0;

private:
    QString word;
};

}  // namespace

bool desk::isRelated(std::int32_t category, const QString& title) {
    return title.contains(u"copper"_s) || (category <= 4 && title.contains(u"rate"_s));
}

Desk::Desk(const QString& storePath, const QString& systemFolder)
    : backEnd(std::move(EmbeddedBackEnd::open(storePath).value())) {
    for (int view = 0; view < desk::views; ++view)
        views[static_cast<std::size_t>(view)].settings.values = firstSettings(view);
    for (const StoreItem& item : WeekWire::catalogues())
        EXPECT_TRUE(backEnd->takeIn(item));
    install();
    for (int view = 0; view < desk::views; ++view)
        open(view, systemFolder);
    tickKeySets();
    startAlerts();
}

Desk::Desk(const Desk& other, const QString& systemFolder)
    : backEnd(std::move(EmbeddedBackEnd::open(other.backEnd->storePath()).value())) {
    for (std::size_t view = 0; view < views.size(); ++view)
        other.views[view].view->SaveViewInfo(&views[view].settings, u"Layout"_s, 0, 0);
    install();
    for (int view = 0; view < desk::views; ++view)
        open(view, systemFolder);
    tickKeySets();
}

Desk::~Desk() {
    for (Place& place : views)
        place.view.reset();
    backEnd->judgeLooksBy({});
}

void Desk::startAlerts() {
    AlertSettings settings;
    for (const QString& query : {u"copper -strike"_s, u"title:rate | title:rates"_s, u"story:strike"_s}) {
        AlertRule rule;
        rule.name = query;
        rule.query = query;
        rule.tint = 1;
        rule.tag = query.left(longestAlertTag);
        settings.rules.push_back(rule);
    }
    alertDesk = std::make_unique<AlertDesk>(*backEnd, settings);
    backEnd->judgeLooksBy(looksBy(settings.rules, *backEnd));
    alertDesk->begin();
}

void Desk::install() {
    BKQuoteInterface::setBKInterface(backEnd.get());
    SearchControl::setSearchObjInterface(&backEnd->symbols());
}

void Desk::open(int number, const QString& systemFolder) {
    writeSwitches(systemFolder, number);
    backEnd->setSysPath(systemFolder);
    writeTopics(systemFolder, *backEnd);
    Place& place = views[static_cast<std::size_t>(number)];
    ViewOptions::writeMissing(place.settings, {u"Layout"_s, 0, 0, u"TRVNewsCtrlView"_s});
    place.frame = std::make_unique<QWidget>();
    place.frame->resize(900, 500);
    place.view = std::make_unique<TRVNewsCtrlView>(place.frame.get());
    place.view->resize(place.frame->size());
    place.view->OnInitialUpdate();
    place.view->InitialViewInfo(&place.settings, u"Layout"_s, 0, 0, {});
    place.frame->show();
}

void Desk::tickKeySets() {
    TRVNewsCtrlView& view = viewOf(desk::relating);
    bool ticked = false;
    QTimer::singleShot(0, &view, [&ticked] {
        auto* dialog = qobject_cast<CNewsKeySearchDlg*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        for (const int button : {search_ids::allKeySets, search_ids::ok})
            qobject_cast<QAbstractButton*>(dlgItem(dialog, button))->click();
        ticked = true;
    });
    view.onCommand(ids::relationSearchButton);
    EXPECT_TRUE(ticked);
}

std::vector<HeadlineKey> Desk::keysOf(int view, int list) const {
    return viewOf(view).keysOf(list, 0, viewOf(view).iGetHeadlineTableSize(list));
}

std::vector<int> Desk::modesOf(int view) {
    static constexpr int ownModes[] = {searchMode, relationMode, warningMode};
    return {0, 1, 2, warrantMode, ownModes[view]};
}

void Desk::goTo(int view, int mode) {
    viewOf(view).SwitchFunction(mode);
    settle();
}

QStringList Desk::textsOf(int view, int list, int row) const {
    CSuperSheetWnd& sheet = *viewOf(view).sheetOf(list);
    // What is folded is read once it is unfolded.
    if (sheet.isRowHidden(row)) {
        sheet.setActiveSelection(row, 0);
        viewOf(view).onCommand(ids::turnFold);
        EXPECT_FALSE(sheet.isRowHidden(row));
    }
    if (row < sheet.firstVisibleRow() || row > sheet.firstVisibleRow() + sheet.rowsPerPage()) {
        sheet.setFirstVisibleRow(row);
        viewOf(view).vRealUpdateView();
    }
    QStringList texts;
    for (const char* column : {"time", "category", "title"})
        texts += cellText(sheet, row, QLatin1StringView(column));
    return texts;
}

std::vector<unsigned char> Desk::tickedServices(int view) const {
    std::vector<unsigned char> ticked;
    const QVariantList services = viewOf(view).state()[u"services"_s].toList();
    for (const QVariant& service : services) {
        if (service.toMap()[u"selected"_s].toBool())
            ticked.push_back(static_cast<unsigned char>(service.toMap()[u"id"_s].toInt()));
    }
    return ticked;
}

void Desk::tickAllServices() {
    for (const Place& place : views) {
        place.view->SwitchFunction(allMode);
        const QVariantList services = place.view->state()[u"services"_s].toList();
        for (int i = 0; i < services.size(); ++i) {
            const QVariantMap service = services[i].toMap();
            if (!service[u"selected"_s].toBool() && service[u"id"_s].toInt() != warrantService)
                place.view->onCommand(ids::firstServiceCommand + i);
        }
    }
}

void Desk::settle() {
    ASSERT_TRUE(QTest::qWaitFor(
        [this] {
            return backEnd->isDelivered() && std::all_of(views.begin(), views.end(), [](const Place& place) {
                       return place.view->runningTimers().empty();
                   });
        },
        patienceMs));
    awaitSearches();
}

// Searches are answered in the order of asking: a last one, for what all headlines hold and in a service that
// has none, is answered when all are, and leaves the search with all its keys in memory.
void Desk::awaitSearches() {
    AnswerCount answers(WeekWire::commonWord);
    backEnd->attach(&answers);
    backEnd->BKQNEWS_bSearchNews(emptyService, static_cast<int>(TableKind::SecondSearch),
                                 conditionOf(WeekWire::commonWord));
    EXPECT_TRUE(QTest::qWaitFor([&] { return answers.count > 0; }, patienceMs));
    backEnd->detach(&answers);
}

void Desk::search(const QString& word) {
    TRVNewsCtrlView& view = viewOf(desk::searching);
    qobject_cast<QLineEdit*>(dlgItem(&view, ids::searchEdit))->setText(word);
    view.OnSearch();
}

// A warning-term search follows the headlines of every service; so do the results that are compared.
void Desk::askEveryService(const CSearch& condition) {
    for (const unsigned char service : WeekWire::services)
        backEnd->BKQNEWS_bSearchNews(service, static_cast<int>(TableKind::Search), condition);
}

void Desk::rebuildLists(const QDate& day) {
    const QString searchWord = WeekWire::wordOf(day);
    for (const Place& place : views) {
        TRVNewsCtrlView& view = *place.view;
        pickDay(view, day);
        view.InitialHeadlineTable(allMode);
        view.SwitchFunction(1);
        chooseCategory(view, WeekWire::categoryOf(day) - 1);
        view.SwitchFunction(2);
        chooseSymbol(view, WeekWire::symbolOf(day));
        view.InitialHeadlineTable(2);
        view.SwitchFunction(warrantMode);
    }
    viewOf(desk::relating).SwitchFunction(relationMode);
    viewOf(desk::relating).InitialHeadlineTable(relationMode);
    viewOf(desk::searching).SwitchFunction(searchMode);
    search(searchWord);
    askEveryService(
        conditionOf(searchWord, SearchLanguage::Query));  // as typed into the box of a user's view
    settle();
    viewOf(desk::warning).SwitchFunction(warningMode);
    viewOf(desk::warning).OnDealsSearch();
    askEveryService(conditionOf(desk::warningWord));
    settle();
    for (const Place& place : views)
        place.view->SwitchFunction(allMode);
    letOtherSearchesGo();
    settle();
}

// The back end keeps the results of the last few searches.
void Desk::letOtherSearchesGo() {
    for (int i = 0; i < 10; ++i)
        backEnd->BKQNEWS_bSearchNews(emptyService, static_cast<int>(TableKind::Search),
                                     conditionOf(u"nothing%1"_s.arg(i)));
}

void Desk::doSomething(WeekWire& dice) {
    TRVNewsCtrlView& view = viewOf(dice.below(desk::views));
    CSuperSheetWnd* sheet = view.pGetCurrSheetView();
    const int rows = sheet->rowCount();
    if (dice.below(2) == 0)
        sheet->verticalScrollBar()->setValue(dice.below(3) == 0 ? dice.below(std::max(1, rows)) : 0);
    else if (rows > 0)
        view.bChangeNewsPos(view.state()[u"mode"_s].toInt(), dice.below(std::min(rows, 200)));
    if (dice.below(4) == 0)
        readAndHold(view, dice);
}

// What the keys of a list do to what is marked, held and folded.
void Desk::readAndHold(TRVNewsCtrlView& view, WeekWire& dice) {
    constexpr int commands[] = {ids::markRead, ids::markUnread, ids::turnStar, ids::holdList, ids::turnFold};
    view.onCommand(commands[dice.below(int(std::size(commands)))]);
}

void Desk::doSomethingBig(WeekWire& dice, const QDate& day) {
    const int number = dice.below(desk::views);
    TRVNewsCtrlView& view = viewOf(number);
    const std::vector<int> modes = modesOf(number);
    switch (dice.below(6)) {
        case 0:
            pickDay(view, day.addDays(-dice.below(3)));
            break;
        case 1:
            pickDay(view, day);
            break;
        case 2:
            view.onCommand(ids::firstServiceCommand + dice.below(4));  // the warrants have no command
            break;
        case 3:
            if (number == desk::searching)
                search(u"word%1"_s.arg(10 + dice.below(80)));
            break;
        case 4:
            chooseCategory(view, dice.below(7));
            break;
        default:
            view.SwitchFunction(
                modes.at(static_cast<std::size_t>(dice.below(static_cast<int>(modes.size())))));
    }
}

}  // namespace wirepane
