// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/super_sheet_wnd.h"

#include "host/controls/hidden_rows.h"
#include "host/controls/registered_message.h"
#include "host/controls/row_look.h"
#include "host/controls/sheet_builder.h"
#include "host/controls/sheet_delegate.h"
#include "host/controls/sheet_header.h"
#include "host/controls/thin_bar_style.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

using namespace wirepane;

CSuperSheetWnd::CSuperSheetWnd(CSheetBuilder* sheetBuilder, QWidget* parent)
    : QTableView(parent),
      builder(sheetBuilder),
      delegate(new SheetDelegate(this)),
      header(new SheetHeader(this)),
      hidden(std::make_unique<HiddenRows>()) {
    if (builder != nullptr)
        builder->setParent(this);
    delegate->hidden = hidden.get();
    setItemDelegate(delegate);
    setHorizontalHeader(header);
    // Per row work in the header is what makes many rows dear: one fixed height, nothing measured.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->hide();
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setShowGrid(false);
    setWordWrap(false);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    connect(header, &QHeaderView::sectionResized, this,
            [this](int column, int, int size) { sectionResized(column, size); });
    connect(header, &QHeaderView::sectionHandleDoubleClicked, this, &CSuperSheetWnd::columnEndDoubleClicked);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (!takingUp)
            emit scrolledVertically();
    });
    applyHeights();
}

CSuperSheetWnd::~CSuperSheetWnd() = default;

bool CSuperSheetWnd::bCreateSheet() {
    if (builder == nullptr)
        return false;
    if (model() == builder)
        return true;
    setModel(builder);
    connectRows();
    columnsInserted(0, builder->columnCount() - 1);
    return true;
}

void CSuperSheetWnd::connectRows() {
    connect(builder, &QAbstractItemModel::columnsInserted, this,
            [this](const QModelIndex&, int first, int last) { columnsInserted(first, last); });
    connect(builder, &QAbstractItemModel::modelReset, this, [this] {
        hidden->clear();
        resetRowBkColor();
        verticalScrollBar()->setValue(0);
    });
    const auto keepLook = [this](int first, int last, bool came) {
        if (takingUp)
            return;
        keepSight(first, last - first + 1, came);
        keepRowColours(first, last - first + 1);
    };
    connect(builder, &QAbstractItemModel::rowsInserted, this,
            [=](const QModelIndex&, int first, int last) { keepLook(first, last, true); });
    connect(builder, &QAbstractItemModel::rowsRemoved, this,
            [=](const QModelIndex&, int first, int last) { keepLook(first, last, false); });
    connect(builder, &CSheetBuilder::queueAboutToBeTakenUp, this, [this] {
        takingUp = true;
        showsNewest = showsWhatComes();
        shownPlace = verticalScrollBar()->value();
        shownFirst = rowAtPlace(shownPlace);
        shownShift = builder->queuedShift(shownFirst);
        othersComeOnScreen = mayShowOthers();
        if (const RowRuns* queued = builder->queued())
            hidden->follow(*queued);
    });
    connect(builder, &CSheetBuilder::queueTakenUp, this, &CSuperSheetWnd::keepShownRows);
}

void CSuperSheetWnd::setThinBar(bool thin) {
    if (QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent) <= thin_bar::widest)
        thin = false;
    auto* style = findChild<ThinBarStyle*>(QString(), Qt::FindDirectChildrenOnly);
    if (thin && style == nullptr)
        style = new ThinBarStyle(this);
    for (QScrollBar* bar : {verticalScrollBar(), horizontalScrollBar()})
        bar->setStyle(thin ? style : nullptr);
    QEvent anew(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(this, &anew);
}

void CSuperSheetWnd::setSmoothHorizontalScroll(bool smooth) {
    setHorizontalScrollMode(smooth ? QAbstractItemView::ScrollPerPixel : QAbstractItemView::ScrollPerItem);
}

void CSuperSheetWnd::setHeaderRowHeight(int height) {
    wantedHeaderHeight = std::max(1, height);
    applyHeights();
}

void CSuperSheetWnd::setHeightOfRows(int height) {
    wantedRowHeight = std::max(1, height);
    applyHeights();
}

void CSuperSheetWnd::setLook(const RowLook& look) {
    if (look == delegate->look)
        return;
    delegate->look = look;
    header->look = look;
    header->setFont(headingFont());
    viewport()->setMouseTracking(look.finished);
    applyHeights();
    header->viewport()->update();
    viewport()->update();
}

const RowLook& CSuperSheetWnd::look() const {
    return delegate->look;
}

QFont CSuperSheetWnd::headingFont() const {
    return delegate->look.finished ? sizedFont(font(), headingShare) : font();
}

int CSuperSheetWnd::heightFor(int height, const QFontMetrics& metrics) const {
    return metrics.height() > height ? metrics.height() + 2 : height;
}

int CSuperSheetWnd::rowHeightFor() const {
    if (delegate->look.air == 0)
        return heightFor(wantedRowHeight, fontMetrics());
    constexpr int mostMore = 4;
    const int least = textHeight(font()) + delegate->look.air;
    // Else the edges of every other row would lie within a pixel of the screen.
    for (int height = least; height < least + mostMore; ++height) {
        const qreal onScreen = height * devicePixelRatioF();
        if (onScreen == std::floor(onScreen))
            return height;
    }
    return least;
}

void CSuperSheetWnd::applyHeights() {
    const int heading = delegate->look.heading > 0 ? delegate->look.heading : wantedHeaderHeight;
    header->setFixedHeight(heightFor(heading, QFontMetrics(headingFont())));
    verticalHeader()->setDefaultSectionSize(rowHeightFor());
    updateGeometries();
}

bool CSuperSheetWnd::hasColumn(int column) const {
    return column >= 0 && column < static_cast<int>(widths.size());
}

void CSuperSheetWnd::insertColumn(int width, Qt::Alignment alignment, const QString& key) {
    if (builder != nullptr)
        builder->insertColumn(width, alignment, key);
}

void CSuperSheetWnd::columnsInserted(int first, int last) {
    for (int column = first; column <= last; ++column) {
        widths.insert(widths.begin() + column, 0);
        vSetColWidth(column, builder->initialWidth(column));
    }
}

void CSuperSheetWnd::setHeaderText(int column, const QString& text, const QString& toolTip) {
    if (builder == nullptr)
        return;
    const bool named = accessibleName() != headerTexts();
    builder->setHeaderText(column, text, toolTip);
    if (!named)
        setAccessibleName(headerTexts());
}

int CSuperSheetWnd::column(const QString& key) const {
    for (int column = 0; column < static_cast<int>(widths.size()); ++column) {
        if (builder->headerData(column, Qt::Horizontal, CSheetBuilder::columnKeyRole) == key)
            return column;
    }
    return -1;
}

QString CSuperSheetWnd::headerTexts() const {
    QStringList texts;
    for (int column = 0; column < builder->columnCount(); ++column)
        texts << builder->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
}

void CSuperSheetWnd::vSetColWidth(int column, int width) {
    if (!hasColumn(column) || width < 0)
        return;
    widths[column] = width;
    stretching = true;
    setColumnHidden(column, width == 0);
    if (width > 0)
        setColumnWidth(column, width);
    stretching = false;
    stretchLastColumn();
}

int CSuperSheetWnd::colWidth(int column) const {
    return hasColumn(column) ? columnWidth(column) : 0;
}

void CSuperSheetWnd::sectionResized(int column, int size) {
    if (stretching || !hasColumn(column) || size == 0)
        return;
    widths[column] = size;
    stretchLastColumn();
    emit columnDragged(column, size);
}

void CSuperSheetWnd::stretchLast(bool stretch) {
    lastColumnStretches = stretch;
    stretchLastColumn();
}

void CSuperSheetWnd::stretchInstead(int column) {
    stretched = column;
    stretchLastColumn();
}

void CSuperSheetWnd::stretchLastColumn() {
    const auto shown = std::find_if(widths.rbegin(), widths.rend(), [](int width) { return width > 0; });
    if (shown == widths.rend() || stretching)
        return;
    const int last = hasColumn(stretched) ? stretched : static_cast<int>(widths.rend() - shown) - 1;
    stretching = true;
    int others = 0;
    for (int column = 0; column < static_cast<int>(widths.size()); ++column) {
        if (column == last || widths[column] == 0)
            continue;
        others += widths[column];
        setColumnWidth(column, widths[column]);
    }
    const int room = lastColumnStretches ? viewport()->width() - others : 0;
    setColumnWidth(last, std::max(widths[last], room));
    stretching = false;
}

void CSuperSheetWnd::setCells(const SheetCells* cells) {
    if (builder != nullptr)
        builder->setCells(cells);
}

void CSuperSheetWnd::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    stretchLastColumn();
    if (size() == toldSize)
        return;  // only a scroll bar came or went
    toldSize = size();
    sendRegisteredMessage(parentWidget(), registerMessage(QStringLiteral("RVMSG_CHANGESIZE")),
                          reinterpret_cast<quintptr>(this));
}

void CSuperSheetWnd::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        applyHeights();
    else if (event->type() == QEvent::PaletteChange)
        delegate->forgetPictures();
}

void CSuperSheetWnd::hideEvent(QHideEvent* event) {
    QTableView::hideEvent(event);
    delegate->forgetTexts();
}

void CSuperSheetWnd::layTextsOutAnew() {
    delegate->forgetTexts();
    viewport()->update();
}

void CSuperSheetWnd::initStyleOption(QStyleOptionFrame* option) const {
    QTableView::initStyleOption(option);
    QColor faint = palette().color(QPalette::WindowText);
    faint.setAlpha(80);
    option->palette.setColor(QPalette::WindowText, frameColour.isValid() ? frameColour : faint);
}

void CSuperSheetWnd::setEmptyText(const QString& text) {
    emptyText = text;
    setAccessibleDescription(text);
    viewport()->update();
}

void CSuperSheetWnd::paintEvent(QPaintEvent* event) {
    delegate->hoveredRow = rowAtHeight(hoverY);
    QTableView::paintEvent(event);
    if (emptyText.isEmpty() || rowCount() > 0)
        return;
    const int margin = 2 * fontMetrics().height();
    QPainter painter(viewport());
    QColor colour = delegate->colours.textColour(palette());
    colour.setAlphaF(0.7F);
    painter.setPen(colour);
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, emptyText);
}
