// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace wirepane {

// Where a view's settings stand in the host's layout store.
struct ViewSettingPath {
    QString section;
    int first = 0;  // the host's two layout numbers
    int second = 0;
    QString viewKey;  // the class of the view, such as "TRVNewsCtrlView"
};

}  // namespace wirepane

// The host's store of per-view settings. A value is a boolean, an integer, a text or a list of texts.
// Interface thread only.
class WIREPANE_CONTRACT_EXPORT TRVCfgIO2 {
public:
    TRVCfgIO2() = default;
    TRVCfgIO2(const TRVCfgIO2&) = delete;
    TRVCfgIO2& operator=(const TRVCfgIO2&) = delete;
    virtual ~TRVCfgIO2();

    // Reads one setting. False, and `value` unchanged, when it is absent or is not of that kind (a number out
    // of the type's range included). Numbers and booleans may be stored as texts.
    bool GetViewInfo(const wirepane::ViewSettingPath& path, const QString& key, bool& value) const;
    bool GetViewInfo(const wirepane::ViewSettingPath& path, const QString& key, int& value) const;
    bool GetViewInfo(const wirepane::ViewSettingPath& path, const QString& key, unsigned short& value) const;
    bool GetViewInfo(const wirepane::ViewSettingPath& path, const QString& key, QString& value) const;
    bool GetViewInfo(const wirepane::ViewSettingPath& path, const QString& key, QStringList& value) const;

    // Writes one setting: a bool, an int, a QString or a QStringList.
    virtual void setViewInfo(const wirepane::ViewSettingPath& path, const QString& key,
                             const QVariant& value) = 0;

protected:
    // The stored value; an invalid variant when there is none.
    virtual QVariant storedValue(const wirepane::ViewSettingPath& path, const QString& key) const = 0;
};

namespace wirepane {

// Settings kept in memory: for scripts, tests and hosts that keep none. One view; the path is not looked at.
class WIREPANE_CONTRACT_EXPORT MemoryCfgIO : public TRVCfgIO2 {
public:
    QMap<QString, QVariant> values;

    void setViewInfo(const ViewSettingPath& path, const QString& key, const QVariant& value) override;

protected:
    QVariant storedValue(const ViewSettingPath& path, const QString& key) const override;
};

}  // namespace wirepane
