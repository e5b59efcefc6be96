// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace wirepane {

// Traditional Chinese to Simplified Chinese. The dictionaries are loaded by the first conversion. One thread.
class SimplifiedChinese {
public:
    SimplifiedChinese() = default;
    ~SimplifiedChinese();
    SimplifiedChinese(const SimplifiedChinese&) = delete;
    SimplifiedChinese& operator=(const SimplifiedChinese&) = delete;

    // The text converted; unchanged where the dictionaries are not installed.
    QString convert(const QString& text);

private:
    std::optional<void*> converter;  // null: could not be loaded
};

}  // namespace wirepane
