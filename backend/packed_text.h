// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstddef>
#include <optional>

namespace wirepane {

// A text that takes less room: one frame of zstd that says how large the text is and holds a checksum of it.

// The packed form of a text in UTF-8. Empty: the text is short, or does not become an eighth smaller. Any
// thread.
QByteArray packedText(QByteArrayView utf8);

// How many bytes the text has; nothing: this is no packed text, or of one that is larger than any that is
// packed.
std::optional<std::size_t> sizeOfUnpacked(QByteArrayView packed);
// Writes the text, which is `size` bytes; false: the packed text is damaged. Any thread.
bool unpackText(QByteArrayView packed, char* text, std::size_t size);

}  // namespace wirepane
