// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/diary/diary_keeper.h"

#include "backend/diary/diary_lines.h"
#include "backend/diary/diary_screens.h"
#include "terminal/frame/workspace.h"

#include <QApplication>
#include <QDateTime>
#include <QEvent>
#include <QJsonArray>
#include <QSysInfo>
#include <QUuid>

#include <algorithm>
#include <chrono>
#include <pwd.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

namespace names = diary_names;

// So often a screen that never rests is looked at; what changes after a rest is looked at at once.
constexpr std::chrono::milliseconds betweenLooks{50};
constexpr std::size_t mostKnown = 50'000;  // rows and stories; what is shown again later is written again
constexpr std::size_t mostNamed = 1000;    // headlines of one act

QString userName() {
    const passwd* user = getpwuid(geteuid());
    return user != nullptr ? QString::fromLocal8Bit(user->pw_name) : QString::number(geteuid());
}

QString kindOf(NewsAct::Kind kind) {
    switch (kind) {
        case NewsAct::Kind::Opened:
            return u"opened"_s;
        case NewsAct::Kind::Searched:
            return u"searched"_s;
        case NewsAct::Kind::Printed:
            return u"printed"_s;
        case NewsAct::Kind::Saved:
            return u"saved"_s;
        case NewsAct::Kind::MarkedRead:
            return u"marked read"_s;
        case NewsAct::Kind::MarkedUnread:
            return u"marked unread"_s;
        case NewsAct::Kind::Starred:
            break;
    }
    return u"starred"_s;
}

void insertKey(QJsonObject& entry, const HeadlineKey& key) {
    entry.insert(names::service, key.service);
    entry.insert(names::time, static_cast<qint64>(key.time));
    entry.insert(names::sequence, key.sequence);
}

}  // namespace

DiaryKeeper::DiaryKeeper(QString pathOfStore, Workspace& openViews)
    : storePath(std::move(pathOfStore)), workspace(openViews) {
    soon.setSingleShot(true);
    connect(&soon, &QTimer::timeout, this, &DiaryKeeper::look);
}

DiaryKeeper::~DiaryKeeper() {
    end();
}

void DiaryKeeper::choose(const DiaryChoices& choices) {
    present = choices;
    if (present.isKept && writer == nullptr)
        begin();
    else if (!present.isKept)
        end();
}

void DiaryKeeper::begin() {
    session = QUuid::createUuid().toString(QUuid::Id128);
    writer = std::make_unique<DiaryWriter>(
        storePath,
        DiaryWriter::Told{[this](const DiaryHead& head) { told.post([this, head] { kept = head; }); },
                          [this](const Error& error) { told.post([this, error] { emit failed(error); }); }});
    add(u"begin"_s, {{u"version"_s, QCoreApplication::applicationVersion()}});
    NewsDiary::install(this);
    qApp->installEventFilter(this);
    look();
}

void DiaryKeeper::end() {
    if (writer == nullptr)
        return;
    qApp->removeEventFilter(this);
    NewsDiary::install(nullptr);
    soon.stop();
    add(u"end"_s, {});
    writer.reset();
    last.clear();
    rows.clear();
    stories.clear();
}

bool DiaryKeeper::eventFilter(QObject* watched, QEvent* event) {
    const bool isSeen = event->type() == QEvent::Paint || event->type() == QEvent::Hide;
    if (isSeen && watched->isWidgetType() && !soon.isActive())
        soon.start(sinceLook.isValid() && !sinceLook.hasExpired(betweenLooks.count())
                       ? betweenLooks
                       : std::chrono::milliseconds(0));
    return false;
}

void DiaryKeeper::look() {
    if (writer == nullptr)
        return;
    sinceLook.start();
    std::map<int, SeenScreen> now;
    for (const auto& view : workspace.views())
        now.emplace(view->number, screenOf(*view));
    for (const auto& [number, screen] : last) {
        if (!now.contains(number) && screen != SeenScreen())
            write(number, {});
    }
    for (const auto& [number, screen] : now) {
        const auto before = last.find(number);
        if (before == last.end() || before->second != screen)
            write(number, screen);
    }
    last = std::move(now);
}

void DiaryKeeper::write(int view, const SeenScreen& screen) {
    if (rows.size() > mostKnown || stories.size() > mostKnown) {
        rows.clear();
        stories.clear();
    }
    QJsonArray rowIds;
    for (const SeenRow& row : screen.rows)
        rowIds.append(static_cast<qint64>(idOf(row)));
    QJsonArray storyIds;
    for (const SeenStory& story : screen.stories)
        storyIds.append(static_cast<qint64>(idOf(story)));
    add(u"screen"_s, {{names::view, view},
                      {names::title, screen.title},
                      {names::columns, QJsonArray::fromStringList(screen.columns)},
                      {names::rows, rowIds},
                      {names::focus, screen.focus},
                      {names::stories, storyIds}});
}

std::int64_t DiaryKeeper::idOf(const SeenRow& row) {
    KnownRow& known = rows[{row.key.time, row.key.sequence, row.key.service}];
    if (known.id != 0 && known.cells == row.cells)
        return known.id;
    known = {row.cells, ++lastId};
    QJsonObject entry{{names::id, static_cast<qint64>(known.id)},
                      {names::cells, QJsonArray::fromStringList(row.cells)}};
    insertKey(entry, row.key);
    add(u"row"_s, std::move(entry));
    return known.id;
}

std::int64_t DiaryKeeper::idOf(const SeenStory& story) {
    std::int64_t& id = stories[{story.title, story.text}];
    if (id == 0) {
        id = ++lastId;
        add(u"story"_s,
            {{names::id, static_cast<qint64>(id)}, {names::title, story.title}, {names::text, story.text}});
    }
    return id;
}

void DiaryKeeper::add(const QString& kind, QJsonObject facts) {
    if (writer == nullptr)
        return;
    static const QString user = userName();
    static const QString machine = QSysInfo::machineHostName();
    facts.insert(names::kind, kind);
    facts.insert(names::moment, QDateTime::currentMSecsSinceEpoch());
    facts.insert(names::user, user);
    facts.insert(names::machine, machine);
    facts.insert(names::session, session);
    writer->add(std::move(facts));
}

void DiaryKeeper::addAlert(const AlertEntry& alert) {
    QJsonObject facts{{u"rule"_s, alert.rule}, {names::title, alert.title}};
    insertKey(facts, alert.headline);
    add(u"alerted"_s, std::move(facts));
}

void DiaryKeeper::note(const QObject& view, const NewsAct& act) {
    QJsonObject facts{{names::view, numberOf(view)}};
    if (act.kind != NewsAct::Kind::Searched)
        facts.insert(u"count"_s, static_cast<qint64>(act.news.size()));
    if (act.news.size() == 1) {
        insertKey(facts, act.news.front());
    } else if (!act.news.empty()) {
        QJsonArray headlines;
        for (std::size_t i = 0; i < std::min(act.news.size(), mostNamed); ++i)
            headlines.append(
                QJsonArray{act.news[i].service, static_cast<qint64>(act.news[i].time), act.news[i].sequence});
        facts.insert(names::headlines, headlines);
    }
    if (act.kind == NewsAct::Kind::Searched && present.hasWords)
        facts.insert(u"words"_s, act.words);
    else if (act.kind != NewsAct::Kind::Searched && !act.words.isEmpty())
        facts.insert(u"file"_s, act.words);
    add(kindOf(act.kind), std::move(facts));
}

int DiaryKeeper::numberOf(const QObject& view) const {
    for (const auto& open : workspace.views()) {
        if (open->view == &view)
            return open->number;
    }
    return 0;
}

}  // namespace wirepane
