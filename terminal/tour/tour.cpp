// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/tour/tour.h"

#include "host/contract/view_options.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "terminal/automation/user_input.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/console/interrupt.h"
#include "terminal/frame/frame_picture.h"
#include "terminal/frame/settings_dialog.h"
#include "terminal/frame/symbol_box.h"
#include "terminal/session/session.h"
#include "terminal/session/session_errors.h"
#include "terminal/tour/tour_errors.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QEventLoop>
#include <QItemSelectionModel>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int categoryTab = 1;
constexpr int allNewsList = 0;
constexpr int categoryList = 1;
constexpr int newsPutOut = 3;
constexpr int mostTurns = 50;
const QString pagesName = u"news.pdf"_s;
const QString textName = u"news.txt"_s;
constexpr unsigned char symbolMarket = 16;
constexpr int settleMs = 300;  // longer than the view's deferred refresh

void settle() {
    QEventLoop loop;
    QTimer::singleShot(settleMs, &loop, &QEventLoop::quit);
    loop.exec();
}

class Tour {
public:
    Tour(Session& running, const QString& path, const OnEndSignal& end)
        : session(running), folder(path), ending(end) {}

    Done play() {
        if (!folder.mkpath(u"."_s))
            return makeError<session_errors::folderNotMade>(folder.absolutePath());
        session.frame().resize(session.frame().sizeHint());
        session.frame().show();
        const ColourScheme before = session.settings().scheme();
        const Done played = playScenes();
        session.setScheme(before);
        return played;
    }

private:
    Done playScenes() {
        if (const Done opened = openView(NewsType::Full); !opened)
            return opened;
        session.setScheme(ColourScheme::Light);
        if (const Done taken = picture(u"1-all-news-light.png"_s); !taken)
            return taken;
        session.setScheme(ColourScheme::Dark);
        if (const Done taken = picture(u"2-all-news-dark.png"_s); !taken)
            return taken;
        session.setScheme(ColourScheme::Light);
        if (const Done written = putOutNews(); !written)
            return written;
        showTab(categoryTab);
        showCategoryWithNews();
        if (const Done taken = picture(u"3-by-category.png"_s); !taken)
            return taken;
        if (const Done opened = openDesk(); !opened)
            return opened;
        if (const Done taken = picture(u"4-linked-views.png"_s); !taken)
            return taken;
        session.setScheme(ColourScheme::Dark);
        SettingsDialog settings(
            {session.language(), session.settings().scheme(), session.settings().greenIsUp(),
             session.settings().fontSize(), session.settings().switches()},
            &session.frame());
        settings.show();
        return picture(u"5-settings.png"_s);
    }

    // A view with settings of its own: which views the user has, and how they stand, is none of the tour's.
    Done openView(NewsType newsType) {
        ViewRequest request;
        request.newsType = newsType;
        request.place = places++;
        request.linkGroup = session.frame().symbolBox().group();
        request.ownSettings = std::make_unique<MemoryCfgIO>();
        ViewOptions::writeMissing(*request.ownSettings, {});
        // Beside others a view is narrow: its story goes under its list.
        if (request.place > 0)
            request.ownSettings->setViewInfo({}, u"NewsShowType"_s, static_cast<int>(StoryShowType::Below));
        const auto opened = session.openView(std::move(request));
        return opened ? Done(Nothing{}) : Done(opened.error());
    }

    // The newest rows whose stories are there: for a story that is still to be written, printing waits.
    QItemSelection newestWithStories(NewsViewAccess& view) {
        const QAbstractItemModel* rows = view.sheetOf(allNewsList)->model();
        QItemSelection selected;
        const std::vector<HeadlineKey> keys = view.keysOf(allNewsList, 0, rows->rowCount());
        for (int row = 0; row < static_cast<int>(keys.size()) && selected.size() < newsPutOut; ++row) {
            const HeadlineKey& key = keys[static_cast<std::size_t>(row)];
            CStory story;
            if (session.backEnd().BKQNEWS_bGetStory(story, {key.time, key.sequence, key.service}))
                selected.select(rows->index(row, 0), rows->index(row, rows->columnCount() - 1));
        }
        return selected;
    }

    // Prints the newest headlines into a PDF, and saves them.
    Done putOutNews() {
        NewsViewAccess& view = *session.workspace().newest()->access;
        view.sheetOf(allNewsList)
            ->selectionModel()
            ->select(newestWithStories(view), QItemSelectionModel::ClearAndSelect);
        for (const QString& name : {pagesName, textName})
            QFile::remove(folder.filePath(name));
        for (const NewsOutcome& outcome :
             {view.printSelection(OutputTarget{folder.filePath(pagesName), {}, {}}),
              view.saveSelection(OutputTarget{folder.filePath(textName), NewsFileType::Utf8, {}})}) {
            if (outcome.failed)
                return makeError<tour_errors::refused>(outcome.message);
        }
        // What is not at hand comes first, and then the file.
        for (int turn = 0; turn < mostTurns && !isWritten(); ++turn)
            settle();
        if (!isWritten())
            return makeError<tour_errors::notPrinted>(folder.absolutePath());
        return Nothing{};
    }
    bool isWritten() const { return folder.exists(pagesName) && folder.exists(textName); }

    void showTab(int tab) {
        auto* tabs = qobject_cast<QTabBar*>(dlgItem(session.workspace().newest()->view, ids::tabStrip));
        if (tabs != nullptr && tab < tabs->count())
            clickTab(*tabs, tab);
    }

    // Three views that follow one symbol.
    Done openDesk() {
        for (const NewsType newsType : {NewsType::Full, NewsType::Symbol}) {
            if (const Done opened = openView(newsType); !opened)
                return opened;
        }
        session.workspace().arrange(Arrangement::Columns);
        session.workspace().find(1)->view->onCommand(ids::showTypeButton);
        session.workspace().activate(*session.workspace().find(2));
        std::vector<QString> codes;
        std::vector<QString> names;
        session.backEnd().symbols().GetSymbolsByService(symbolMarket, codes, names, 1);
        if (!codes.empty())
            session.links().change(nullptr, session.frame().symbolBox().group(),
                                   {symbolMarket, codes.front(), names.front()});
        return Nothing{};
    }

    void showCategoryWithNews() {
        const OpenView& view = *session.workspace().newest();
        auto* combo = qobject_cast<QComboBox*>(dlgItem(view.view, ids::categoryCombo));
        const CSuperSheetWnd* sheet = view.access->sheetOf(categoryList);
        if (combo == nullptr || sheet == nullptr)
            return;
        for (int entry = 0; entry < combo->count() && sheet->rowCount() == 0; ++entry)
            chooseComboEntry(*combo, entry);
    }

    Done picture(const QString& name) {
        settle();
        if (ending.hasCome())
            return makeError<tour_errors::stopped>();
        const QString path = folder.filePath(name);
        if (!pictureWithWindowsAbove(session.frame()).save(path))
            return makeError<tour_errors::pictureNotWritten>(path);
        return Nothing{};
    }

    Session& session;
    QDir folder;
    const OnEndSignal& ending;
    int places = 0;
};

}  // namespace

int runTour(const TourOptions& options) {
    const OnEndSignal ending([] { QCoreApplication::exit(exitPartly); });
    const QTemporaryDir scratch;
    const auto orScratch = [&scratch](const QString& given, const QString& name) {
        return given.isEmpty() ? scratch.filePath(name) : given;
    };
    const auto session =
        Session::open({orScratch(options.storeFile, u"tour.wirepane"_s),
                       orScratch(options.configFolder, u"settings"_s), options.language, true});
    const Done played = session ? Tour(*session.value(), options.folder, ending).play() : session.error();
    if (!played) {
        printNote(sentence(played.error()));
        return ending.hasCome() ? exitPartly : exitUnusable;
    }
    printNote(u"The tour's pictures, printed pages (news.pdf) and saved news (news.txt) are in %1."_s.arg(
        QDir::toNativeSeparators(QDir(options.folder).absolutePath())));
    return exitDone;
}

}  // namespace wirepane
