// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/marking_desk.h"

#include "backend/store/store_writer.h"
#include "host/contract/clock.h"

#include <QPointer>

#include <algorithm>
#include <memory>
#include <utility>

namespace wirepane {

namespace {

constexpr qsizetype mostKnown = 4096;
constexpr std::size_t writtenAtOnce = 2000;  // some 20 ms, for which news waits
constexpr std::chrono::milliseconds gathered{250};

}  // namespace

MarkingDesk::MarkingDesk(Database& database, Ask asking, Heard hearing)
    : book(database), ask(std::move(asking)), heard(std::move(hearing)), known(mostKnown) {
    soon.setSingleShot(true);
    QObject::connect(&soon, &QTimer::timeout, &soon, [this] { writeNow(); });
}

ReadingMark MarkingDesk::markOf(const HeadlineKey& key) {
    const ReadingMark* kept = known.object({key});
    if (kept == nullptr) {
        known.insert({key}, new ReadingMark(book.find(key)));
        kept = known.object({key});
    }
    const auto change = waiting.constFind({key});
    return change == waiting.cend() ? *kept : changedMark(*kept, change->change, change->moment);
}

void MarkingDesk::change(std::vector<HeadlineKey> keys, const MarkChange& change) {
    if (!ask || keys.empty())
        return;
    const std::int64_t now = host_clock::now();
    const std::int64_t position = heard();
    if (keys.size() > writtenAtOnce) {
        bulk.add(std::move(keys), change, now, position);
        if (!isBulkUnderWay)
            takeNext();
        return;
    }
    bulk.overtake(keys, change);
    for (const HeadlineKey& key : keys)
        hold({key, change, now, position});
    if (!soon.isActive())
        soon.start(gathered);
    emit tells.changed(keys);
}

void MarkingDesk::hold(const DueMark& due) {
    Waiting& entry = waiting[{due.key}];
    if (entry.moment == 0)
        entry = {{}, due.moment, due.heard};
    entry.change = joined(entry.change, due.change);
    entry.isUnderWay = false;
    isAnyLeft = true;
}

bool MarkingDesk::takeNext() {
    std::vector<HeadlineKey> keys;
    for (const DueMark& due : bulk.next(writtenAtOnce)) {
        hold(due);
        keys.push_back(due.key);
    }
    isBulkUnderWay = !keys.empty();
    if (!isBulkUnderWay)
        return false;
    emit tells.changed(keys);
    return writeNow();
}

bool MarkingDesk::writeAll() {
    while (!bulk.empty()) {
        for (const DueMark& due : bulk.next(writtenAtOnce))
            hold(due);
    }
    writeNow();
    return !waiting.isEmpty();
}

// A search for what is unread, a portion of it at a time: news waits for no more.
struct MarkingDesk::Finding {
    std::vector<HeadlineKey> keys;
    std::size_t most;
    QPointer<QObject> asker;
    Told tell;
    bool isSifted = false;
    std::size_t looked = 0;
    std::vector<HeadlineKey> unread = {};

    bool isDone() const { return looked == keys.size() || unread.size() >= most; }
    void look(MarkBook& book) {
        if (!std::exchange(isSifted, true))
            book.sift(keys);
        for (std::size_t end = std::min(looked + writtenAtOnce, keys.size()); looked < end && !isDone();
             ++looked) {
            if (book.find(keys[looked]).state == ReadingState::New)
                unread.push_back(keys[looked]);
        }
    }
};

void MarkingDesk::findUnread(std::vector<HeadlineKey> keys, std::size_t most, QObject* asker, Told tell) {
    if (ask)
        findFurther(std::make_shared<Finding>(Finding{std::move(keys), most, asker, std::move(tell)}));
}

void MarkingDesk::findFurther(const std::shared_ptr<Finding>& finding) {
    ask(
        [finding](StoreWriter& writer) {
            MarkBook written(writer.connection());
            finding->look(written);
        },
        [this, finding] {
            if (finding->asker == nullptr)
                return;
            if (finding->isDone())
                finding->tell(finding->unread);
            else
                findFurther(finding);
        });
}

void MarkingDesk::forgetAll() {
    known.clear();
    emit tells.changed({});
}

bool MarkingDesk::writeNow() {
    soon.stop();
    if (!std::exchange(isAnyLeft, false))
        return false;
    std::vector<Writing> all;
    for (auto entry = waiting.begin(); entry != waiting.end(); ++entry) {
        if (!std::exchange(entry->isUnderWay, true))
            all.push_back({entry.key(), *entry});
    }
    for (std::size_t from = 0; from < all.size(); from += writtenAtOnce) {
        const auto begin = all.begin() + std::ptrdiff_t(from);
        const auto end = all.begin() + std::ptrdiff_t(std::min(from + writtenAtOnce, all.size()));
        const auto batch = std::make_shared<const std::vector<Writing>>(begin, end);
        const auto isWritten = std::make_shared<bool>(false);
        ask(
            [batch, isWritten](StoreWriter& writer) {
                if (!writer.begin())
                    return;
                MarkBook written(writer.connection());
                bool isWell = true;
                for (const Writing& one : *batch)
                    isWell = isWell && written.change(one.key.headline, one.what.change, one.what.moment,
                                                      one.what.heard);
                if (!isWell)
                    writer.rollback();
                *isWritten = isWell && writer.commit();
            },
            [this, batch, isWritten] { noteWritten(*batch, *isWritten); });
    }
    return !all.empty();
}

void MarkingDesk::noteWritten(const std::vector<Writing>& batch, bool isWritten) {
    std::vector<HeadlineKey> keys;
    for (const Writing& one : batch) {
        keys.push_back(one.key.headline);
        known.remove(one.key);
        const auto entry = waiting.find(one.key);
        // What was changed meanwhile is still to be written.
        if (entry == waiting.end() || !entry->isUnderWay)
            continue;
        if (isWritten)
            waiting.erase(entry);
        else
            entry->isUnderWay = false;
    }
    isAnyLeft = isAnyLeft || !isWritten;
    // News that was corrected meanwhile has another mark than was asked for.
    emit tells.changed(keys);
    // What cannot be written is not heaped up.
    if (isBulkUnderWay && isWritten && waiting.isEmpty())
        takeNext();
}

}  // namespace wirepane
