// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

#include <QList>
#include <QNetworkReply>
#include <QSslError>

#include <optional>

namespace wirepane {

// Why a reply that has ended is no answer that counts, in words of ours; nothing: it is one. `host` is shown.
std::optional<Error> httpFault(const QNetworkReply& reply, const QList<QSslError>& tlsErrors,
                               const QString& host);

// Why no encrypted connection came about; `errors` may be empty.
Error tlsFault(const QList<QSslError>& errors, const QString& host);

// Nobody was reached at the address: another address of the same host may be tried.
bool isUnreached(QNetworkReply::NetworkError error);

}  // namespace wirepane
