// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/view_options.h"

#include "host/contract/cfg_io.h"

namespace wirepane {

namespace {

int readValue(const TRVCfgIO2& reader, const ViewSettingPath& path, const ViewOptionRow& row) {
    bool on = false;
    int number = 0;
    if (row.most == 1)
        return reader.GetViewInfo(path, QString(row.key), on) && on ? 1 : 0;
    const bool given = reader.GetViewInfo(path, QString(row.key), number);
    return given && number >= 0 && number <= row.most ? number : 0;
}

}  // namespace

ViewOptions ViewOptions::read(const TRVCfgIO2& reader, const ViewSettingPath& path) {
    ViewOptions options;
    for (const ViewOptionRow& row : viewOptionTable)
        options.readAgain(row.option, reader, path);
    return options;
}

void ViewOptions::readAgain(ViewOption option, const TRVCfgIO2& reader, const ViewSettingPath& path) {
    values.at(static_cast<std::size_t>(option)) = readValue(reader, path, rowOf(option));
}

void ViewOptions::writeMissing(TRVCfgIO2& store, const ViewSettingPath& path) {
    for (const ViewOptionRow& row : viewOptionTable) {
        bool given = false;  // numbers can be read as booleans, too
        if (!store.GetViewInfo(path, QString(row.key), given))
            store.setViewInfo(path, QString(row.key), row.most == 1 ? QVariant(true) : QVariant(row.own));
    }
}

}  // namespace wirepane
