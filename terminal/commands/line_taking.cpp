// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/line_taking.h"

#include "terminal/console/console.h"
#include "terminal/console/exit_status.h"

#include <QCoreApplication>

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int retryMs = 1000;
constexpr int mostRetries = 60;  // of a store that another program keeps busy

}  // namespace

LineTaking::LineTaking(LineTarget lineTarget, StandardChannel& input, unsigned char service,
                       FeedConnection::Answers answers)
    : target(std::move(lineTarget)), channel(input), lines(&input, service, answers) {
    lines.setTaker(this);
    pumping.setSingleShot(true);
    connect(&pumping, &QTimer::timeout, this, &LineTaking::pump);
}

int LineTaking::run() {
    if (QCoreApplication::exec() != exitDone) {
        printNote(u"What was not confirmed has not been taken: %1"_s.arg(failure));
        return exitUnusable;
    }
    return endOfLines(channel, totals);
}

void LineTaking::sourceReady(FeedSource& source) {
    if (source.awaitsPosition())
        source.resume(source.name().isEmpty() ? QString() : target.positionOf(source.name()));
    pumpSoon();
}

void LineTaking::pumpSoon() {
    if (!pumping.isActive())
        pumping.start(retries > 0 ? retryMs : 0);
}

void LineTaking::pump() {
    if (lines.hasBatch() && !takeNext())
        return;
    if (lines.hasBatch())
        pumpSoon();
    else if (lines.isDone())
        QCoreApplication::exit(exitDone);
}

bool LineTaking::takeNext() {
    const Result<BatchOutcome> taken = takeBatch(*lines.batch(), lines.name(), target.sink);
    if (taken) {
        totals += taken.value().totals;
        for (const Rejection& rejection : taken.value().rejections)
            showLineRejection(sentence(*rejection.place), sentence(rejection.reason));
        lines.acknowledge(taken.value());
        retries = 0;
        return true;
    }
    ++retries;
    if (!target.isWorthRetrying())
        retries = mostRetries + 1;
    if (retries == 1)
        printNote(sentence(taken.error()));
    if (retries <= mostRetries)
        return true;
    failure = sentence(taken.error());
    QCoreApplication::exit(exitUnusable);
    return false;
}

void showLineRejection(const QString& place, const QString& reason) {
    printNote(place + u": "_s + reason);
}

int endOfLines(StandardChannel& channel, const ImportTotals& totals) {
    channel.send(u"%1 taken in, %2 already there, %3 rejected\n"_s.arg(totals.takenIn)
                     .arg(totals.alreadyThere)
                     .arg(totals.rejected)
                     .toLocal8Bit());
    noteLostOutput(channel.writeError());
    return totals.rejected > 0 ? exitPartly : exitDone;
}

}  // namespace wirepane
