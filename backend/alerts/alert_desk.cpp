// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_desk.h"

#include "backend/alerts/alert_book.h"
#include "backend/store/embedded_back_end.h"
#include "backend/store/store_writer.h"
#include "host/contract/clock.h"

#include <QPointer>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

namespace wirepane {

namespace {

// After a kill so many are looked at again at most.
constexpr std::int64_t mostUnwritten = 2000;  // arrivals

// What was read of the store at the start.
struct Before {
    std::vector<AlertEntry> entries;
    std::int64_t seen = 0;
};

}  // namespace

AlertDesk::AlertDesk(EmbeddedBackEnd& embedded, const AlertSettings& present)
    : backEnd(embedded), settings(present) {
    const auto before = std::make_shared<Before>();
    backEnd.ask(
        [before](StoreWriter& writer) {
            AlertBook book(writer.connection());
            *before = {book.entries(), book.seen()};
        },
        [this, self = QPointer(this), before] {
            if (!self)
                return;
            seen = before->seen;
            add(before->entries);
        });
}

void AlertDesk::begin() {
    worker = std::make_unique<AlertWorker>(backEnd.storePath(), [this](AlertFindings&& findings) {
        found.post([this, all = std::move(findings)] { take(all); });
    });
    worker->setRules(settings.rules);
    backEnd.attach(this);
    connect(&eachSecond, &QTimer::timeout, this, &AlertDesk::look);
    eachSecond.start(std::chrono::seconds(1));
    look();
}

AlertDesk::~AlertDesk() {
    backEnd.detach(this);
}

void AlertDesk::setSettings(const AlertSettings& wanted) {
    settings = wanted;
    if (worker)
        worker->setRules(settings.rules);
}

int AlertDesk::unseen() const {
    return static_cast<int>(std::ranges::count_if(known, [this](const AlertEntry& entry) {
        return entry.outcome == AlertOutcome::Told && entry.number > seen;
    }));
}

void AlertDesk::see() {
    const std::int64_t last = known.empty() ? 0 : known.back().number;
    if (last <= seen)
        return;
    seen = last;
    backEnd.ask(
        [last](StoreWriter& writer) {
            if (writer.begin() && AlertBook(writer.connection()).see(last))
                writer.commit();
            else
                writer.rollback();
        },
        {});
    emit changed();
}

void AlertDesk::RecvNewHeadLine(const CHeadline*, const QString&, const QString&) {
    look();
}

void AlertDesk::look() {
    if (!worker || std::exchange(isAsked, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            isAsked = false;
            worker->look({backEnd.bIsConnect() != 0, settings.quietFrom, settings.quietTo});
        },
        Qt::QueuedConnection);
}

void AlertDesk::take(const AlertFindings& findings) {
    lookedAt = findings.position;
    if (backEnd.isReadOnly()) {
        add(findings.entries);
        return;
    }
    const bool isDue = !findings.entries.empty() || findings.areRulesNew || written == 0 ||
                       findings.position - written >= mostUnwritten;
    if (isDue)
        keep(findings);
}

void AlertDesk::keep(const AlertFindings& findings) {
    struct Kept {
        std::vector<AlertEntry> entries;
        bool isWritten = false;
    };
    const auto kept = std::make_shared<Kept>();
    written = findings.position;
    backEnd.ask(
        [findings, kept](StoreWriter& writer) {
            if (!writer.begin())
                return;
            std::vector<AlertEntry> entries = findings.entries;
            for (AlertEntry& entry : entries)
                entry.told = entry.outcome == AlertOutcome::Told ? host_clock::now() : 0;
            AlertBook book(writer.connection());
            const bool isWell = book.add(entries, kept->entries) && book.moveTo(findings.position);
            if (!isWell)
                writer.rollback();
            kept->isWritten = isWell && writer.commit();
        },
        [this, self = QPointer(this), findings, kept] {
            if (!self)
                return;
            // What cannot be kept is told all the same.
            if (!kept->isWritten)
                written = 0;
            add(kept->isWritten ? kept->entries : findings.entries);
            std::vector<AlertEntry> toTell;
            std::ranges::copy_if(kept->isWritten ? kept->entries : findings.entries,
                                 std::back_inserter(toTell),
                                 [](const AlertEntry& entry) { return entry.outcome == AlertOutcome::Told; });
            if (!toTell.empty())
                emit told(toTell);
        });
}

void AlertDesk::add(const std::vector<AlertEntry>& entries) {
    if (entries.empty())
        return;
    known.insert(known.end(), entries.begin(), entries.end());
    std::ranges::stable_sort(known, {}, &AlertEntry::number);
    while (known.size() > AlertBook::mostKept)
        known.pop_front();
    emit changed();
}

}  // namespace wirepane
