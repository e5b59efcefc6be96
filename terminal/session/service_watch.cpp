// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/service_watch.h"

#include "backend/store/embedded_back_end.h"
#include "host/contract/fixed_services.h"

#include <algorithm>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace wirepane {

std::vector<NamedService> namedServices(EmbeddedBackEnd& backEnd) {
    std::vector<unsigned char> services;
    backEnd.BKQNEWS_bGetAllNewsService(services);
    std::erase(services, warrantService);
    std::vector<NamedService> named;
    for (const unsigned char service : services) {
        named.push_back({service, {}});
        backEnd.BKQNEWS_bGetFullNameByService(named.back().name, service);
    }
    return named;
}

ServiceWatch::ServiceWatch(EmbeddedBackEnd& embedded, std::function<void()> call)
    : backEnd(embedded), onNew(std::move(call)), changesSeen(backEnd.storeChanges()), known(present()) {
    connect(&looking, &QTimer::timeout, this, &ServiceWatch::look);
    looking.start(250ms);
}

// The back end watches the store already; services are few, and are read when it has changed.
void ServiceWatch::look() {
    if (const std::int64_t now = backEnd.storeChanges(); std::exchange(changesSeen, now) == now)
        return;
    std::set<unsigned char> all = present();
    if (std::exchange(known, std::move(all)) != known)
        onNew();
}

std::set<unsigned char> ServiceWatch::present() const {
    std::vector<unsigned char> services;
    backEnd.BKQNEWS_bGetAllNewsService(services);
    return {services.begin(), services.end()};
}

}  // namespace wirepane
