// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/feed/feed_source.h"
#include "backend/lines/socket_server.h"

#include <memory>

namespace wirepane {

// A local socket through which feeds come, open to the same user alone. Each client is a source of its own,
// which is handed over when it comes. While the terminal is disconnected the socket is closed.
class SocketSource : public FeedSource {
public:
    // Listens at once; fails, by its state, when the socket cannot be had.
    explicit SocketSource(QString socketName);

    QString name() const override { return socketName; }
    void setOnline(bool on) override;

private:
    void listen();

    QString socketName;
    std::unique_ptr<SocketServer> server;
};

}  // namespace wirepane
