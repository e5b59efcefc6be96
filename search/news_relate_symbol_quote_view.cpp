// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/news_relate_symbol_quote_view.h"

#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/lang_text.h"
#include "host/contract/symbol_name.h"
#include "host/contract/sync_info.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/views/sheet_scheme.h"

#include <QCoreApplication>
#include <QPainter>
#include <QResizeEvent>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

constexpr QLatin1StringView titleKey{"IDS_QUOTE-SYMBOLGROUP_NEWSRELATEQUOTE"};
constexpr int nameCharacters = 16;

}  // namespace

CNewsRelateSymbolQuoteView::CNewsRelateSymbolQuoteView(QWidget* parent) : QuoteListBaseView(parent) {}

void CNewsRelateSymbolQuoteView::OnInitialUpdate() {
    RVComVirtualBaseView::OnInitialUpdate();
}

bool CNewsRelateSymbolQuoteView::CreateView(QWidget* parent, const QString& name, int first, int second) {
    vClearAllMemoryUpdate();
    InitFont();
    if (!QuoteListBaseView::CreateView(parent, name, first, second))
        return false;
    resetSelection();
    setWindowTitle(langText(titleKey));
    setUpColumns(nameCharacters);
    quoteSheet()->show();
    // The layout runs once more when the window has its place.
    QCoreApplication::postEvent(this, new QResizeEvent(size(), size()));
    CSyncInfo::GetSettingCFG()->SYS_vSetIsLinkNews(false);
    return true;
}

void CNewsRelateSymbolQuoteView::setSymbolList(const CNewsSymLst& list) {
    std::vector<CSymbolInfo> symbols = list.symbols;
    if (auto* backEnd = BKQuoteInterface::GetBKInterface()) {
        for (CSymbolInfo& symbol : symbols)
            symbol = inItsMarket(*backEnd, symbol);
    }
    setSymbols(symbols);
}

int CNewsRelateSymbolQuoteView::GetCurrSymbolInfo(unsigned char& service, QString& code) {
    if (rowCount() <= 0)
        return rowCount();
    CSymbolInfo symbol;
    vGetFocusSymbol(symbol);
    service = symbol.market;
    code = symbol.code;
    return rowCount();
}

void CNewsRelateSymbolQuoteView::GetCaption(QString& caption) {
    caption = langText(titleKey);
}

void CNewsRelateSymbolQuoteView::vLoadLanguageString() {
    QuoteListBaseView::vLoadLanguageString();
    setWindowTitle(langText(titleKey));
    setAccessibleName(windowTitle());
    if (quoteSheet() != nullptr)
        quoteSheet()->setAccessibleName(windowTitle());
}

QString CNewsRelateSymbolQuoteView::notice() const {
    return langText(keys::noRelatedSymbols);
}

void CNewsRelateSymbolQuoteView::vChangeCast() {
    QuoteListBaseView::vChangeCast();
    lineColour = hostColour(u"COLOR_LISTCTL_OTHERLINE"_s, palette().color(QPalette::Mid));
    update();
}

// The list lies at the edge of a story: lines part the two.
void CNewsRelateSymbolQuoteView::OnDraw(QPainter& painter) {
    QuoteListBaseView::OnDraw(painter);
    painter.setPen(lineColour);
    if (!edgesLeft) {
        painter.drawLine(rect().topLeft(), rect().topRight());
        painter.drawLine(rect().topLeft(), rect().bottomLeft());
    }
    if (isTitleShown())
        painter.drawLine(0, titleHeight(), width(), titleHeight());
}
