// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/source_desk.h"

#include "backend/database/database.h"
#include "backend/store/store_file.h"
#include "terminal/sources/secrets.h"
#include "terminal/sources/source_errors.h"
#include "terminal/sources/source_texts.h"

#include <QUuid>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::chrono::seconds period{1};

}  // namespace

SourceDesk::SourceDesk(QString storeFile, Secrets& sourceSecrets)
    : path(std::move(storeFile)), secrets(sourceSecrets) {
    connect(&seconds, &QTimer::timeout, this, &SourceDesk::readAgain);
}

SourceDesk::~SourceDesk() = default;

void SourceDesk::watch() {
    readAgain();
    seconds.start(period);
}

void SourceDesk::read(const Finished& finished) {
    ask([](SourceList&) { return Done(Nothing{}); }, finished);
}

void SourceDesk::add(NetworkSource source, const SourceSecret& secret, const Added& added) {
    keepSecret(secret, [this, source = std::move(source), added](const Result<QString>& kept) mutable {
        if (!kept) {
            added(kept.error());
            return;
        }
        if (!kept.value().isEmpty())
            source.secret = kept.value();
        const auto name = std::make_shared<QString>();
        ask(
            [source, name](SourceList& sources) -> Done {
                const Result<QString> given = sources.add(source);
                if (!given)
                    return given.error();
                *name = given.value();
                return Nothing{};
            },
            [added, name](const Done& done) {
                added(done ? Result<QString>(*name) : Result<QString>(done.error()));
            });
    });
}

void SourceDesk::change(NetworkSource source, const SourceSecret& secret, const Finished& finished) {
    keepSecret(secret, [this, source = std::move(source), finished](const Result<QString>& kept) mutable {
        if (!kept) {
            finished(kept.error());
            return;
        }
        const QString former = source.secret;
        if (!kept.value().isEmpty())
            source.secret = kept.value();
        ask([source](SourceList& sources) { return sources.change(source); },
            [this, former, title = titleOf(source), now = source.secret, finished](const Done& done) {
                if (done && former != now)
                    forgetSecret(former, title, finished);
                else
                    finished(done);
            });
    });
}

void SourceDesk::pause(const QString& name, bool isPaused, const Finished& finished) {
    ask([name, isPaused](SourceList& sources) { return sources.pause(name, isPaused); }, finished);
}

void SourceDesk::remove(const QString& name, const Finished& finished) {
    const auto removed = std::make_shared<NetworkSource>();
    ask(
        [name, removed](SourceList& sources) -> Done {
            const auto source = sources.source(name);
            if (!source)
                return source.error();
            *removed = source.value();
            return sources.remove(name);
        },
        [this, removed, finished](const Done& done) {
            if (done)
                forgetSecret(removed->secret, titleOf(*removed), finished);
            else
                finished(done);
        });
}

// Who ends with the answer must not leave it behind.
void SourceDesk::forgetSecret(const QString& secret, const QString& title, const Finished& finished) {
    if (secret.isEmpty())
        finished(Nothing{});
    else
        secrets.forget(secret, [title, finished](const Done& done) {
            finished(done ? done : Done(makeError<source_errors::secretStays>(title, done.error())));
        });
}

void SourceDesk::move(const QString& name, int place, const Finished& finished) {
    ask([name, place](SourceList& sources) { return sources.move(name, place); }, finished);
}

// Answers the name that it is kept under; empty: there is none.
void SourceDesk::keepSecret(const SourceSecret& secret,
                            const std::function<void(const Result<QString>&)>& kept) {
    if (secret.isEmpty())
        kept(QString());
    else
        secrets.keep(u"source-"_s + QUuid::createUuid().toString(QUuid::WithoutBraces), secret.text(), kept);
}

void SourceDesk::ask(Change change, const Finished& finished) {
    thread.post([this, change = std::move(change), finished] {
        const auto sources = list();
        Done done = sources ? change(*sources.value()) : Done(sources.error());
        const auto read = readList();
        if (done && !read)
            done = read.error();
        answers.post([this, done, read, finished] {
            show(read);
            finished(done);
        });
    });
}

void SourceDesk::readAgain() {
    thread.post([this] {
        const auto read = readList();
        answers.post([this, read] { show(read); });
    });
}

void SourceDesk::show(const Result<std::vector<ListedSource>>& read) {
    if (!read) {
        if (!std::exchange(isTroubled, true))
            emit trouble(read.error());
        return;
    }
    isTroubled = false;
    if (std::exchange(isRead, true) && listed == read.value())
        return;
    listed = read.value();
    emit changed();
}

Result<SourceList*> SourceDesk::list() {
    if (!sourceList) {
        auto opened = openStore(path);
        if (!opened)
            return opened.error();
        database = std::move(opened.value());
        sourceList = std::make_unique<SourceList>(*database);
    }
    return sourceList.get();
}

Result<std::vector<ListedSource>> SourceDesk::readList() {
    const auto sources = list();
    if (!sources)
        return sources.error();
    const auto all = sources.value()->sources();
    if (!all)
        return all.error();
    std::vector<ListedSource> read;
    for (const NetworkSource& source : all.value()) {
        const auto standing = sources.value()->standing(source.name);
        if (!standing)
            return standing.error();
        read.push_back({source, standing.value()});
    }
    return read;
}

}  // namespace wirepane
