// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/wire_source.h"

#include "backend/store/copy_rule.h"
#include "wire/wire_batch.h"
#include "wire/wire_errors.h"

namespace wirepane {

namespace {

constexpr qint64 silentMs = 3000;
constexpr qint64 deadMs = 10000;  // without a sign, a connection is given up
constexpr qint64 retryMs = 1000;

}  // namespace

WireSource::WireSource(QString wireService, const MakeTail& makeTail)
    : wireName(wirePosition), service(std::move(wireService)) {
    tail = makeTail({.opened =
                         [this] {
                             isOpen = true;
                             isTrying = false;
                             readOn();
                         },
                     .page = [this](const WirePage& page) { take(page); },
                     .stirred =
                         [this] {
                             noteSign();
                             isStirred = true;
                             readOn();
                         },
                     .lost = [this](const Error& reason) { lose(reason); }});
}

WireSource::~WireSource() = default;

void WireSource::resume(const Result<QString>& kept) {
    if (!kept)
        return;
    isWaiting = false;
    const Result<WirePosition> read = WirePosition::of(kept.value());
    if (!read) {
        fail(read.error());
        return;
    }
    position = read.value();
    setState(SourceState::Connecting);
    call();
}

void WireSource::poll() {
    if (isWaiting || state().kind == SourceState::Failed || state().kind == SourceState::Offline)
        return;
    if (sinceSign.elapsed() > silentMs)
        setState(SourceState::Silent, makeError<wire_errors::noBeat>(silentMs / 1000));
    const bool isDead = isOpen ? sinceSign.elapsed() > deadMs : isTrying && sinceTry.elapsed() > deadMs;
    if (isDead)
        hangUp();
    if (!isOpen && !isTrying && sinceTry.elapsed() > retryMs)
        call();
}

void WireSource::call() {
    isTrying = true;
    sinceTry.start();
    sinceSign.start();
    tail->open();
}

void WireSource::hangUp() {
    tail->close();
    isOpen = false;
    isTrying = false;
    isReading = false;
}

void WireSource::readOn() {
    if (!isOpen || isReading || pending)
        return;
    isReading = true;
    isStirred = false;
    tail->read(position.sequence());
}

void WireSource::noteSign() {
    sinceSign.start();
    if (state().kind == SourceState::Connecting || state().kind == SourceState::Silent)
        setState(SourceState::Live);
}

void WireSource::take(const WirePage& page) {
    isReading = false;
    WirePosition next = position;
    if (const Done followed = next.follow(page); !followed) {
        fail(followed.error());
        return;
    }
    headLast = page.head.last;
    if (state().kind == SourceState::Connecting)
        setState(SourceState::Live);
    position = next;
    if (!page.rows.empty()) {
        pending = std::make_shared<WireBatch>(page.rows, position.text());
        tellReady();
    } else if (isStirred) {
        readOn();
    }
}

void WireSource::acknowledge(const BatchOutcome& outcome) {
    pending.reset();
    if (outcome.fault) {
        fail(*outcome.fault);
        return;
    }
    if (isStirred || position.sequence() < headLast)
        readOn();
}

void WireSource::lose(const Error& reason) {
    hangUp();
    sinceTry.start();
    if (state().kind != SourceState::Failed && state().kind != SourceState::Offline)
        setState(SourceState::Silent, reason);
}

void WireSource::fail(const Error& reason) {
    hangUp();
    pending.reset();
    setState(SourceState::Failed, reason);
}

void WireSource::setOnline(bool on) {
    hangUp();
    pending.reset();
    isWaiting = on;
    setState(on ? SourceState::Connecting : SourceState::Offline);
    if (on)
        tellReady();
}

}  // namespace wirepane
