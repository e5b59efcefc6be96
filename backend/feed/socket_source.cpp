// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/socket_source.h"

#include "backend/feed/feed_connection.h"

#include <utility>

namespace wirepane {

SocketSource::SocketSource(QString name) : socketName(std::move(name)) {
    listen();
}

void SocketSource::listen() {
    server = std::make_unique<SocketServer>();
    QObject::connect(server.get(), &SocketServer::connected, server.get(), [this](LineChannel* channel) {
        if (taker() != nullptr)
            taker()->addSource(std::make_shared<FeedConnection>(channel, 1));
    });
    const Done listening = server->listen(socketName);
    setState(listening ? SourceState::Live : SourceState::Failed,
             listening ? std::nullopt : std::optional(listening.error()));
}

void SocketSource::setOnline(bool on) {
    server.reset();
    if (on)
        listen();
    else
        setState(SourceState::Offline);
}

}  // namespace wirepane
