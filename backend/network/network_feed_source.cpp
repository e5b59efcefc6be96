// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/network_feed_source.h"

#include "backend/network/network_errors.h"
#include "backend/store/day_bounds.h"
#include "host/contract/clock.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::size_t mostOfBatch = 500;              // items
constexpr std::int64_t longestPlan = 2 * 86'400'000;  // ms; a clock that was set back is not waited for

// Behind what the next request, or call of a stream, goes on; the number of items of a list.
QString positionText(const Validators& validators, qsizetype listed) {
    const QJsonObject json{{u"etag"_s, QString::fromLatin1(validators.etag)},
                           {u"modified"_s, QString::fromLatin1(validators.modified)},
                           {u"event"_s, QString::fromUtf8(validators.event)},
                           {u"items"_s, qint64(listed)}};
    return QString::fromUtf8(QJsonDocument(json).toJson(QJsonDocument::Compact));
}

// What an item says, so that one that has changed is told from one that was handed over.
std::size_t printOf(const NewsItem& item) {
    return qHashMulti(0, item.version, item.time, item.title, item.story.value_or(QString()), item.category,
                      item.story.has_value());
}

const NewsItem* newsOf(const SourceItem& item) {
    return item.content ? std::get_if<NewsItem>(&item.content.value()) : nullptr;
}

}  // namespace

struct NetworkFeedSource::Pending : FeedBatch {
    std::vector<SourceItem> items;
    QString behind;
    std::vector<std::shared_ptr<void>> rooms;  // of streams, that the items take

    Done read(const ItemVisitor& visit) override {
        for (const SourceItem& item : items) {
            if (!visit(SourceItem(item)))
                break;
        }
        return Nothing{};
    }
    QString position() const override { return behind; }
    bool isShared() const override { return true; }
};

NetworkFeedSource::NetworkFeedSource(NetworkSource definition, NetworkMeans given, SourceStanding standing)
    : source(std::move(definition)),
      means(std::move(given)),
      kept(std::move(standing)),
      schedule(source.interval),
      gaps(UsualGaps::parse(kept.gaps)) {}

NetworkFeedSource::~NetworkFeedSource() {
    *alive = false;
}

void NetworkFeedSource::leave() {
    hasLeft = true;
    stream.reset();
    batches.clear();
    *alive = false;
    tellReady();
}

// A store that cannot say is asked again by poll().
void NetworkFeedSource::resume(const Result<QString>& position) {
    if (!position)
        return;
    isWaiting = false;
    const QJsonObject json = QJsonDocument::fromJson(position.value().toUtf8()).object();
    validators = {json.value("etag"_L1).toString().toLatin1(),
                  json.value("modified"_L1).toString().toLatin1(),
                  json.value("event"_L1).toString().toUtf8()};
    listed = json.value("items"_L1).toInteger();
}

void NetworkFeedSource::poll() {
    if (isOpen)
        return keepOpen();
    if (isWaiting || !isOnline || isAsking || hasLeft || source.isPaused || hasBatch())
        return;
    const std::int64_t now = means.clock();
    if (now < nextTryMs && nextTryMs - now < longestPlan)
        return show();
    isAsking = true;
    kept.lastTry = now / 1000;
    hasChanged = true;
    findSecret();
}

void NetworkFeedSource::findSecret() {
    if (source.secret.isEmpty())
        return ask({});
    const auto found = [this, life = alive, asked = generation](const Result<QString>& secret) {
        if (!*life || asked != generation)
            return;
        if (secret)
            return ask(SourceSecret::parse(secret.value()));
        SourceAnswer answer;
        answer.fault = secret.error();
        take(std::move(answer));
    };
    if (means.secrets == nullptr)
        found(makeError<network_errors::authorisationIncomplete>());
    else
        means.secrets->find(source.secret, found);
}

void NetworkFeedSource::ask(const SourceSecret& secret) {
    const auto answered = [this, life = alive, asked = generation](SourceAnswer answer) {
        if (!*life || asked != generation)
            return;
        if (isStream(source))
            takeStream(std::move(answer));
        else
            take(std::move(answer));
    };
    if (isStream(source))
        stream = means.asker->follow({source, secret, validators}, answered);
    else
        means.asker->ask({source, secret, validators}, answered);
}

void NetworkFeedSource::takeStream(SourceAnswer&& answer) {
    if (answer.isOpen && !isOpen) {
        openedMs = means.clock();
        hasBrought = false;
    }
    isOpen = answer.isOpen;
    hasAnswer = true;
    fault = answer.fault;
    isAlive = answer.isAlive;
    isReadable = answer.isRead;
    if (isAlive)
        gaps.listen(seconds());
    if (isReadable)
        kept.lastSuccess = seconds();
    const bool goesOn = answer.validators.event != validators.event;
    if (!answer.items.empty() || (isOpen && goesOn)) {
        if (!answer.items.empty())
            gaps.arrive(seconds());
        if (hasBrought || !validators.event.isEmpty())
            noteDelay(answer.items);
        hasBrought = true;
        validators = answer.validators;
        handOver(std::move(answer.items), answer.room);
    }
    if (!isOpen)
        planCall(answer);
    keepFault();
    if (isOpen)
        keepOpen();
    else
        show();
    if (hasBatch())
        tellReady();
}

// Others see by its next try that somebody reads it.
void NetworkFeedSource::keepOpen() {
    constexpr std::int64_t shown = 90;  // seconds
    if (kept.nextTry < seconds() + shown / 3) {
        kept.nextTry = seconds() + shown;
        hasChanged = true;
    }
    show();
}

// One that ends as soon as it stands is called as one that does not.
void NetworkFeedSource::planCall(const SourceAnswer& answer) {
    constexpr std::int64_t aWhile = 30'000;  // ms
    const bool hasStood = openedMs != 0 && (hasBrought || means.clock() - openedMs >= aWhile);
    openedMs = 0;
    stream.reset();
    isAsking = false;
    nextTryMs = means.clock() + calls.next(hasStood, answer.wish, means.chance());
    kept.nextTry = nextTryMs / 1000;
}

void NetworkFeedSource::take(SourceAnswer&& answer) {
    isAsking = false;
    hasAnswer = true;
    fault = answer.fault;
    isAlive = answer.isAlive;
    isReadable = answer.isRead;
    if (answer.isAlive)
        gaps.listen(seconds());
    const bool isEmptied = answer.isRead && !answer.isUnchanged && answer.items.empty() && answer.left == 0;
    if (isEmptied && listed > 0 && !fault)
        fault = makeError<network_errors::emptyList>(source.address.host());
    PollSchedule::Outcome outcome{answer.isRead, 0, answer.wish};
    int& news = outcome.news;
    if (answer.isRead) {
        kept.lastSuccess = seconds();
        // What was there before it was ever asked, or read again after a restart, has not come now.
        const bool isFirst = !std::exchange(isFollowed, true);
        if (!answer.isUnchanged)
            news = takeItems(std::move(answer), isFirst);
    }
    if (news > 0)
        gaps.arrive(seconds());
    planNext(outcome);
    if (hasBatch())
        tellReady();
}

// How many of the items have come since the last answer, one where there is none to compare with: those that
// the store has, too, are among them.
int NetworkFeedSource::takeItems(SourceAnswer&& answer, bool isFirst) {
    const bool canCompare = !handed.isEmpty();
    if (!answer.items.empty())
        listed = std::ssize(answer.items);
    validators = answer.validators;
    QHash<QString, std::size_t> present;
    std::vector<SourceItem> fresh;
    for (SourceItem& item : answer.items) {
        const NewsItem* const news = newsOf(item);
        if (news != nullptr) {
            const std::size_t print = printOf(*news);
            present.insert(news->identity, print);
            const auto before = handed.constFind(news->identity);
            if (before != handed.constEnd() && *before == print)
                continue;
        }
        fresh.push_back(std::move(item));
    }
    handed = std::move(present);
    const int news = isFirst ? 0 : static_cast<int>(fresh.size());
    if (news > 0)
        noteDelay(fresh);
    handOver(std::move(fresh), nullptr);
    return canCompare ? news : std::min(news, 1);
}

// From the publishing of the newest of them until now.
void NetworkFeedSource::noteDelay(const std::vector<SourceItem>& items) {
    std::int64_t newest = 0;
    for (const SourceItem& item : items) {
        if (const NewsItem* const news = newsOf(item))
            newest = std::max(newest, news->time);
    }
    if (newest > 0)
        kept.delay =
            static_cast<int>(std::clamp<std::int64_t>(means.clock() - newest * 1000, 0, longestPlan));
}

// What waits behind the batch that is being taken grows.
void NetworkFeedSource::handOver(std::vector<SourceItem>&& items, const std::shared_ptr<void>& room) {
    if (batches.size() < 2 || batches.back()->items.size() + items.size() > mostOfBatch)
        batches.push_back(std::make_shared<Pending>());
    for (SourceItem& item : items) {
        if (batches.back()->items.size() == mostOfBatch)
            batches.push_back(std::make_shared<Pending>());
        batches.back()->items.push_back(std::move(item));
        batches.back()->rooms.push_back(room);
    }
    batches.back()->behind = positionText(validators, listed);
}

void NetworkFeedSource::planNext(const PollSchedule::Outcome& outcome) {
    const std::int64_t wait = schedule.next(outcome, seconds(), means.chance());
    nextTryMs = means.clock() + wait;
    kept.nextTry = nextTryMs / 1000;
    keepFault();
    show();
}

void NetworkFeedSource::keepFault() {
    kept.fault = fault ? errorValue(*fault) : QJsonObject();
    kept.gaps = gaps.text();
    hasChanged = true;
}

void NetworkFeedSource::show() {
    if (!hasAnswer || !isOnline)
        return;
    if (!isReadable)
        setState(isAlive ? SourceState::Failed : SourceState::Silent, fault);
    else if (gaps.isStale(seconds()))
        setState(SourceState::Stale, {}, gaps.lastNews());
    else
        setState(SourceState::Live);
}

std::shared_ptr<FeedBatch> NetworkFeedSource::batch() {
    return batches.empty() ? nullptr : batches.front();
}

void NetworkFeedSource::acknowledge(const BatchOutcome& outcome) {
    if (batches.empty())
        return;
    batches.pop_front();
    const std::int64_t today = dayNumber(host_clock::today());
    kept.items = kept.itemsOn(today) + static_cast<int>(outcome.news);
    kept.day = today;
    hasChanged = true;
}

// What was not taken before an outage is asked for anew after it, from the position that is kept by then.
void NetworkFeedSource::setOnline(bool on) {
    isOnline = on;
    ++generation;
    stream.reset();
    isAsking = isOpen = false;
    openedMs = 0;
    batches.clear();
    handed.clear();
    isFollowed = false;
    isWaiting = true;
    nextTryMs = 0;
    hasAnswer = false;
    setState(on ? SourceState::Connecting : SourceState::Offline);
    if (on)
        tellReady();
}

}  // namespace wirepane
