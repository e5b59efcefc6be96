// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

namespace wirepane {

// What of a source nobody else may see; kept with the secrets, under one name, as a text of one or two lines.
struct SourceSecret {
    QString authorisation;  // "user:password", a token, or the value of a header; one line
    QString parameters;     // of the address with their values, encoded: "token=abc&apikey=1"

    bool isEmpty() const { return authorisation.isEmpty() && parameters.isEmpty(); }
    QString text() const;
    static SourceSecret parse(const QString& text);

    bool operator==(const SourceSecret&) const = default;
};

struct SplitAddress {
    QUrl address;         // without user, password and fragment; of secret parameters the names are left
    SourceSecret secret;  // `authorisation`: the "user:password" of the address
};

// Takes what is secret out of an address: user and password, and the values of parameters that are called as
// keys, tokens, passwords and signatures are.
SplitAddress withoutSecrets(const QUrl& address);

// The address as it is asked for: with the values of these parameters.
QUrl withParameters(const QUrl& address, const QString& parameters);

// The address as people see it: secrets, if it holds any or did, are dots.
QString shownAddress(const QUrl& address);

}  // namespace wirepane
