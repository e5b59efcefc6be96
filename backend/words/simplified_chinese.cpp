// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/words/simplified_chinese.h"

#include <cstdint>
#include <opencc.h>

namespace wirepane {

namespace {

void* load() {
    opencc_t opened = opencc_open("t2s.json");
    // The library reports a failure as the address -1.
    return reinterpret_cast<std::intptr_t>(opened) == -1 ? nullptr : opened;
}

}  // namespace

SimplifiedChinese::~SimplifiedChinese() {
    if (converter.value_or(nullptr) != nullptr)
        opencc_close(*converter);
}

QString SimplifiedChinese::convert(const QString& text) {
    if (!converter)
        converter = load();
    if (*converter == nullptr || text.isEmpty())
        return text;
    const QByteArray bytes = text.toUtf8();
    char* const converted =
        opencc_convert_utf8(*converter, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (converted == nullptr)
        return text;
    const QString result = QString::fromUtf8(converted);
    opencc_convert_utf8_free(converted);
    return result;
}

}  // namespace wirepane
