// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace wirepane {

// What requests say that they take. Qt would decode more by itself, but does not tell a body that was cut off
// from a whole one then.
inline constexpr auto takenCodings = "gzip, deflate";

enum class Decoding { Whole, CutOff, TooLarge, Unknown };

// Decodes a body by the header Content-Encoding (none: it is left as it is) into at most so many bytes.
Decoding decodeBody(QByteArrayView coding, QByteArray& body, qint64 most);

}  // namespace wirepane
