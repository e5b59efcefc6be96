// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/address_secrets.h"

#include <QLatin1StringView>
#include <QUrlQuery>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

using Items = QList<std::pair<QString, QString>>;

const QString dots(4, QChar(0x2022));

bool isSecret(QString parameter) {
    // Names in small letters, without "-", "_" and ".".
    constexpr std::array names{"key"_L1, "auth"_L1, "pass"_L1,    "passwd"_L1, "pwd"_L1,
                               "sig"_L1, "sid"_L1,  "session"_L1, "jwt"_L1};
    constexpr std::array endings{"token"_L1,     "apikey"_L1,    "accesskey"_L1, "authkey"_L1,
                                 "secret"_L1,    "password"_L1,  "signature"_L1, "subscriptionkey"_L1,
                                 "sessionid"_L1, "credential"_L1};
    parameter = parameter.toLower();
    parameter.removeIf([](QChar c) { return c == u'-' || c == u'_' || c == u'.'; });
    return std::find(names.begin(), names.end(), parameter) != names.end() ||
           std::any_of(endings.begin(), endings.end(),
                       [&](QLatin1StringView ending) { return parameter.endsWith(ending); });
}

Items itemsOf(const QUrlQuery& query) {
    return query.queryItems(QUrl::FullyEncoded);
}

QUrl withItems(QUrl address, const Items& items) {
    QUrlQuery query;
    query.setQueryItems(items);
    address.setQuery(items.isEmpty() ? QString() : query.query(QUrl::FullyEncoded), QUrl::StrictMode);
    return address;
}

}  // namespace

QString SourceSecret::text() const {
    return parameters.isEmpty() ? authorisation : authorisation + u'\n' + parameters;
}

SourceSecret SourceSecret::parse(const QString& text) {
    return {text.section(u'\n', 0, 0), text.section(u'\n', 1, 1)};
}

SplitAddress withoutSecrets(const QUrl& address) {
    SplitAddress split;
    if (!address.userInfo().isEmpty())
        split.secret.authorisation =
            address.userName(QUrl::FullyDecoded) + u':' + address.password(QUrl::FullyDecoded);
    split.address = address.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
    Items items = itemsOf(QUrlQuery(address));
    Items secret;
    for (auto& [name, value] : items) {
        if (isSecret(name) && !value.isEmpty())
            secret.append({name, std::exchange(value, u""_s)});  // no null: its "=" stays
    }
    if (secret.isEmpty())
        return split;
    split.address = withItems(split.address, items);
    QUrlQuery parameters;
    parameters.setQueryItems(secret);
    split.secret.parameters = parameters.query(QUrl::FullyEncoded);
    return split;
}

QUrl withParameters(const QUrl& address, const QString& parameters) {
    if (parameters.isEmpty())
        return address;
    Items given = itemsOf(QUrlQuery(parameters));
    Items items = itemsOf(QUrlQuery(address));
    for (auto& [name, value] : items) {
        const auto same = std::find_if(given.begin(), given.end(),
                                       [&name = name](const auto& item) { return item.first == name; });
        if (same == given.end() || !value.isEmpty())
            continue;
        value = same->second;
        given.erase(same);
    }
    return withItems(address, items);
}

QString shownAddress(const QUrl& address) {
    QString shown = address.toDisplayString(QUrl::RemoveUserInfo | QUrl::RemoveFragment | QUrl::RemoveQuery);
    if (!address.userInfo().isEmpty())
        shown.insert(shown.indexOf("//"_L1) + 2, dots + u'@');
    QStringList items;
    for (const auto& [name, value] : QUrlQuery(address).queryItems())
        items += isSecret(name) ? name + u'=' + dots : value.isEmpty() ? name : name + u'=' + value;
    return items.isEmpty() ? shown : shown + u'?' + items.join(u'&');
}

}  // namespace wirepane
