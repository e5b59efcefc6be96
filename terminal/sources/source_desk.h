// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/call_queue.h"
#include "backend/network/address_secrets.h"
#include "backend/network/source_list.h"
#include "backend/worker_thread.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

namespace wirepane {
class Database;
class Secrets;

// A source of the list, and how it stands.
struct ListedSource {
    NetworkSource source;
    SourceStanding standing;

    bool operator==(const ListedSource&) const = default;
};

// The list of sources for who shows and changes it, while terminals and commands read and change it, too. The
// store is read and written on a thread of its own, with a connection of its own. Interface thread; answers
// come from the event loop, once.
class SourceDesk : public QObject {
    Q_OBJECT

public:
    using Finished = std::function<void(const Done&)>;
    using Added = std::function<void(const Result<QString>&)>;

    // The store is made where it is absent. The secrets are not owned and outlive this.
    SourceDesk(QString storeFile, Secrets& secrets);
    ~SourceDesk() override;

    // As they were read last, in their order; empty until the first changed().
    const std::vector<ListedSource>& sources() const { return listed; }
    // Looks for what has changed, now and then every second.
    void watch();
    // Looks once.
    void read(const Finished& finished);

    // `secret` is kept with the secrets, and the source names it; empty: it has none. The answer is the
    // source's name.
    void add(NetworkSource source, const SourceSecret& secret, const Added& added);
    // An empty secret leaves the one that the source names; any other takes its place.
    void change(NetworkSource source, const SourceSecret& secret, const Finished& finished);
    void pause(const QString& name, bool isPaused, const Finished& finished);
    void remove(const QString& name, const Finished& finished);
    void move(const QString& name, int place, const Finished& finished);

signals:
    void changed();
    // The list cannot be read.
    void trouble(const wirepane::Error& error);

private:
    using Change = std::function<Done(SourceList&)>;

    void ask(Change change, const Finished& finished);
    void forgetSecret(const QString& secret, const QString& title, const Finished& finished);
    void keepSecret(const SourceSecret& secret, const std::function<void(const Result<QString>&)>& kept);
    void readAgain();
    void show(const Result<std::vector<ListedSource>>& read);
    // On the thread:
    Result<SourceList*> list();
    Result<std::vector<ListedSource>> readList();

    const QString path;
    Secrets& secrets;
    QTimer seconds;
    std::vector<ListedSource> listed;
    bool isRead = false;
    bool isTroubled = false;
    CallQueue answers;  // on the interface thread
    std::unique_ptr<Database> database;
    std::unique_ptr<SourceList> sourceList;
    WorkerThread thread;  // last: it uses all of the above
};

}  // namespace wirepane
