// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"
#include "wire/wire_rows.h"

#include <QObject>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace wirepane {

// What the log says that a store holds of one piece of news.
struct WireIdentity {
    int service = 0;
    QString identity;
    std::int32_t day = 0;
    std::int32_t number = 0;
    std::int64_t digest = 0;
};

// What is appended in one go; nobody sees it before the commit.
struct WirePortion {
    std::vector<WireRow> rows;
    std::vector<WireIdentity> identities;  // each once
    QString source;                        // whose position is kept; empty: nobody's
    QString position;
};

// What one day of a service holds: how much, and all digests in one.
struct DayDigest {
    int service = 0;
    std::int32_t day = 0;
    std::int64_t count = 0;
    std::int64_t digest = 0;

    bool operator==(const DayDigest&) const = default;
};

// How a wire is kept.
struct WireCare {
    QStringList points;     // of ingest, each with the age of its last beat
    bool isQuorum = false;  // a commit is on the disks of several servers
    QString synchronous;    // how the server says it
};

// The connection of an ingest point or an operator to a wire; connects when it is first asked, and anew after
// a failure. It waits for the server: no interface thread.
class WireServer {
public:
    virtual ~WireServer() = default;

    // Makes a wire in a database that has none.
    virtual Done make(const QString& zone) = 0;
    // A role may read these services and what is of none, and nothing else.
    virtual Done entitle(const QString& role, const QList<int>& services) = 0;
    virtual Result<WireHead> head() = 0;
    virtual Result<WireCare> care() = 0;
    // What is wrong with the log itself; empty: nothing.
    virtual Result<QStringList> faults() = 0;
    virtual Result<std::vector<DayDigest>> digests() = 0;
    virtual Result<QString> positionOf(const QString& source) = 0;
    // Says that this ingest point is alive.
    virtual Done beat(const QString& point) = 0;

    // Begins a transaction, which nobody else appends beside.
    virtual Result<WireHead> lockHead() = 0;
    virtual Result<WirePage> pageAfter(std::int64_t sequence) = 0;
    virtual Done append(const WirePortion& portion) = 0;
    // An error: whether it is committed is found out with the next lockHead().
    virtual Done commit() = 0;
    virtual void rollback() = 0;
};

// The connection of a terminal to a wire, which waits for nothing. Interface thread.
class WireTail {
public:
    struct Listener {
        std::function<void()> opened;
        std::function<void(const WirePage&)> page;
        std::function<void()> stirred;           // a beat, or more news
        std::function<void(const Error&)> lost;  // and closed
    };

    virtual ~WireTail() = default;

    virtual void open() = 0;
    virtual void close() = 0;
    // Once it is open; again when the page is there.
    virtual void read(std::int64_t after) = 0;
};

// What speaks with the server of wires. A module of its own, which is loaded when a wire is wanted.
class WireDriver {
public:
    virtual ~WireDriver() = default;

    // `service`: the name of connection settings that the user's or the system's service file holds.
    virtual std::unique_ptr<WireServer> server(const QString& service) = 0;
    virtual std::unique_ptr<WireTail> tail(const QString& service, WireTail::Listener listener) = 0;
};

// Loads the driver: the file beside the program, else the installed one. It stays loaded. An error also for a
// service that cannot be the name of one.
Result<WireDriver*> wireDriverFor(const QString& service);

}  // namespace wirepane

#define WIREPANE_WIRE_DRIVER "wirepane.WireDriver/1"
Q_DECLARE_INTERFACE(wirepane::WireDriver, WIREPANE_WIRE_DRIVER)
