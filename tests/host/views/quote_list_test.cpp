// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/super_sheet_wnd.h"
#include "host/views/quote_list_base_view.h"
#include "tests/support/fake_back_end.h"

#include <QApplication>
#include <QHeaderView>
#include <QProxyStyle>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

class StillStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

class QuoteListTest : public testing::Test {
protected:
    QuoteListTest() {
        for (int i = 0; i < 40; ++i)
            all.push_back({16, QString::number(1000 + i)});
        backEnd.symbols[16] = {{u"1000"_s, u"Aster"_s}, {u"1001"_s, u"Birch"_s}};
        frame.resize(420, 120);
        list = new QuoteListBaseView(&frame);
        list->OnInitialUpdate();
        list->resize(frame.size());
        EXPECT_TRUE(list->CreateView(&frame, u"Quotes"_s, 3, 4));
        list->setUpColumns(16);
        QObject::connect(list, &TRVQuoteBaseView::SendChangeSymbol, list,
                         [this](unsigned char, unsigned char market, const QString& code) {
                             announced += u"%1:%2"_s.arg(market).arg(code);
                         });
        frame.show();
        frame.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&frame));
    }

    void update(int index, double last, double change = 0) {
        const CQuoteMemory quote{all[static_cast<std::size_t>(index)], last, change, 10};
        list->vRecvNewMemory(&quote);
    }
    QString cell(int row, int column) const {
        return list->quoteSheet()->model()->index(row, column).data().toString();
    }
    bool flashes(int row) const {
        return list->quoteSheet()->model()->index(row, 2).data(Qt::BackgroundRole).isValid();
    }
    QString focused() const {
        CSymbolInfo symbol;
        list->vGetFocusSymbol(symbol);
        return symbol.code;
    }
    void clickRow(int row) {
        CSuperSheetWnd& sheet = *list->quoteSheet();
        QTest::mouseClick(sheet.viewport(), Qt::LeftButton, {},
                          QPoint(20, sheet.rowViewportPosition(row) + 4));
    }

    FakeBackEnd backEnd;
    QWidget frame;
    QuoteListBaseView* list = nullptr;
    std::vector<CSymbolInfo> all;
    QStringList announced;
};

TEST_F(QuoteListTest, RegistersWhatItListsAndAgainWhenAsked) {
    list->setSymbols({all[0], all[1]});
    EXPECT_EQ(backEnd.followed[list], (QStringList{u"16:1000"_s, u"16:1001"_s}));
    list->setSymbols({all[1], all[2]});
    EXPECT_EQ(backEnd.followed[list], (QStringList{u"16:1001"_s, u"16:1002"_s}))
        << "what stays is left alone";
    backEnd.followed.clear();
    list->vReRegisterSymbols();
    EXPECT_EQ(backEnd.followed[list], (QStringList{u"16:1001"_s, u"16:1002"_s}));
    list->vUnregisterViewSymbol();
    EXPECT_EQ(backEnd.followed[list], QStringList());
    list->setSymbols({all[5]});
    EXPECT_EQ(backEnd.followed[list], QStringList()) << "not while it is not shown";
    list->vReRegisterSymbols();
    EXPECT_EQ(backEnd.followed[list], QStringList{u"16:1005"_s});
    list->clearSymbols();
    EXPECT_EQ(backEnd.followed[list], QStringList());
    delete list;
    EXPECT_FALSE(backEnd.followed.contains(list));
}

TEST_F(QuoteListTest, UpdatesAreShownInTheNextTurnAndCanBeDropped) {
    list->setSymbols({all[0], all[1]});
    EXPECT_EQ(cell(0, 1), u"Aster");
    backEnd.symbols[16] = {{u"1000"_s, u"紫菀"_s}, {u"1001"_s, u"樺"_s}};
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(list, &change);
    EXPECT_EQ(cell(0, 1) + cell(1, 1), u"紫菀樺");
    EXPECT_EQ(cell(0, 2), u"--");
    update(0, 10, 1);
    update(0, 11, 2);
    EXPECT_EQ(cell(0, 2), u"--");
    QCoreApplication::processEvents();
    EXPECT_EQ(cell(0, 2), u"11.00");
    EXPECT_EQ(cell(0, 3), u"+2.00");
    update(0, 12);
    list->vClearAllMemoryUpdate();
    QCoreApplication::processEvents();
    EXPECT_EQ(cell(0, 2), u"11.00");
    update(0, 13);
    QCoreApplication::processEvents();
    EXPECT_EQ(cell(0, 2), u"13.00") << "in every turn";
    update(1, 5);
    EXPECT_EQ(textOf(list->quoteTable().at(1), QuoteColumn::Last), u"5.00") << "who reads it reads it whole";
}

TEST_F(QuoteListTest, AChangeFlashesForAMomentOnItsRowAlone) {
    list->setSymbols(all);
    update(0, 10);
    update(1, 10);
    list->takeUpMemory();
    EXPECT_FALSE(flashes(0)) << "the first quote is no change";
    update(0, 11);
    list->takeUpMemory();
    EXPECT_TRUE(flashes(0));
    EXPECT_FALSE(flashes(1));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !flashes(0); }, 3000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return list->runningTimers().empty(); }, 3000));

    StillStyle still;
    list->setStyle(&still);
    update(0, 12);
    list->takeUpMemory();
    EXPECT_FALSE(flashes(0));
    EXPECT_TRUE(list->runningTimers().empty());
    list->setStyle(nullptr);
}

TEST_F(QuoteListTest, FocusAndSelectionStayWithTheirSymbol) {
    list->setSymbols({all[0], all[1], all[2]});
    for (const int index : {0, 1, 2})
        update(index, 10 + index);
    list->takeUpMemory();
    clickRow(1);
    EXPECT_EQ(focused(), u"1001");
    QHeaderView* header = list->quoteSheet()->horizontalHeader();
    const auto clickLast = [&] {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(2) + 10, header->height() / 2));
    };
    clickLast();
    clickLast();
    EXPECT_EQ(cell(0, 0), u"1002") << "falling";
    EXPECT_EQ(focused(), u"1001");
    update(1, 99);
    EXPECT_EQ(list->quoteTable().at(0).symbol.code, u"1001");
    EXPECT_EQ(list->quoteSheet()->cptGetFocusNdx().y(), 0);
    std::vector<int> selected;
    list->quoteSheet()->vGetAllSelectionNdx(selected);
    EXPECT_EQ(selected, std::vector<int>{0});
    clickLast();
    EXPECT_EQ(cell(0, 0), u"1000") << "in their own order again";
    EXPECT_EQ(focused(), u"1001");
    list->setSymbols({all[3], all[1]});
    EXPECT_EQ(focused(), u"1001");
    EXPECT_EQ(announced, QStringList{u"16:1001"_s}) << "the click alone";
}

TEST_F(QuoteListTest, TheUsersHandAnnouncesAndNothingElseDoes) {
    list->setSymbols({all[0], all[1], all[2]});
    list->ChangeSymbol(nullptr, 1, 16, u"1002"_s, {});
    EXPECT_EQ(focused(), u"1002");
    EXPECT_EQ(announced, QStringList());
    CSuperSheetWnd* sheet = list->quoteSheet();
    sheet->setFocus();
    QTest::keyClick(sheet, Qt::Key_Up);
    EXPECT_EQ(announced, QStringList{u"16:1001"_s});
    clickRow(0);
    clickRow(0);
    QTest::keyClick(sheet, Qt::Key_Return);
    EXPECT_EQ(announced.mid(1), (QStringList{u"16:1000"_s, u"16:1000"_s, u"16:1000"_s}));
    QTest::keyClick(sheet, Qt::Key_1);
    QTest::keyClick(sheet, Qt::Key_1);
    EXPECT_EQ(cell(0, 0), u"1002") << "sorted by code, falling";
    QTest::mouseClick(sheet->viewport(), Qt::LeftButton, {}, QPoint(5, sheet->viewport()->height() - 2));
    list->clearSymbols();
    EXPECT_EQ(announced.size(), 4);
    EXPECT_EQ(focused(), u"");
}

TEST_F(QuoteListTest, TheKeyboardStaysWhileThereIsNothingToList) {
    list->setSymbols({all[0]});
    list->quoteSheet()->setFocus();
    list->setSymbols({});
    EXPECT_EQ(list->currentDataState(), DataState::NotSupported);
    EXPECT_TRUE(list->quoteSheet()->isHidden());
    EXPECT_TRUE(list->hasFocus());
    list->clearSymbols();
    EXPECT_EQ(list->currentDataState(), DataState::Normal) << "nothing is known, not even that there is none";
    list->setSymbols({all[1]});
    EXPECT_TRUE(list->quoteSheet()->hasFocus());
}

TEST_F(QuoteListTest, TheColumnsFillTheBoxWhateverItsSize) {
    list->setSymbols(all);
    const QHeaderView* header = list->quoteSheet()->horizontalHeader();
    for (const int width : {900, 420, 250, 120}) {
        list->resize(width, 120);
        QCoreApplication::processEvents();
        EXPECT_EQ(header->length(), list->quoteSheet()->viewport()->width()) << width;
    }
}

}  // namespace

}  // namespace wirepane
