// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/http_fetch.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QList>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslError>
#include <QTimer>

class QNetworkAccessManager;
class QNetworkProxy;

namespace wirepane {

// One request on its way, with its redirects.
class HttpRun : public QObject {
public:
    // Gives the manager whose connections this request may use.
    using Managers = std::function<QNetworkAccessManager&(const HttpRequest&, const QNetworkProxy&)>;
    // Why a run tells: it waits to go on at another address, its stream stands, or the answer is whole.
    enum class Pause { Redirected, Standing, Done };
    using Paused = std::function<void(Pause)>;

    HttpRun(HttpRequest request, const HttpLimits& limits, Managers managers, Paused paused);
    ~HttpRun() override;

    // The host that goOn() will ask.
    QString host() const { return address.host(); }
    void goOn();
    // When it is done.
    HttpAnswer takeAnswer();

    // Before goOn(): the answer is to be a stream.
    void follow(const HttpStream& followed) { stream = followed; }

private:
    void lookUp();
    void dialNext();
    void dial(const QUrl& dialled, const QNetworkProxy& proxy);
    QNetworkRequest requestTo(const QUrl& dialled) const;
    void readOn();
    void receive();
    void passOn();
    bool opens() const;
    void finish();
    void readHead();
    bool isRedirected();
    void redirect(const QUrl& to);
    void fail(const Error& fault);
    void end(Pause pause);

    HttpRequest request;
    HttpLimits limits;
    Managers managerFor;
    Paused tell;
    QUrl address;  // of the present hop
    bool isTyped;
    int redirects = 0;
    int lookup = 0;                 // that is under way; 0: none
    QList<QHostAddress> addresses;  // still to be tried
    QNetworkReply* reply = nullptr;
    std::optional<HttpStream> stream;
    bool stands = false;            // the stream does
    bool isWaitingForRoom = false;  // what has come of it does
    QList<QSslError> tlsErrors;
    qint64 received = 0;  // before decoding
    qint64 expected = -1;
    QTimer deadline;
    QElapsedTimer since;
    HttpAnswer answer;
};

}  // namespace wirepane
