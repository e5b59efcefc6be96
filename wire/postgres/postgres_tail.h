// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wire/postgres/postgres_handles.h"
#include "wire/wire_driver.h"

#include <QSocketNotifier>

#include <memory>

namespace wirepane {

// Reads a wire that PostgreSQL keeps, from the event loop: libpq has no thread, and is asked only when its
// socket has something.
class PostgresTail : public QObject, public WireTail {
public:
    PostgresTail(const QString& service, Listener listener);

    void open() override;
    void close() override;
    void read(std::int64_t after) override;

private:
    void connectOn();
    void watch(bool forWriting);
    void socketStirs();
    void takeAnswers();
    void flush();
    void lose();

    QByteArray settings;
    Listener tell;
    ConnectionHandle connection;
    std::unique_ptr<QSocketNotifier> reading;
    std::unique_ptr<QSocketNotifier> writing;
    bool isConnected = false;
    bool isListening = false;
    int generation = 0;  // of connections: who is told may close this one
};

}  // namespace wirepane
