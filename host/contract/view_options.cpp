// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/view_options.h"

#include "host/contract/cfg_io.h"

namespace wirepane {

ViewOptions ViewOptions::read(const TRVCfgIO2& reader, const ViewSettingPath& path) {
    ViewOptions options;
    for (const ViewOptionRow& row : viewOptionTable) {
        bool value = false;
        reader.GetViewInfo(path, QString(row.key), value);
        options.on.set(static_cast<std::size_t>(row.option), value);
    }
    return options;
}

void ViewOptions::writeMissing(TRVCfgIO2& store, const ViewSettingPath& path) {
    for (const ViewOptionRow& row : viewOptionTable) {
        bool value = false;
        if (!store.GetViewInfo(path, QString(row.key), value))
            store.setViewInfo(path, QString(row.key), true);
    }
}

}  // namespace wirepane
