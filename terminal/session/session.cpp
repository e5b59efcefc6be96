// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/session.h"

#include "host/contract/clock.h"
#include "terminal/frame/view_desk.h"
#include "terminal/session/module_location.h"
#include "terminal/session/store_opening.h"
#include "terminal/settings/module_files.h"

#include <QDateTime>
#include <QDir>

#include <cmath>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int sameMomentSeconds = 60;  // a clock that is no further off counts as the machine's

QString asOfText() {
    const std::int64_t now = host_clock::now();
    if (std::abs(now - QDateTime::currentSecsSinceEpoch()) < sameMomentSeconds)
        return {};
    return QDateTime::fromSecsSinceEpoch(now).toString(u"yyyy/MM/dd HH:mm"_s);
}

}  // namespace

Session::Session(const SessionOptions& options)
    : configFolder(QDir(options.configFolder).absolutePath()),
      storeFile(options.storeFile),
      settingsFile(QDir(configFolder).filePath(u"wirepane.ini"_s)),
      layout(settingsFile),
      terminalSettings(std::make_unique<TerminalSettings>(settingsFile)) {
    CSyncInfo::SetSettingCFG(terminalSettings.get());
}

Session::~Session() = default;

Result<std::unique_ptr<Session>> Session::open(const SessionOptions& options) {
    std::unique_ptr<Session> session(new Session(options));
    const Done started = session->start(options);
    if (!started)
        return Error{started.error()};
    return session;
}

Done Session::start(const SessionOptions& options) {
    if (!QDir().mkpath(configFolder))
        return Error{u"The settings folder %1 cannot be made."_s.arg(configFolder)};
    auto opened = openBackEnd(storeFile, options.sampleWhenNew);
    if (!opened)
        return Error{opened.error()};
    store = std::move(opened.value());
    store->setSysPath(configFolder);
    BKQuoteInterface::SetBKInterface(store.get());
    categoryDisplay = std::make_unique<CategoryDisplay>(*store);
    TRVItemDisplay::SetItemDisplay(categoryDisplay.get());
    const auto module = loadModule();
    if (!module)
        return Error{module.error()};
    mainFrame = std::make_unique<MainFrame>();
    openViews = std::make_unique<Workspace>(*module.value(), mainFrame->desk());
    look = std::make_unique<Appearance>(*terminalSettings, *openViews);
    const QString wanted = options.language.isEmpty() ? terminalSettings->language() : options.language;
    if (!useLanguage(wanted))
        useLanguage(Languages::ofSystem());
    look->apply();
    connect(openViews.get(), &Workspace::arranged, this, &Session::showStatus);
    connect(mainFrame.get(), &MainFrame::languageChanged, this, &Session::showStatus);
    showStatus();
    return Nothing{};
}

Done Session::prepareModuleFiles() {
    if (const Done written = writeSwitchesFile(configFolder, terminalSettings->switches()); !written)
        return written;
    return writeCategoryFile(configFolder, categoryNames(*store));
}

Result<OpenView*> Session::openView(ViewRequest request) {
    if (const Done prepared = prepareModuleFiles(); !prepared)
        return Error{prepared.error()};
    if (request.size.isValid())
        mainFrame->resizeDesk(request.size);
    return openViews->open(std::move(request));
}

Done Session::openUserView() {
    ViewRequest request;
    request.settings = &layout;
    const auto opened = openView(std::move(request));
    return opened ? Done(Nothing{}) : Done(Error{opened.error()});
}

Done Session::readAsOf(std::int64_t moment) {
    host_clock::startAt(moment);
    store->forgetNewsDays();
    std::vector<int> numbers;
    for (const auto& open : openViews->views()) {
        if (open->settings == &layout)
            numbers.push_back(open->number);
    }
    for (const int number : numbers) {
        openViews->save(*openViews->find(number));
        openViews->close(number);
        if (const Done opened = openUserView(); !opened)
            return opened;
    }
    showStatus();
    return Nothing{};
}

Done Session::saveLayout() {
    for (const auto& open : openViews->views()) {
        if (open->settings == &layout)
            openViews->save(*open);
    }
    terminalSettings->setFrameGeometry(mainFrame->saveGeometry());
    return settingsFile.save();
}

void Session::setScheme(ColourScheme scheme) {
    look->setScheme(scheme);
    showStatus();
}

void Session::setFontSize(int points) {
    look->setFontSize(points);
}

bool Session::setLanguage(const QString& code) {
    if (!useLanguage(code))
        return false;
    terminalSettings->setLanguage(code);
    look->apply();
    showStatus();
    return true;
}

bool Session::useLanguage(const QString& code) {
    const bool simplified = code == "zh-CN"_L1;
    // Set before the texts change, so that a view that writes them anew writes them so.
    if (Languages::codes().contains(code)) {
        store->setConvertsToSimplified(simplified);
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
    store->setConnected(connected);
    showStatus();
}

void Session::setActive(bool active) {
    for (const auto& open : openViews->views())
        open->view->ChangeActiveApp(active ? 1 : 0);
}

void Session::showStatus() {
    std::vector<unsigned char> services;
    store->BKQNEWS_bGetAllNewsService(services);
    mainFrame->showStatus(
        {store->bIsConnect() != 0, storeFile, static_cast<int>(services.size()), asOfText()});
    mainFrame->showChoices(schemeName(terminalSettings->scheme()), languages.current());
    QString caption;
    if (const OpenView* view = openViews->newest())
        view->view->GetCaption(caption);
    mainFrame->showCaption(caption);
}

}  // namespace wirepane
