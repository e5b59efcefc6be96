// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace wirepane {

enum class SourceFormat { JsonLines, JsonList, JsonDocument, Feed, Newsml, Table };

// How many of a source's first bytes are enough to recognise it.
constexpr qint64 recognisedFrom = 65536;

// The format of a source by its first bytes. The error says what it looks like instead.
Result<SourceFormat> recognisedFormat(const QByteArray& head);

// The text of bytes that are UTF-8 or, failing that, code page 950, or UTF-16 with a byte order mark; nothing
// when they are none of these.
std::optional<QString> decodedText(const QByteArray& bytes);

// Whether the bytes start with the byte order mark of UTF-16.
bool isUtf16(const QByteArray& bytes);

}  // namespace wirepane
