// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/source_head.h"

#include <QJsonObject>

#include <vector>

namespace wirepane {

// How a JSON source holds its records.
enum class JsonShape {
    None,  // it is not JSON of objects
    Lines,
    List,
    Document,  // one record over several lines
};

JsonShape jsonShape(const SourceHead& head);

// The records that stand whole and sound in the head, in their order.
std::vector<QJsonObject> recordsInHead(const SourceHead& head);

}  // namespace wirepane
