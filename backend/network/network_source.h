// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QJsonObject>
#include <QString>
#include <QUrl>

#include <cstdint>

namespace wirepane {

// What comes from a source's address, and how.
enum class NetworkKind {
    Auto,         // asked for again and again; the format is recognised by its content
    Feed,         // RSS or Atom
    Ninjs,        // one record, a list, or lines
    Newsml,       // NewsML-G2
    Table,        // a table of news (CSV or JSON), by the mapping
    EventStream,  // server-sent events; the data of each are records of ninjs
    WebSocket,    // each message is lines of ninjs
};

// How a request shows that the user may have the answer: by the authorisation in its secret (SourceSecret).
// Parameters of the address that stand in the secret are put back into it in any case.
enum class Authorisation {
    None,
    Basic,   // "name:password"
    Bearer,  // the token
    Header,  // the value of the header `field`
};

// Which category news of a source gets.
enum class CategoryRule {
    Own,        // that which the item names
    Otherwise,  // `category`, where the item names none
    Always,     // `category`
};

// A source of news somewhere in the network, as the user has defined it. It holds no secret.
struct NetworkSource {
    QString name;  // given by the list, unique, the same for good: under it its position is kept
    QString title;
    QUrl address;  // http, https, ws, wss or file; without user, password and other secrets
    NetworkKind kind = NetworkKind::Auto;
    QString mapping;            // of a table: the path of a mapping file, or the name of a built-in one
    unsigned char service = 1;  // that its news belongs to, or ownService
    CategoryRule categoryRule = CategoryRule::Own;
    QString category;
    unsigned char market = 0;  // of symbols whose list does not name one; 0: see docs/formats.md
    QString language;          // that is asked for ("zh-TW"); empty: any
    int interval = 0;          // seconds between requests, shortestInterval at least; 0: adapts
    int greatestAge = 30;      // days; older news is not taken; 0: any age
    Authorisation authorisation = Authorisation::None;
    QString field;      // of Header: its name
    QString secret;     // the name of the secret in the SecretStore; empty: there is none
    QString authority;  // path of the certificate (PEM) of the authority that is trusted; empty: the system's
    QString certificate;     // path of the client's certificate (PEM); empty: none is shown
    QString certificateKey;  // path of its key (PEM)
    bool isTyped = false;    // the user typed the address: it may be of a private network, or of a file
    bool isPaused = false;

    bool operator==(const NetworkSource&) const = default;
};

// A service of its own, which the list of sources gives it when it is to be read.
inline constexpr unsigned char ownService = 0;

inline constexpr int shortestInterval = 15;      // seconds
inline constexpr int longestInterval = 86400;    // seconds
inline constexpr int longestGreatestAge = 3660;  // days

// As a JSON object, in which what is as usual is left out, and back. Fails where a field is not what it must
// be (network_errors.h), or the definition is not sound. Fields that are not known are passed over.
QJsonObject toJson(const NetworkSource& source);
Result<NetworkSource> networkSource(const QJsonObject& json);

// Whether its news comes by itself, over one connection, instead of being asked for.
bool isStream(NetworkKind kind);
// The same of a source whose address may say it, too.
bool isStream(const NetworkSource& source);

// Of a stream: of web sockets, not of events.
bool isWebSocket(const NetworkSource& source);

// What `secret` says while there is a secret that has no name yet, since it is not kept.
inline constexpr QLatin1StringView secretToKeep("typed");

// Why this definition cannot be used: an address that is none, of no known scheme or with a secret in it, a
// number out of range, an authorisation without what it needs. The name is not looked at.
Done checkedSource(const NetworkSource& source);

}  // namespace wirepane
