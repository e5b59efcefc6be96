// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "output/page_font.h"

#include <gtest/gtest.h>

namespace wirepane {

TEST(PageFont, OnlyCharactersThatJoinAreShaped) {
    struct Case {
        const char* text;
        Shaping shaping;
    };
    const Case cases[] = {
        {"", Shaping::None},
        {"2330 office (1) 1/2", Shaping::None},
        {"台積電（2330）、アップル、Москва、한국", Shaping::None},
        {"野家 𠮷 😀", Shaping::None},
        {"Caf\u00e9", Shaping::None},
        {"Cafe\u0301", Shaping::Full},
        {"مرحبا", Shaping::Full},
        {"สวัสดี", Shaping::Full},
        {"\u1112\u1161\u11ab", Shaping::Full},
        {"👩\u200d👩", Shaping::Full},
    };
    for (const Case& c : cases)
        EXPECT_EQ(shapingFor(QString::fromUtf8(c.text)), c.shaping) << c.text;
}

}  // namespace wirepane
