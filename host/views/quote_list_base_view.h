// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/sheet_cells.h"
#include "host/views/quote_base_view.h"
#include "host/views/quote_columns.h"
#include "host/views/quote_flashes.h"
#include "host/views/quote_table.h"

#include <vector>

class CSuperSheetWnd;

namespace wirepane {
struct RowLook;

}  // namespace wirepane

// A list of symbols with their quotes on a grid: code, name, last price, change, change in percent, volume.
// Rises and falls have colours and signs; what changes flashes for a moment, unless the style does without
// animations. The user sorts it by a click on a header or the keys 1 to 6, by the same column up, down and
// not at all; the focused row and the selection stay with their symbol. The columns always fit the list's
// width.
//
// The list is created with CreateView and filled with setSymbols, which registers the symbols for real-time
// distribution. Updates gather and are shown together in the next turn of the event loop. A row that the user
// focuses by mouse or keyboard is announced by SendChangeSymbol; one that code focuses is not.
class WIREPANE_HOST_EXPORT QuoteListBaseView : public TRVQuoteBaseView, private wirepane::SheetCells {
    Q_OBJECT

public:
    explicit QuoteListBaseView(QWidget* parent = nullptr);
    ~QuoteListBaseView() override;

    // Makes the list a visible child of `parent` (which owns it) with a grid; the name and the two layout
    // numbers are kept. Once. False: the grid could not be made.
    virtual bool CreateView(QWidget* parent, const QString& name, int first, int second);
    // Sets up the columns; names of this many characters have room before anything is narrowed.
    void setUpColumns(int nameCharacters);

    // How its rows look. The columns of finished rows are set from the left, and of a quote that has changed
    // only the cells flash that have.
    void setLook(const wirepane::RowLook& look);

    // Lists these symbols; a symbol that stays keeps its quote, and the focus. An empty list says that there
    // is nothing to show (DataState::NotSupported).
    void setSymbols(const std::vector<CSymbolInfo>& symbols);
    // Empties the list without saying anything.
    void clearSymbols();
    // Drops the updates that have come and are not shown yet.
    void vClearAllMemoryUpdate() { pending.clear(); }
    // Shows them now.
    void takeUpMemory();
    int rowCount() const { return table.size(); }
    // As shown, with every update that has come.
    const wirepane::QuoteTable& quoteTable();
    // The symbol of the focused row; an empty one when no row is.
    void vGetFocusSymbol(CSymbolInfo& symbol) const;
    // Up, down, not at all: as a click on the column's header.
    void sortBy(wirepane::QuoteColumn column);
    // As the user left it: GetTable().sorting(). After setUpColumns.
    void setSorting(const std::optional<wirepane::QuoteTable::Sorting>& sorting);
    // Null before CreateView.
    CSuperSheetWnd* quoteSheet() const { return sheet; }

    // Who is registered with the back end and hears the quotes: the list itself, or a view that hands on to
    // it what it hears. Not owned; outlives the list or is its parent. Set it before symbols are listed.
    void setRegistrant(TRVQuoteBaseView* view) { registrant = view; }

    void vRecvNewMemory(const wirepane::CQuoteMemory* quote) override;
    void vRecvMemoryRecovery(const wirepane::CQuoteMemory* quote) override;
    void vRecvMultiSymbolMemoryRecovery(const std::vector<wirepane::CQuoteMemory>& quotes) override;
    // Names may have changed.
    void vDoSymbolUpdate(const std::vector<wirepane::CSymbolUpdateInfo>& updates) override;
    void vReRegisterSymbols() override;
    void vUnregisterViewSymbol() override;
    // The row of the symbol, where it is listed, is focused.
    void ChangeSymbol(const QWidget* sender, unsigned char group, unsigned char service, const QString& code,
                      const QString& name) override;
    void vChangeCast() override;

protected:
    virtual void vLoadLanguageString();
    void vNotSupportSymbol(QPainter& painter) override;
    // What is said in place of an empty list.
    virtual QString notice() const { return {}; }
    // Drops the focused row and the selection.
    void resetSelection();
    void OnDraw(QPainter& painter) override;
    void OnTimer(int id) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QString text(int row, int column) const override;
    QColor textColour(int row, int column) const override;
    QColor highlight(int row, int column) const override;
    bool holdsFigures(int column) const override;

    void showState(wirepane::DataState state);
    void layOut();
    wirepane::QuoteWidths wantedWidths() const;
    void fitColumns();
    void fillRows(const std::vector<CSymbolInfo>& symbols);
    void loadName(int row);
    void vShow(const wirepane::CQuoteMemory& quote);
    bool animates() const;
    // Orders the rows; focus and selection stay with their symbol.
    template <class Reorder>
    void reorder(Reorder reorder);
    void focusRow(int row);
    void announceFocus();
    bool onSheetKey(int key);

    TRVQuoteBaseView* registrant = this;
    CSuperSheetWnd* sheet = nullptr;
    wirepane::QuoteTable table;
    wirepane::QuoteFlashes flashes;
    std::vector<wirepane::CQuoteMemory> pending;
    int nameRoom = 0;           // in characters
    bool distributing = true;   // the symbols are registered
    bool takeUpPosted = false;  // the event loop will take the pending updates up
    bool focusByCode = false;
    bool mouseDown = false;
    QColor riseColour;
    QColor fallColour;
};
