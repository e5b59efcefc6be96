// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/console.h"

#include <QElapsedTimer>
#include <QtGlobal>

#include <cstdio>

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

void print(std::FILE* stream, const QString& text) {
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

}  // namespace

void printLine(const QString& text) {
    print(stdout, text + u'\n');
}

void printNote(const QString& text) {
    clearPassing();
    print(stderr, text + u'\n');
}

void printPassing(const QString& text) {
    if (errorIsTerminal())
        print(stderr, u"\r\033[K"_s + text);
}

void clearPassing() {
    if (errorIsTerminal())
        print(stderr, u"\r\033[K"_s);
}

std::function<void(std::int64_t done, std::int64_t total)> indexingLines() {
    constexpr qint64 silentMs = 500;
    QElapsedTimer started;
    started.start();
    return [started](std::int64_t done, std::int64_t total) {
        if (done >= total)
            clearPassing();
        else if (started.elapsed() > silentMs)
            printPassing(u"Making the search index anew: %1 %"_s.arg(done * 100 / total));
    };
}

}  // namespace wirepane
