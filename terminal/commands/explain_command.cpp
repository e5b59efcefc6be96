// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/explain_command.h"

#include "backend/alerts/alert_book.h"
#include "backend/alerts/alert_matcher.h"
#include "backend/store/store_file.h"
#include "backend/store/store_reader.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/commands/news_query.h"
#include "terminal/commands/standing_text.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/session/session.h"
#include "terminal/translations/shown_time.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

int unusable(const QString& sentence) {
    printNote(sentence);
    return exitUnusable;
}

// As "search --json" prints it: its service, time and sequence.
std::optional<HeadlineKey> keyOfLine(const QString& text) {
    using Sequence = std::numeric_limits<std::int32_t>;
    const QJsonObject fields = QJsonDocument::fromJson(text.toUtf8()).object();
    const int service = fields[u"service"_s].toInt(0);
    const auto time = momentOf(fields[u"time"_s].toString());
    const double sequence = fields[u"sequence"_s].toDouble(std::numeric_limits<double>::infinity());
    if (service < 1 || service > lastNewsService || !time || sequence < Sequence::min() ||
        sequence > Sequence::max())
        return std::nullopt;
    return HeadlineKey{*time, static_cast<std::int32_t>(sequence), static_cast<unsigned char>(service)};
}

// Nothing, and it is said why, when the store does not have it.
std::optional<CHeadline> headlineOf(const Explained& explained, const HeadlineKey& key) {
    const QString file = QDir::toNativeSeparators(explained.storeFile);
    if (!QFileInfo::exists(explained.storeFile)) {
        printNote(u"There is no store %1."_s.arg(file));
        return std::nullopt;
    }
    const auto store = openStoreToRead(explained.storeFile, {.onIndexing = indexingLines()});
    if (!store) {
        printNote(sentence(store.error()));
        return std::nullopt;
    }
    auto headline = StoreReader(*store.value()).headline(key);
    if (!headline)
        printNote(store.value()->damage() ? sentence(*store.value()->damage())
                                          : u"There is no headline %1 in %2."_s.arg(explained.key, file));
    return headline;
}

// The views write into their settings while they are open.
bool copySettings(const QString& from, const QString& to) {
    bool copied = true;
    for (const QFileInfo& file : QDir(from).entryInfoList(QDir::Files))
        copied = QFile::copy(file.filePath(), QDir(to).filePath(file.fileName())) && copied;
    return copied;
}

QString topicName(EmbeddedBackEnd& backEnd, unsigned char service, const QString& id) {
    std::vector<QString> ids;
    std::vector<QString> names;
    backEnd.bNewsAPI_GetNewsCatId(service, ids, names);
    for (std::size_t i = 0; i < std::min(ids.size(), names.size()); ++i) {
        if (ids[i] == id)
            return u"%1 (%2)"_s.arg(id, names[i]);
    }
    return id;
}

QString whyNot(AlertOutcome outcome) {
    switch (outcome) {
        case AlertOutcome::Told:
            break;
        case AlertOutcome::RuleOff:
            return u"the rule is off"_s;
        case AlertOutcome::Disconnected:
            return u"not connected"_s;
        case AlertOutcome::Duplicate:
            return u"the same was said within the hour"_s;
        case AlertOutcome::Late:
            return u"it came late"_s;
        case AlertOutcome::QuietHours:
            return u"quiet hours"_s;
        case AlertOutcome::Pause:
            return u"within the rule's pause"_s;
    }
    return {};
}

// In which field the words stand that a rule matched.
QString placesOf(const AlertWords& words) {
    QStringList places;
    if (!words.title.isEmpty())
        places << u"\"%1\" in the title"_s.arg(words.title.join(u"\", \""_s));
    if (!words.story.isEmpty())
        places << u"\"%1\" in the story"_s.arg(words.story.join(u"\", \""_s));
    return places.isEmpty() ? u"its symbols, topic or service"_s : places.join(u", "_s);
}

// What each rule says of it, and what became of that when it came.
void explainAlerts(Session& session, const CHeadline& headline) {
    const auto opened = openStoreToRead(session.storePath());
    if (!opened)
        return;
    Database& store = *opened.value();
    QueryPlanner planner(store);
    const std::vector<AlertRule>& rules = session.alerts().rules().rules;
    StoreReader reader(store);
    const AlertMatcher matcher(rules, planner, [&](const CHeadline& of) {
        return reader.relatedSymbols(keyOf(of)).value_or(std::vector<CSymbolInfo>());
    });
    const std::vector<AlertEntry> entries = AlertBook(store).entries();
    std::vector<bool> matched(rules.size());
    const QString story =
        matcher.looksAtStories() ? reader.story(keyOf(headline)).value_or(QString()) : QString();
    matcher.match(headline, story, [&](std::size_t rule, const QStringList& words) {
        matched[rule] = true;
        AlertEntry found;
        found.words = words;
        const auto entry = std::ranges::find_if(entries, [&](const AlertEntry& each) {
            return each.rule == rules[rule].name && each.headline == keyOf(headline);
        });
        QString became = u"not among the last alerts"_s;
        if (entry != entries.end())
            became = entry->outcome == AlertOutcome::Told
                         ? u"told at %1"_s.arg(shownTime(entry->told))
                         : u"not told at %1: %2"_s.arg(shownTime(entry->matched), whyNot(entry->outcome));
        printLine(
            u"alert %1: matches %2, %3"_s.arg(rules[rule].name, placesOf(found.wordsByPlace()), became));
    });
    for (std::size_t i = 0; i < rules.size(); ++i) {
        if (!matched[i])
            printLine(u"alert %1: does not match"_s.arg(rules[i].name));
    }
}

int explain(Session& session, const CHeadline& headline) {
    const QDateTime time = QDateTime::fromSecsSinceEpoch(headline.time);
    printLine(u"%1  %2"_s.arg(time.toString(u"yyyy-MM-dd HH:mm"_s), headline.title));
    const TopicName nameOf = [&](const QString& id) {
        return topicName(session.backEnd(), headline.service, id);
    };
    for (const OpenView* view : session.workspace().docked()) {
        auto* explainer = dynamic_cast<HeadlineExplainer*>(view->view);
        if (explainer == nullptr)
            return unusable(u"The news module does not explain its lists."_s);
        explainer->showEachList();
        for (const HeadlineStanding& standing : explainer->explain(keyOf(headline)))
            printLine(u"view %1, %2, %3"_s.arg(view->number)
                          .arg(view->shownTitle(), standingText(standing, nameOf)));
    }
    explainAlerts(session, headline);
    return exitDone;
}

}  // namespace

int runExplain(const Explained& explained) {
    const auto key = keyOfLine(explained.key);
    if (!key)
        return unusable(
            u"--explain takes a line of \"search --json\", such as "
            "{\"sequence\":12,\"service\":1,\"time\":\"2026-03-02T01:30:00Z\"}, not \"%1\"."_s.arg(
                explained.key));
    const auto headline = headlineOf(explained, *key);
    if (!headline)
        return exitUnusable;
    const QTemporaryDir settings;
    if (!settings.isValid() || !copySettings(explained.configFolder, settings.path()))
        return unusable(
            u"The settings in %1 cannot be copied."_s.arg(QDir::toNativeSeparators(explained.configFolder)));
    const auto session = Session::open({.storeFile = explained.storeFile,
                                        .configFolder = settings.path(),
                                        .language = u"en"_s,
                                        .watchesAlerts = false});
    if (!session)
        return unusable(sentence(session.error()));
    if (const Done opened = session.value()->keeper().restore(); !opened)
        return unusable(sentence(opened.error()));
    return explain(*session.value(), *headline);
}

}  // namespace wirepane
