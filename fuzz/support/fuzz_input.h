// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

namespace wirepane {

// Ends the program, with the sentence, when a reader did not keep what it promises.
void promise(bool kept, const char* sentence);

// The bytes that a run was given, as the readers under test want them. What it hands out must not outlive the
// run.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* bytes, std::size_t size)
        : rest(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes), qsizetype(size))) {}

    bool isEmpty() const { return rest.isEmpty(); }
    // The next byte; 0 at the end.
    unsigned char byte();
    // What is left, in a piece of memory of its own, so that reading beyond it is seen.
    QByteArray bytes() const { return QByteArray(rest.constData(), rest.size()); }
    // What is left as a text: UTF-16 code units just as they are (lone surrogates included) behind the letter
    // "w", UTF-8 behind any other character, which is not part of the text.
    QString text();
    // The next line, without its end.
    QByteArray line();

private:
    QByteArray rest;
};

}  // namespace wirepane
