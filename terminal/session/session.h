// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/live_feed.h"
#include "backend/network/network_sources.h"
#include "backend/result.h"
#include "backend/store/embedded_back_end.h"
#include "backend/store/store_guard.h"
#include "terminal/diary/diary_keeper.h"
#include "terminal/frame/main_frame.h"
#include "terminal/frame/workspace.h"
#include "terminal/session/alert_center.h"
#include "terminal/session/appearance.h"
#include "terminal/session/background_painter.h"
#include "terminal/session/blind_window.h"
#include "terminal/session/breaking_news.h"
#include "terminal/session/category_display.h"
#include "terminal/session/category_watch.h"
#include "terminal/session/link_groups.h"
#include "terminal/session/offer_quotes.h"
#include "terminal/session/retention_keeper.h"
#include "terminal/session/service_watch.h"
#include "terminal/session/status_report.h"
#include "terminal/session/user_stores.h"
#include "terminal/session/workspace_keeper.h"
#include "terminal/settings/layout_store.h"
#include "terminal/settings/settings_file.h"
#include "terminal/settings/terminal_settings.h"
#include "terminal/sources/source_services.h"
#include "terminal/translations/languages.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace wirepane {
class SocketServer;

// A live source that is wanted: a kind of source_kinds.h, and what it takes.
struct SourceRequest {
    QString kind;
    QString value;
};

struct SessionOptions {
    QString storeFile;           // made when absent; unused where the user's own stores are wanted
    QString configFolder;        // made when absent
    QString language;            // empty: as set before, or as the system is set
    bool sampleWhenNew = false;  // a store without headlines is filled with the sample wire
    std::vector<SourceRequest> sources = {};
    // A user waits: what takes long before the windows open is told in one of its own.
    bool tellsProgress = false;
    // Where the store holds the sample wire and nothing else, that goes on as a live source.
    bool followsSample = false;
    // The user's stores, where one of them is to be opened. The sample's is filled and followed.
    std::optional<UserStores> stores = std::nullopt;
    std::optional<StoreKind> storeKind = std::nullopt;  // of them; nothing: the one to begin with
    // The sources of the store's list are asked, unless it is the sample's.
    bool readsSources = false;
    // The wire that the store follows, by the name of its connection; empty: none.
    QString wire = {};
    // Somebody is there to be told what his alert rules match.
    bool watchesAlerts = true;
};

// Where a user goes from a session: to the other one of his stores, to take files into it, if any, or to its
// sources.
struct OnwardStore {
    StoreKind kind = StoreKind::Own;
    QStringList files = {};
    bool showsSources = false;
};

// One running terminal: the store behind its back end, the settings, the news module and the main frame with
// its views, and what menus and scripts do to all of them. It installs the back end and the settings for the
// process; there is one session at a time.
class Session : public QObject {
    Q_OBJECT

public:
    // Fails when the store, the settings folder or the module cannot be used.
    static Result<std::unique_ptr<Session>> open(const SessionOptions& options);
    ~Session() override;

    EmbeddedBackEnd& backEnd() { return *store; }
    LiveFeed& feed() { return *liveFeed; }
    TerminalSettings& settings() { return *terminalSettings; }
    Workspace& workspace() { return *openViews; }
    MainFrame& frame() { return *mainFrame; }
    Appearance& appearance() { return *look; }
    BreakingNews& breakingNews() { return *latestNews; }
    LinkGroups& links() { return *linkGroups; }
    WorkspaceKeeper& keeper() { return *workspaceKeeper; }
    AlertCenter& alerts() { return *alertCenter; }
    DiaryKeeper& diary() { return *diaryKeeper; }
    SourceServices& sources() { return *sourceServices; }
    // The store in use.
    const QString& storePath() const { return storeFile; }
    // Which of the user's own stores that is; nothing: it is another one, that was named.
    std::optional<StoreKind> storeKind() const { return ownKind; }
    // Closes the windows; whoever runs the session opens the next one with that store, now and from now on.
    void goToStore(OnwardStore next);
    const std::optional<OnwardStore>& onward() const { return wantedStore; }
    // The language in force.
    const QString& language() const { return languages.current(); }
    // What was wrong with the settings file, in a sentence; empty when nothing was.
    const QString& settingsMessage() const { return settingsFile.message(); }

    // Opens a view, with the module's files as they must stand at this moment.
    Result<OpenView*> openView(ViewRequest request);
    // Takes this moment (seconds since 1970) as the present one, and opens the user's views anew. Unless it
    // is the machine's, whatever is dated later waits for its moment, also what comes meanwhile.
    Done readAsOf(std::int64_t moment);
    // Takes the search switches into force, for the user's views too.
    Done setSwitches(const SearchSwitches& switches);
    // Takes the choices of the diary into force, for the next start too.
    void setDiary(const DiaryChoices& choices);

    void setScheme(ColourScheme scheme);
    void setFontSize(int points);
    // Takes a language into force, for the next start too. False for one that the terminal does not have.
    bool setLanguage(const QString& code);
    void setConnected(bool connected);
    // The application has become the active one, or is no longer.
    void setActive(bool active);
    // Brings the status bar up to date.
    void showStatus();
    // Brings menus, title and symbol box up to date with the views.
    void showCaption();
    void showViews();

private:
    // The view whose link group the symbol box has taken over.
    struct FollowedView {
        int number = 0;
        unsigned char group = 0;

        bool operator==(const FollowedView&) const = default;
    };

    explicit Session(const SessionOptions& options);

    Done start(const SessionOptions& options);
    // In the language that the user is told of the progress in.
    Done openStore(const SessionOptions& options, const QString& language);
    void connectParts();
    void connectDiary();
    Done startFeed(const SessionOptions& options);
    Done followWire(const QString& wire);
    void followSample();
    // Who feeds this terminal under the common name feeds the user's own store.
    void awaitFeeds(const QString& name);
    // Feeds do not find this terminal under the common name.
    void noteUnheard(const Error& reason);
    void tellDatedAhead(unsigned char service, std::int64_t time);
    void prepareModuleFiles();
    void writeCategories();
    void renameCategories();
    void takeNewServices();
    Done reopenUserViews();
    bool useLanguage(const QString& code);

    QString configFolder;
    QString storeFile;
    SettingsFile settingsFile;
    LayoutStore layout;
    Languages languages;
    // In the order in which they depend on each other; destroyed from the last to the first.
    std::unique_ptr<TerminalSettings> terminalSettings;
    std::unique_ptr<EmbeddedBackEnd> store;
    std::unique_ptr<BackgroundPainter> painter;
    std::unique_ptr<SourceServices> sourceServices;
    std::unique_ptr<LiveFeed> liveFeed;
    std::unique_ptr<NetworkSources> networkSources;
    bool isSampleFollowed = false;
    std::optional<StoreKind> ownKind;
    std::optional<OnwardStore> wantedStore;
    std::unique_ptr<SocketServer> doorbell;  // feeds ring there while the store is the sample's
    QString feedNotice;                      // why feeds do not find this terminal under the common name
    std::unique_ptr<CategoryDisplay> categoryDisplay;
    std::unique_ptr<MainFrame> mainFrame;
    std::unique_ptr<BreakingNews> latestNews;
    std::unique_ptr<AlertCenter> alertCenter;
    std::unique_ptr<BlindWindow> blindWindow;
    std::unique_ptr<Workspace> openViews;
    std::unique_ptr<DiaryKeeper> diaryKeeper;
    int unseenAlerts = 0;  // as the diary knows it
    std::unique_ptr<Appearance> look;
    std::unique_ptr<LinkGroups> linkGroups;
    std::unique_ptr<WorkspaceKeeper> workspaceKeeper;
    std::unique_ptr<CategoryWatch> categoryWatch;
    std::unique_ptr<ServiceWatch> serviceWatch;
    std::unique_ptr<StatusReport> status;
    std::unique_ptr<OfferQuotes> offerQuotes;
    std::unique_ptr<RetentionKeeper> retention;
    std::unique_ptr<StoreGuard> guard;
    FollowedView followed;
    QTimer clock;                       // the status bar's
    std::set<unsigned char> toldAhead;  // services whose news is dated ahead
};

}  // namespace wirepane
