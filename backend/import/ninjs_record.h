// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"

#include <QByteArrayView>

namespace wirepane {

// One ninjs record (any version from 1.0 to 3.1; UTF-8) as a piece of news of the given service. The error
// names the field that is missing or wrong.
Result<NewsItem> ninjsItem(QByteArrayView record, unsigned char service);

}  // namespace wirepane
