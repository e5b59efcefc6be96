// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/source_request.h"

namespace wirepane {

HttpRequest requestOf(const NetworkSource& source, const SourceSecret& secret) {
    HttpRequest request;
    request.address = withParameters(source.address, secret.parameters);
    request.isTyped = source.isTyped;
    if (!source.language.isEmpty())
        request.headers.emplace_back("Accept-Language", source.language.toLatin1());
    const QByteArray shown = secret.authorisation.toUtf8();
    switch (source.authorisation) {
        case Authorisation::None:
            break;
        case Authorisation::Basic:
            request.secretHeaders.emplace_back("Authorization", "Basic " + shown.toBase64());
            break;
        case Authorisation::Bearer:
            request.secretHeaders.emplace_back("Authorization", "Bearer " + shown);
            break;
        case Authorisation::Header:
            request.secretHeaders.emplace_back(source.field.toLatin1(), shown);
            break;
    }
    request.authority = source.authority;
    request.certificate = source.certificate;
    request.certificateKey = source.certificateKey;
    return request;
}

}  // namespace wirepane
