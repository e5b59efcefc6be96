// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "host/controls/sheet_cells.h"
#include "host/controls/super_sheet_wnd.h"

#include <QPointer>
#include <QString>
#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

class BKQuoteInterface;

namespace wirepane {
class CellState;
class HitFinder;
struct HeadlineLook;
class HeadlineTable;
class ListOwner;
class ReadingPlace;
class RelationMatcher;
class ViewOptions;

}  // namespace wirepane

struct CHeadline;
struct CHeadlineTable;

namespace wirepane {
enum class NewsType : int;
enum class HeadlineColumn;
struct HeadlineKey;
struct NewsState;
struct ReadingMark;
struct WrittenCells;
struct HeadlineColumnKind;

// Where a pushed headline went.
struct HeadlinePlace {
    int row = -1;     // -1: nowhere, the list has no grid or the headline has left it
    int oldRow = -1;  // of a headline that was there: the row that went; -1: none did

    bool operator==(const HeadlinePlace&) const = default;
};

// One headline list: the table of its entries and the grid that shows them. Row i of the grid always stands
// for entry i of the table. A grid that is filled anew gets its rows at once, its texts only where rows are
// on screen; rows that come and go one by one are in the table at once, and the grid takes them up together.
// Without a grid every operation on the grid does nothing.
class HeadlineList : public SheetCells {
public:
    // `backEnd` and `owner` must outlive the list.
    HeadlineList(const ListKind& kind, BKQuoteInterface& backEnd, ListOwner& owner);
    ~HeadlineList() override;

    // The grid belongs to its window; it may go before the list does.
    void setGrid(CSuperSheetWnd* grid);
    CSuperSheetWnd* grid() const { return sheet; }
    const ListKind& kindOfList() const { return kind; }
    const HeadlineTable& headlineTable() const { return table; }

    // What the settings say of the look of the list, for the grid of this moment.
    void setOptions(const ViewOptions& options);
    // The fonts, the headings or the names of topics have changed: columns that are measured are measured
    // anew.
    void measureColumns();
    // A column in its width, or out of sight.
    void showColumn(HeadlineColumn column, bool show);
    // Whether it has the columns of prices; nothing where they are not to be had.
    std::optional<bool> showsPrices() const;
    // The widths that the user has given by hand, as a text to keep; empty: none. Only columns that are
    // measured keep them.
    QString keptWidths() const;
    void restoreWidths(const QString& kept);

    // Replaces the table by these runs, newest first. The grid follows with vFillHeadlineTable.
    void setTable(const std::vector<std::vector<CHeadlineTable>>& runs);
    // Replaces the table by another list's, as it stands.
    void setTable(const HeadlineTable& other);

    // Gives the grid one empty row per entry, at the top of its scroll range, and repaints it at once. After
    // holdPlace it shows what it showed then, as far as that is listed still.
    void vFillHeadlineTable();
    // Keeps what the reader looks at through the next vFillHeadlineTable. Call it before the table changes.
    void holdPlace();
    // vFillHeadlineTable and vFillHeadline.
    void refill();

    // Writes the visible rows whose headlines the back end has at hand.
    void vFillHeadline();
    // Writes the placeholder into every visible row whose time cell is not that of its entry, with the date
    // or without.
    void vFillTempHeadline();
    // Writes one row from its headline, unless its title cell holds the headline's title already.
    void vUpdateHeadline(int row, const CHeadline& headline, bool showDate);
    // Writes the rows of these entries whose headlines the back end has at hand; entries that are not listed
    // are passed over.
    void vUpdateHeadline(const std::vector<CHeadlineTable>& entries);
    // Asks the back end for the headlines of these rows again: each shows the placeholder until then. Rows
    // that do not exist are passed over. True when some headlines were at hand at once; the next refresh
    // writes them.
    bool reCoverHeadline(const std::vector<int>& rows);
    // For hosts: writes the first visible row from its headline, when the back end has it at hand. With
    // `relation` only when one of its key sets wants it.
    void vUpdataTopHeadline(bool showDate, const RelationMatcher* relation = nullptr);

    // Puts a pushed headline in. A new one goes above the first row from the top that is earlier. One that is
    // listed already with its service and number on its day moves to the top, and the first row with that
    // service and number, of whatever day, goes.
    // `symbol`: the one that it names, for bursts to fold by; may be empty.
    HeadlinePlace vProcessNewHeadline(const CHeadline& headline, bool showDate, const QString& symbol = {});
    // Puts a headline in before `row`, in [0, Table().size()], and writes its row.
    void vInsertHeadline(int row, const CHeadline& headline, bool showDate);
    // The row of a headline takes over what it is now, where it stands: the list is not one that it enters.
    void replaceHeadline(int row, const CHeadline& headline);
    // The row of a headline that is not one of this list's any more, or of none. Result: where it stood.
    HeadlinePlace takeOut(int row);
    // What is marked in titles from here on; null: nothing.
    void markHits(std::shared_ptr<const HitFinder> finder);
    // What became of this news since it was written, or what the reader did with it, may have changed.
    void showStateAgain(const HeadlineKey& key);
    // Takes a row out; one out of range is ignored.
    void vDeleteHeadline(int row);

    // While it is held the rows on screen keep their places, and none folds.
    void hold(bool on);
    // Whether headlines of a burst are folded under a row, or were until they were unfolded there.
    bool isFold(int row) const;
    // Unfolds them, or folds them again; also from a row among them. False: there are none.
    bool turnFold(int row);

    // Writes the cells of one row; columns beside these three get the placeholder.
    void vFillSheet(int row, const QString& time, const QString& category, const QString& title);

    // Forgets what was written: the next refill writes every visible row anew, as after a change of language
    // or of category names. Rows whose time has the other form keep it.
    void forgetWrittenCells();

    // These rows, also those that are not on screen, a line each: their columns, with tabs between them and
    // the time with its date. Rows that do not exist and those beyond mostCopiedRows are passed over.
    QString textOfRows(const std::vector<int>& rows) const;
    static constexpr std::size_t mostCopiedRows = 10000;

    // The entries of the visible rows: those of one page and one row more.
    std::vector<CHeadlineTable> vGetShowedHeadlineTable() const;

    // The cells for the grid.
    QString text(int row, int column) const override;
    QColor textColour(int row, int column) const override;
    SheetChip chip(const QString& cellText, int column) const override;
    QList<SheetHit> hits(const QString& cellText, int column) const override;
    QColor highlight(int row, int column) const override;
    QString tag(int row, int column) const override;
    QString mark(int row, int column) const override;
    bool isStruck(int row, int column) const override;
    Tone tone(int row) const override;
    QString spokenText(int row, int column) const override;
    int arrival(int row) const override;
    bool holdsFigures(int column) const override;
    QString toolTip(int row) const override;

private:
    // The column at a place of the grid; null: there is none.
    const HeadlineColumnKind* columnAt(int place) const;
    std::vector<unsigned char> servicesToAsk() const;
    std::vector<CHeadlineTable> entriesAt(const std::vector<int>& rows) const;
    std::vector<CHeadline> headlinesOf(const std::vector<CHeadlineTable>& entries) const;
    const WrittenCells* cellsOf(int row) const;
    void writeHeadline(int row, const CHeadline& headline, bool showDate);
    WrittenCells placeholdersOf(const CHeadlineTable& entry, bool showDate) const;
    QColor categoryColour(unsigned char service, const QString& name) const;
    void writeCells(int row, WrittenCells&& written);
    void letCellsGo();
    void forgetCells(const HeadlineKey& key);
    void takeDraggedWidth(int place, int width);
    void applyWidths();
    void noteArrival(const CHeadline& headline);
    void fade();
    QString serviceName(unsigned char service) const;
    // What became of the news of a row; as first sent where marks are not asked for.
    NewsState newsState(int row) const;
    // What the reader has done with the news of a row; nothing where that is not asked for, or not known.
    std::optional<ReadingMark> readingMark(int row) const;
    QString readingWords(int row) const;
    // How it stands out; plain where that is not asked for.
    HeadlineLook lookOf(int row) const;
    bool isTitleOfRow(int row, int column) const;
    void watchFolds();
    void noteBurst(const CHeadline& headline, const QString& symbol);
    void showFolds();
    QString foldMark(int row) const;
    QString foldWords(int row) const;

    const ListKind& kind;
    BKQuoteInterface& backEnd;
    ListOwner& owner;
    QPointer<CSuperSheetWnd> sheet;
    // Behind a pointer: who uses a list need not know what it is made of.
    struct State;
    const std::unique_ptr<State> state;
    HeadlineTable& table;
    CellState& cells;
    std::optional<ReadingPlace>& heldPlace;
    QTimer afterPainting;  // then the table's index is built, for the first push to find
};

// Creates a headline grid with the columns and header texts of the news type as a visible child of `parent`.
CSuperSheetWnd* createHeadlineSheet(QWidget* parent, const QRect& rectangle, NewsType newsType,
                                    BKQuoteInterface& backEnd);

// Sets the header texts again, after a change of language.
void setHeadlineSheetTexts(CSuperSheetWnd& sheet, NewsType newsType, BKQuoteInterface& backEnd);

}  // namespace wirepane
