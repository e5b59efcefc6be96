// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QStringDecoder>
#include <QStringList>

#include <functional>
#include <optional>

namespace wirepane {

// A text that is longer than what should be in memory: gives the next piece of it with each call, and nothing
// at its end. No piece ends within a character.
using TextPieces = std::function<QString()>;

// The source is read from where it stands, and outlives this. What cannot be decoded becomes the replacement
// character.
TextPieces textPieces(QIODevice& source, QStringDecoder decoder);

// The decoder of what a source holds from where it stands: of UTF-8 or, failing that, code page 950, or of
// UTF-16 with a byte order mark; where encodings are named, of the first that fits. Nothing when none does.
// All of the source is read for it; it is random-access and stands where it did.
std::optional<QStringDecoder> textDecoder(QIODevice& source, const QStringList& encodings = {});

// Whether all that a source holds from where it stands is of the decoder's encoding; it stands there again. A
// last character that is cut off is forgiven.
bool isWellEncoded(QIODevice& source, QStringDecoder decoder);

}  // namespace wirepane
