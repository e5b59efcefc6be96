// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "headline_list/title_chips.h"

#include <QString>

#include <array>

namespace wirepane {

namespace {

struct ChipWords {
    QStringView words;
    int labelFrom;
    int labelLength;
    bool urgent;
};

constexpr std::array chipTable{
    ChipWords{u"FLASH:", 0, 5, true},
    ChipWords{u"\u5FEB\u8A0A\uFF1A", 0, 2, true},
    ChipWords{u"\u5FEB\u8BAF\uFF1A", 0, 2, true},
    ChipWords{u"CORRECTED:", 0, 9, false},
    ChipWords{u"\uFF08\u66F4\u6B63\uFF09", 1, 2, false},
};

}  // namespace

SheetChip chipOfTitle(const QString& title) {
    for (const ChipWords& chip : chipTable) {
        if (!title.startsWith(chip.words))
            continue;
        qsizetype length = chip.words.size();
        while (length < title.size() && title[length].isSpace())
            ++length;
        if (length < title.size())
            return {static_cast<int>(length), chip.labelFrom, chip.labelLength, chip.urgent};
    }
    return {};
}

bool saysCorrected(const SheetChip& chip) {
    return chip.length > 0 && !chip.urgent;
}

}  // namespace wirepane
