// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QString>

namespace wirepane {

// Captions of buttons and tabs take '&' as the mark of a key. Names are data: these write one so that its '&'
// is shown, and read back what is shown: a mark alone is not.
WIREPANE_HOST_EXPORT QString captionOfName(QString name);
WIREPANE_HOST_EXPORT QString nameOfCaption(QString caption);
// The caption where it shall offer no key: without the mark ("&Print"), or what was added for it
// ("列印(&P)").
WIREPANE_HOST_EXPORT QString captionWithoutKey(QString caption);

}  // namespace wirepane
