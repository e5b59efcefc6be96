// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/cfg_io.h"

#include <limits>
#include <optional>

using namespace wirepane;

namespace {

std::optional<qlonglong> wholeNumber(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::UShort:
        case QMetaType::Double:  // numbers from JSON
        case QMetaType::QString:
            break;
        default:
            return std::nullopt;
    }
    bool ok = false;
    const qlonglong number = value.toLongLong(&ok);
    if (ok)
        return number;
    return std::nullopt;
}

template <class Number>
bool readNumber(const QVariant& stored, Number& value) {
    const auto number = wholeNumber(stored);
    if (!number || *number < std::numeric_limits<Number>::min() ||
        *number > std::numeric_limits<Number>::max())
        return false;
    value = static_cast<Number>(*number);
    return true;
}

}  // namespace

TRVCfgIO2::~TRVCfgIO2() = default;

bool TRVCfgIO2::GetViewInfo(const ViewSettingPath& path, const QString& key, bool& value) const {
    const QVariant stored = storedValue(path, key);
    if (stored.typeId() == QMetaType::QString) {
        const QString text = stored.toString().trimmed().toLower();
        if (text == QLatin1String("true") || text == QLatin1String("false")) {
            value = text == QLatin1String("true");
            return true;
        }
    }
    const auto number = wholeNumber(stored);
    if (!number)
        return false;
    value = *number != 0;
    return true;
}

bool TRVCfgIO2::GetViewInfo(const ViewSettingPath& path, const QString& key, int& value) const {
    return readNumber(storedValue(path, key), value);
}

bool TRVCfgIO2::GetViewInfo(const ViewSettingPath& path, const QString& key, unsigned short& value) const {
    return readNumber(storedValue(path, key), value);
}

bool TRVCfgIO2::GetViewInfo(const ViewSettingPath& path, const QString& key, QString& value) const {
    const QVariant stored = storedValue(path, key);
    if (!stored.isValid() || stored.typeId() == QMetaType::QStringList || !stored.canConvert<QString>())
        return false;
    value = stored.toString();
    return true;
}

bool TRVCfgIO2::GetViewInfo(const ViewSettingPath& path, const QString& key, QStringList& value) const {
    const QVariant stored = storedValue(path, key);
    if (stored.typeId() != QMetaType::QStringList)
        return false;
    value = stored.toStringList();
    return true;
}

namespace wirepane {

void MemoryCfgIO::setViewInfo(const ViewSettingPath&, const QString& key, const QVariant& value) {
    values[key] = value;
}

QVariant MemoryCfgIO::storedValue(const ViewSettingPath&, const QString& key) const {
    return values.value(key);
}

}  // namespace wirepane
