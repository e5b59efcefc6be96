// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/quote_trv_change_symbol.h"

#include "host/contract/bk_quote_interface.h"
#include "host/contract/lang_text.h"
#include "host/controls/registered_message.h"
#include "host/controls/roomy_rows.h"
#include "host/controls/screen_room.h"
#include "host/controls/symbol_matches.h"
#include "host/controls/window_id.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

constexpr int mostMatches = 200;
constexpr int marketRole = Qt::UserRole;  // the index of the market
constexpr int codeRole = Qt::UserRole + 1;

}  // namespace

QuoteTRVChangeSymbol::QuoteTRVChangeSymbol(QWidget* parent, int /*purpose*/) : QDialog(parent) {}

bool QuoteTRVChangeSymbol::Create() {
    if (BKQuoteInterface::GetBKInterface() == nullptr)
        return false;
    setWindowTitle(langText("IDS_DIALOG-CHANGE-SYMBOL_TITLE"_L1));
    search = new QLineEdit(this);
    search->setPlaceholderText(langText("IDS_DIALOG-CHANGE-SYMBOL_HINT"_L1));
    search->setAccessibleName(search->placeholderText());
    search->setClearButtonEnabled(true);
    search->installEventFilter(this);
    tree = new QTreeWidget(this);
    tree->setAccessibleName(windowTitle());
    tree->setHeaderHidden(true);
    tree->setColumnCount(2);
    tree->setUniformRowHeights(true);
    tree->setItemDelegate(new RoomyRows(tree));
    tree->header()->setStretchLastSection(true);
    auto* choose = new QPushButton(langText("IDS_DIALOG-CHANGE-SYMBOL_CHOOSE"_L1), this);
    auto* close = new QPushButton(langText("IDS_DIALOG-CHANGE-SYMBOL_CLOSE"_L1), this);
    const std::pair<QWidget*, int> numbers[] = {
        {search, searchEdit}, {tree, symbolTree}, {choose, chooseButton}, {close, closeButton}};
    for (const auto& [control, id] : numbers)
        setWindowId(control, id);
    choose->setDefault(true);
    close->setAutoDefault(false);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(choose);
    buttons->addWidget(close);
    auto* column = new QVBoxLayout(this);
    column->addWidget(search);
    column->addWidget(tree);
    column->addLayout(buttons);
    resize(withinScreen(*this, {fontMetrics().averageCharWidth() * 56, fontMetrics().height() * 26}));

    connect(search, &QLineEdit::textChanged, this, &QuoteTRVChangeSymbol::showMatches);
    connect(tree, &QTreeWidget::itemExpanded, this, &QuoteTRVChangeSymbol::fillMarket);
    connect(tree, &QTreeWidget::itemDoubleClicked, this, &QuoteTRVChangeSymbol::chooseItem);
    connect(choose, &QPushButton::clicked, this, [this] { chooseItem(tree->currentItem()); });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    readMarkets();
    fillTree();
    return true;
}

void QuoteTRVChangeSymbol::vSetShowStatus(bool shown) {
    if (!shown || search == nullptr)
        return;
    search->setFocus();
    search->selectAll();
}

void QuoteTRVChangeSymbol::readMarkets() {
    BKQuoteInterface& backEnd = *BKQuoteInterface::GetBKInterface();
    std::vector<unsigned char> services;
    backEnd.bGetAllServiceID(services);
    markets.clear();
    for (const unsigned char service : services) {
        Market market{service, QString::number(service), false, {}, {}};
        backEnd.BKQNEWS_bGetFullNameByService(market.name, service);
        markets.push_back(std::move(market));
    }
}

void QuoteTRVChangeSymbol::readSymbols(Market& market) {
    if (std::exchange(market.read, true))
        return;
    BKQuoteInterface::GetBKInterface()->bGetSymbolID(market.id, market.codes, market.names);
    market.names.resize(market.codes.size());
}

void QuoteTRVChangeSymbol::fillTree() {
    tree->clear();
    for (const Market& market : markets)
        addMarket(market)->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    if (tree->topLevelItemCount() == 1)
        tree->expandItem(tree->topLevelItem(0));
}

QTreeWidgetItem* QuoteTRVChangeSymbol::addMarket(const Market& market) {
    auto* item = new QTreeWidgetItem(tree, QStringList(market.name));
    item->setData(0, marketRole, static_cast<int>(&market - markets.data()));
    item->setFirstColumnSpanned(true);
    return item;
}

QTreeWidgetItem* QuoteTRVChangeSymbol::addSymbol(QTreeWidgetItem* under, const Market& market,
                                                 std::size_t symbol) {
    auto* item = new QTreeWidgetItem({market.codes[symbol], market.names[symbol]});
    item->setData(0, marketRole, under->data(0, marketRole));
    item->setData(0, codeRole, market.codes[symbol]);
    under->addChild(item);
    return item;
}

void QuoteTRVChangeSymbol::fillMarket(QTreeWidgetItem* item) {
    if (item->parent() != nullptr || item->childCount() > 0)
        return;
    Market& market = markets[static_cast<std::size_t>(item->data(0, marketRole).toInt())];
    readSymbols(market);
    tree->setUpdatesEnabled(false);
    for (std::size_t symbol = 0; symbol < market.codes.size(); ++symbol)
        addSymbol(item, market, symbol);
    item->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
    tree->resizeColumnToContents(0);
    tree->setUpdatesEnabled(true);
}

void QuoteTRVChangeSymbol::showMatches(const QString& typed) {
    if (typed.trimmed().isEmpty()) {
        fillTree();
        return;
    }
    tree->clear();
    for (Market& market : markets) {
        readSymbols(market);
        const auto textOf = [&market](int index) {
            const auto symbol = static_cast<std::size_t>(index);
            return market.codes[symbol] + u' ' + market.names[symbol];
        };
        const std::vector<int> matches =
            symbolMatches(typed, static_cast<int>(market.codes.size()), textOf, mostMatches);
        if (matches.empty())
            continue;
        QTreeWidgetItem* item = addMarket(market);
        for (const int match : matches) {
            QTreeWidgetItem* symbol = addSymbol(item, market, static_cast<std::size_t>(match));
            if (tree->currentItem() == nullptr || tree->currentItem()->parent() == nullptr)
                tree->setCurrentItem(symbol);
        }
        tree->expandItem(item);
    }
    tree->resizeColumnToContents(0);
}

void QuoteTRVChangeSymbol::vDoSymbolUpdateTreeNode(quintptr update) {
    if (tree == nullptr)
        return;
    const auto* changed = reinterpret_cast<const CSymbolUpdateInfo*>(update);
    bool known = false;
    for (Market& market : markets) {
        if (changed == nullptr || market.id == changed->service) {
            market.read = false;
            known = true;
        }
    }
    if (!known || changed == nullptr)
        readMarkets();
    showMatches(search->text());
}

void QuoteTRVChangeSymbol::chooseItem(const QTreeWidgetItem* item) {
    static const QEvent::Type chosen = registerMessage(u"RVMSGCHANGESYMBOLBYSEARCH"_s);
    if (item == nullptr || item->parent() == nullptr)
        return;
    const CSymbolInfo symbol{markets[static_cast<std::size_t>(item->data(0, marketRole).toInt())].id,
                             item->data(0, codeRole).toString()};
    sendRegisteredMessage(parentWidget(), chosen, reinterpret_cast<quintptr>(&symbol));
}

// The arrows walk the tree also while the user types.
bool QuoteTRVChangeSymbol::eventFilter(QObject* watched, QEvent* event) {
    if (watched == search && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
            case Qt::Key_Down:
            case Qt::Key_Up:
            case Qt::Key_PageDown:
            case Qt::Key_PageUp:
                QApplication::sendEvent(tree, event);
                return true;
            default:
                break;
        }
    }
    return QDialog::eventFilter(watched, event);
}
