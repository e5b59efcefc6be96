// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/http_fetch.h"

#include <QSslConfiguration>

namespace wirepane {

// How a request's TLS is to be: verified always, by the authority and with the certificate that it names.
QSslConfiguration tlsOf(const HttpRequest& request);

}  // namespace wirepane
