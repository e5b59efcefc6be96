// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/store/embedded_back_end.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace wirepane {

namespace {

std::string codesOf(const std::vector<SymbolItem>& symbols) {
    std::string codes;
    for (const SymbolItem& symbol : symbols)
        codes += (codes.empty() ? "" : " ") + symbol.code.toStdString();
    return codes;
}

class SymbolTableTest : public testing::Test {
protected:
    void SetUp() override {
        auto opened = EmbeddedBackEnd::open(folder.filePath(QStringLiteral("news.db")));
        ASSERT_TRUE(opened) << sentence(opened.error()).toStdString();
        backEnd = std::move(opened.value());
        put(16, "2330", "Aster Chips");
        put(16, "2331", "台灣水泥 ABC");
        put(16, "1101", "Harbour 2330 Holdings");
        put(22, "00700", "灣翹證券", "Kiu Wan Securities");
        put(122, "23", "Young Board");
        put(1, "NA", "Nano Labs");
    }
    void put(unsigned char market, const char* code, const char* name, const char* english = "",
             int category = 1) {
        ASSERT_TRUE(backEnd->takeIn(SymbolItem{market, QString::fromUtf8(code), QString::fromUtf8(name),
                                               category, QString::fromUtf8(english)}));
    }

    QTemporaryDir folder;
    std::unique_ptr<EmbeddedBackEnd> backEnd;
};

}  // namespace

TEST_F(SymbolTableTest, FindsByCodeAndName) {
    struct Case {
        const char* text;
        std::size_t limit;
        const char* codes;
    };
    const Case cases[] = {
        {"23", 9, "23 2330 2331 1101"},  // the exact code, codes that begin so, names that hold it
        {"2330", 9, "2330 1101"},
        {"２３３０", 9, "2330 1101"},
        {"aster", 9, "2330"},
        {"ＡＢＣ", 9, "2331"},
        {"水泥", 9, "2331"},
        {"台湾", 9, "2331"},  // typed in simplified characters
        {"wan sec", 9, "00700"},
        {"湾翘", 9, "00700"},
        {"na", 9, "NA"},
        {"330", 9, "1101"},
        {"", 9, ""},
        {"  ", 9, ""},
        {"%", 9, ""},
        {"23", 2, "23 2330"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(codesOf(backEnd->symbols().search(QString::fromUtf8(c.text), c.limit)), c.codes) << c.text;
}

TEST_F(SymbolTableTest, OffersTheCompanyFirstHoweverItIsWritten) {
    put(16, "7001", "灣翹證券購01");
    put(16, "1700", "大灣翹證券");
    put(16, "0070", "Kiu Wan");
    put(22, "BRK.B", "Berk");
    const struct {
        const char* text;
        const char* codes;
    } cases[] = {
        {"700", "00700 7001"},  // not 1700
        {"0700", "00700"},
        {"00700.HK", "00700"},
        {"700.hk", "00700"},
        {"22:700", "00700"},
        {"16:700", ""},
        {"００７００", "00700"},
        {"灣翹證券", "00700 7001 1700"},
        {"湾翘证券", "00700 7001 1700"},
        {"kiu wan", "0070 00700"},
        {"KIU WAN SECURITIES", "00700"},
        {"70", "0070 7001"},
        {"brk.b", "BRK.B"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(codesOf(backEnd->symbols().search(QString::fromUtf8(c.text), 9)), c.codes) << c.text;
}

TEST_F(SymbolTableTest, AnswersWhatViewsAsk) {
    std::vector<unsigned char> services;
    EXPECT_TRUE(backEnd->bGetAllServiceID(services));
    EXPECT_EQ(services, (std::vector<unsigned char>{1, 16, 22, 122}));
    std::vector<QString> codes;
    std::vector<QString> names;
    EXPECT_TRUE(backEnd->bGetSymbolID(16, codes, names));
    EXPECT_EQ(codes,
              (std::vector<QString>{QStringLiteral("1101"), QStringLiteral("2330"), QStringLiteral("2331")}));
    EXPECT_EQ(names.at(1), QStringLiteral("Aster Chips"));
    EXPECT_FALSE(backEnd->bGetSymbolID(99, codes, names));
    EXPECT_TRUE(codes.empty() && names.empty());
    EXPECT_EQ(backEnd->bIsSymbolIDExist(16, QStringLiteral("2330")), 1);
    EXPECT_EQ(backEnd->bIsSymbolIDExist(122, QStringLiteral("2330")), 0);

    put(16, "2330", "Aster Chips renamed", "", 7);
    int category = 0;
    EXPECT_TRUE(backEnd->bGetCategorybySymbolID(category, 16, QStringLiteral("2330")));
    EXPECT_EQ(category, 7);
    EXPECT_FALSE(backEnd->bGetCategorybySymbolID(category, 16, QStringLiteral("none")));

    unsigned char delayed = 0;
    EXPECT_FALSE(backEnd->bGetServiceID2Delay(22, delayed));
    put(23, "00700", "Harbour Holdings");
    EXPECT_TRUE(backEnd->bGetServiceID2Delay(22, delayed));
    EXPECT_EQ(delayed, 23);
    EXPECT_FALSE(backEnd->bGetServiceID2Delay(16, delayed));
    EXPECT_EQ(backEnd->bIsFromTheSameAuthServiceID(23, 22), 1);
    EXPECT_EQ(backEnd->bIsFromTheSameAuthServiceID(16, 22), 0);
}

TEST_F(SymbolTableTest, SymbolsGoByTheirEnglishNamesWhereTheseArePreferred) {
    struct Told : NewsReceiver {
        void vDoSymbolUpdate(const std::vector<CSymbolUpdateInfo>& updates) override {
            for (const CSymbolUpdateInfo& update : updates)
                codes += update.code;
        }
        QStringList codes;
    } told;
    const auto nameOf = [this] {
        QString name;
        backEnd->bGetItemDataByItemNo(name, 22, QStringLiteral("00700"), symbol_items::name);
        return name.toStdString();
    };
    EXPECT_EQ(nameOf(), "灣翹證券");
    backEnd->attach(&told);
    backEnd->setPrefersEnglishNames(true);
    backEnd->setPrefersEnglishNames(true);
    EXPECT_EQ(told.codes, QStringList(QStringLiteral("00700"))) << "once, and of no symbol with one name";
    EXPECT_EQ(nameOf(), "Kiu Wan Securities");
    put(22, "00700", "灣翹控股");
    EXPECT_EQ(nameOf(), "Kiu Wan Securities") << "a source that knows no English name takes none away";
    put(22, "00700", "灣翹控股", "Kiu Wan Holdings");
    EXPECT_EQ(nameOf(), "Kiu Wan Holdings");

    backEnd->setPrefersEnglishNames(false);
    told.codes.clear();
    backEnd->setConvertsToSimplified(true);
    backEnd->setConvertsToSimplified(true);
    EXPECT_EQ(told.codes.count(QStringLiteral("00700")), 1);
    EXPECT_EQ(nameOf(), "湾翘控股");
    put(22, "00700", "灣翹證券");
    EXPECT_EQ(nameOf(), "湾翘证券") << "no name of before";
    backEnd->setConvertsToSimplified(false);
    EXPECT_EQ(nameOf(), "灣翹證券");
    backEnd->detach(&told);
}

TEST_F(SymbolTableTest, SeesWhatAnotherProgramAdds) {
    EXPECT_EQ(backEnd->bIsSymbolIDExist(16, QStringLiteral("9999")), 0);
    auto other = EmbeddedBackEnd::open(backEnd->storePath());
    ASSERT_TRUE(other);
    ASSERT_TRUE(other.value()->takeIn(SymbolItem{16, QStringLiteral("9999"), QStringLiteral("Added"), 1}));
    NewsItem news;
    news.identity = QStringLiteral("urn:test:1");
    news.title = QStringLiteral("makes this program look at the store again");
    ASSERT_TRUE(backEnd->takeIn(news));
    EXPECT_EQ(backEnd->bIsSymbolIDExist(16, QStringLiteral("9999")), 1);
}

}  // namespace wirepane
