// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

#include <QJsonValue>

namespace wirepane {

// What an error says in the language in force.
QString shownText(const Error& error);

// errorValue() on a line of its own, and what stands in such a line; what is no value of an error is a text
// as it is.
QString valueLine(const Error& error);
QJsonValue valueFrom(const QString& line);
QString shownText(const QJsonValue& value);

}  // namespace wirepane
