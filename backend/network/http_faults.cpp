// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/http_faults.h"

#include "backend/network/network_errors.h"

#include <QDateTime>
#include <QSslCertificate>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QString shownMoment(const QDateTime& moment) {
    return moment.toLocalTime().toString(u"yyyy/MM/dd HH:mm"_s);
}

}  // namespace

Error tlsFault(const QList<QSslError>& errors, const QString& host) {
    for (const QSslError& error : errors) {
        switch (error.error()) {
            case QSslError::CertificateExpired:
                return makeError<network_errors::certificateExpired>(
                    host, shownMoment(error.certificate().expiryDate()));
            case QSslError::CertificateNotYetValid:
                return makeError<network_errors::certificateNotYetValid>(
                    host, shownMoment(error.certificate().effectiveDate()));
            case QSslError::HostNameMismatch:
                return makeError<network_errors::certificateOfOther>(
                    host, error.certificate().subjectDisplayName().left(100));
            default:
                break;
        }
    }
    return errors.isEmpty() ? makeError<network_errors::tlsFailed>(host)
                            : makeError<network_errors::certificateNotTrusted>(host);
}

namespace {

std::optional<Error> statusFault(int status, const QString& host) {
    switch (status) {
        case 401:
        case 407:
            return makeError<network_errors::notAuthorised>(host, status);
        case 403:
        case 451:
            return makeError<network_errors::forbidden>(host, status);
        case 404:
        case 410:
            return makeError<network_errors::notThere>(host, status);
        case 429:
            return makeError<network_errors::askedTooOften>(host);
        case 511:
            return makeError<network_errors::signInNeeded>(host);
        default:
            break;
    }
    if (status >= 500)
        return makeError<network_errors::serverFails>(host, status);
    const bool counts = status == 200 || status == 203 || status == 304;
    return counts ? std::nullopt : std::optional(makeError<network_errors::strangeStatus>(host, status));
}

}  // namespace

bool isUnreached(QNetworkReply::NetworkError error) {
    return error == QNetworkReply::ConnectionRefusedError || error == QNetworkReply::TimeoutError ||
           error == QNetworkReply::UnknownNetworkError || error == QNetworkReply::HostNotFoundError;
}

std::optional<Error> httpFault(const QNetworkReply& reply, const QList<QSslError>& tlsErrors,
                               const QString& host) {
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (const auto fault = status == 0 ? std::nullopt : statusFault(status, host))
        return fault;
    switch (reply.error()) {
        case QNetworkReply::NoError:
            return std::nullopt;
        case QNetworkReply::SslHandshakeFailedError:
            return tlsFault(tlsErrors, host);
        case QNetworkReply::ConnectionRefusedError:
            return makeError<network_errors::refused>(host);
        case QNetworkReply::OperationCanceledError:  // by the limit of quiet
        case QNetworkReply::TimeoutError:
            return makeError<network_errors::quiet>(host);
        case QNetworkReply::RemoteHostClosedError:
        case QNetworkReply::ProtocolFailure:
        case QNetworkReply::UnknownContentError:
            return makeError<network_errors::cutOff>(host);
        case QNetworkReply::ProxyConnectionRefusedError:
        case QNetworkReply::ProxyConnectionClosedError:
        case QNetworkReply::ProxyNotFoundError:
        case QNetworkReply::ProxyTimeoutError:
        case QNetworkReply::ProxyAuthenticationRequiredError:
        case QNetworkReply::UnknownProxyError:
            return makeError<network_errors::proxyFails>(host);
        default:
            return makeError<network_errors::notReached>(host);
    }
}

}  // namespace wirepane
