// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/cfg_io.h"

#include <QJsonValue>

namespace wirepane {
class SettingsFile;

// A stored setting as JSON and back: a boolean, a number, a text or a list of texts. An invalid variant
// stands for anything else.
QJsonValue settingToJson(const QVariant& value);
QVariant settingFromJson(const QJsonValue& value);

// The views' settings in the settings file, one group per view.
class LayoutStore : public TRVCfgIO2 {
public:
    // `file` is not owned and must outlive the store and the views that read it.
    explicit LayoutStore(SettingsFile& file);

    // Drops all settings of the views of a place: the second of the two layout numbers, the first being 0.
    void forget(const QString& section, int place);

    void setViewInfo(const ViewSettingPath& path, const QString& key, const QVariant& value) override;

protected:
    QVariant storedValue(const ViewSettingPath& path, const QString& key) const override;

private:
    SettingsFile& file;
};

}  // namespace wirepane
