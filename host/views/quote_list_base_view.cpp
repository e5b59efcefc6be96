// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/quote_list_base_view.h"

#include "host/contract/bk_quote_interface.h"
#include "host/contract/lang_text.h"
#include "host/contract/symbol_name.h"
#include "host/contract/sync_info.h"
#include "host/controls/row_look.h"
#include "host/controls/sheet_builder.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/views/quote_column_kinds.h"
#include "host/views/sheet_scheme.h"

#include <QHeaderView>
#include <QPainter>
#include <QScopedValueRollback>
#include <QSet>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

constexpr int rowHeight = 16;
constexpr int flashTimer = 1;
constexpr int flashTickMs = 150;
constexpr int ticksOfFlash = 3;
constexpr int ticksOfFinishedFlash = 4;

QuoteCells changedCells(const QuoteRow& before, const QuoteRow& now) {
    QuoteCells changed;
    for (int column = 0; column < quoteColumns; ++column)
        changed.set(static_cast<std::size_t>(column), textOf(before, static_cast<QuoteColumn>(column)) !=
                                                          textOf(now, static_cast<QuoteColumn>(column)));
    return changed;
}

std::vector<CSymbolInfo> without(const std::vector<CSymbolInfo>& symbols,
                                 const std::vector<CSymbolInfo>& others) {
    const QSet<CSymbolInfo> known(others.begin(), others.end());
    std::vector<CSymbolInfo> rest;
    std::copy_if(symbols.begin(), symbols.end(), std::back_inserter(rest),
                 [&](const CSymbolInfo& symbol) { return !known.contains(symbol); });
    return rest;
}

}  // namespace

QuoteListBaseView::QuoteListBaseView(QWidget* parent) : TRVQuoteBaseView(parent) {}

QuoteListBaseView::~QuoteListBaseView() {
    if (sheet != nullptr)
        sheet->setCells(nullptr);
}

// --- Creation ---

bool QuoteListBaseView::CreateView(QWidget* parent, const QString& name, int first, int second) {
    settingsPath = {settingsPath.section, first, second, name};
    setObjectName(name);
    if (parentWidget() != parent)
        setParent(parent);
    auto* made = new CSuperSheetWnd(new CSheetBuilder, this);
    if (!made->bCreateSheet()) {
        delete made;
        return false;
    }
    sheet = made;
    sheet->setThinBar(CSyncInfo::GetSettingCFG()->CApi_GetThinBarStatus());
    sheet->setFrameStyle(QFrame::NoFrame);
    sheet->setSelectionMode(QAbstractItemView::SingleSelection);
    sheet->setHeaderRowHeight(rowHeight);
    sheet->setHeightOfRows(rowHeight);
    sheet->setCells(this);
    sheet->installEventFilter(this);
    sheet->viewport()->installEventFilter(this);
    show();
    return true;
}

void QuoteListBaseView::setUpColumns(int nameCharacters) {
    nameRoom = nameCharacters;
    if (sheet == nullptr)
        return;
    for (const QuoteColumnKind& kind : quoteColumnKinds)
        sheet->insertColumn(1, kind.alignment);
    QHeaderView* header = sheet->horizontalHeader();
    header->setSortIndicator(-1, Qt::AscendingOrder);
    header->setSortIndicatorShown(true);
    header->setSortIndicatorClearable(true);
    header->setSectionsClickable(true);
    connect(header, &QHeaderView::sortIndicatorChanged, this, [this](int column, Qt::SortOrder order) {
        std::optional<QuoteTable::Sorting> sorting;
        if (column >= 0)
            sorting = {static_cast<QuoteColumn>(column), order == Qt::DescendingOrder};
        reorder([&] { table.sortBy(sorting); });
        sheet->vAutoVerScrolling(sheet->cptGetFocusNdx().y());
    });
    connect(sheet->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        if (!focusByCode && !mouseDown)
            announceFocus();
    });
    vLoadLanguageString();
    vChangeCast();
}

void QuoteListBaseView::vLoadLanguageString() {
    if (sheet == nullptr)
        return;
    for (int column = 0; column < quoteColumns; ++column)
        sheet->setHeaderText(column,
                             langText(quoteColumnKinds.at(static_cast<std::size_t>(column)).headerKey));
    for (int row = 0; row < table.size(); ++row)
        loadName(row);
    fitColumns();
    update();
}

void QuoteListBaseView::changeEvent(QEvent* event) {
    TRVQuoteBaseView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        vLoadLanguageString();
}

void QuoteListBaseView::vChangeCast() {
    TRVQuoteBaseView::vChangeCast();
    riseColour = movementColour(1, colBackground);
    fallColour = movementColour(-1, colBackground);
    if (sheet == nullptr)
        return;
    applyHostScheme(*sheet, GetViewFont());
    layOut();
    fitColumns();
}

// --- Symbols ---

void QuoteListBaseView::setSymbols(const std::vector<CSymbolInfo>& symbols) {
    fillRows(symbols);
    showState(symbols.empty() ? DataState::NotSupported : DataState::Normal);
}

void QuoteListBaseView::clearSymbols() {
    fillRows({});
    showState(DataState::Normal);
}

// The grid gives way to the notice, and the keyboard stays here meanwhile.
void QuoteListBaseView::showState(DataState state) {
    setDataState(state);
    update();
    if (sheet == nullptr)
        return;
    if (state == DataState::NotSupported && sheet->hasFocus())
        setFocus();
    sheet->setVisible(state == DataState::Normal);
    if (state == DataState::Normal && hasFocus())
        sheet->setFocus();
}

void QuoteListBaseView::fillRows(const std::vector<CSymbolInfo>& symbols) {
    const std::vector<CSymbolInfo> before = table.symbols();
    if (sheet == nullptr || before == symbols)
        return;
    takeUpMemory();
    CSymbolInfo focused;
    vGetFocusSymbol(focused);
    table.setSymbols(symbols);
    for (int row = 0; row < table.size(); ++row) {
        if (table.at(row).name.isEmpty())
            loadName(row);
    }
    table.resort();
    sheet->clearRows();
    sheet->addRows(table.size());
    focusRow(table.rowOf(focused));
    const std::vector<CSymbolInfo> now = table.symbols();
    if (distributing)
        C_RegisterSymbol(registrant, without(now, before), without(before, now));
}

void QuoteListBaseView::loadName(int row) {
    auto* backEnd = BKQuoteInterface::GetBKInterface();
    if (backEnd == nullptr)
        return;
    const CSymbolInfo& symbol = table.at(row).symbol;
    const auto name = symbolName(*backEnd, symbol);
    if (!name)
        return;
    QString shown = *name;
    if (backEnd->LangIsConvertToSimplified(symbol.market))
        backEnd->LangConvertToSimplifiedChinese(*name, shown);
    table.setName(row, shown);
}

void QuoteListBaseView::vDoSymbolUpdate(const std::vector<CSymbolUpdateInfo>& updates) {
    for (const CSymbolUpdateInfo& update : updates) {
        const int row = table.rowOf({update.service, update.code});
        if (row < 0)
            continue;
        loadName(row);
        sheet->repaintRow(row);
    }
}

void QuoteListBaseView::vReRegisterSymbols() {
    distributing = true;
    if (table.size() > 0)
        C_RegisterSymbol(registrant, table.symbols(), {});
}

void QuoteListBaseView::vUnregisterViewSymbol() {
    distributing = false;
    if (table.size() > 0)
        C_RegisterSymbol(registrant, {}, table.symbols());
}

// --- Quotes ---

void QuoteListBaseView::vRecvNewMemory(const CQuoteMemory* quote) {
    if (quote == nullptr || table.rowOf(quote->symbol) < 0)
        return;
    pending.push_back(*quote);
    if (takeUpPosted)
        return;
    takeUpPosted = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            takeUpPosted = false;
            takeUpMemory();
        },
        Qt::QueuedConnection);
}

void QuoteListBaseView::vRecvMemoryRecovery(const CQuoteMemory* quote) {
    vRecvNewMemory(quote);
}

void QuoteListBaseView::vRecvMultiSymbolMemoryRecovery(const std::vector<CQuoteMemory>& quotes) {
    for (const CQuoteMemory& quote : quotes)
        vRecvNewMemory(&quote);
}

void QuoteListBaseView::takeUpMemory() {
    for (const CQuoteMemory& quote : std::exchange(pending, {}))
        vShow(quote);
}

bool QuoteListBaseView::animates() const {
    return isVisible() && style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
}

void QuoteListBaseView::vShow(const CQuoteMemory& quote) {
    const int known = table.rowOf(quote.symbol);
    const QuoteRow before = known >= 0 ? table.at(known) : QuoteRow{};
    const auto update = table.update(quote);
    if (!update)
        return;
    if (!update->first && animates())
        flashes.start(quote.symbol, changedCells(before, table.at(update->row)),
                      sheet->look().finished ? ticksOfFinishedFlash : ticksOfFlash);
    // One timer ends all flashes, and brings rows that have moved to their places.
    if (!flashes.isEmpty() || table.isStale()) {
        if (runningTimers().empty())
            setTimer(flashTimer, flashTickMs);
    }
    sheet->repaintRow(update->row);
}

void QuoteListBaseView::OnTimer(int id) {
    TRVQuoteBaseView::OnTimer(id);
    if (id != flashTimer)
        return;
    for (const CSymbolInfo& symbol : flashes.tick()) {
        if (const int row = table.rowOf(symbol); row >= 0)
            sheet->repaintRow(row);
    }
    if (table.isStale())
        reorder([this] { table.resort(); });
    if (flashes.isEmpty())
        endTimer(flashTimer);
}

const QuoteTable& QuoteListBaseView::quoteTable() {
    takeUpMemory();
    if (table.isStale())
        reorder([this] { table.resort(); });
    return table;
}

// --- Order, focus, selection ---

template <class Reorder>
void QuoteListBaseView::reorder(Reorder reorder) {
    CSymbolInfo focused;
    vGetFocusSymbol(focused);
    reorder();
    focusRow(table.rowOf(focused));
    sheet->viewport()->update();
}

void QuoteListBaseView::focusRow(int row) {
    if (sheet == nullptr || row < 0 || row == sheet->cptGetFocusNdx().y())
        return;
    const QScopedValueRollback byCode(focusByCode, true);
    sheet->setActiveSelection(row, -1);
}

void QuoteListBaseView::resetSelection() {
    const QScopedValueRollback byCode(focusByCode, true);
    if (sheet != nullptr)
        sheet->deselectRows();
}

void QuoteListBaseView::vGetFocusSymbol(CSymbolInfo& symbol) const {
    const int row = sheet != nullptr ? sheet->cptGetFocusNdx().y() : -1;
    symbol = row >= 0 && row < table.size() ? table.at(row).symbol : CSymbolInfo{};
}

void QuoteListBaseView::announceFocus() {
    CSymbolInfo symbol;
    vGetFocusSymbol(symbol);
    if (symbol.market != 0)
        emit SendChangeSymbol(linkedGroup(), symbol.market, symbol.code);
}

void QuoteListBaseView::ChangeSymbol(const QWidget* sender, unsigned char group, unsigned char service,
                                     const QString& code, const QString& name) {
    TRVQuoteBaseView::ChangeSymbol(sender, group, service, code, name);
    focusRow(table.rowOf({service, code}));
}

void QuoteListBaseView::sortBy(QuoteColumn column) {
    const auto& now = table.sorting();
    const bool same = now && now->column == column;
    const bool cleared = same && now->descending;
    setSorting(cleared ? std::nullopt : std::optional(QuoteTable::Sorting{column, same}));
}

void QuoteListBaseView::setSorting(const std::optional<QuoteTable::Sorting>& sorting) {
    if (sheet == nullptr)
        return;
    // The header tells of its change.
    sheet->horizontalHeader()->setSortIndicator(
        sorting ? static_cast<int>(sorting->column) : -1,
        sorting && sorting->descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

bool QuoteListBaseView::onSheetKey(int key) {
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        announceFocus();
        return true;
    }
    if (key < Qt::Key_1 || key >= Qt::Key_1 + quoteColumns)
        return false;
    sortBy(static_cast<QuoteColumn>(key - Qt::Key_1));
    return true;
}

bool QuoteListBaseView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == sheet && event->type() == QEvent::KeyPress) {
        const auto* press = static_cast<const QKeyEvent*>(event);
        const bool plain = (press->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        return plain && onSheetKey(press->key());
    }
    if (sheet == nullptr || watched != sheet->viewport())
        return TRVQuoteBaseView::eventFilter(watched, event);
    if (event->type() == QEvent::Resize) {
        fitColumns();
    } else if (event->type() == QEvent::MouseButtonPress) {
        mouseDown = true;
    } else if (event->type() == QEvent::MouseButtonRelease) {
        const auto* release = static_cast<const QMouseEvent*>(event);
        mouseDown = false;
        if (release->button() == Qt::LeftButton && sheet->rowAt(release->position().toPoint().y()) >= 0)
            announceFocus();
    }
    return false;
}

void QuoteListBaseView::wheelEvent(QWheelEvent* event) {
    // What the list at its end lets pass is for nobody else.
    event->accept();
}
