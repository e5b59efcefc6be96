// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The controls of keyword entry: what there is, where it stands, what it sends.
#include "host/contract/lang_text.h"
#include "host/controls/hover_button.h"
#include "host/controls/roomy_rows.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "search/condition_texts.h"
#include "search/dialog_controls.h"
#include "search/keyword_entry_dlg.h"
#include "search/search_ids.h"
#include "search/search_keys.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>

namespace wirepane {

namespace {

template <class Control>
Control* add(QWidget* dialog, int id, const QString& name = {}) {
    auto* control = new Control(dialog);
    setWindowId(control, id);
    control->setAccessibleName(name);
    return control;
}

QListWidget* addList(QWidget* dialog, int id, const QString& name) {
    auto* list = add<QListWidget>(dialog, id, name);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setUniformItemSizes(true);
    list->setItemDelegate(new RoomyRows(list));
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTextElideMode(Qt::ElideRight);
    return list;
}

// A list of symbols under a magnifying glass.
QPixmap pickerPicture(int side, qreal scale, const QColor& colour, const QColor& background) {
    QPixmap picture(QSize(side, side) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(background);
    painter.drawRoundedRect(QRectF(0, 0, side, side), 3, 3);
    painter.setPen(QPen(colour, side / 14.0));
    painter.setBrush(Qt::NoBrush);
    for (const qreal y : {0.28, 0.50, 0.72})
        painter.drawLine(QPointF(0.18 * side, y * side), QPointF((y < 0.4 ? 0.55 : 0.38) * side, y * side));
    painter.drawEllipse(QPointF(0.60 * side, 0.56 * side), 0.17 * side, 0.17 * side);
    painter.drawLine(QPointF(0.72 * side, 0.68 * side), QPointF(0.86 * side, 0.82 * side));
    return picture;
}

}  // namespace

QGridLayout* KeywordEntryDlg::createEntry() {
    createControls();
    loadPickerBitmaps();
    connectControls();
    fillPool({});
    selectTab(0);
    return layOut();
}

void KeywordEntryDlg::createMethods(QGridLayout& grid, int row, QLabel* caption,
                                    std::span<const search_ids::MethodButton> buttons) {
    methodGroup = addChoices(this, grid, row, caption, withQuery(choicesOf(buttons), hasQueries));
}

QList<QAbstractButton*> KeywordEntryDlg::methodButtons() const {
    return methodGroup->buttons();
}

QLayout* KeywordEntryDlg::createEnd() {
    return addEnd(this, okButton);
}

void KeywordEntryDlg::createControls() {
    tabs = add<CXTPTabControl>(this, search_ids::tabs);
    tabs->appendTab(langText(search_keys::keywordTab), 0);
    tabs->appendTab(langText(search_keys::symbolTab), 1);
    keywordEdit = add<QLineEdit>(this, search_ids::keywordEdit, langText(search_keys::keywordHint));
    keywordEdit->setPlaceholderText(langText(search_keys::keywordHint));
    poolList = addList(this, search_ids::pool, langText(search_keys::keywordTab));
    poolButton = makeButton(this, search_ids::removeFromPool, langText(search_keys::removeFromPool));
    symbolEdit = add<QLineEdit>(this, search_ids::symbolEdit, langText(search_keys::symbolHint));
    symbolEdit->setPlaceholderText(langText(search_keys::symbolHint));
    pickerButton = add<CHoverButton>(this, search_ids::picker, langText(search_keys::picker));
    pickerButton->setToolTip(langText(search_keys::picker).toHtmlEscaped());
    pickerButton->setAutoDefault(false);
    candidateList = addList(this, search_ids::candidates, langText(search_keys::symbolTab));
    addButton = makeButton(this, search_ids::add, langText(search_keys::add));
    removeButton = makeButton(this, search_ids::remove, langText(search_keys::remove));
    removeAllButton = makeButton(this, removeAll.id, langText(search_keys::removeAll));
    keywordList = addList(this, search_ids::keywords, langText(search_keys::keywords));
    if (hasQueries) {
        excludedCaption = addCaption(this, search_ids::excludedCaption, langText(search_keys::excluded));
        excludedList = addList(this, search_ids::excluded, langText(search_keys::excluded));
        excludedList->installEventFilter(this);
        excludeButton = makeButton(this, search_ids::exclude, langText(search_keys::exclude));
    }
    addTypedButton = makeButton(this, search_ids::addTyped, {});
    addTypedButton->setFocusPolicy(Qt::NoFocus);
    addTypedButton->hide();
    okButton = makeButton(this, search_ids::ok, langText(search_keys::ok));
    for (QWidget* control : {static_cast<QWidget*>(keywordEdit), static_cast<QWidget*>(poolList),
                             static_cast<QWidget*>(symbolEdit), static_cast<QWidget*>(pickerButton),
                             static_cast<QWidget*>(candidateList), static_cast<QWidget*>(keywordList)})
        control->installEventFilter(this);
}

void KeywordEntryDlg::connectControls() {
    connect(tabs, &QTabBar::currentChanged, this, &KeywordEntryDlg::selectTab);
    auto* nextTab = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Tab), this);
    connect(nextTab, &QShortcut::activated, this, [this] { tabs->setCurrentIndex(1 - currentTab); });
    connect(keywordEdit, &QLineEdit::textEdited, this, &KeywordEntryDlg::fillPool);
    connect(symbolEdit, &QLineEdit::textEdited, this, &KeywordEntryDlg::symbolTyped);
    connect(addTypedButton, &QPushButton::clicked, this, &KeywordEntryDlg::addTypedKeyword);
    connect(addButton, &QPushButton::clicked, this, &KeywordEntryDlg::addSelected);
    connect(poolList, &QListWidget::itemDoubleClicked, this, &KeywordEntryDlg::addSelected);
    connect(candidateList, &QListWidget::itemDoubleClicked, this, &KeywordEntryDlg::addSelected);
    connect(removeButton, &QPushButton::clicked, this, &KeywordEntryDlg::removeSelected);
    connect(keywordList, &QListWidget::itemDoubleClicked, this, &KeywordEntryDlg::removeSelected);
    if (hasQueries) {
        connect(excludeButton, &QPushButton::clicked, this, &KeywordEntryDlg::excludeSelected);
        connect(excludedList, &QListWidget::itemDoubleClicked, this, &KeywordEntryDlg::removeSelected);
    }
    connect(removeAllButton, &QPushButton::clicked, this, &KeywordEntryDlg::emptyKeywords);
    connect(poolButton, &QPushButton::clicked, this, &KeywordEntryDlg::removeFromPool);
    connect(pickerButton, &QPushButton::clicked, this, &KeywordEntryDlg::showPicker);
    connect(okButton, &QPushButton::clicked, this, [this] { onOK(); });
}

QGridLayout* KeywordEntryDlg::layOut() {
    auto* line = new QHBoxLayout;
    line->addWidget(keywordEdit);
    line->addWidget(symbolEdit);
    line->addWidget(pickerButton);
    auto* lists = new QVBoxLayout;
    lists->addWidget(poolList);
    lists->addWidget(candidateList);
    auto* buttons = new QVBoxLayout;
    buttons->addStretch();
    buttons->addWidget(addButton);
    if (excludeButton != nullptr)
        buttons->addWidget(excludeButton);
    buttons->addWidget(removeButton);
    buttons->addSpacing(2 * fontMetrics().height() / 3);
    buttons->addWidget(removeAllButton);
    buttons->addStretch();
    // The tab without the button keeps its room, so that nothing moves.
    QSizePolicy keepRoom = poolButton->sizePolicy();
    keepRoom.setRetainSizeWhenHidden(true);
    poolButton->setSizePolicy(keepRoom);

    auto* grid = new QGridLayout;
    grid->addWidget(tabs, 0, 0);
    grid->addLayout(line, 1, 0);
    grid->addLayout(lists, 2, 0);
    grid->addWidget(poolButton, 3, 0, Qt::AlignLeft);
    grid->addLayout(buttons, 1, 1, 2, 1);
    grid->addWidget(addCaption(this, search_ids::keywordsCaption, langText(search_keys::keywords)), 0, 2,
                    Qt::AlignLeft | Qt::AlignVCenter);
    auto* chosen = new QVBoxLayout;
    chosen->addWidget(keywordList, 2);
    if (hasQueries) {
        chosen->addWidget(excludedCaption);
        chosen->addWidget(excludedList, 1);
    }
    grid->addLayout(chosen, 1, 2, 3, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(2, 1);
    return grid;
}

void KeywordEntryDlg::loadPickerBitmaps() {
    const int side = keywordEdit->sizeHint().height();
    const QPalette colours = palette();
    const QColor text = colours.color(QPalette::Active, QPalette::ButtonText);
    QColor hover = colours.color(QPalette::Active, QPalette::Highlight);
    const QPixmap normal = pickerPicture(side, devicePixelRatioF(), text, Qt::transparent);
    const QPixmap pressed = pickerPicture(side, devicePixelRatioF(),
                                          colours.color(QPalette::Active, QPalette::HighlightedText), hover);
    hover.setAlpha(70);
    pickerButton->loadBitmaps(normal, pressed, pickerPicture(side, devicePixelRatioF(), text, hover), normal);
    pickerButton->sizeToContent();
}

void KeywordEntryDlg::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && pickerButton != nullptr)
        loadPickerBitmaps();
}

}  // namespace wirepane
