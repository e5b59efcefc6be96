// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/drawn_texts.h"
#include "host/controls/registered_message.h"
#include "host/controls/row_look.h"
#include "host/controls/sheet_builder.h"
#include "host/controls/sheet_colours.h"
#include "tests/host/controls/sheet_fixture.h"

#include <QHeaderView>
#include <QImage>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

namespace wirepane {

namespace {

using SheetLook = SheetFixture;

// The colour of the left edge of a row on screen, where no text is.
QColor rowColour(CSuperSheetWnd& sheet, int rowOnScreen) {
    QCoreApplication::processEvents();
    const int height = sheet.verticalHeader()->defaultSectionSize();
    return sheet.viewport()->grab().toImage().pixelColor(1, rowOnScreen * height + height / 2);
}

bool holds(const QImage& picture, const QColor& colour) {
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixelColor(x, y) == colour)
                return true;
    return false;
}

class Listener : public QWidget {
public:
    bool event(QEvent* happened) override {
        if (happened->type() == registerMessage(QStringLiteral("RVMSG_CHANGESIZE")))
            senders.push_back(static_cast<RegisteredMessageEvent*>(happened)->firstParameter);
        return QWidget::event(happened);
    }

    std::vector<quintptr> senders;
};

}  // namespace

TEST_F(SheetLook, HeightsAreExactAndGrowForTallFonts) {
    QFont font = sheet->font();
    int small = 12;
    for (font.setPixelSize(small); QFontMetrics(font).height() > 16; font.setPixelSize(small))
        --small;
    sheet->vSetFont(font);
    sheet->addRows(3);
    showAt({600, 300});
    EXPECT_EQ(sheet->rowHeight(2), 16);
    EXPECT_EQ(sheet->horizontalHeader()->height(), 16);
    EXPECT_EQ(sheet->viewport()->height(), 300 - 16 - 2 * sheet->frameWidth());
    sheet->setHeaderRowHeight(20);
    sheet->setHeightOfRows(24);
    EXPECT_EQ(sheet->rowHeight(2), 24);
    EXPECT_EQ(sheet->horizontalHeader()->height(), 20);
    sheet->setHeaderRowHeight(16);
    sheet->setHeightOfRows(16);
    font.setPixelSize(30);
    sheet->vSetFont(font);
    const int tall = QFontMetrics(font).height() + 2;
    EXPECT_EQ(sheet->rowHeight(2), tall);
    EXPECT_EQ(sheet->horizontalHeader()->height(), tall);
    font.setPixelSize(small);
    sheet->vSetFont(font);
    EXPECT_EQ(sheet->rowHeight(2), 16);
}

TEST_F(SheetLook, TheLastColumnStretchesButKeepsItsWidth) {
    const int frame = 2 * sheet->frameWidth();
    const struct {
        int width;
        std::vector<std::pair<int, int>> set;  // column, width
        std::vector<int> widths;
    } steps[] = {
        {600 + frame, {}, {100, 50, 450}},         {400 + frame, {}, {100, 50, 300}},
        {600 + frame, {{1, 0}}, {100, 0, 500}},    {600 + frame, {{1, 50}}, {100, 50, 450}},
        {600 + frame, {{0, 200}}, {200, 50, 350}}, {600 + frame, {{2, 0}}, {200, 400, 0}},
        {600 + frame, {{2, 700}}, {200, 50, 700}}, {600 + frame, {{3, 9}, {-1, 9}, {0, -4}}, {200, 50, 700}}};
    for (const auto& step : steps) {
        showAt({step.width, 300});
        for (const auto& [column, width] : step.set)
            sheet->vSetColWidth(column, width);
        for (int column = 0; column < 3; ++column)
            EXPECT_EQ(sheet->colWidth(column), step.widths[column]) << step.width << ' ' << column;
    }
    sheet->clearRows();
    sheet->addRows(10);
    static_cast<CSheetBuilder*>(sheet->model())->setRowCount(5);
    EXPECT_EQ(sheet->colWidth(0), 200);  // a reset is no reason to lose them
    EXPECT_EQ(sheet->colWidth(2), 700);
}

TEST_F(SheetLook, TheLastColumnStretchesOnlyWhereItMay) {
    showAt({600, 300});
    sheet->stretchLast(false);
    EXPECT_EQ(sheet->colWidth(2), 300);
    showAt({800, 300});
    EXPECT_EQ(sheet->colWidth(2), 300);
    sheet->stretchLast(true);
    EXPECT_EQ(sheet->colWidth(2), 800 - 2 * sheet->frameWidth() - 150);
}

TEST_F(SheetLook, TheUserDragsColumnsButNotHiddenOnes) {
    showAt({600, 300});
    const auto drag = [this](int from, int to) {
        QWidget* header = sheet->horizontalHeader()->viewport();
        QTest::mousePress(header, Qt::LeftButton, {}, {from, 8});
        QTest::mouseMove(header, {(from + to) / 2, 8});
        QTest::mouseMove(header, {to, 8});
        QTest::mouseRelease(header, Qt::LeftButton, {}, {to, 8});
    };
    drag(99, 139);
    EXPECT_EQ(sheet->colWidth(0), 140);
    EXPECT_EQ(sheet->colWidth(2), 600 - 2 * sheet->frameWidth() - 190);
    sheet->vSetColWidth(1, 0);
    drag(139, 99);
    drag(101, 130);  // right of the edge where the hidden column is
    EXPECT_EQ(sheet->colWidth(1), 0);
    EXPECT_EQ(sheet->colWidth(0) + sheet->colWidth(2), 600 - 2 * sheet->frameWidth());
}

TEST_F(SheetLook, TellsItsParentOnceOfEachNewSize) {
    Listener parent;
    parent.resize(500, 500);
    auto* inner = new CSuperSheetWnd(new CSheetBuilder, &parent);
    inner->bCreateSheet();
    inner->insertColumn(50);
    parent.show();
    inner->setGeometry(0, 0, 300, 100);
    QCoreApplication::processEvents();
    parent.senders.clear();
    inner->setGeometry(0, 0, 200, 100);
    inner->setGeometry(0, 20, 200, 100);  // moved only
    inner->addRows(100);                  // a scroll bar comes: the viewport shrinks, the sheet does not
    QCoreApplication::processEvents();
    EXPECT_EQ(parent.senders, std::vector<quintptr>{reinterpret_cast<quintptr>(inner)});
}

TEST_F(SheetLook, RowsAlternateAndKeepTheirColourWhileOthersComeAbove) {
    const QColor first(10, 20, 30);
    const QColor second(90, 100, 110);
    sheet->vSetBkColor(first, second);
    sheet->addRows(4);
    showAt({600, 300});
    auto* builder = static_cast<CSheetBuilder*>(sheet->model());
    EXPECT_EQ(rowColour(*sheet, 0), first);
    EXPECT_EQ(rowColour(*sheet, 1), second);
    EXPECT_EQ(rowColour(*sheet, 4), first);  // below the rows
    builder->insertRows(0, 1);
    EXPECT_EQ(rowColour(*sheet, 0), second);
    EXPECT_EQ(rowColour(*sheet, 1), first);
    builder->insertRows(0, 2);
    EXPECT_EQ(rowColour(*sheet, 3), first);
    builder->removeRows(0, 1);
    EXPECT_EQ(rowColour(*sheet, 2), first);
    builder->insertRows(0, 1);
    EXPECT_EQ(rowColour(*sheet, 0), second);
    sheet->resetRowBkColor();
    EXPECT_EQ(rowColour(*sheet, 0), first);
    builder->insertRows(0, 1);
    sheet->clearRows();
    sheet->addRows(3);
    EXPECT_EQ(rowColour(*sheet, 0), first);
}

TEST_F(SheetLook, TheCurrentRowIsMarkedByWhoHasTheKeyboard) {
    auto* line = new QLineEdit(&window);
    const QColor focused(1, 2, 3);
    const QColor unfocused(4, 5, 6);
    sheet->vSetBkColor(Qt::white, Qt::white);
    sheet->vSetFocusColor(true, focused, unfocused);
    sheet->addRows(5);
    showAt({600, 300});
    sheet->setFocus();
    sheet->setActiveSelection(2, -1);
    EXPECT_EQ(rowColour(*sheet, 2), focused);
    EXPECT_EQ(rowColour(*sheet, 1), QColor(Qt::white));
    line->setFocus();
    EXPECT_EQ(rowColour(*sheet, 2), unfocused);
    sheet->selectionModel()->clearSelection();
    EXPECT_EQ(rowColour(*sheet, 2), unfocused);
    sheet->vSetFocusColor(false, focused, unfocused);
    EXPECT_EQ(rowColour(*sheet, 2), QColor(Qt::white));
    sheet->selectRow(3);
    EXPECT_EQ(rowColour(*sheet, 3), unfocused);
}

TEST_F(SheetLook, ColoursReachTextHeaderAndFrameAndFollowThePaletteWhenUnset) {
    QFont solid = sheet->font();
    solid.setStyleStrategy(QFont::NoAntialias);
    sheet->vSetFont(solid);
    sheet->setHeaderText(0, QStringLiteral("Time"));
    sheet->addRows(3);
    showAt({600, 300});
    sheet->vSetFgColor(QColor(1, 1, 200));
    sheet->vSetHeaderRowBkColor(QColor(2, 2, 2));
    sheet->vSetHeaderRowFgColor(QColor(250, 3, 3));
    sheet->vSetFrameColor(QColor(4, 250, 4));
    QImage picture = sheet->grab().toImage();
    EXPECT_EQ(picture.pixelColor(0, 100), QColor(4, 250, 4));
    EXPECT_EQ(picture.pixelColor(3, 4), QColor(2, 2, 2));
    EXPECT_TRUE(holds(picture.copy(1, 1, 100, line() - 1), QColor(250, 3, 3)));
    EXPECT_TRUE(holds(picture.copy(1, 1 + line(), 100, line()), QColor(1, 1, 200)));
    EXPECT_TRUE(holds(picture.copy(101, 1 + line(), 50, line()), QColor(Qt::red)));  // the cell's own
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(9, 9, 9));
    dark.setColor(QPalette::Button, QColor(8, 8, 8));
    window.setPalette(dark);
    sheet->vSetHeaderRowBkColor({});
    picture = sheet->grab().toImage();
    EXPECT_EQ(picture.pixelColor(3, 4), QColor(8, 8, 8));
    EXPECT_EQ(rowColour(*sheet, 0), QColor(9, 9, 9));
    EXPECT_EQ(rowColour(*sheet, 10), QColor(9, 9, 9));
}

TEST_F(SheetLook, GroundsOfFinishedRowsSayWhatBecameOfThem) {
    struct Arriving : NumberedCells {
        int arrival(int row) const override { return row == 1 || row == 2 ? fullArrival : 0; }
    } arriving;
    SheetColours finish;
    finish.hover = QColor(1, 1, 90);
    finish.arrived = QColor(90, 1, 1);
    finish.accent = QColor(1, 90, 1);
    const QColor selected(70, 70, 70);
    const QColor unfocused(80, 80, 80);
    auto* line = new QLineEdit(&window);
    sheet->setCells(&arriving);
    sheet->setFinishColours(finish);
    sheet->vSetBkColor(Qt::white, Qt::white);
    sheet->vSetFocusColor(true, selected, unfocused);
    sheet->addRows(5);
    showAt({600, 300});
    EXPECT_EQ(rowColour(*sheet, 1), QColor(Qt::white));  // plain rows
    sheet->setLook({true, 16, 6});
    EXPECT_EQ(sheet->rowHeight(0), textHeight(sheet->font()) + 6);
    const int height = sheet->rowHeight(0);
    sheet->setFocus();
    sheet->setActiveSelection(2, -1);
    QTest::mouseMove(sheet->viewport(), {50, 3 * height + 5});
    const auto ground = [&](int row) {
        QCoreApplication::processEvents();
        return sheet->viewport()->grab().toImage().pixelColor(8, row * height + 2);
    };
    EXPECT_EQ(ground(1), finish.arrived);
    EXPECT_EQ(ground(2), selected);  // wins over an arrival
    EXPECT_EQ(ground(3), finish.hover);
    EXPECT_EQ(rowColour(*sheet, 2), finish.accent);  // the bar
    EXPECT_EQ(rowColour(*sheet, 3), finish.hover);
    line->setFocus();
    EXPECT_EQ(rowColour(*sheet, 2), unfocused);  // and no bar
    QTest::mouseMove(sheet->viewport(), {50, 4 * height + 5});
    EXPECT_EQ(ground(3), QColor(Qt::white));
    sheet->setCells(nullptr);
}

TEST_F(SheetLook, ATagIsSmallerThanItsRow) {
    struct Tagged : NumberedCells {
        QString text(int, int column) const override { return column == 2 ? QStringLiteral("W") : QString(); }
        QString tag(int, int column) const override { return column == 2 ? QStringLiteral("W") : QString(); }
    } tagged;
    sheet->setCells(&tagged);
    sheet->vSetFont(QGuiApplication::font());
    sheet->vSetBkColor(Qt::white, Qt::white);
    sheet->setLook({true, 16, 6});
    sheet->vSetColWidth(2, 600);
    sheet->addRows(1);
    showAt({800, 300});
    const QImage row =
        sheet->viewport()->grab({150, 0, sheet->viewport()->width() - 150, sheet->rowHeight(0)}).toImage();
    // How many columns of pixels the letter has at the left, as the text, and at the right, as the tag.
    const auto inked = [&row](int from, int to) {
        int columns = 0;
        for (int x = from; x < to; ++x) {
            bool ink = false;
            for (int y = 0; y < row.height(); ++y)
                ink |= row.pixelColor(x, y) != QColor(Qt::white);
            columns += ink ? 1 : 0;
        }
        return columns;
    };
    EXPECT_GT(inked(300, row.width()), 0);
    EXPECT_LT(inked(300, row.width()), inked(0, 300));
    sheet->setCells(nullptr);
}

TEST(DrawnTexts, StayWithinTheirRoomAndAreLaidOutOnce) {
    DrawnTexts texts;
    texts.setFont(QGuiApplication::font());
    const QString text = QStringLiteral("Shares of shipping lines firm as freight rates recover 航運");
    const DrawnText& whole = texts.line(text, 2000);
    const qreal width = whole.width;
    const QGlyphRun* glyphs = whole.runs.data();
    for (const int room : {0, 1, 30, 150, static_cast<int>(width) - 1})
        EXPECT_LE(texts.line(text, room).width,
                  std::max<qreal>(room, QFontMetricsF(texts.font()).horizontalAdvance(u'\u2026')));
    EXPECT_EQ(texts.line(text, 2000).runs.constData(), glyphs);
    // A full-width bracket's ink stands at the edge.
    EXPECT_GT(texts.line(QStringLiteral("《開市》"), 2000).overhang, 0);
}

// A chip of six characters, and marks on the chip, behind it and at the end.
class MarkedCells : public NumberedCells {
public:
    SheetChip chip(const QString&, int) const override { return {6, 0, 5, true}; }
    QList<SheetHit> hits(const QString& text, int) const override {
        return {{0, 5, 0}, {6, 4, 1}, {text.size() - 4, 4, 2}};
    }
};

TEST(DrawnTexts, GroundsStandUnderWhatIsMarkedAndNotUnderTheChipOrWhatIsCutOff) {
    DrawnTexts texts;
    texts.setFont(QGuiApplication::font());
    const QString text = QStringLiteral("Flash Gold rises as tin falls");
    const QFontMetricsF metrics(texts.font());
    const MarkedCells cells;
    const DrawnText whole = texts.line(text, 2000, &cells, 2);
    ASSERT_EQ(whole.grounds.size(), 2);
    EXPECT_EQ(whole.grounds[0].left, 0);
    EXPECT_NEAR(whole.grounds[0].right, metrics.horizontalAdvance(text.mid(6, 4)), 1);
    EXPECT_NEAR(whole.grounds[1].right, whole.width, 1);
    EXPECT_EQ(whole.grounds[1].tint, 2);
    const DrawnText cut = texts.line(
        text, static_cast<int>(whole.width) - 4 + texts.chipWidth(QStringLiteral("Flash")), &cells, 2);
    for (const DrawnText::Ground& ground : cut.grounds)
        EXPECT_LE(ground.right, cut.width);
}

TEST_F(SheetLook, AnEmptySheetShowsItsText) {
    showAt({600, 300});
    sheet->vSetBkColor(Qt::white, Qt::white);
    const QImage blank = sheet->viewport()->grab().toImage();
    sheet->setEmptyText(QStringLiteral("Nothing yet"));
    EXPECT_NE(sheet->viewport()->grab().toImage(), blank);
    sheet->addRows(1);
    EXPECT_EQ(sheet->viewport()->grab().toImage().copy(0, line(), 600, 300), blank.copy(0, line(), 600, 300));
}

TEST_F(SheetLook, ThinBarsComeAndGo) {
    sheet->addRows(1000);
    showAt({600, 300});
    const int usual = sheet->verticalScrollBar()->width();
    sheet->setThinBar(true);
    EXPECT_EQ(sheet->verticalScrollBar()->width(), 8);
    EXPECT_EQ(sheet->colWidth(2), sheet->viewport()->width() - 150);
    // A press in the groove, away from the thumb, turns the page; there are no arrows to hit.
    QTest::mouseClick(sheet->verticalScrollBar(), Qt::LeftButton, {},
                      {4, sheet->verticalScrollBar()->height() - 2});
    EXPECT_EQ(sheet->firstVisibleRow(), sheet->verticalScrollBar()->pageStep());
    sheet->setThinBar(false);
    EXPECT_EQ(sheet->verticalScrollBar()->width(), usual);
}

TEST_F(SheetLook, IsNamedByItsHeadersUnlessNamedOtherwise) {
    sheet->setHeaderText(0, QStringLiteral("Time"));
    sheet->setHeaderText(2, QStringLiteral("Title"));
    EXPECT_EQ(sheet->accessibleName(), QStringLiteral("Time, Title"));
    sheet->setAccessibleName(QStringLiteral("Headlines"));
    sheet->setHeaderText(2, QStringLiteral("Headline"));
    EXPECT_EQ(sheet->accessibleName(), QStringLiteral("Headlines"));
}

}  // namespace wirepane
