// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/web_socket_run.h"

#include "backend/network/address_guard.h"
#include "backend/network/http_faults.h"
#include "backend/network/network_errors.h"
#include "backend/network/tls_settings.h"

#include <QCoreApplication>
#include <QHostInfo>
#include <QNetworkProxy>
#include <QNetworkProxyFactory>
#include <QNetworkRequest>
#include <QSslConfiguration>

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr quint64 longestMessage = quint64(16) << 20;  // bytes
constexpr int beatsOfQuiet = 3;                        // that are sent before a silent one is given up

// http and https are taken for what is meant.
QUrl socketAddress(QUrl address) {
    if (address.scheme() == "http"_L1)
        address.setScheme(u"ws"_s);
    else if (address.scheme() == "https"_L1)
        address.setScheme(u"wss"_s);
    return address;
}

}  // namespace

WebSocketRun::WebSocketRun(const HttpRequest& asked, const HttpLimits& bounds, const HttpStream& calls,
                           const HttpClient::Answered& told)
    : request(asked), limits(bounds), stream(calls), answered(told) {
    request.address = socketAddress(request.address);
    quietness.setSingleShot(true);
    connect(&quietness, &QTimer::timeout, this, &WebSocketRun::beQuiet);
    connect(&beating, &QTimer::timeout, this, [this] { socket.ping(); });
    connect(&socket, &QWebSocket::connected, this, &WebSocketRun::open);
    connect(&socket, &QWebSocket::textMessageReceived, this, &WebSocketRun::take);
    connect(&socket, &QWebSocket::binaryFrameReceived, this, [this] { take({}); });
    connect(&socket, &QWebSocket::pong, this, [this] { take({}); });
    connect(&socket, &QWebSocket::sslErrors, this,
            [this](const QList<QSslError>& errors) { tlsErrors = errors; });
    connect(&socket, qOverload<QAbstractSocket::SocketError>(&QWebSocket::error), this,
            &WebSocketRun::meetError);
    connect(&socket, &QWebSocket::disconnected, this, [this] {
        end(stands
                ? std::nullopt
                : std::optional(makeError<network_errors::noStream>(request.address.host(), u"WebSocket"_s)));
    });
    socket.setMaxAllowedIncomingFrameSize(longestMessage);
    socket.setMaxAllowedIncomingMessageSize(longestMessage);
    quietness.start(limits.totalMs);
    QMetaObject::invokeMethod(this, &WebSocketRun::lookUp, Qt::QueuedConnection);
}

WebSocketRun::~WebSocketRun() {
    hasEnded = true;
    if (lookup != 0)
        QHostInfo::abortHostLookup(lookup);
    socket.disconnect(this);
    socket.abort();
}

void WebSocketRun::lookUp() {
    const QString host = request.address.host();
    // In the clear nobody shows whose name he has: only an address that stands there is the one dialled.
    if (!request.isTyped && request.address.scheme() != "wss"_L1 && QHostAddress(host).isNull())
        return end(makeError<network_errors::socketInClear>(host));
    const QList<QNetworkProxy> proxies =
        QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(request.address));
    const QNetworkProxy proxy = proxies.isEmpty() ? QNetworkProxy(QNetworkProxy::NoProxy) : proxies.front();
    socket.setProxy(proxy);
    const QHostAddress stated(host);
    if (!stated.isNull() && allowedAddresses({stated}, request.isTyped).isEmpty())
        return end(makeError<network_errors::privateAddress>(host));
    if (proxy.type() != QNetworkProxy::NoProxy)
        return dial();
    lookup = QHostInfo::lookupHost(host, this, [this](const QHostInfo& found) {
        lookup = 0;
        if (found.error() != QHostInfo::NoError)
            return end(makeError<network_errors::hostUnknown>(request.address.host()));
        // One that leads anywhere else is not dialled at all: which of them is dialled is not ours to say.
        if (allowedAddresses(found.addresses(), request.isTyped) != found.addresses())
            return end(makeError<network_errors::privateAddress>(request.address.host()));
        dial();
    });
}

void WebSocketRun::dial() {
    QNetworkRequest get(request.address);
    get.setRawHeader("User-Agent", "Wirepane/" + QCoreApplication::applicationVersion().toLatin1());
    for (const auto& [name, value] : request.headers)
        get.setRawHeader(name, value);
    for (const auto& [name, value] : request.secretHeaders)
        get.setRawHeader(name, value);
    socket.setSslConfiguration(tlsOf(request));
    socket.open(get);
}

void WebSocketRun::open() {
    const bool isProxied = socket.proxy().type() != QNetworkProxy::NoProxy;
    if (!isProxied && allowedAddresses({socket.peerAddress()}, request.isTyped).isEmpty())
        return end(makeError<network_errors::privateAddress>(request.address.host()));
    stands = true;
    stream.opened();
    quietness.start(limits.streamQuietMs);
    beating.start(limits.streamQuietMs / (beatsOfQuiet + 1));
}

// An empty text is a sign of life.
void WebSocketRun::take(const QString& text) {
    if (!stands || hasEnded)
        return;
    quietness.start(limits.streamQuietMs);
    // The library has no way to make the other end wait.
    if (!stream.hasRoom())
        return end(makeError<network_errors::tooFast>(request.address.host()));
    stream.part(text.toUtf8());
}

void WebSocketRun::meetError() {
    const QString host = request.address.host();
    if (!tlsErrors.isEmpty() || socket.error() == QAbstractSocket::SslHandshakeFailedError)
        return end(tlsFault(tlsErrors, host));
    switch (socket.error()) {
        case QAbstractSocket::ConnectionRefusedError:
            return end(stands ? makeError<network_errors::streamBroke>(host)
                              : makeError<network_errors::noStream>(host, u"WebSocket"_s));
        case QAbstractSocket::ProxyConnectionRefusedError:
        case QAbstractSocket::ProxyConnectionClosedError:
        case QAbstractSocket::ProxyConnectionTimeoutError:
        case QAbstractSocket::ProxyNotFoundError:
        case QAbstractSocket::ProxyProtocolError:
        case QAbstractSocket::ProxyAuthenticationRequiredError:
            return end(makeError<network_errors::proxyFails>(host));
        default:
            return end(stands ? makeError<network_errors::streamBroke>(host)
                              : makeError<network_errors::notReached>(host));
    }
}

void WebSocketRun::beQuiet() {
    end(stands ? makeError<network_errors::quiet>(request.address.host())
               : makeError<network_errors::timedOut>(request.address.host(), limits.totalMs / 1000));
}

// Whoever is told may let this go, so that nothing follows.
void WebSocketRun::end(const std::optional<Error>& fault) {
    if (std::exchange(hasEnded, true))
        return;
    quietness.stop();
    beating.stop();
    HttpAnswer answer;
    answer.fault = fault;
    answer.isAlive = stands && !(fault && fault->code == &network_errors::quiet);
    answer.address = request.address;
    QMetaObject::invokeMethod(&socket, &QWebSocket::abort, Qt::QueuedConnection);
    answered(answer);
}

}  // namespace wirepane
