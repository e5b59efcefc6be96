// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/store_watch.h"

#include "backend/store/embedded_back_end.h"

#include <QDir>

namespace wirepane {

QString StoreWatch::name() const {
    return QDir::toNativeSeparators(backEnd.storePath());
}

void StoreWatch::poll() {
    const auto trouble = backEnd.storeTrouble();
    setState(trouble ? SourceState::Failed : isOnline ? SourceState::Live : SourceState::Offline, trouble);
    backEnd.checkForNews();
}

void StoreWatch::setOnline(bool on) {
    isOnline = on;
    if (state().kind != SourceState::Failed)
        FeedSource::setOnline(on);
}

}  // namespace wirepane
