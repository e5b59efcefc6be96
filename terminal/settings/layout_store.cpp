// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/layout_store.h"

#include "terminal/settings/settings_file.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// The length of the section keeps any two paths apart.
QString groupOf(const ViewSettingPath& path) {
    return u"view.%1.%2.%3.%4.%5"_s.arg(path.first)
        .arg(path.second)
        .arg(path.section.size())
        .arg(path.section, path.viewKey);
}

}  // namespace

QJsonValue settingToJson(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::Bool:
            return value.toBool();
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::UShort:
        case QMetaType::Double:
            return value.toDouble();
        case QMetaType::QStringList:
            return QJsonArray::fromStringList(value.toStringList());
        case QMetaType::QString:
            return value.toString();
        default:
            return QJsonValue::Undefined;
    }
}

QVariant settingFromJson(const QJsonValue& value) {
    if (value.isBool())
        return value.toBool();
    if (value.isString())
        return value.toString();
    if (value.isDouble()) {
        const double number = value.toDouble();
        const bool isInt =
            number == std::trunc(number) && std::abs(number) <= std::numeric_limits<int>::max();
        return isInt ? QVariant(static_cast<int>(number)) : QVariant(number);
    }
    if (!value.isArray())
        return {};
    const QJsonArray array = value.toArray();
    if (!std::all_of(array.begin(), array.end(), [](const QJsonValue& item) { return item.isString(); }))
        return {};
    QStringList texts;
    for (const auto& item : array)
        texts.append(item.toString());
    return texts;
}

void LayoutStore::forget(const QString& section, int place) {
    file.removeGroups(groupOf({section, 0, place, {}}));
}

LayoutStore::LayoutStore(SettingsFile& settingsFile) : file(settingsFile) {}

void LayoutStore::setViewInfo(const ViewSettingPath& path, const QString& key, const QVariant& value) {
    file.setValue(groupOf(path), key, settingToJson(value));
}

QVariant LayoutStore::storedValue(const ViewSettingPath& path, const QString& key) const {
    return settingFromJson(file.value(groupOf(path), key));
}

}  // namespace wirepane
