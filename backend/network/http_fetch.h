// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QUrl>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace wirepane {

// What a server said of its answer, for the next request: that may be answered with "unchanged".
struct Validators {
    QByteArray etag;
    QByteArray modified;
    QByteArray event = {};  // of a stream: the id of the last event

    bool operator==(const Validators&) const = default;
};

struct HttpRequest {
    QUrl address;          // http or https
    bool isTyped = false;  // by the user: addresses of private networks may be dialled, if not by a redirect
    std::vector<std::pair<QByteArray, QByteArray>> headers;        // beside what every request has
    std::vector<std::pair<QByteArray, QByteArray>> secretHeaders;  // not shown to another host
    Validators known;
    QString authority;    // PEM; empty: the system's
    QString certificate;  // PEM; empty: none
    QString certificateKey;
};

struct HttpAnswer {
    std::optional<Error> fault;  // why there is no answer that counts; nothing: there is one
    bool isAlive = false;        // the other end has answered, whatever it said
    bool isUnchanged = false;
    int status = 0;
    QByteArray body;
    QByteArray contentType;
    Validators validators;
    QUrl address;                      // from which it came in the end
    std::optional<std::int64_t> wish;  // seconds: not to ask again before
    std::optional<std::int64_t> date;  // by the clock of the server, seconds since 1970
    int milliseconds = 0;              // from the request to the last byte
};

struct HttpLimits {
    qint64 body = qint64(32) << 20;  // bytes, as they come and as they are decoded
    int redirects = 5;
    int quietMs = 20'000;        // without a byte
    int totalMs = 60'000;        // of a stream: until it stands
    int streamQuietMs = 90'000;  // of a stream, without a byte
    int atOnce = 8;              // requests of all hosts
};

// What is told of a stream while it stands.
struct HttpStream {
    std::function<void()> opened;
    std::function<void(const QByteArray&)> part;
    std::function<bool()> hasRoom;  // for more; while there is none, nothing is read
};

// Asks servers, one request per host at a time and few at once; the rest wait in their order. Connections are
// kept; there are no cookies and no cache. Each host's addresses are looked up and checked before one is
// dialled, again after each redirect; TLS is verified by the host's name. Where the system says that a proxy
// is to be used, the proxy looks names up, and only they can be checked. One thread, that has an event loop.
class HttpClient : public QObject {
public:
    using Answered = std::function<void(HttpAnswer)>;

    explicit HttpClient(const HttpLimits& limits = {});
    // Nobody is called any more.
    ~HttpClient() override;

    // Calls back once, from the event loop.
    void ask(const HttpRequest& request, const Answered& answered);
    // Follows a stream of server-sent events, over a connection of its own. Calls back from the event loop,
    // at last `answered`, when it has ended or is none. Once it stands, its host can be asked other things.
    // `number`: by which it can be let go; no other stream has it.
    void follow(int number, const HttpRequest& request, const HttpStream& stream, const Answered& answered);
    // Ends a stream; nobody is called any more.
    void letGo(int number);

private:
    class Queue;
    std::unique_ptr<Queue> queue;
};

// Whether an answer that came over http or https may send on to this address: nothing but the web's, and no
// more in the clear what was asked for under TLS. Why it may not; nothing: it may.
std::optional<Error> redirectFault(const QUrl& from, const QUrl& to);

}  // namespace wirepane
