// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace wirepane {

// Text as bytes of code page 950.
struct PageBytes {
    QByteArray bytes;
    int replaced = 0;  // characters that the page lacks: each became the page's white square, two bytes
};

// Nothing where this system has no converter for the page. Thread: any.
std::optional<PageBytes> encodeCodePage950(QStringView text);

}  // namespace wirepane
