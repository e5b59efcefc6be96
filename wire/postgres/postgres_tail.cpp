// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/postgres/postgres_tail.h"

#include <array>
#include <utility>

namespace wirepane {

namespace {

constexpr auto mostRows = "1000";  // of a page

// It may be the one that calls.
void dropLater(std::unique_ptr<QSocketNotifier>& notifier) {
    if (!notifier)
        return;
    notifier->setEnabled(false);
    notifier.release()->deleteLater();
}

}  // namespace

PostgresTail::PostgresTail(const QString& service, Listener listener)
    : settings(connectionSettings(service)), tell(std::move(listener)) {}

void PostgresTail::open() {
    close();
    connection.reset(PQconnectStart(settings.constData()));
    if (PQstatus(connection.get()) == CONNECTION_BAD) {
        // Who asks is not told before he has asked.
        QMetaObject::invokeMethod(
            this, [this, asked = generation] { asked == generation ? lose() : void(); },
            Qt::QueuedConnection);
        return;
    }
    watch(true);
}

void PostgresTail::close() {
    ++generation;
    dropLater(reading);
    dropLater(writing);
    connection.reset();
    isConnected = false;
    isListening = false;
}

// While it connects, libpq may go from one socket to another.
void PostgresTail::watch(bool forWriting) {
    const int socket = PQsocket(connection.get());
    dropLater(reading);
    dropLater(writing);
    reading = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read);
    writing = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Write);
    writing->setEnabled(forWriting);
    connect(reading.get(), &QSocketNotifier::activated, this, &PostgresTail::socketStirs);
    connect(writing.get(), &QSocketNotifier::activated, this, &PostgresTail::socketStirs);
}

void PostgresTail::socketStirs() {
    if (!isConnected)
        connectOn();
    else if (PQconsumeInput(connection.get()) == 0)
        lose();
    else {
        flush();
        takeAnswers();
    }
}

void PostgresTail::connectOn() {
    const PostgresPollingStatusType status = PQconnectPoll(connection.get());
    if (status == PGRES_POLLING_FAILED) {
        lose();
        return;
    }
    watch(status == PGRES_POLLING_WRITING);
    if (status != PGRES_POLLING_OK)
        return;
    isConnected = true;
    PQsetnonblocking(connection.get(), 1);
    if (PQsendQuery(connection.get(), "LISTEN wire") == 0)
        lose();
    else
        flush();
}

void PostgresTail::flush() {
    const int left = PQflush(connection.get());
    if (left >= 0)
        writing->setEnabled(left > 0);
}

void PostgresTail::read(std::int64_t after) {
    const QByteArray sequence = QByteArray::number(qint64(after));
    const std::array<const char*, 2> values{sequence.constData(), mostRows};
    if (PQsendQueryParams(connection.get(), pageQuery, 2, nullptr, values.data(), nullptr, nullptr, 1) != 0)
        flush();
}

// A notification that came during a query waits in libpq, and the socket does not stir for it.
void PostgresTail::takeAnswers() {
    const int asked = generation;
    bool hasStirred = false;
    while (PGnotify* const notice = PQnotifies(connection.get())) {
        PQfreemem(notice);
        hasStirred = true;
    }
    if (hasStirred)
        tell.stirred();
    while (asked == generation && PQisBusy(connection.get()) == 0) {
        const ResultHandle result(PQgetResult(connection.get()));
        if (!result)
            return;
        if (!isListening) {
            isListening = PQresultStatus(result.get()) == PGRES_COMMAND_OK;
            // Until the end of an answer no other query can be sent.
            while (const ResultHandle rest{PQgetResult(connection.get())}) {
            }
            isListening ? tell.opened() : lose();
            continue;
        }
        const Result<WirePage> page = pageOf(result.get());
        while (const ResultHandle rest{PQgetResult(connection.get())}) {
        }
        page ? tell.page(page.value()) : tell.lost(page.error());
    }
}

void PostgresTail::lose() {
    const Error reason = failureOf(connection.get());
    tell.lost(reason);
}

}  // namespace wirepane
