// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/spool_source.h"

#include "backend/feed/feed_errors.h"
#include "backend/feed/open_elsewhere.h"
#include "backend/import/import_errors.h"
#include "backend/import/source_reader.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int mostNames = 100000;

qint64 steadyMs() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

bool isUnfinished(const QString& name) {
    return name.startsWith(u'.') || name.endsWith(".part"_L1) || name.endsWith(".tmp"_L1) ||
           name.endsWith(".filepart"_L1);
}

QString reasonFile(const QString& path) {
    return path + u".reason.txt"_s;
}

// The text without so many of its last characters that it takes no more bytes than this in a file name.
QString shortened(QString text, qsizetype bytes) {
    while (QFile::encodeName(text).size() > bytes)
        text.chop(text.size() > 1 && text.back().isLowSurrogate() ? 2 : 1);
    return text;
}

// "a.json" and 2 give "a-2.json". A name that leaves no room for the number and for what its reason file is
// called besides is cut.
QString numbered(const QString& name, int number) {
    constexpr qsizetype longestName = 255;   // bytes
    constexpr qsizetype longestEnding = 20;  // characters, of what counts as one
    const qsizetype room = longestName - QFile::encodeName(reasonFile({})).size();
    qsizetype dot = name.lastIndexOf(u'.');
    if (dot <= 0 || name.size() - dot > longestEnding)
        dot = name.size();
    const QString ending = (number > 1 ? u"-%1"_s.arg(number) : QString()) + name.mid(dot);
    return shortened(name.left(dot), room - QFile::encodeName(ending).size()) + ending;
}

// Whether something of this name is there, a broken link included.
bool isTaken(const QString& path) {
    return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
}

// What is moved through a link lands where whoever made the link wants it.
bool isOwnFolder(const QString& path) {
    const QFileInfo info(path);
    return info.isDir() && !info.isSymLink();
}

// Why the file, or items of it, were not taken; empty: everything was.
std::vector<Error> reasonsOf(const BatchOutcome& outcome) {
    if (outcome.fault)
        return {*outcome.fault};
    std::vector<Error> reasons;
    for (const Rejection& rejection : outcome.rejections)
        reasons.push_back(makeError<feed_errors::rejectedAt>(*rejection.place, rejection.reason));
    if (outcome.totals.rejected > static_cast<qint64>(outcome.rejections.size()))
        reasons.push_back(makeError<feed_errors::moreRejected>(outcome.totals.rejected));
    return reasons;
}

class FileBatch : public FeedBatch {
public:
    FileBatch(QString file, qint64 largestFile, ReadOptions readOptions)
        : path(std::move(file)), largest(largestFile), options(std::move(readOptions)) {}

    Done read(const ItemVisitor& visit) override {
        const QFileInfo info(path);
        if (info.isSymLink())
            return makeError<feed_errors::spoolLink>();
        if (info.exists() && !info.isFile())
            return makeError<import_errors::noFile>();
        if (info.size() > largest)
            return makeError<feed_errors::spoolFileTooLarge>(largest);
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return makeError<import_errors::fileNotOpened>(file.errorString());
        Done read = readSource(file, options, visit);
        if (read && file.error() != QFileDevice::NoError)
            return makeError<import_errors::fileNotReadToEnd>(file.errorString());
        return read;
    }

private:
    QString path;
    qint64 largest;
    ReadOptions options;
};

QByteArray fileText(const std::vector<Error>& reasons) {
    QString text;
    for (const Error& reason : reasons)
        text += sentence(reason) + u'\n';
    return text.toUtf8();
}

}  // namespace

Result<std::unique_ptr<SpoolSource>> SpoolSource::open(const QString& folder, const SpoolOptions& options) {
    const QDir spool(folder);
    for (const QString& name : {u"done"_s, u"rejected"_s}) {
        if (!spool.mkpath(name))
            return makeError<feed_errors::spoolFolderNotMade>(QDir::toNativeSeparators(folder), name);
        if (!isOwnFolder(spool.filePath(name)))
            return makeError<feed_errors::spoolFolderLinked>(QDir::toNativeSeparators(folder), name);
    }
    return std::unique_ptr<SpoolSource>(new SpoolSource(spool.absolutePath(), options));
}

SpoolSource::SpoolSource(QString path, const SpoolOptions& spoolOptions)
    : folder(std::move(path)), options(spoolOptions) {
    setState(SourceState::Live);
}

QString SpoolSource::name() const {
    return QDir::toNativeSeparators(folder);
}

// A file is whole when it stayed as it is for a while, and nobody has it open for writing, where the system
// tells.
bool SpoolSource::isWhole(const QFileInfo& file) {
    const QString name = file.fileName();
    const Look now{file.size(), file.lastModified(), steadyMs()};
    if (const auto gone = left.constFind(name); gone != left.constEnd()) {
        if (gone->isLike(now))
            return false;
        left.remove(name);
    }
    // What is no file is not written either.
    if (file.isSymLink() || !file.isFile())
        return true;
    const auto before = seen.constFind(name);
    if (before == seen.constEnd() || !before->isLike(now)) {
        seen[name] = now;
        return options.quiet.count() == 0 && !isOpenForWriting(file.filePath());
    }
    return now.since - before->since >= options.quiet.count() && !isOpenForWriting(file.filePath());
}

bool SpoolSource::hasBatch() {
    if (!current.isEmpty())
        return true;
    const QFileInfoList files =
        QDir(folder).entryInfoList(QDir::Files | QDir::System | QDir::Hidden, QDir::Time | QDir::Reversed);
    QHash<QString, Look> still;
    for (const QFileInfo& file : files) {
        const QString name = file.fileName();
        if (isUnfinished(name))
            continue;
        if (isWhole(file)) {
            current = name;
            seen.remove(name);
            return true;
        }
        if (seen.contains(name))
            still[name] = seen[name];
    }
    // What is no longer there is forgotten.
    seen = still;
    return false;
}

std::shared_ptr<FeedBatch> SpoolSource::batch() {
    ReadOptions reading = options.read;
    reading.sourceName = current;
    return std::make_shared<FileBatch>(QDir(folder).filePath(current), options.largestFile, reading);
}

void SpoolSource::acknowledge(const BatchOutcome& outcome) {
    const bool isNothing = outcome.totals.takenIn + outcome.totals.alreadyThere == 0;
    const bool isRejected = outcome.fault || (isNothing && outcome.totals.rejected > 0);
    moveAway(isRejected ? u"rejected"_s : u"done"_s, reasonsOf(outcome));
    current.clear();
}

void SpoolSource::moveAway(const QString& subfolder, const std::vector<Error>& reasons) {
    const QDir target(QDir(folder).filePath(subfolder));
    const QString path = QDir(folder).filePath(current);
    for (int number = 1; isOwnFolder(target.path()) && number < mostNames; ++number) {
        const QString moved = target.filePath(numbered(current, number));
        if (isTaken(moved) || isTaken(reasonFile(moved)))
            continue;
        // The reason first: no rejected file is ever without one.
        if (!reasons.empty()) {
            QSaveFile file(reasonFile(moved));
            const QByteArray text = fileText(reasons);
            if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size())
                file.commit();
        }
        if (QFile::rename(path, moved)) {
            if (!reasons.empty())
                tellTrouble(
                    makeError<feed_errors::rejectedAt>(QDir::toNativeSeparators(moved), reasons.front()));
            return;
        }
        QFile::remove(reasonFile(moved));
        break;
    }
    const QFileInfo stays(path);
    if (!stays.exists() && !stays.isSymLink())
        return;
    left[current] = {stays.size(), stays.lastModified(), 0};
    tellTrouble(makeError<feed_errors::spoolNotMoved>(QDir::toNativeSeparators(path), subfolder));
}

}  // namespace wirepane
