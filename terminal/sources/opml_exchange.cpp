// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/opml_exchange.h"

#include "backend/network/address_secrets.h"
#include "terminal/sources/new_source.h"
#include "terminal/sources/source_errors.h"
#include "terminal/sources/source_texts.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTimer>

#include <algorithm>

namespace wirepane {

namespace {

struct Adding {
    std::vector<ListedFeed> feeds;
    std::size_t next = 0;
    ListedFeedsAdded sofar;
};

bool isKnown(const SourceDesk& desk, const QUrl& address) {
    const auto& sources = desk.sources();
    return std::any_of(sources.begin(), sources.end(),
                       [&](const ListedSource& listed) { return listed.source.address == address; });
}

void addNext(SourceDesk& desk, const std::shared_ptr<Adding>& adding,
             const std::function<void(const ListedFeedsAdded&)>& finished) {
    while (adding->next < adding->feeds.size()) {
        const ListedFeed& feed = adding->feeds[adding->next++];
        const SplitAddress split = withoutSecrets(feed.address);
        if (isKnown(desk, split.address)) {
            ++adding->sofar.known;
            continue;
        }
        NetworkSource source = newSource(split);
        source.title = feed.title;
        source.isPaused = true;
        desk.add(source, split.secret, [&desk, adding, finished](const Result<QString>& added) {
            if (!added)
                adding->sofar.fault = added.error();
            else
                ++adding->sofar.added;
            if (added)
                addNext(desk, adding, finished);
            else
                finished(adding->sofar);
        });
        return;
    }
    QTimer::singleShot(0, &desk, [adding, finished] { finished(adding->sofar); });
}

}  // namespace

Result<OpmlReading> readOpmlFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return makeError<source_errors::opmlNotOpened>(QDir::toNativeSeparators(path), file.errorString());
    return readOpml(file);
}

Done writeOpmlFile(const QString& path, const std::vector<ListedSource>& sources) {
    std::vector<ListedFeed> feeds;
    for (const ListedSource& listed : sources) {
        if (!listed.source.address.isLocalFile())
            feeds.push_back({titleOf(listed.source), withoutSecrets(listed.source.address).address});
    }
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(writtenOpml(feeds)) >= 0 && file.commit())
        return Nothing{};
    return makeError<source_errors::opmlNotWritten>(QDir::toNativeSeparators(path), file.errorString());
}

void addListedFeeds(SourceDesk& desk, const OpmlReading& feeds,
                    const std::function<void(const ListedFeedsAdded&)>& finished) {
    const auto adding = std::make_shared<Adding>();
    adding->feeds = feeds.feeds;
    adding->sofar.leftOut = feeds.leftOut;
    addNext(desk, adding, finished);
}

}  // namespace wirepane
