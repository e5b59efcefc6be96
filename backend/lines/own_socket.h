// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QByteArray>

#include <memory>

namespace wirepane {

// Local sockets of this user alone, and what only the system can say of them. Any thread.

// Where the socket of this name stands: a name with a slash is a path; any other stands in $XDG_RUNTIME_DIR
// or, where that is not the user's alone, in a folder among the temporary ones that is made here (0700).
// Fails when that folder is not the user's alone.
Result<QString> socketPath(const QString& name);

// Whether the program at the other end of a connected local socket runs for this user.
bool isOwnPeer(qintptr descriptor);

// A socket that listens, as long as it lives. Only this user's programs may open it.
class OwnSocket {
public:
    // What stands at the path stays as it is, and the error says what it is; but a socket of this user behind
    // which nobody listens any more is replaced.
    static Result<std::unique_ptr<OwnSocket>> listen(const QString& path);
    // Takes its name away, unless something else stands there by now.
    ~OwnSocket();
    OwnSocket(const OwnSocket&) = delete;
    OwnSocket& operator=(const OwnSocket&) = delete;

    int descriptor() const { return socket; }

    enum class Accepted { Client, Nobody, Failed };
    // The next client that waits, whose descriptor the caller closes. Those of other users are sent off.
    Accepted accept(int& client) const;

private:
    OwnSocket() = default;
    Done bindTo(const QByteArray& name);

    QByteArray path;
    int socket = -1;
    unsigned long long device = 0;  // of what it made at the path
    unsigned long long file = 0;
};

}  // namespace wirepane
