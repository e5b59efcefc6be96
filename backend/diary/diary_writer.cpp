// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/diary/diary_writer.h"

#include "backend/database/database.h"
#include "backend/diary/diary_check.h"
#include "backend/diary/diary_errors.h"
#include "backend/diary/diary_lines.h"

#include <QDateTime>
#include <QDir>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::size_t mostWaiting = 100'000;
constexpr std::chrono::seconds patience{30};  // for another program that writes to the store

QJsonObject faultEntry(const QString& what) {
    return {{diary_names::kind, u"fault"_s},
            {diary_names::moment, QDateTime::currentMSecsSinceEpoch()},
            {u"what"_s, what}};
}

}  // namespace

struct DiaryWriter::Store {
    explicit Store(std::unique_ptr<Database> opened)
        : database(std::move(opened)),
          kept(*database),
          received(*database,
                   "SELECT received FROM all_headlines WHERE service = ? AND time = ? AND sequence = ?") {}

    // When the headline came, where the store has it.
    void addReceipt(QJsonObject& entry) {
        if (!entry.contains("sequence"_L1))
            return;
        Query row(received, entry.value("service"_L1).toInt(), entry.value("time"_L1).toInteger(),
                  entry.value("sequence"_L1).toInt());
        if (row.next())
            entry.insert("received"_L1, static_cast<qint64>(row.number(0)));
    }

    std::unique_ptr<Database> database;
    KeptHead kept;
    Statement received;
};

DiaryWriter::DiaryWriter(QString pathOfStore, Told toTell)
    : storePath(std::move(pathOfStore)), told(std::move(toTell)), file(diaryFileOf(storePath)) {}

DiaryWriter::~DiaryWriter() {
    flush();
}

void DiaryWriter::add(QJsonObject entry) {
    const std::lock_guard lock(mutex);
    if (waiting.size() >= mostWaiting) {
        ++lost;
        return;
    }
    waiting.push_back(std::move(entry));
    if (!std::exchange(isAsked, true))
        thread.post([this] { writeAll(); });
}

void DiaryWriter::flush() {
    thread.run([this] { writeAll(); });
}

void DiaryWriter::writeAll() {
    std::vector<QJsonObject> entries;
    std::int64_t missed = 0;
    {
        const std::lock_guard lock(mutex);
        isAsked = false;
        entries.swap(waiting);
        missed = std::exchange(lost, 0);
    }
    if (missed > 0)
        entries.push_back(faultEntry(u"%1 entries could not be written"_s.arg(missed)));
    if (entries.empty())
        return;
    DiaryHead end;
    const Done written = write(entries, end);
    if (written) {
        hasFailed = false;
        if (told.kept)
            told.kept(end);
        return;
    }
    if (!std::exchange(hasFailed, true) && told.failed)
        told.failed(written.error());
    // Where they stand in the file already, only the store does not know of it, which the next ones mend.
    if (written.error().code == &diary_errors::headNotKept)
        return;
    const std::lock_guard lock(mutex);
    waiting.insert(waiting.begin(), entries.begin(), entries.end());
}

Done DiaryWriter::write(const std::vector<QJsonObject>& entries, DiaryHead& end) {
    if (const Done opened = openStore(); !opened)
        return opened;
    return file.inTurn([&](const DiaryHead& head) -> Done {
        std::vector<QJsonObject> all;
        if (const Done begun = begin(all); !begun)
            return begun;
        all.insert(all.end(), entries.begin(), entries.end());
        QByteArray lines;
        end = head;
        for (QJsonObject& entry : all) {
            store->addReceipt(entry);
            lines += nextDiaryLine(end, std::move(entry));
        }
        if (const Done appended = file.append(lines, end); !appended)
            return appended;
        isBegun = true;
        if (!store->kept.keep(end))
            return makeError<diary_errors::headNotKept>(QDir::toNativeSeparators(file.path()),
                                                        store->database->failure());
        return Nothing{};
    });
}

Done DiaryWriter::openStore() {
    if (store != nullptr)
        return Nothing{};
    auto opened = Database::open(storePath, Database::Mode::Write, patience);
    if (!opened)
        return opened.error();
    store = std::make_unique<Store>(std::move(opened.value()));
    return Nothing{};
}

// The store would forget how far the diary went, were it written on without a word.
Done DiaryWriter::begin(std::vector<QJsonObject>& faults) {
    if (isBegun)
        return Nothing{};
    bool failed = false;
    const DiaryHead kept = store->kept.head(failed);
    if (failed)
        return store->database->failure();
    const Result<DiaryReport> report = checkDiary(file.path(), kept);
    if (!report)
        return report.error();
    if (!report.value().headFault.isEmpty())
        faults.push_back(faultEntry(report.value().headFault));
    return Nothing{};
}

}  // namespace wirepane
