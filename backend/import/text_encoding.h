// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringDecoder>

namespace wirepane {

// The decoder for what a source calls its encoding, read as the web reads these names: many who say
// "iso-8859-1" write windows-1252, which holds the same characters and more, and so with other names. Not
// valid for a name that is not known.
QStringDecoder decoderOf(const QByteArray& encoding);

// Whether the bytes start with the byte order mark of UTF-16.
bool isUtf16(const QByteArray& bytes);

// UTF-8 without the byte order mark that it may start with.
QByteArrayView withoutByteOrderMark(QByteArrayView text);

}  // namespace wirepane
