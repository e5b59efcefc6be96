// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/store/embedded_back_end.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace wirepane {

// Lets old news leave the store while the terminal runs: soon after the start and once an hour, in small
// steps on the store's thread, between which live news comes in. Interface thread.
class RetentionKeeper : public QObject {
public:
    // `wanted` says how much is kept, as it is set at that moment. The back end outlives this.
    RetentionKeeper(EmbeddedBackEnd& backEnd, std::function<Retention()> wanted);

private:
    void begin();
    void goOn();

    EmbeddedBackEnd& store;
    std::function<Retention()> wanted;
    QTimer hours;
    QTimer steps;
};

// What age is counted from: a clock that is set ahead lets nothing leave.
std::int64_t retentionNow();

}  // namespace wirepane
