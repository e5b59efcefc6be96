// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/page_font.h"

#include "host/contract/pdf_characters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

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

// A blank that does not break shares its glyph with the common one, and stands first among them. Only lists
// of named characters within a map are corrected, and nothing moves.
TEST(PdfCharacters, AreCorrectedInTheListsOfTheirMaps) {
    const std::pair<const char*, const char*> cases[] = {
        {"begincmap <00> [<2F00> <0041> <2F00> ] endcmap", "begincmap <00> [<4E00> <0041> <4E00> ] endcmap"},
        {"begincmap [<2F00>] [[<2F00>] endcmap begincmap [<2F00>] endcmap",
         "begincmap [<4E00>] [[<4E00>] endcmap begincmap [<4E00>] endcmap"},
        {"begincmap [<<2F00> <2F00 <2F0> <2F00>] endcmap", "begincmap [<<4E00> <2F00 <2F0> <4E00>] endcmap"},
        {"[<2F00>] begincmap <2F00> endcmap [<2F00>]", nullptr},
        {"begincmap [<2F00> endcmap ]", nullptr},
        {"begincmap [<2F00>]", nullptr},
        {"begincmap [<2F00", nullptr},
    };
    for (const auto& [written, corrected] : cases) {
        QByteArray pdf(written);
        nameDrawnCharacters(pdf, u"A一"_s, QFont());
        EXPECT_EQ(pdf, QByteArray(corrected != nullptr ? corrected : written));
    }
}

}  // namespace wirepane
