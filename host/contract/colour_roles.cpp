// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/colour_roles.h"

#include "host/contract/sync_info.h"

namespace wirepane {

QColor roleColour(ColourRole role, const QColor& fallback) {
    const QString name(colourRoleNames.at(static_cast<std::size_t>(role)));
    const QColor colour = CSyncInfo::GetSettingCFG()->SYS_crGetOtherColor(name);
    return colour.isValid() ? colour : fallback;
}

}  // namespace wirepane
