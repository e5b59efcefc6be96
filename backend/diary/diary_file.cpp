// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/diary/diary_file.h"

#include "backend/diary/diary_errors.h"
#include "backend/diary/diary_lines.h"

#include <QDir>
#include <QJsonDocument>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString systemSays() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

QString shown(const QString& file) {
    return QDir::toNativeSeparators(file);
}

class Turn {
public:
    explicit Turn(int file) : held(file) {
        while (flock(held, LOCK_EX) != 0 && errno == EINTR) {
        }
    }
    ~Turn() { flock(held, LOCK_UN); }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

private:
    int held;
};

}  // namespace

QString diaryFileOf(const QString& storePath) {
    return storePath + u".diary"_s;
}

Done DiaryFile::open() {
    struct stat named {};
    struct stat held {};
    const QByteArray path = QFile::encodeName(name);
    if (file.isOpen() && lstat(path.constData(), &named) == 0 && fstat(file.handle(), &held) == 0 &&
        named.st_ino == held.st_ino && named.st_dev == held.st_dev)
        return Nothing{};
    file.close();
    length = -1;
    const int opened =
        ::open(path.constData(), O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (opened < 0 || !file.open(opened, QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered,
                                 QFileDevice::AutoCloseHandle))
        return makeError<diary_errors::notOpened>(shown(name), systemSays());
    return Nothing{};
}

Done DiaryFile::inTurn(const std::function<Done(const DiaryHead& head)>& writeOn) {
    if (const Done opened = open(); !opened)
        return opened;
    const Turn turn(file.handle());
    // Who has written since the last time has made it longer.
    if (file.size() != length) {
        const Result<DiaryHead> head = headOfFile();
        if (!head)
            return head.error();
        last = head.value();
    }
    return writeOn(last);
}

// Reads from the end, as far as the last whole line goes.
Result<DiaryHead> DiaryFile::headOfFile() {
    constexpr qint64 firstLook = 1 << 16;
    const qint64 size = file.size();
    for (qint64 look = firstLook;; look *= 2) {
        const qint64 from = std::max<qint64>(0, size - look);
        if (!file.seek(from))
            return makeError<diary_errors::notRead>(shown(name), file.errorString());
        const QByteArray tail = file.read(size - from);
        const qsizetype end = tail.lastIndexOf('\n');
        const qsizetype before = end > 0 ? tail.lastIndexOf('\n', end - 1) : -1;
        if (before < 0 && from > 0)
            continue;
        length = from + end + 1;
        if (length < size && ftruncate(file.handle(), length) != 0)
            return makeError<diary_errors::notWritten>(shown(name), systemSays());
        if (end < 0)
            return noEntries();
        const auto line = diaryLine(QByteArrayView(tail).sliced(before + 1, end - before - 1));
        const QJsonObject entry =
            line ? QJsonDocument::fromJson(line->json.toByteArray()).object() : QJsonObject();
        // A line that says nothing is found by a check; what follows is sealed with what stands there.
        return DiaryHead{entry.value(diary_names::number).toInteger(),
                         line ? line->seal.toByteArray() : noEntries().seal};
    }
}

Done DiaryFile::append(const QByteArray& lines, const DiaryHead& head) {
    if (file.write(lines) != lines.size() || fdatasync(file.handle()) != 0) {
        length = -1;
        return makeError<diary_errors::notWritten>(shown(name), file.errorString());
    }
    length += lines.size();
    last = head;
    return Nothing{};
}

}  // namespace wirepane
