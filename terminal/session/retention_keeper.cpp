// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/retention_keeper.h"

#include "host/contract/clock.h"

#include <QDateTime>
#include <QPointer>

#include <algorithm>
#include <chrono>
#include <memory>

namespace wirepane {

namespace {

constexpr std::chrono::seconds firstTime{10};
constexpr std::chrono::hours period{1};
constexpr std::chrono::milliseconds betweenSteps{40};

}  // namespace

std::int64_t retentionNow() {
    return std::min<std::int64_t>(host_clock::now(), QDateTime::currentSecsSinceEpoch());
}

RetentionKeeper::RetentionKeeper(EmbeddedBackEnd& backEnd, std::function<Retention()> settings)
    : store(backEnd), wanted(std::move(settings)) {
    connect(&hours, &QTimer::timeout, this, &RetentionKeeper::begin);
    connect(&steps, &QTimer::timeout, this, &RetentionKeeper::goOn);
    steps.setSingleShot(true);
    steps.setInterval(betweenSteps);
    hours.start(period);
    QTimer::singleShot(firstTime, this, &RetentionKeeper::begin);
}

void RetentionKeeper::begin() {
    if (wanted().isOn() && !store.storeTrouble())
        goOn();
}

// What fails, as when another program writes, is tried again the next time.
void RetentionKeeper::goOn() {
    if (store.isBehind()) {
        steps.start();
        return;
    }
    const auto done = std::make_shared<Result<TrimStep>>(TrimStep{});
    store.ask([done, keep = wanted(),
               now = retentionNow()](StoreWriter& writer) { *done = writer.trim(keep, now); },
              [self = QPointer(this), done] {
                  if (self && *done && !done->value().isDone)
                      self->steps.start();
              });
}

}  // namespace wirepane
