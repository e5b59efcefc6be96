// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/sources/service_box.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <set>
#include <vector>

namespace wirepane {
class EmbeddedBackEnd;

// The services of the store, in their order, as they are called in the language in force; without the
// warrants, which no source brings.
std::vector<NamedService> namedServices(EmbeddedBackEnd& backEnd);

// Notices the services that come into the store, whoever makes them, before they have news.
class ServiceWatch : public QObject {
    Q_OBJECT

public:
    // The back end is not owned and outlives this.
    ServiceWatch(EmbeddedBackEnd& backEnd, std::function<void()> onNew);

private:
    void look();
    std::set<unsigned char> present() const;

    EmbeddedBackEnd& backEnd;
    std::function<void()> onNew;
    std::int64_t changesSeen;
    std::set<unsigned char> known;
    QTimer looking;
};

}  // namespace wirepane
