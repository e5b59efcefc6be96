// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/address_guard.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

using Subnet = std::pair<QHostAddress, int>;

// Beside those that are of no use at all (see isNobody).
const std::array closed{
    u"10.0.0.0/8"_s,     u"100.64.0.0/10"_s, u"127.0.0.0/8"_s,     u"169.254.0.0/16"_s,
    u"172.16.0.0/12"_s,  u"192.0.0.0/24"_s,  u"192.0.2.0/24"_s,    u"192.88.99.0/24"_s,
    u"192.168.0.0/16"_s, u"198.18.0.0/15"_s, u"198.51.100.0/24"_s, u"203.0.113.0/24"_s,
};
// Of IPv6 only this part has been given out; in it, these are none of the public network.
const QString open6 = u"2000::/3"_s;
const std::array closed6{u"2001::/23"_s, u"2001:db8::/32"_s, u"3fff::/20"_s};

bool isIn(const QHostAddress& address, const QString& subnet) {
    return address.isInSubnet(QHostAddress::parseSubnet(subnet));
}

// The address of IPv4 in one of IPv6: mapped, compatible, translated (64:ff9b::/96) or of 6to4 (2002::/16).
std::optional<QHostAddress> carried(const QHostAddress& address) {
    const Q_IPV6ADDR bytes = address.toIPv6Address();
    const auto at = [&bytes](int first) {
        return QHostAddress(quint32(bytes[first]) << 24 | quint32(bytes[first + 1]) << 16 |
                            quint32(bytes[first + 2]) << 8 | quint32(bytes[first + 3]));
    };
    for (const QString& prefix : {u"::/96"_s, u"::ffff:0:0/96"_s, u"::ffff:0:0:0/96"_s, u"64:ff9b::/96"_s}) {
        if (isIn(address, prefix))
            return at(12);
    }
    return isIn(address, u"2002::/16"_s) ? std::optional(at(2)) : std::nullopt;
}

// Qt takes a mapped address for one of its subnet of IPv4: it is told apart here by its form.
bool isOf4(const QHostAddress& address) {
    return address.protocol() == QAbstractSocket::IPv4Protocol;
}

bool isNobody(const QHostAddress& address) {
    if (const auto inner = isOf4(address) ? std::nullopt : carried(address))
        return inner->toIPv4Address() != 1 && isNobody(*inner);  // ::1 is the loopback
    return isOf4(address) ? isIn(address, u"0.0.0.0/8"_s) || isIn(address, u"224.0.0.0/3"_s)
                          : isIn(address, u"ff00::/8"_s) || address.isNull();
}

bool isInAny(const QHostAddress& address, const auto& subnets) {
    return std::any_of(subnets.begin(), subnets.end(),
                       [&](const QString& subnet) { return isIn(address, subnet); });
}

}  // namespace

bool isPublicAddress(const QHostAddress& address) {
    if (isOf4(address))
        return !isNobody(address) && !isInAny(address, closed);
    if (const auto inner = carried(address))
        return isPublicAddress(*inner);
    return isIn(address, open6) && !isInAny(address, closed6);
}

QList<QHostAddress> allowedAddresses(const QList<QHostAddress>& addresses, bool isTyped) {
    QList<QHostAddress> allowed;
    std::copy_if(addresses.begin(), addresses.end(), std::back_inserter(allowed),
                 [isTyped](const QHostAddress& address) {
                     return isTyped ? !isNobody(address) : isPublicAddress(address);
                 });
    return allowed;
}

}  // namespace wirepane
