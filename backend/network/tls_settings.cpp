// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/tls_settings.h"

#include <QFile>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>

namespace wirepane {

namespace {

QSslKey privateKey(const QByteArray& pem) {
    for (const QSsl::KeyAlgorithm algorithm : {QSsl::Rsa, QSsl::Ec}) {
        if (const QSslKey key(pem, algorithm); !key.isNull())
            return key;
    }
    return {};
}

QByteArray contentOf(const QString& path) {
    constexpr qint64 largest = qint64(1) << 20;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(largest) : QByteArray();
}

}  // namespace

QSslConfiguration tlsOf(const HttpRequest& request) {
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setProtocol(QSsl::TlsV1_2OrLater);
    tls.setPeerVerifyMode(QSslSocket::VerifyPeer);
    if (!request.authority.isEmpty())
        tls.setCaCertificates(QSslCertificate::fromData(contentOf(request.authority)));
    if (!request.certificate.isEmpty()) {
        tls.setLocalCertificateChain(QSslCertificate::fromData(contentOf(request.certificate)));
        tls.setPrivateKey(privateKey(contentOf(request.certificateKey)));
    }
    return tls;
}

}  // namespace wirepane
