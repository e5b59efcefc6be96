// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/http_run.h"

#include "backend/network/address_guard.h"
#include "backend/network/content_coding.h"
#include "backend/network/http_faults.h"
#include "backend/network/http_values.h"
#include "backend/network/network_errors.h"
#include "backend/network/tls_settings.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QHostInfo>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkProxyFactory>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qsizetype mostAddresses = 4;  // of one host that are tried
constexpr qint64 readAtOnce = qint64(256) << 10;

// As a server calls it: with its port where that is not the usual one.
QByteArray hostHeader(const QUrl& address) {
    const QString host = address.host(QUrl::FullyEncoded);
    const QString bracketed = host.contains(u':') ? u'[' + host + u']' : host;
    const bool isUsual = address.port() < 0;
    return (isUsual ? bracketed : u"%1:%2"_s.arg(bracketed).arg(address.port())).toLatin1();
}

// What the user or another machine could do without noticing: a wish is kept within a day.
std::int64_t bounded(std::int64_t seconds, std::int64_t most) {
    return std::clamp<std::int64_t>(seconds, 0, most);
}

}  // namespace

std::optional<Error> redirectFault(const QUrl& from, const QUrl& to) {
    const bool isOfWeb = to.scheme() == "http"_L1 || to.scheme() == "https"_L1;
    if (!isOfWeb || to.host().isEmpty())
        return makeError<network_errors::redirectElsewhere>(from.host());
    if (from.scheme() == "https"_L1 && to.scheme() == "http"_L1)
        return makeError<network_errors::redirectInClear>(from.host(), to.host());
    return std::nullopt;
}

HttpRun::HttpRun(HttpRequest asked, const HttpLimits& bounds, Managers managers, Paused paused)
    : request(std::move(asked)),
      limits(bounds),
      managerFor(std::move(managers)),
      tell(std::move(paused)),
      address(request.address),
      isTyped(request.isTyped) {
    since.start();
    deadline.setSingleShot(true);
    connect(&deadline, &QTimer::timeout, this, [this] {
        fail(stands ? makeError<network_errors::quiet>(address.host())
                    : makeError<network_errors::timedOut>(address.host(), limits.totalMs / 1000));
    });
}

HttpRun::~HttpRun() {
    if (lookup != 0)
        QHostInfo::abortHostLookup(lookup);
    if (reply != nullptr) {
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}

HttpAnswer HttpRun::takeAnswer() {
    return std::move(answer);
}

void HttpRun::goOn() {
    if (!deadline.isActive()) {
        since.start();
        deadline.start(limits.totalMs);
    }
    const QList<QNetworkProxy> proxies =
        QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(address));
    const QNetworkProxy proxy = proxies.isEmpty() ? QNetworkProxy(QNetworkProxy::NoProxy) : proxies.front();
    if (proxy.type() == QNetworkProxy::NoProxy)
        return lookUp();
    // The proxy looks the name up: of an address that stands there itself it can be said what it is.
    const QHostAddress stated(address.host());
    if (!stated.isNull() && allowedAddresses({stated}, isTyped).isEmpty())
        return fail(makeError<network_errors::privateAddress>(address.host()));
    dial(address, proxy);
}

void HttpRun::lookUp() {
    lookup = QHostInfo::lookupHost(address.host(), this, [this](const QHostInfo& found) {
        lookup = 0;
        if (found.error() != QHostInfo::NoError)
            return fail(makeError<network_errors::hostUnknown>(address.host()));
        addresses = allowedAddresses(found.addresses(), isTyped).mid(0, mostAddresses);
        if (addresses.isEmpty())
            return fail(makeError<network_errors::privateAddress>(address.host()));
        dialNext();
    });
}

// The address that was checked, not the name: nobody can give another answer for it in between.
void HttpRun::dialNext() {
    QUrl dialled = address;
    dialled.setHost(addresses.takeFirst().toString());
    dial(dialled, QNetworkProxy(QNetworkProxy::NoProxy));
}

void HttpRun::dial(const QUrl& dialled, const QNetworkProxy& proxy) {
    tlsErrors.clear();
    received = 0;
    expected = -1;
    answer.body.clear();
    reply = managerFor(request, proxy).get(requestTo(dialled));
    reply->setReadBufferSize(readAtOnce);
    connect(reply, &QNetworkReply::sslErrors, this,
            [this](const QList<QSslError>& errors) { tlsErrors = errors; });
    connect(reply, &QNetworkReply::downloadProgress, this, [this](qint64 so, qint64 far) {
        received = so;
        expected = far;
    });
    connect(reply, &QNetworkReply::metaDataChanged, this, &HttpRun::receive);
    connect(reply, &QNetworkReply::readyRead, this, &HttpRun::receive);
    connect(reply, &QNetworkReply::finished, this, &HttpRun::finish);
}

QNetworkRequest HttpRun::requestTo(const QUrl& dialled) const {
    QNetworkRequest get(dialled);
    get.setPeerVerifyName(address.host());
    get.setSslConfiguration(tlsOf(request));
    get.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    get.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    get.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    get.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    get.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    get.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // It would take the name of the server from the address that is dialled.
    get.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    // A stream is quiet for longer, and not dead while it waits for room.
    if (!stream)
        get.setTransferTimeout(limits.quietMs);
    get.setRawHeader("Host", hostHeader(address));
    get.setRawHeader("User-Agent", "Wirepane/" + QCoreApplication::applicationVersion().toLatin1());
    get.setRawHeader("Accept-Encoding", stream ? QByteArray("identity") : QByteArray(takenCodings));
    get.setRawHeader("Accept", stream ? "text/event-stream"
                                      : "application/rss+xml, application/atom+xml, application/json, "
                                        "application/xml;q=0.9, text/xml;q=0.9, text/csv;q=0.9, */*;q=0.5");
    for (const auto& [name, value] : request.headers)
        get.setRawHeader(name, value);
    const bool isSameHost = address.host() == request.address.host() &&
                            address.port() == request.address.port() &&
                            address.scheme() == request.address.scheme();
    for (const auto& [name, value] : request.secretHeaders) {
        if (isSameHost)
            get.setRawHeader(name, value);
    }
    if (!request.known.etag.isEmpty())
        get.setRawHeader("If-None-Match", request.known.etag);
    if (!request.known.modified.isEmpty())
        get.setRawHeader("If-Modified-Since", request.known.modified);
    if (!request.known.event.isEmpty())
        get.setRawHeader("Last-Event-ID", request.known.event);
    return get;
}

void HttpRun::readOn() {
    while (reply->bytesAvailable() > 0 && answer.body.size() <= limits.body) {
        const QByteArray part = reply->read(std::min(readAtOnce, limits.body + 1 - answer.body.size()));
        if (part.isEmpty())
            return;
        answer.body += part;
    }
}

bool HttpRun::opens() const {
    return stream && reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == 200 &&
           reply->rawHeader("Content-Type").toLower().startsWith("text/event-stream") &&
           !reply->hasRawHeader("Content-Encoding");
}

void HttpRun::passOn() {
    constexpr int roomMs = 50;  // between two looks for room
    deadline.start(limits.streamQuietMs);
    while (reply != nullptr && reply->bytesAvailable() > 0) {
        if (!stream->hasRoom()) {
            if (!std::exchange(isWaitingForRoom, true))
                QTimer::singleShot(roomMs, reply, [this] {
                    isWaitingForRoom = false;
                    passOn();
                });
            return;
        }
        stream->part(reply->read(readAtOnce));
    }
    if (reply != nullptr && reply->isFinished())
        finish();
}

void HttpRun::receive() {
    if (!stands && opens()) {
        stands = true;
        stream->opened();
        tell(Pause::Standing);
    }
    if (stands)
        return passOn();
    readOn();
    if (answer.body.size() > limits.body || received > limits.body || expected > limits.body)
        fail(makeError<network_errors::bodyTooLarge>(limits.body >> 20));
}

void HttpRun::finish() {
    if (stands) {
        if (reply->bytesAvailable() > 0)
            return passOn();
        readHead();
        if (const auto fault = httpFault(*reply, tlsErrors, address.host()))
            return fail(*fault);
        return end(Pause::Done);
    }
    readOn();
    if (answer.body.size() > limits.body)
        return fail(makeError<network_errors::bodyTooLarge>(limits.body >> 20));
    readHead();
    if (!answer.isAlive && !addresses.isEmpty() && isUnreached(reply->error())) {
        std::exchange(reply, nullptr)->deleteLater();
        return dialNext();
    }
    if (isRedirected())
        return redirect(
            address.resolved(reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl()));
    if (const auto fault = httpFault(*reply, tlsErrors, address.host()))
        return fail(*fault);
    // A body that was cut off is none, whatever the coding of its transfer lets through.
    if (expected >= 0 && received != expected)
        return fail(makeError<network_errors::cutOff>(address.host()));
    const Decoding decoded = decodeBody(reply->rawHeader("Content-Encoding"), answer.body, limits.body);
    if (decoded == Decoding::TooLarge)
        return fail(makeError<network_errors::bodyTooLarge>(limits.body >> 20));
    if (decoded != Decoding::Whole)
        return fail(makeError<network_errors::cutOff>(address.host()));
    answer.isUnchanged = answer.status == 304;
    answer.address = address;
    end(Pause::Done);
}

void HttpRun::readHead() {
    constexpr std::int64_t longestWait = 86400;  // seconds, after a server that cannot or will not
    constexpr std::int64_t longestFresh = 3600;  // what news can be told to be fresh for
    const std::int64_t now = QDateTime::currentSecsSinceEpoch();
    answer.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    answer.isAlive = answer.isAlive || answer.status != 0;
    answer.contentType = reply->rawHeader("Content-Type");
    answer.validators = {reply->rawHeader("ETag"), reply->rawHeader("Last-Modified")};
    answer.date = httpDate(reply->rawHeader("Date"));
    if (const auto wait = retryAfter(reply->rawHeader("Retry-After"), now))
        answer.wish = bounded(*wait, longestWait);
    else if (const auto fresh = freshFor(reply->rawHeader("Cache-Control")))
        answer.wish = bounded(*fresh, longestFresh);
}

bool HttpRun::isRedirected() {
    return (answer.status == 301 || answer.status == 302 || answer.status == 303 || answer.status == 307 ||
            answer.status == 308) &&
           reply->attribute(QNetworkRequest::RedirectionTargetAttribute).isValid();
}

void HttpRun::redirect(const QUrl& to) {
    if (++redirects > limits.redirects)
        return fail(makeError<network_errors::redirectedTooOften>(request.address.host(), limits.redirects));
    if (const auto fault = redirectFault(address, to))
        return fail(*fault);
    // To the same name the user's word holds: what is at it is looked up anew.
    isTyped = isTyped && to.host() == request.address.host();
    address = to.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
    end(Pause::Redirected);
}

void HttpRun::fail(const Error& fault) {
    answer.fault = fault;
    answer.body.clear();
    end(Pause::Done);
}

void HttpRun::end(Pause pause) {
    if (lookup != 0)
        QHostInfo::abortHostLookup(std::exchange(lookup, 0));
    if (reply != nullptr) {
        reply->disconnect(this);
        reply->abort();
        std::exchange(reply, nullptr)->deleteLater();
    }
    answer.milliseconds = static_cast<int>(since.elapsed());
    if (pause == Pause::Done)
        deadline.stop();
    tell(pause);
}

}  // namespace wirepane
