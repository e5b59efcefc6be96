// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/http_fetch.h"

#include <QSslError>
#include <QTimer>
#include <QWebSocket>

namespace wirepane {

// A web socket whose text messages are news. The library dials by name and looks the name up itself, so the
// address that it is connected with is checked, too, before anything of it is read; where the user has not
// typed the address, nobody is dialled who cannot show the certificate of that name first. Redirects are not
// followed. Ends for good when the connection does.
class WebSocketRun : public QObject {
public:
    // Dials at once, from the event loop.
    WebSocketRun(const HttpRequest& request, const HttpLimits& limits, const HttpStream& stream,
                 const HttpClient::Answered& answered);
    ~WebSocketRun() override;

private:
    void lookUp();
    void dial();
    void open();
    void take(const QString& text);
    void meetError();
    void beQuiet();
    void end(const std::optional<Error>& fault);

    HttpRequest request;
    HttpLimits limits;
    HttpStream stream;
    HttpClient::Answered answered;
    int lookup = 0;  // that is under way; 0: none
    bool stands = false;
    bool hasEnded = false;
    QList<QSslError> tlsErrors;
    QTimer quietness;
    QTimer beating;
    QWebSocket socket;
};

}  // namespace wirepane
