// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/console/console.h"

#include "backend/clean_text.h"
#include "terminal/console/exit_status.h"

#include <QElapsedTimer>
#include <QtGlobal>

#include <cerrno>
#include <cstdio>
#include <cstring>

#if defined(Q_OS_WIN)
#include <io.h>
#define isatty _isatty
#define fileno _fileno
#else
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

bool errorIsTerminal() {
    static const bool terminal = isatty(fileno(stderr)) != 0;
    return terminal;
}

// Why output was lost, the first time that it was; 0: none was.
int lostOutput = 0;

bool print(std::FILE* stream, const QByteArray& bytes) {
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stream) == size && std::fflush(stream) == 0;
}

}  // namespace

QByteArray outputLine(const QString& text) {
    return (escapedText(text) + u'\n').toLocal8Bit();
}

int writeOutput(const QByteArray& bytes) {
    errno = 0;
    if (print(stdout, bytes))
        return 0;
    return errno != 0 ? errno : EIO;
}

void printLine(const QString& text) {
    if (const int error = writeOutput(outputLine(text)); error != 0)
        noteLostOutput(error);
}

int statusOfOutput(int status) {
    if (lostOutput == 0)
        return status;
    printNote(u"Standard output could not be written to its end: %1."_s.arg(
        QString::fromLocal8Bit(std::strerror(lostOutput))));
    return exitUnusable;
}

void noteLostOutput(int systemError) {
    if (lostOutput == 0)
        lostOutput = systemError;
}

void printNote(const QString& text) {
    clearPassing();
    print(stderr, outputLine(text));
}

void printPassing(const QString& text) {
    if (errorIsTerminal())
        print(stderr, "\r\033[K" + escapedText(text).toLocal8Bit());
}

void clearPassing() {
    if (errorIsTerminal())
        print(stderr, "\r\033[K");
}

std::function<void(std::int64_t done, std::int64_t total)> passingShare(const QString& work) {
    constexpr qint64 silentMs = 500;
    QElapsedTimer started;
    started.start();
    return [started, work](std::int64_t done, std::int64_t total) {
        if (done >= total)
            clearPassing();
        else if (started.elapsed() > silentMs)
            printPassing(u"%1: %2 %"_s.arg(work).arg(done * 100 / total));
    };
}

std::function<void(std::int64_t done, std::int64_t total)> indexingLines() {
    return passingShare(u"Making the search index anew"_s);
}

}  // namespace wirepane
