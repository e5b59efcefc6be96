// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/session.h"

#include "backend/feed/feed_name.h"
#include "backend/feed/source_kinds.h"
#include "backend/lines/lines_errors.h"
#include "backend/lines/socket_server.h"
#include "backend/store/store_errors.h"
#include "backend/store/store_file.h"
#include "host/contract/clock.h"
#include "host/contract/fixed_services.h"
#include "terminal/frame/row_density.h"
#include "terminal/frame/symbol_box.h"
#include "terminal/session/indexing_window.h"
#include "terminal/session/module_location.h"
#include "terminal/session/sample_history.h"
#include "terminal/session/sample_process.h"
#include "terminal/session/session_errors.h"
#include "terminal/session/status_report.h"
#include "terminal/session/store_opening.h"
#include "terminal/settings/module_files.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/stored_names.h"
#include "terminal/translations/terminal_text.h"
#include "wire/wire_driver.h"
#include "wire/wire_source.h"

#include <QDateTime>
#include <QDir>
#include <QFontDatabase>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::chrono::seconds clockPeriod{1};
constexpr int daysFollowed = 2;  // of the sample wire, after an absence

// Whether the topics of the news, or the language of the terminal, are in Chinese, and no font has it. The
// sentence that says so holds English in every language.
bool needsChineseFont(EmbeddedBackEnd& backEnd) {
    for (const auto system : {QFontDatabase::TraditionalChinese, QFontDatabase::SimplifiedChinese}) {
        if (!QFontDatabase::families(system).isEmpty())
            return false;
    }
    QString texts = terminalText(TextId::Cancel);
    for (const CategoryName& category : categoryNames(backEnd))
        texts += category.name;
    return std::any_of(texts.cbegin(), texts.cend(), [](QChar c) { return c.script() == QChar::Script_Han; });
}

bool isInUse(const Error& error) {
    const std::vector<Error>& reason = error.arguments.back().part;
    return !reason.empty() && reason.front().code == &lines_errors::socketInUse;
}

}  // namespace

Session::Session(const SessionOptions& options)
    : configFolder(QDir(options.configFolder).absolutePath()),
      storeFile(options.storeFile),
      settingsFile(QDir(configFolder).filePath(u"wirepane.json"_s),
                   QDir(configFolder).filePath(u"wirepane.ini"_s)),
      layout(settingsFile),
      terminalSettings(std::make_unique<TerminalSettings>(settingsFile)) {
    if (options.stores) {
        ownKind = options.storeKind ? options.storeKind
                                    : startingStore(*options.stores, terminalSettings->storeKind());
        storeFile = (*options.stores)[*ownKind];
    }
    CSyncInfo::setSettingCFG(terminalSettings.get());
}

Session::~Session() = default;

Result<std::unique_ptr<Session>> Session::open(const SessionOptions& options) {
    std::unique_ptr<Session> session(new Session(options));
    const Done started = session->start(options);
    if (!started)
        return started.error();
    return session;
}

Done Session::start(const SessionOptions& options) {
    if (!QDir().mkpath(configFolder))
        return makeError<session_errors::settingsFolderNotMade>(configFolder);
    const QString wanted = options.language.isEmpty() ? terminalSettings->language() : options.language;
    Appearance::dress(*terminalSettings);
    if (const Done opened = openStore(options, wanted); !opened)
        return opened;
    store->setSysPath(configFolder);
    store->nameBy(shownName);
    BKQuoteInterface::setBKInterface(store.get());
    SearchControl::setSearchObjInterface(&store->symbols());
    painter = std::make_unique<BackgroundPainter>();
    PagePainter::install(painter.get());
    if (const Done fed = startFeed(options); !fed)
        return fed;
    categoryDisplay = std::make_unique<CategoryDisplay>(*store, *terminalSettings);
    TRVItemDisplay::setItemDisplay(categoryDisplay.get());
    const auto module = loadModule();
    if (!module)
        return module.error();
    if (!useLanguage(wanted))
        useLanguage(Languages::ofSystem());
    mainFrame = std::make_unique<MainFrame>();
    latestNews = std::make_unique<BreakingNews>(*module.value(), *store, *mainFrame);
    alertCenter = std::make_unique<AlertCenter>(*store, *terminalSettings, *mainFrame);
    blindWindow = std::make_unique<BlindWindow>(*store, alertCenter->desk(), *liveFeed, *mainFrame);
    openViews = std::make_unique<Workspace>(*module.value(), *mainFrame);
    diaryKeeper = std::make_unique<DiaryKeeper>(storeFile, *openViews);
    look = std::make_unique<Appearance>(*terminalSettings, *openViews);
    linkGroups = std::make_unique<LinkGroups>(*openViews, *terminalSettings);
    workspaceKeeper = std::make_unique<WorkspaceKeeper>(
        WorkspaceKeeper::Parts{settingsFile, layout, *terminalSettings, *openViews, *linkGroups, *mainFrame,
                               [this](ViewRequest request) { return openView(std::move(request)); }});
    categoryWatch = std::make_unique<CategoryWatch>(*store, [this] { renameCategories(); });
    serviceWatch = std::make_unique<ServiceWatch>(*store, [this] { takeNewServices(); });
    status = std::make_unique<StatusReport>(*store, *liveFeed, *openViews);
    look->apply();
    retention = std::make_unique<RetentionKeeper>(*store, [this] { return terminalSettings->retention(); });
    guard = std::make_unique<StoreGuard>(storeFile, [this] {
        mainFrame->showNotice(shownText(makeError<store_errors::faultFound>(storeFile)));
    });
    connectParts();
    connectDiary();
    if (options.watchesAlerts)
        alertCenter->desk().begin();
    for (const QString& sentence : {feedNotice, settingsFile.message()}) {
        if (!sentence.isEmpty())
            mainFrame->showNotice(sentence);
    }
    if (needsChineseFont(*store))
        mainFrame->showNotice(terminalText(TextId::NoChineseFont));
    showStatus();
    showViews();
    return Nothing{};
}

Done Session::openStore(const SessionOptions& options, const QString& language) {
    IndexingWindow window;
    IndexingWindow fillingWindow(TextId::FillingSample);
    if (!languages.use(language))
        languages.use(Languages::ofSystem());
    IndexProgress indexing;
    IndexProgress filling;
    if (options.tellsProgress) {
        indexing = [&window](std::int64_t done, std::int64_t total) { window.tell(done, total); };
        filling = [&fillingWindow](std::int64_t done, std::int64_t total) {
            fillingWindow.tell(done, total);
        };
    }
    const bool isWanted = options.sampleWhenNew || ownKind == StoreKind::Sample;
    const SampleUse wanted =
        options.followsSample && ownKind != StoreKind::Own ? SampleUse::Followed : SampleUse::WhenNew;
    auto opened = openBackEnd(storeFile, isWanted ? wanted : SampleUse::None, indexing, filling);
    if (!opened)
        return opened.error();
    store = std::move(opened.value());
    // A clock that was set for this run is one that live news may run ahead of, as a replay or a script does.
    if (!asOfText().isEmpty())
        store->holdLaterNews(LaterNews::Held::Stored);
    return Nothing{};
}

void Session::connectParts() {
    SymbolBox& box = mainFrame->symbolBox();
    box.setSearch(
        [this](const QString& text, std::size_t limit) { return store->symbols().search(text, limit); });
    offerQuotes = std::make_unique<OfferQuotes>(*store, box);
    connect(&box, &SymbolBox::chosen, linkGroups.get(),
            [this](unsigned char group, const SymbolItem& symbol) {
                linkGroups->change(nullptr, group, symbol);
                openViews->showSymbolNews(group);
            });
    connect(linkGroups.get(), &LinkGroups::changed, &box,
            [this, &box](unsigned char group, const SymbolItem& symbol) {
                const SymbolItem* known = store->symbols().find(symbol.market, symbol.code);
                box.showSymbol(group, known != nullptr ? *known : symbol);
            });
    connect(liveFeed.get(), &LiveFeed::stateChanged, this, &Session::showStatus);
    connect(liveFeed.get(), &LiveFeed::sourcesChanged, this, &Session::showStatus);
    connect(&clock, &QTimer::timeout, this, &Session::showStatus);
    // News of other days is pushed to nobody.
    connect(&clock, &QTimer::timeout, &alertCenter->desk(), &AlertDesk::look);
    clock.start(clockPeriod);
    connect(&alertCenter->desk(), &AlertDesk::changed, this, &Session::showStatus);
    store->onDatedAhead([this](unsigned char service, std::int64_t time) { tellDatedAhead(service, time); });
    connect(liveFeed.get(), &LiveFeed::trouble, mainFrame.get(),
            [this](const Error& error) { mainFrame->showNotice(shownText(error)); });
    connect(mainFrame.get(), &MainFrame::firstStepsDismissed, this,
            [this] { terminalSettings->setShowsFirstSteps(false); });
    connect(openViews.get(), &Workspace::arranged, this, &Session::showViews);
    connect(openViews.get(), &Workspace::counted, this, &Session::showCaption);
    connect(openViews.get(), &Workspace::opened, mainFrame.get(), [this](const OpenView* view) {
        connect(view->view, &TRVQuoteBaseView::messageForUser, mainFrame.get(), &MainFrame::showNotice);
    });
    // Later: the views hear of the change after their frame.
    connect(
        mainFrame.get(), &MainFrame::languageChanged, this,
        [this] {
            showStatus();
            openViews->retranslate();
            latestNews->retranslate();
        },
        Qt::QueuedConnection);
}

void Session::connectDiary() {
    AlertDesk* desk = &alertCenter->desk();
    connect(desk, &AlertDesk::told, diaryKeeper.get(), [this](const std::vector<AlertEntry>& entries) {
        for (const AlertEntry& entry : entries)
            diaryKeeper->addAlert(entry);
    });
    connect(desk, &AlertDesk::changed, diaryKeeper.get(), [this, desk] {
        const int before = std::exchange(unseenAlerts, desk->unseen());
        if (before > 0 && unseenAlerts == 0)
            diaryKeeper->add(u"acknowledged"_s, {{u"alerts"_s, before}});
    });
    connect(diaryKeeper.get(), &DiaryKeeper::failed, mainFrame.get(),
            [this](const Error& error) { mainFrame->showNotice(shownText(error)); });
    if (!store->isReadOnly())
        diaryKeeper->choose(terminalSettings->diary());
}

void Session::setDiary(const DiaryChoices& choices) {
    terminalSettings->setDiary(choices);
    if (const Done saved = terminalSettings->save(); !saved)
        mainFrame->showNotice(shownText(saved.error()));
    if (!store->isReadOnly())
        diaryKeeper->choose(choices);
}

// Once for a service: a wrong clock makes all of its news so.
void Session::tellDatedAhead(unsigned char service, std::int64_t time) {
    if (!toldAhead.insert(service).second)
        return;
    QString name;
    store->BKQNEWS_bGetFullNameByService(name, service);
    mainFrame->showNotice(
        terminalText(TextId::DatedAhead)
            .arg(name, QDateTime::fromSecsSinceEpoch(time).toString(u"yyyy/MM/dd HH:mm"_s)));
}

Done Session::startFeed(const SessionOptions& options) {
    sourceServices = std::make_unique<SourceServices>(storeFile);
    liveFeed = std::make_unique<LiveFeed>(*store);
    if (const Done opened = followWire(options.wire); !opened)
        return opened;
    for (const SourceRequest& request : options.sources) {
        const SourceKind* kind = sourceKind(request.kind);
        if (kind == nullptr)
            return makeError<session_errors::unknownSource>(request.kind);
        if (ownKind == StoreKind::Sample && request.value == defaultFeedName) {
            awaitFeeds(request.value);
            continue;
        }
        const Done opened = liveFeed->open(*kind, request.value);
        if (!opened && request.value == defaultFeedName)
            noteUnheard(opened.error());
        else if (!opened)
            return opened;
    }
    if (options.readsSources && ownKind != StoreKind::Sample && !store->isReadOnly())
        networkSources = std::make_unique<NetworkSources>(*store, *liveFeed, &sourceServices->secrets());
    if (options.followsSample && ownKind != StoreKind::Own)
        followSample();
    return Nothing{};
}

// Nothing is read of it: it comes again, and is taken by the feed of the user's own store.
void Session::awaitFeeds(const QString& name) {
    doorbell = std::make_unique<SocketServer>();
    // Who says nothing only wants to know whether the name is taken.
    connect(doorbell.get(), &SocketServer::connected, this, [this](LineChannel* channel) {
        connect(
            channel, &LineChannel::lineReceived, this, [this] { goToStore({StoreKind::Own}); },
            Qt::QueuedConnection);
    });
    if (const Done listening = doorbell->listen(name); !listening)
        noteUnheard(listening.error());
}

// Another terminal may have been first. Where both have the user's own stores, what is sent to that one comes
// to this one by the store.
void Session::noteUnheard(const Error& reason) {
    if (!ownKind || !isInUse(reason))
        feedNotice = shownText(reason);
}

void Session::goToStore(OnwardStore next) {
    if (wantedStore)
        return;
    terminalSettings->setStoreKind(next.kind);
    wantedStore = std::move(next);
    // Whoever asks may be called from a window that goes.
    QMetaObject::invokeMethod(mainFrame.get(), &QWidget::close, Qt::QueuedConnection);
}

Done Session::followWire(const QString& wire) {
    if (wire.isEmpty())
        return Nothing{};
    const Result<WireDriver*> driver = wireDriverFor(wire);
    if (!driver)
        return driver.error();
    liveFeed->addSource(std::make_shared<WireSource>(
        wire, [&](WireTail::Listener listener) { return driver.value()->tail(wire, std::move(listener)); }));
    return Nothing{};
}

void Session::followSample() {
    const auto reading = openStoreToRead(storeFile);
    if (!reading || store->isReadOnly() || !mayShowSample(*reading.value()))
        return;
    SampleOptions sample;
    sample.now = host_clock::now();
    sample.days = daysFollowed;
    liveFeed->addSource(followedSample(sample));
    liveFeed->addSource(sampleHistory(sample));
    isSampleFollowed = true;
}

void Session::prepareModuleFiles() {
    // A view opens without them, too: without the tabs and the names that they would have given it.
    if (const Done written = writeSwitchesFile(configFolder, terminalSettings->switches()); !written)
        mainFrame->showNotice(shownText(written.error()));
    writeCategories();
}

void Session::writeCategories() {
    const std::vector<CategoryName> names = categoryNames(*store);
    categoryWatch->know(names);
    if (const Done written = writeCategoryFile(configFolder, names); !written)
        mainFrame->showNotice(shownText(written.error()));
}

void Session::renameCategories() {
    writeCategories();
    for (const auto& view : openViews->views())
        view->access->reloadCategories();
}

void Session::takeNewServices() {
    for (const auto& view : openViews->views())
        view->access->reloadServices();
}

Result<OpenView*> Session::openView(ViewRequest request) {
    prepareModuleFiles();
    if (request.size.isValid())
        mainFrame->resizeDesk(request.size);
    return openViews->open(std::move(request));
}

Done Session::readAsOf(std::int64_t moment) {
    host_clock::startAt(moment);
    store->holdLaterNews(asOfText().isEmpty() ? LaterNews::Held::Nothing : LaterNews::Held::All);
    store->forgetNewsDays();
    showStatus();
    return reopenUserViews();
}

Done Session::setSwitches(const SearchSwitches& switches) {
    terminalSettings->setSwitches(switches);
    return reopenUserViews();
}

Done Session::reopenUserViews() {
    prepareModuleFiles();
    return workspaceKeeper->reopenAll();
}

void Session::setScheme(ColourScheme scheme) {
    look->setScheme(scheme);
    showStatus();
    showViews();
}

void Session::setFontSize(int points) {
    look->setFontSize(points);
}

bool Session::setLanguage(const QString& code) {
    if (!useLanguage(code))
        return false;
    terminalSettings->setLanguage(code);
    look->apply();
    renameCategories();
    showViews();
    return true;
}

bool Session::useLanguage(const QString& code) {
    const bool simplified = code == "zh-CN"_L1;
    // Set before the texts change, so that a view that writes them anew writes them so.
    if (Languages::codes().contains(code)) {
        store->setConvertsToSimplified(simplified);
        store->setPrefersEnglishNames(code == "en"_L1);
        terminalSettings->setSimplifiedGlyphs(simplified);
    }
    return languages.use(code);
}

void Session::setConnected(bool connected) {
    const bool again = connected && store->bIsConnect() == 0;
    // Views register before they are told what they missed.
    for (const auto& open : openViews->views()) {
        if (again)
            open->view->vReRegisterSymbols();
    }
    liveFeed->setConnected(connected);
    showStatus();
}

void Session::setActive(bool active) {
    for (const auto& open : openViews->views())
        open->view->ChangeActiveApp(active ? 1 : 0);
}

void Session::showStatus() {
    mainFrame->showStatus(status->now({storeFile, isSampleFollowed, alertCenter->desk().unseen()}));
}

void Session::showCaption() {
    const OpenView* active = openViews->active();
    mainFrame->showCaption(active != nullptr ? active->countedTitle() : QString());
}

void Session::showViews() {
    MenuState state;
    state.scheme = schemeName(terminalSettings->scheme());
    state.language = languages.current();
    state.store = ownKind;
    for (const OpenView* view : openViews->docked())
        state.views.append({view->number, view->shownTitle()});
    const OpenView* active = openViews->active();
    if (active != nullptr && active->dock != nullptr)
        state.activeView = active->number;
    if (active != nullptr) {
        state.linkGroup = active->view->linkedGroup();
        state.compactRows = areRowsCompact(*active);
    }
    mainFrame->showChoices(state);
    showCaption();
    // Only when the view or its group is another one: the user may have picked a group for the box.
    const FollowedView now{active != nullptr ? active->number : 0, state.linkGroup};
    if (now != followed && now.group != 0)
        mainFrame->symbolBox().showGroup(now.group);
    followed = now;
}

}  // namespace wirepane
