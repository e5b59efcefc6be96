// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/command_arguments.h"

#include "host/contract/clock.h"
#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"
#include "terminal/session/user_stores.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int firstYear = 1970;
constexpr int lastYear = 9999;

}  // namespace

CommandArguments::CommandArguments(const QString& commandName, const QString& description)
    : command(commandName) {
    parser.setApplicationDescription(description);
    parser.addHelpOption();
    parser.addVersionOption();
    if (!command.isEmpty())
        parser.addPositionalArgument(command, QString(), command);
    parser.addOption(
        {u"store"_s, u"The news store; made when absent. Default: %1."_s.arg(userStores().own), u"file"_s});
    parser.addOption(
        {u"now"_s, u"What is taken as the present moment, such as 2026-03-02T09:30:00."_s, u"moment"_s});
}

std::optional<int> CommandArguments::read() {
    if (!parser.parse(QCoreApplication::arguments())) {
        fail(parser.errorText());
        return fault();
    }
    if (parser.isSet(u"version"_s)) {
        printLine(
            u"%1 %2"_s.arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion()));
        return exitDone;
    }
    if (parser.isSet(u"help"_s)) {
        for (const QString& line : parser.helpText().trimmed().split(u'\n'))
            printLine(line);
        return exitDone;
    }
    return std::nullopt;
}

QStringList CommandArguments::rest() const {
    return parser.positionalArguments().mid(command.isEmpty() ? 0 : 1);
}

std::int64_t CommandArguments::number(const QString& option, std::int64_t fallback, std::int64_t least,
                                      std::int64_t most) {
    if (!parser.isSet(option))
        return fallback;
    bool ok = false;
    const std::int64_t value = parser.value(option).toLongLong(&ok);
    if (ok && value >= least && value <= most)
        return value;
    fail(u"--%1 takes a whole number from %2 to %3, not \"%4\"."_s.arg(option).arg(least).arg(most).arg(
        parser.value(option)));
    return fallback;
}

QString CommandArguments::storeFile() const {
    return parser.isSet(u"store"_s) ? parser.value(u"store"_s) : userStores().own;
}

QString CommandArguments::storeToRead() const {
    return parser.isSet(u"store"_s) ? parser.value(u"store"_s) : wirepane::storeToRead(userStores());
}

void CommandArguments::applyNow() {
    if (!parser.isSet(u"now"_s))
        return;
    const auto moment = momentOf(parser.value(u"now"_s));
    if (moment)
        host_clock::startAt(*moment);
    else
        fail(u"--now takes a moment such as 2026-03-02T09:30:00, not \"%1\"."_s.arg(parser.value(u"now"_s)));
}

void CommandArguments::fail(const QString& sentence) {
    if (faultSentence.isEmpty())
        faultSentence = sentence;
}

std::optional<int> CommandArguments::fault() const {
    if (faultSentence.isEmpty())
        return std::nullopt;
    printNote(faultSentence);
    printNote(
        u"\"%1 --help\" tells more."_s.arg((QCoreApplication::applicationName() + u' ' + command).trimmed()));
    return exitUnusable;
}

QString defaultConfigFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
}

std::optional<std::int64_t> momentOf(const QString& text) {
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODate);
    if (!moment.isValid() || moment.date().year() < firstYear || moment.date().year() > lastYear)
        return std::nullopt;
    return moment.toSecsSinceEpoch();
}

}  // namespace wirepane
