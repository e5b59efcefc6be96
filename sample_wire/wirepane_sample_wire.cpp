// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/written_lines.h"
#include "sample_wire/sample_wire.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <optional>
#include <thread>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

constexpr int statusDone = 0;
constexpr int statusCut = 1;  // whoever reads wants no more
constexpr int statusUnusable = 2;

void say(const QString& sentence) {
    std::fputs(qPrintable(u"wirepane-sample-wire: "_s + sentence + u'\n'), stderr);
}

// The options of the command line; what is wrong with them is a fault.
class Options {
public:
    Options() {
        const SampleOptions defaults;
        parser.setApplicationDescription(
            u"Writes an invented news wire to standard output, up to the present moment, as feed lines."_s);
        parser.addOptions({
            {u"seed"_s, u"Which wire: the same number gives the same news. Default: 1."_s, u"number"_s,
             u"1"_s},
            {u"days"_s, u"How many days back. Default: %1."_s.arg(defaults.days), u"number"_s,
             QString::number(defaults.days)},
            {u"leave-out"_s,
             u"How many of these days, the newest, are left out; then it is the news alone that is written. Default: 0."_s,
             u"number"_s, u"0"_s},
            {u"per-day"_s, u"Headlines on a working day. Default: %1."_s.arg(defaults.headlinesPerDay),
             u"number"_s, QString::number(defaults.headlinesPerDay)},
            {u"now"_s, u"What is taken as the present moment, such as 2026-03-02T09:30:00."_s, u"moment"_s},
            {u"follow"_s,
             u"Greets as a feed does, goes on behind the position that it is answered on standard input, at "
             "most as many days back, and then as the clock runs, until nobody listens."_s},
        });
        parser.addHelpOption();
        parser.addVersionOption();
        parser.process(*QCoreApplication::instance());
    }

    SampleOptions read() {
        SampleOptions options;
        options.seed =
            static_cast<std::uint64_t>(number(u"seed"_s, 0, std::numeric_limits<std::int64_t>::max()));
        options.days = static_cast<int>(number(u"days"_s, 1, SampleOptions::mostDays));
        options.leftOut = static_cast<int>(number(u"leave-out"_s, 0, SampleOptions::mostDays));
        options.headlinesPerDay =
            static_cast<int>(number(u"per-day"_s, 1, SampleOptions::mostHeadlinesPerDay));
        const QDateTime now = parser.isSet(u"now"_s)
                                  ? QDateTime::fromString(parser.value(u"now"_s), Qt::ISODate)
                                  : QDateTime::currentDateTime();
        if (!now.isValid())
            faults.append(u"--now takes a moment such as 2026-03-02T09:30:00"_s);
        options.now = now.toSecsSinceEpoch();
        options.lateStories = true;
        if (!parser.positionalArguments().isEmpty())
            faults.append(u"takes no argument \"%1\""_s.arg(parser.positionalArguments().constFirst()));
        return options;
    }

    bool isFollowing() const { return parser.isSet(u"follow"_s); }

    QStringList faults;

private:
    std::int64_t number(const QString& name, std::int64_t least, std::int64_t most) {
        bool isNumber = false;
        const std::int64_t value = parser.value(name).toLongLong(&isNumber);
        if (!isNumber || value < least || value > most)
            faults.append(u"--%1 takes a number from %2 to %3"_s.arg(name).arg(least).arg(most));
        return value;
    }

    QCommandLineParser parser;
};

bool write(const QByteArray& line) {
    return std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stdout) ==
           static_cast<std::size_t>(line.size());
}

// A line that was written to standard input; nothing at its end.
std::optional<QByteArray> readLine() {
    QByteArray line;
    for (int c = std::fgetc(stdin); c != EOF; c = std::fgetc(stdin)) {
        if (c == '\n')
            return line;
        line += static_cast<char>(c);
    }
    return std::nullopt;
}

// The wire as it goes by. Its positions are the times of the news.
class Following {
public:
    explicit Following(const SampleOptions& wireOptions)
        : options(wireOptions), ahead(options.now - QDateTime::currentSecsSinceEpoch()) {}

    void run(const SampleWire& wire) {
        constexpr std::int64_t daySeconds = 86'400;
        if (!write(handshakeLine({sourceName(options), 1})) || std::fflush(stdout) != 0)
            return;
        const QJsonObject answer = QJsonDocument::fromJson(readLine().value_or(QByteArray())).object();
        const std::int64_t kept = answer[u"position"_s].toString().toLongLong();
        // Whoever listens says no more, but when he goes, this ends.
        std::thread([] {
            while (readLine()) {
            }
            std::_Exit(statusDone);
        }).detach();
        const std::int64_t earliest = options.now - (options.days - 1) * daySeconds;
        // Whoever has no position yet may have been filled some seconds ago.
        constexpr std::int64_t fillingSeconds = 60;
        wire.follow(kept > 0 ? std::max(kept, earliest) : options.now - fillingSeconds,
                    [&](std::int64_t sentAt, StoreItem&& item) {
                        return waitFor(sentAt, wire) && write(feedLine(item, QString::number(sentAt)));
                    });
    }

private:
    std::int64_t now() const { return QDateTime::currentSecsSinceEpoch() + ahead; }

    // Trading goes on meanwhile.
    bool waitFor(std::int64_t time, const SampleWire& wire) {
        while (now() < time) {
            const bool written =
                wire.tick(now(), [](const StoreItem& quote) { return write(feedLine(quote)); });
            if (!written || std::fflush(stdout) != 0)
                return false;
            std::this_thread::sleep_for(std::chrono::seconds(1));
        }
        return true;
    }

    SampleOptions options;
    std::int64_t ahead;  // of the machine's clock
};

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication program(argc, argv);
    QCoreApplication::setApplicationName(u"wirepane-sample-wire"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(WIREPANE_VERSION));
    Options arguments;
    const SampleOptions options = arguments.read();
    QStringList faults = arguments.faults;
    const SampleData data = SampleData::load(faults);
    for (const QString& fault : faults)
        say(fault);
    if (!faults.isEmpty())
        return statusUnusable;
    const SampleWire wire(data, options);
    if (arguments.isFollowing()) {
        Following(options).run(wire);
        return statusCut;
    }
    const bool whole = wire.run([](const StoreItem& item) { return write(feedLine(item)); });
    if (whole && std::fflush(stdout) == 0)
        return statusDone;
    say(u"the news could not be written"_s);
    return statusCut;
}
