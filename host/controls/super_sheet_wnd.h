// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QTableView>

#include <memory>
#include <vector>

class CSheetBuilder;
class QHelpEvent;

namespace wirepane {
struct RowLook;
class SheetCells;
class HiddenRows;
class SheetDelegate;
class SheetHeader;
struct SheetColours;

}  // namespace wirepane

// A grid of rows of one height under a header row: rows are selected whole (also several, with Shift and
// Ctrl), and drawn only while on screen, so that a million of them cost as much as a page. Rows and columns
// count from 0; sizes are pixels; a row or column out of range is ignored. A builder that starts over
// (setRowCount, clearRows) leaves no selection and no current row, and the sheet at its top. Where no
// colour is set the palette's are used. Interface thread.
//
// Tells its parent by the registered message "RVMSG_CHANGESIZE" that its size changed; the first parameter is
// this sheet.
class WIREPANE_HOST_EXPORT CSuperSheetWnd : public QTableView {
    Q_OBJECT

public:
    // Takes the builder over. It may be null: bCreateSheet then fails, and the sheet stays without rows.
    CSuperSheetWnd(CSheetBuilder* builder, QWidget* parent);
    ~CSuperSheetWnd() override;

    // Puts the sheet over its builder. False without a builder.
    bool bCreateSheet();
    // Narrow scroll bars without arrows.
    void setThinBar(bool thin);
    // Horizontal scrolling by the pixel instead of by the column.
    void setSmoothHorizontalScroll(bool smooth);
    // Heights are exact, except that they grow to the font's height + 2 where the font is taller.
    void setHeaderRowHeight(int height);
    void setHeightOfRows(int height);
    // How rows and headings look. Rows that have air are as high as their text and it, in whole pixels of the
    // screen.
    void setLook(const wirepane::RowLook& look);
    const wirepane::RowLook& look() const;
    // What headings are written in.
    QFont headingFont() const;

    // Columns are cut at their width; the last one is stretched to the sheet's right edge when there is room,
    // unless stretchLast says otherwise. The user can resize them.
    void insertColumn(int width, Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter,
                      const QString& key = {});
    void stretchLast(bool stretch);
    // This one is stretched in place of the last.
    void stretchInstead(int column);
    // The header texts are the sheet's accessible name, until another one is set.
    void setHeaderText(int column, const QString& text, const QString& toolTip = {});
    // The column that was inserted with the key; -1: none was.
    int column(const QString& key) const;
    // A width of 0 takes the column out of sight, and out of the user's reach.
    void vSetColWidth(int column, int width);
    // The width on screen, with what the last column was stretched by.
    int colWidth(int column) const;

    // The source of the cells, as CSheetBuilder::setCells.
    void setCells(const wirepane::SheetCells* cells);
    // Appends empty rows.
    void addRows(int count);
    void clearRows();
    // Rows of the source that have come before `row`, gone, or moved to row 0. The sheet takes up all of them
    // together: before it paints, before anything below reads it, at the latest in the next turn of the event
    // loop. What is selected or current stays so. The rows on screen keep their places while others come and
    // go above them; at its top the sheet shows what comes.
    void insertRow(int row);
    void deleteRow(int row);
    void moveRowToTop(int row);
    // True in signals that come of this, and not of the user.
    bool isTakingUpRows() const { return takingUp; }
    // Takes rows out of sight, brings others back; those on screen keep their places. Rows out of sight are
    // counted like all others, and stay out of sight wherever they move, until the builder starts over.
    void changeSight(std::vector<int> hide, std::vector<int> show);
    bool isInSight(int row) const;
    // Those on screen, with one that may show in part.
    std::vector<int> rowsOnScreen() const;
    // Where those on screen will be, without taking anything up.
    std::vector<int> rowsOnScreenToCome() const;
    int rowCount() const;
    // What stands in the middle of the sheet while it has no rows.
    void setEmptyText(const QString& text);
    // The cells of a row have been written: it is drawn again.
    void invalidateRow(int row);
    // Something about a row's look has changed, and none of its texts.
    void repaintRow(int row);
    // Row 0 has the first row colour again. (A row keeps its colour while rows come and go above the others.)
    void resetRowBkColor();

    // What the source says of its texts beside them has changed.
    void layTextsOutAnew();

    // To the first row and the left edge.
    void resetScroll();
    // Scrolls no further than brings the row fully into sight.
    void vAutoVerScrolling(int row);
    // While it is held the rows on screen keep their places also at its top, as far as there are rows below
    // them.
    void setHeld(bool hold) { held = hold; }
    bool isHeld() const { return held; }
    // As far as there are rows below it.
    void setFirstVisibleRow(int row);
    // 0 also when there are no rows in sight.
    int firstVisibleRow() const;
    // What firstVisibleRow would say, without taking anything up.
    int firstVisibleRowToCome() const;
    // The number of whole rows that fit.
    int rowsPerPage() const;
    // The row at a point of this widget (its header and frame included); -1 where there is none.
    int iCalcRowNdx(const QPoint& client) const;

    // True while the sheet itself takes the keys.
    bool bHasFocus() const;
    // The current cell as (column, row), kept while another window has the keyboard; (-1, -1) when there is
    // none. Getting the keyboard makes no row current: the user's first key or click does, or
    // setActiveSelection.
    QPoint cptGetFocusNdx() const;
    // All selected rows, ascending; what was in `rows` goes. Costs as much as the answer is long.
    void vGetAllSelectionNdx(std::vector<int>& rows) const;
    // Selects the row alone and makes it current, without scrolling; column -1: the row as a whole.
    void setActiveSelection(int row, int column);
    // Selects these rows, ascending or not, and no others, and makes `current` current (-1: none), without
    // scrolling.
    void selectRows(std::vector<int> rows, int current);
    // No row is selected or current.
    void deselectRows();

    // An invalid colour goes back to the palette's.
    void vSetHeaderRowBkColor(const QColor& colour);
    void vSetHeaderRowFgColor(const QColor& colour);
    void vSetFrameColor(const QColor& colour);
    // The backgrounds of every other row, beginning with row 0; below the rows the first is used.
    void vSetBkColor(const QColor& first, const QColor& second);
    // The background of the current row (with `marking`) and of selected rows, while the sheet has the
    // keyboard and while it has not.
    void vSetFocusColor(bool marking, const QColor& focused, const QColor& unfocused);
    void vSetFgColor(const QColor& colour);
    void vSetFont(const QFont& font);
    // Those of finished rows (SheetColours); of the others nothing is taken.
    void setFinishColours(const wirepane::SheetColours& colours);

Q_SIGNALS:
    // The left button was released, was clicked twice, over the rows or below them, without Ctrl or Shift
    // (which change the selection); the sheet has acted on it. The point is one of the sheet.
    void leftButtonUp(const QPoint& point);
    void lButtonDblClk(const QPoint& point);
    // Other rows have come on screen, because the user or code scrolled or because rows on screen went. Not
    // sent while rows come and go above those on screen, which keep their places then.
    void scrolledVertically();
    // The user has dragged a column to a width, has clicked twice at the end of its heading.
    void columnDragged(int column, int width);
    void columnEndDoubleClicked(int column);
    // Rows that came and went have been taken up: what of them is to be out of sight is to be said now.
    void rowsTakenUp();

public:
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    void keyboardSearch(const QString& search) override;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void initStyleOption(QStyleOptionFrame* option) const override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void connectRows();
    void columnsInserted(int first, int last);
    void sectionResized(int column, int size);
    void stretchLastColumn();
    void applyHeights();
    void turnColoursFor(int placesMoved);
    void keepRowColours(int firstRow, int count);
    void keepSight(int firstRow, int count, bool came);
    void takeUpRows() const;
    bool mayShowOthers() const;
    void keepShownRows();
    int heightFor(int height, const QFontMetrics& metrics) const;
    int rowHeightFor() const;
    int rowAtHeight(int y) const;
    // The place of a row among those in sight is the scroll bar's value.
    int rowAtPlace(int place) const;
    bool showsWhatComes() const;
    void hoverAt(int y);
    bool showToolTip(const QHelpEvent& event);
    QString headerTexts() const;
    bool hasColumn(int column) const;

    CSheetBuilder* builder;
    wirepane::SheetDelegate* delegate;
    wirepane::SheetHeader* header;
    std::unique_ptr<wirepane::HiddenRows> hidden;
    std::vector<int> widths;  // as set or dragged, before stretching; 0: hidden
    QColor frameColour;
    QString emptyText;
    QSize toldSize;
    int wantedRowHeight = 20;
    int wantedHeaderHeight = 20;
    int hoverY = -1;  // of the pointer over the rows; -1: it is elsewhere
    bool stretching = false;
    bool lastColumnStretches = true;
    int shownPlace = 0;
    int stretched = -1;  // in place of the last column; -1: none is
    int shownFirst = 0;  // the first visible row before and after rows are taken up
    int shownShift = 0;
    bool showsNewest = true;
    bool held = false;
    bool othersComeOnScreen = false;
    bool takingUp = false;
};
