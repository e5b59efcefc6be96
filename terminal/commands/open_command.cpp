// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/open_command.h"

#include "backend/feed/feed_name.h"
#include "backend/feed/source_kinds.h"
#include "backend/lines/standard_channel.h"
#include "terminal/automation/automation.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/commands/explain_command.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/console/interrupt.h"
#include "terminal/session/frame_commands.h"
#include "terminal/session/session.h"
#include "terminal/tour/tour.h"

#include <QApplication>
#include <QScreen>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// How the terminal itself is to be opened.
struct OpenOptions {
    QString storeFile;
    QString configFolder;
    QString language;  // empty: as the settings say
    QString automationSocket;
    QString tourFolder;
    std::vector<SourceRequest> sources;
    std::optional<UserStores> stores;     // none: a store was named
    std::optional<StoreKind> storeKind;   // of them
    std::optional<QString> explainedKey;  // of a headline: nothing is opened, it is explained
    QString wire;                         // empty: none is followed
    bool automation = false;              // on standard input and output
    bool sample = false;
    bool noSample = false;
    bool followsSample = false;
    bool tour = false;
    bool workspace = false;  // a script works on the user's views

    bool isScripted() const { return automation || !automationSocket.isEmpty(); }
};

bool hasDisplay() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

QString kindsOfSources() {
    QStringList kinds;
    for (const SourceKind& kind : sourceKinds())
        kinds += kind.name + u':' + QString(kind.value).toUpper();
    return kinds.join(u", "_s);
}

void addOptions(QCommandLineParser& parser) {
    parser.addOptions({
        {u"config"_s, u"The folder of settings and layout. Default: %1."_s.arg(defaultConfigFolder()),
         u"folder"_s},
        {u"lang"_s, u"The language: %1."_s.arg(Languages::codes().join(u", "_s)), u"code"_s},
        {u"sample"_s, u"Fills a store without news with the sample wire."_s},
        {u"no-sample"_s, u"Leaves a store without news as it is."_s},
        {u"offscreen"_s, u"Draws all windows off screen."_s},
        {u"workspace"_s, u"With automation: opens the user's views, and keeps them."_s},
        {u"automation"_s, u"Is driven by JSON-RPC on standard input and output."_s},
        {u"automation-socket"_s, u"Is driven by JSON-RPC on a local socket."_s, u"name"_s},
        {u"source"_s, u"Takes news from a live source: %1."_s.arg(kindsOfSources()), u"kind:value"_s},
        {u"wire"_s, u"Follows a wire: a name in the service file of its server's connections."_s,
         u"service"_s},
        {u"spool"_s, u"Takes news from the files that are put into the folder."_s, u"folder"_s},
        {u"feed"_s, u"The name under which feeds and replays find this terminal."_s, u"name"_s},
        {u"explain"_s,
         u"Prints where a headline stands in the user's views, and why. KEY: a line of search --json."_s,
         u"key"_s},
        {u"tour"_s,
         u"Shows itself off screen on the sample wire and writes pictures, pages and saved news into the folder."_s,
         u"folder"_s},
    });
}

std::vector<SourceRequest> sourcesFrom(CommandArguments& arguments) {
    std::vector<SourceRequest> sources;
    for (const QString& kind : {u"spool"_s, u"feed"_s}) {
        if (const QString value = arguments.parser.value(kind); !value.isEmpty())
            sources.push_back({kind, value});
    }
    for (const QString& given : arguments.parser.values(u"source"_s)) {
        const SourceRequest request{given.section(u':', 0, 0), given.section(u':', 1)};
        if (sourceKind(request.kind) == nullptr || request.value.isEmpty())
            arguments.fail(u"--source takes one of %1, not \"%2\"."_s.arg(kindsOfSources(), given));
        sources.push_back(request);
    }
    return sources;
}

OpenOptions openOptions(CommandArguments& arguments) {
    const QCommandLineParser& parser = arguments.parser;
    OpenOptions options;
    options.automation = parser.isSet(u"automation"_s);
    options.automationSocket = parser.value(u"automation-socket"_s);
    if (parser.isSet(u"explain"_s))
        options.explainedKey = parser.value(u"explain"_s);
    const bool isExplaining = options.explainedKey.has_value();
    options.tour = parser.isSet(u"tour"_s) || (!hasDisplay() && !options.isScripted() && !isExplaining);
    options.tourFolder = parser.isSet(u"tour"_s) ? parser.value(u"tour"_s) : u"out"_s;
    // The tour touches nothing of the user's unless he names it.
    options.storeFile = options.tour && !parser.isSet(u"store"_s) ? QString() : arguments.storeFile();
    options.configFolder = parser.value(u"config"_s);
    if (options.configFolder.isEmpty() && !options.tour)
        options.configFolder = defaultConfigFolder();
    options.language = parser.value(u"lang"_s);
    options.workspace = parser.isSet(u"workspace"_s);
    options.sample = parser.isSet(u"sample"_s);
    options.noSample = parser.isSet(u"no-sample"_s);
    options.sources = sourcesFrom(arguments);
    options.wire = parser.value(u"wire"_s);
    // Who names a source of news has no need of an invented one.
    options.followsSample = options.wire.isEmpty() && options.sources.empty() && !options.noSample &&
                            !options.isScripted() && !options.tour;
    if (!options.wire.isEmpty() && !parser.isSet(u"store"_s))
        options.storeFile = storeOfWire(options.wire, WireStore::Terminal);
    else if (!parser.isSet(u"store"_s) && !options.isScripted() && !options.tour && !isExplaining) {
        options.stores = userStores();
        if (options.sample)
            options.storeKind = StoreKind::Sample;
        else if (options.noSample || !options.sources.empty())
            options.storeKind = StoreKind::Own;
    }
    if (isExplaining)
        options.storeFile = arguments.storeToRead();
    if (options.wire.isEmpty() && !parser.isSet(u"feed"_s) && !options.isScripted() && !options.tour)
        options.sources.push_back({u"feed"_s, defaultFeedName});
    if (isExplaining && (options.isScripted() || options.tour))
        arguments.fail(u"--explain opens no window, and goes with neither automation nor --tour."_s);
    if (!options.wire.isEmpty() && !options.sources.empty())
        arguments.fail(u"--wire takes news from the wire alone, and goes with no other source."_s);
    if (!options.language.isEmpty() && !Languages::codes().contains(options.language))
        arguments.fail(u"--lang takes one of %1."_s.arg(Languages::codes().join(u", "_s)));
    if (!arguments.rest().isEmpty())
        arguments.fail(u"There is no command \"%1\" here; a command is the first argument."_s.arg(
            arguments.rest().constFirst()));
    arguments.applyNow();
    return options;
}

// Most of the screen, but no more than is read well, and always on it.
QSize firstSize(const QSize& screen) {
    constexpr QSize largest(1600, 1000);
    constexpr QSize least(1100, 765);
    constexpr qreal share = 0.85;
    const QSize wanted = (QSizeF(screen) * share).toSize().boundedTo(largest).expandedTo(least);
    constexpr QSize frameOfWindow(16, 48);
    return wanted.boundedTo(screen - frameOfWindow);
}

Done openWorkspace(Session& session) {
    MainFrame& frame = session.frame();
    if (!frame.restoreGeometry(session.settings().frameGeometry()))
        frame.resize(firstSize(frame.screen()->availableSize()));
    frame.show();
    return session.keeper().restore();
}

// Not even a dialog that is open holds up the end that the system asks for.
void endTerminal() {
    QCoreApplication::exit(exitDone);
}

// The user's terminal. Without a store of their own, users start with the sample wire. `arrived`: what the
// user came for from the other store.
int runForUser(Session& session, const OnwardStore& arrived) {
    FrameCommands commands(session);
    if (const Done opened = openWorkspace(session); !opened) {
        commands.report(opened);
        return exitUnusable;
    }
    if (session.settings().showsFirstSteps())
        session.frame().showFirstSteps();
    if (!arrived.files.isEmpty())
        commands.importFiles(arrived.files);
    if (arrived.showsSources)
        commands.showSources();
    return QApplication::exec();
}

int runForScripts(Session& session, const OpenOptions& options, StandardChannel* channel) {
    Automation automation(session);
    if (channel != nullptr)
        automation.serve(*channel);
    if (!options.automationSocket.isEmpty()) {
        if (const Done listening = automation.listen(options.automationSocket); !listening) {
            printNote(sentence(listening.error()));
            return exitUnusable;
        }
    }
    const FrameCommands commands(session);
    if (!options.workspace) {
        session.frame().show();
    } else if (const Done opened = openWorkspace(session); !opened) {
        printNote(sentence(opened.error()));
        return exitUnusable;
    }
    return QApplication::exec();
}

// `onward`: where the user came from another of his stores; afterwards, where he goes on.
int runOpened(const OpenOptions& options, StandardChannel* channel, std::optional<OnwardStore>& onward) {
    const bool sample = options.wire.isEmpty() &&
                        (options.sample || (!options.isScripted() && !options.noSample && !options.stores));
    const auto session =
        Session::open({options.storeFile, options.configFolder, options.language, sample, options.sources,
                       !options.isScripted(), options.followsSample, options.stores,
                       onward ? std::optional(onward->kind) : options.storeKind,
                       options.wire.isEmpty() && !options.isScripted(), options.wire});
    const OnwardStore arrived = onward.value_or(OnwardStore());
    onward.reset();
    if (!session) {
        printNote(sentence(session.error()));
        return exitUnusable;
    }
    const OnEndSignal ending(&endTerminal);
    if (!session.value()->settingsMessage().isEmpty())
        printNote(session.value()->settingsMessage());
    const int status = options.isScripted() ? runForScripts(*session.value(), options, channel)
                                            : runForUser(*session.value(), arrived);
    onward = session.value()->onward();
    return status;
}

}  // namespace

bool wantsOffscreen(int argc, const char* const* argv) {
    const auto given = [&](const char* option) {
        return std::any_of(argv + 1, argv + argc, [option](const char* argument) {
            const std::size_t length = std::strlen(option);
            return std::strncmp(argument, option, length) == 0 &&
                   (argument[length] == '\0' || argument[length] == '=');
        });
    };
    return given("--offscreen") || given("--tour") || given("--explain") || !hasDisplay();
}

int runTerminal() {
    CommandArguments arguments(
        QString(),
        u"A news terminal. Commands, given as the first argument: import, feed, replay, sample, search, export, check, diary, backup, trim, source."_s);
    addOptions(arguments.parser);
    if (const auto status = arguments.read())
        return *status;
    OpenOptions options = openOptions(arguments);
    if (const auto status = arguments.fault())
        return *status;
    if (options.explainedKey)
        return runExplain({*options.explainedKey, options.storeFile, options.configFolder});
    if (options.tour)
        return runTour({options.tourFolder, options.storeFile, options.configFolder, options.language});
    // Before anything else can print.
    const std::unique_ptr<StandardChannel> channel =
        options.automation ? std::make_unique<StandardChannel>() : nullptr;
    std::optional<OnwardStore> onward;
    int status = exitDone;
    do
        status = runOpened(options, channel.get(), onward);
    while (onward);
    if (channel)
        noteLostOutput(channel->writeError());
    return status;
}

}  // namespace wirepane
