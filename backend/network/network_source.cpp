// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/network_source.h"

#include "backend/network/network_errors.h"

#include <QJsonValue>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// The names of the values of the enumerations, in their order.
constexpr std::array kinds{"auto"_L1,  "feed"_L1,   "ninjs"_L1,    "newsml"_L1,
                           "table"_L1, "events"_L1, "websocket"_L1};
constexpr std::array authorisations{"none"_L1, "basic"_L1, "bearer"_L1, "header"_L1};
constexpr std::array categoryRules{"own"_L1, "otherwise"_L1, "always"_L1};

const auto& namesOf(NetworkKind) {
    return kinds;
}
const auto& namesOf(Authorisation) {
    return authorisations;
}
const auto& namesOf(CategoryRule) {
    return categoryRules;
}

// Calls `field` with the name and the place of each field.
template <class Source, class Field>
void eachField(Source& source, const Field& field) {
    field(u"name"_s, source.name);
    field(u"title"_s, source.title);
    field(u"address"_s, source.address);
    field(u"kind"_s, source.kind);
    field(u"mapping"_s, source.mapping);
    field(u"service"_s, source.service);
    field(u"categoryRule"_s, source.categoryRule);
    field(u"category"_s, source.category);
    field(u"market"_s, source.market);
    field(u"language"_s, source.language);
    field(u"interval"_s, source.interval);
    field(u"greatestAge"_s, source.greatestAge);
    field(u"authorisation"_s, source.authorisation);
    field(u"field"_s, source.field);
    field(u"secret"_s, source.secret);
    field(u"authority"_s, source.authority);
    field(u"certificate"_s, source.certificate);
    field(u"certificateKey"_s, source.certificateKey);
    field(u"typed"_s, source.isTyped);
    field(u"paused"_s, source.isPaused);
}

template <class Value>
QJsonValue jsonOf(const Value& value) {
    if constexpr (std::is_enum_v<Value>)
        return QString(namesOf(value).at(static_cast<std::size_t>(value)));
    else if constexpr (std::is_same_v<Value, QUrl>)
        return value.toString(QUrl::FullyEncoded);
    else
        return value;
}

// False: the JSON is no such value.
template <class Value>
bool read(const QJsonValue& json, Value& value) {
    if constexpr (std::is_enum_v<Value>) {
        const auto& names = namesOf(value);
        const auto found = std::find(names.begin(), names.end(), json.toString());
        value = static_cast<Value>(found - names.begin());
        return found != names.end();
    } else if constexpr (std::is_same_v<Value, QUrl>) {
        value = QUrl(json.toString(), QUrl::StrictMode);
        return json.isString() && value.isValid();
    } else if constexpr (std::is_same_v<Value, QString>) {
        value = json.toString();
        return json.isString();
    } else if constexpr (std::is_same_v<Value, bool>) {
        value = json.toBool();
        return json.isBool();
    } else {
        const double number = json.toDouble(-1);
        constexpr double most = std::numeric_limits<Value>::max();
        if (number < 0 || number > most || std::trunc(number) != number)
            return false;
        value = static_cast<Value>(number);
        return true;
    }
}

// What stands in the head of a request must not end its line.
bool isOf(const QString& text, QStringView marks) {
    return std::all_of(text.begin(), text.end(), [marks](QChar c) {
        return (c.unicode() < 0x80 && c.isLetterOrNumber()) || marks.contains(c);
    });
}

bool isInRange(int value, int least, int most) {
    return value == 0 || (value >= least && value <= most);
}

}  // namespace

QJsonObject toJson(const NetworkSource& source) {
    QJsonObject json;
    const QJsonObject usual = source == NetworkSource() ? QJsonObject() : toJson(NetworkSource());
    eachField(source, [&](const QString& name, const auto& value) {
        const QJsonValue written = jsonOf(value);
        if (usual.isEmpty() || usual.value(name) != written)
            json.insert(name, written);
    });
    return json;
}

Result<NetworkSource> networkSource(const QJsonObject& json) {
    NetworkSource source;
    std::optional<Error> fault;
    eachField(source, [&](const QString& name, auto& value) {
        const QJsonValue written = json.value(name);
        if (!fault && !written.isUndefined() && !read(written, value))
            fault = makeError<network_errors::fieldWrong>(name, written.toVariant().toString());
    });
    if (fault)
        return *fault;
    if (const Done sound = checkedSource(source); !sound)
        return sound.error();
    return source;
}

bool isStream(NetworkKind kind) {
    return kind == NetworkKind::EventStream || kind == NetworkKind::WebSocket;
}

bool isStream(const NetworkSource& source) {
    return isStream(source.kind) || isWebSocket(source);
}

bool isWebSocket(const NetworkSource& source) {
    return source.kind == NetworkKind::WebSocket || source.address.scheme().startsWith("ws"_L1);
}

Done checkedSource(const NetworkSource& source) {
    static constexpr std::array schemes{"http"_L1, "https"_L1, "ws"_L1, "wss"_L1, "file"_L1};
    const QString scheme = source.address.scheme();
    const bool isFile = scheme == "file"_L1;
    if (!source.address.isValid() || std::find(schemes.begin(), schemes.end(), scheme) == schemes.end() ||
        (source.address.host().isEmpty() != isFile))
        return makeError<network_errors::noAddress>(
            source.address.toString(QUrl::RemoveUserInfo | QUrl::RemoveQuery));
    if (!source.address.userInfo().isEmpty())
        return makeError<network_errors::secretInAddress>();
    if (isFile && !source.isTyped)
        return makeError<network_errors::fileNotTyped>();
    if (isFile && isStream(source))
        return makeError<network_errors::fieldWrong>(u"kind"_s, toJson(source).value("kind"_L1).toString());
    if (!isInRange(source.interval, shortestInterval, longestInterval))
        return makeError<network_errors::fieldWrong>(u"interval"_s, source.interval);
    if (!isInRange(source.greatestAge, 1, longestGreatestAge))
        return makeError<network_errors::fieldWrong>(u"greatestAge"_s, source.greatestAge);
    if (!isOf(source.language, u"-,;=.* "))
        return makeError<network_errors::fieldWrong>(u"language"_s, source.language);
    if (!isOf(source.field, u"-_"))
        return makeError<network_errors::fieldWrong>(u"field"_s, source.field);
    if ((source.authorisation != Authorisation::None && source.secret.isEmpty()) ||
        (source.authorisation == Authorisation::Header && source.field.isEmpty()))
        return makeError<network_errors::authorisationIncomplete>();
    return Nothing{};
}

}  // namespace wirepane
