// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/diary_command.h"

#include "backend/diary/diary_file.h"
#include "backend/diary/diary_lines.h"
#include "backend/diary/diary_screens.h"
#include "backend/store/store_file.h"
#include "terminal/commands/command_arguments.h"
#include "terminal/commands/diary_export.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

struct Diary {
    QString file;
    DiaryHead kept;
};

struct Span {
    std::int64_t from = 0;  // milliseconds since 1970
    std::int64_t to = 0;
};

int unusable(const Error& error) {
    printNote(sentence(error));
    return exitUnusable;
}

int tellReport(const DiaryReport& report, const QString& file) {
    for (const QString& fault : report.faults)
        printLine(fault);
    if (report.hasTornEnd)
        printLine(
            u"The last line is torn: a program was ended while it wrote; that entry was told to nobody."_s);
    printLine(u"%1 entries, seal %2"_s.arg(report.head.count).arg(QLatin1StringView(report.head.seal)));
    printLine(
        (report.faults.isEmpty() ? u"The diary %1 is as it was written."_s : u"The diary %1 has faults."_s)
            .arg(QDir::toNativeSeparators(file)));
    return report.faults.isEmpty() ? exitDone : exitPartly;
}

void showScreen(const DiaryScreen& screen) {
    printLine(u"%1  %2@%3  view %4  %5"_s.arg(
        QDateTime::fromMSecsSinceEpoch(screen.moment).toString(u"yyyy-MM-dd HH:mm:ss.zzz"_s), screen.user,
        screen.machine, QString::number(screen.view), screen.title));
    if (screen.rows.empty() && screen.stories.empty())
        printLine(u"  nothing to be seen"_s);
    else if (!screen.rows.empty())
        printLine(u"  "_s + screen.columns.join(u" | "_s));
    for (std::size_t row = 0; row < screen.rows.size(); ++row)
        printLine((static_cast<int>(row) == screen.focus ? u"> "_s : u"  "_s) +
                  screen.rows[row].join(u" | "_s));
    for (const QStringList& story : screen.stories) {
        printLine(u"  ---"_s);
        for (const QString& line : (story.value(0) + u'\n' + story.value(1)).split(u'\n'))
            printLine(u"  "_s + line);
    }
}

// What was there when the span begins, and what came in it.
int replay(const Diary& diary, const Span& span) {
    DiaryScreens screens;
    std::map<std::pair<QString, int>, DiaryScreen> before;
    std::vector<DiaryScreen> within;
    const auto report = checkDiary(diary.file, diary.kept, [&](std::int64_t, QByteArrayView json) {
        const QJsonObject entry = QJsonDocument::fromJson(json.toByteArray()).object();
        auto screen = screens.take(entry);
        if (entry.value(diary_names::kind) == "end"_L1 &&
            entry.value(diary_names::moment).toInteger() <= span.from)
            std::erase_if(before, [&](const auto& shown) {
                return shown.first.first == entry.value(diary_names::session).toString();
            });
        if (screen && screen->moment <= span.from)
            before[{screen->session, screen->view}] = std::move(*screen);
        else if (screen && screen->moment <= span.to)
            within.push_back(std::move(*screen));
    });
    if (!report)
        return unusable(report.error());
    for (const auto& [view, screen] : before) {
        if (!screen.rows.empty() || !screen.stories.empty())
            showScreen(screen);
    }
    std::for_each(within.begin(), within.end(), showScreen);
    for (const QString& fault : report.value().faults)
        printNote(fault);
    return report.value().faults.isEmpty() ? exitDone : exitPartly;
}

std::optional<Span> spanOf(const QString& text, const QDate& day) {
    const QStringList ends = text.split(u'-');
    const auto timeOf = [&ends](int end) {
        const QTime minutes = QTime::fromString(ends.value(end), u"H:mm"_s);
        return minutes.isValid() ? minutes : QTime::fromString(ends.value(end), u"H:mm:ss"_s);
    };
    if (ends.size() != 2 || !timeOf(0).isValid() || !timeOf(1).isValid() || timeOf(1) < timeOf(0))
        return std::nullopt;
    return Span{QDateTime(day, timeOf(0)).toMSecsSinceEpoch(), QDateTime(day, timeOf(1)).toMSecsSinceEpoch()};
}

int carryOut(const QStringList& rest, const std::optional<Span>& span, const Diary& diary) {
    if (span)
        return replay(diary, *span);
    const auto report = rest.constFirst() == "export"_L1 ? exportDiary(diary.file, diary.kept, rest.at(1))
                                                         : checkDiary(diary.file, diary.kept);
    return report ? tellReport(report.value(), diary.file) : unusable(report.error());
}

}  // namespace

int runDiary() {
    CommandArguments arguments(
        u"diary"_s,
        u"Verifies the diary that a terminal keeps beside its store, writes it into a file, "
        "or shows what was on the screen."_s);
    arguments.parser.addPositionalArgument(u"action"_s, u"\"verify\", \"export\" or \"replay\"."_s);
    arguments.parser.addPositionalArgument(
        u"what"_s, u"Of export, the file (.csv, .json, .pdf); of replay, a span such as 10:00-10:05."_s,
        u"[what]"_s);
    arguments.parser.addOption(
        {u"day"_s, u"The day of the span, in local time. Default: the present day."_s, u"yyyymmdd"_s});
    if (const auto status = arguments.read())
        return *status;
    const QStringList rest = arguments.rest();
    const QString action = rest.value(0);
    const bool hasDay = arguments.parser.isSet(u"day"_s);
    const QDate day =
        hasDay ? QDate::fromString(arguments.parser.value(u"day"_s), u"yyyyMMdd"_s) : QDate::currentDate();
    const auto span = action == "replay"_L1 && day.isValid() ? spanOf(rest.value(1), day) : std::nullopt;
    if (!QStringList{u"verify"_s, u"export"_s, u"replay"_s}.contains(action))
        arguments.fail(u"diary needs one of \"verify\", \"export\" and \"replay\"."_s);
    else if (rest.size() != (action == "verify"_L1 ? 1 : 2))
        arguments.fail(u"diary %1 takes %2."_s.arg(
            action, action == "verify"_L1 ? u"no more arguments"_s : u"one argument more"_s));
    else if (!day.isValid())
        arguments.fail(u"\"%1\" is not a day such as 20260302."_s.arg(arguments.parser.value(u"day"_s)));
    else if (action == "replay"_L1 && !span)
        arguments.fail(u"\"%1\" is not a span such as 10:00-10:05."_s.arg(rest.at(1)));
    else if (action == "export"_L1 && !isDiaryExport(rest.at(1)))
        arguments.fail(u"\"%1\" ends neither with .csv nor with .json or .pdf."_s.arg(rest.at(1)));
    if (const auto status = arguments.fault())
        return *status;

    Diary diary{diaryFileOf(arguments.storeToRead()), {}};
    const auto store = openStoreToRead(arguments.storeToRead());
    if (!store)
        return unusable(store.error());
    bool failed = false;
    diary.kept = KeptHead(*store.value()).head(failed);
    if (failed)
        return unusable(store.value()->failure());
    if (!QFileInfo::exists(diary.file) && diary.kept == noEntries()) {
        printNote(u"There is no diary beside %1."_s.arg(QDir::toNativeSeparators(arguments.storeToRead())));
        return exitUnusable;
    }
    return carryOut(rest, span, diary);
}

}  // namespace wirepane
