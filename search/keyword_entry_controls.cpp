// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The controls of keyword entry: what there is, where it stands, what it sends.
#include "host/contract/lang_text.h"
#include "host/controls/hover_button.h"
#include "host/controls/roomy_rows.h"
#include "host/controls/window_id.h"
#include "host/controls/xtp_tab_control.h"
#include "search/dialog_controls.h"
#include "search/keyword_entry_dlg.h"
#include "search/search_ids.h"
#include "search/search_keys.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>

namespace {

template <class Control>
Control* add(QWidget* dialog, int id, const QString& name = {}) {
    auto* control = new Control(dialog);
    SetWindowId(control, id);
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

QGridLayout* KeywordEntryDlg::pCreateEntry() {
    vCreateControls();
    vLoadPickerBitmaps();
    vConnect();
    vFillPool({});
    vSelectTab(0);
    return pLayOut();
}

QLayout* KeywordEntryDlg::pCreateEnd() {
    return AddEnd(this, okButton);
}

void KeywordEntryDlg::vCreateControls() {
    tabs = add<CXTPTabControl>(this, search_ids::tabs);
    tabs->iInsertTab(LangText(search_keys::keywordTab), 0);
    tabs->iInsertTab(LangText(search_keys::symbolTab), 1);
    keywordEdit = add<QLineEdit>(this, search_ids::keywordEdit, LangText(search_keys::keywordHint));
    keywordEdit->setPlaceholderText(LangText(search_keys::keywordHint));
    poolList = addList(this, search_ids::pool, LangText(search_keys::keywordTab));
    poolButton = AddButton(this, search_ids::removeFromPool, LangText(search_keys::removeFromPool));
    symbolEdit = add<QLineEdit>(this, search_ids::symbolEdit, LangText(search_keys::symbolHint));
    symbolEdit->setPlaceholderText(LangText(search_keys::symbolHint));
    pickerButton = add<CHoverButton>(this, search_ids::picker, LangText(search_keys::picker));
    pickerButton->setToolTip(LangText(search_keys::picker).toHtmlEscaped());
    pickerButton->setAutoDefault(false);
    candidateList = addList(this, search_ids::candidates, LangText(search_keys::symbolTab));
    addButton = AddButton(this, search_ids::add, LangText(search_keys::add));
    removeButton = AddButton(this, search_ids::remove, LangText(search_keys::remove));
    removeAllButton = AddButton(this, removeAll.id, LangText(search_keys::removeAll));
    keywordList = addList(this, search_ids::keywords, LangText(search_keys::keywords));
    addTypedButton = AddButton(this, search_ids::addTyped, {});
    addTypedButton->setFocusPolicy(Qt::NoFocus);
    addTypedButton->hide();
    okButton = AddButton(this, search_ids::ok, LangText(search_keys::ok));
    for (QWidget* control : {static_cast<QWidget*>(keywordEdit), static_cast<QWidget*>(poolList),
                             static_cast<QWidget*>(symbolEdit), static_cast<QWidget*>(pickerButton),
                             static_cast<QWidget*>(candidateList), static_cast<QWidget*>(keywordList)})
        control->installEventFilter(this);
}

void KeywordEntryDlg::vConnect() {
    connect(tabs, &QTabBar::currentChanged, this, &KeywordEntryDlg::vSelectTab);
    auto* nextTab = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Tab), this);
    connect(nextTab, &QShortcut::activated, this, [this] { tabs->setCurrentIndex(1 - currentTab); });
    connect(keywordEdit, &QLineEdit::textEdited, this, &KeywordEntryDlg::vFillPool);
    connect(symbolEdit, &QLineEdit::textEdited, this, &KeywordEntryDlg::vSymbolTyped);
    connect(addTypedButton, &QPushButton::clicked, this, &KeywordEntryDlg::vAddTypedKeyword);
    connect(addButton, &QPushButton::clicked, this, &KeywordEntryDlg::vAddSelected);
    connect(poolList, &QListWidget::itemDoubleClicked, this, &KeywordEntryDlg::vAddSelected);
    connect(candidateList, &QListWidget::itemDoubleClicked, this, &KeywordEntryDlg::vAddSelected);
    connect(removeButton, &QPushButton::clicked, this, &KeywordEntryDlg::vRemoveSelected);
    connect(keywordList, &QListWidget::itemDoubleClicked, this, &KeywordEntryDlg::vRemoveSelected);
    connect(removeAllButton, &QPushButton::clicked, this, &KeywordEntryDlg::vRemoveAll);
    connect(poolButton, &QPushButton::clicked, this, &KeywordEntryDlg::vRemoveFromPool);
    connect(pickerButton, &QPushButton::clicked, this, &KeywordEntryDlg::vShowPicker);
    connect(okButton, &QPushButton::clicked, this, [this] { OnOK(); });
}

QGridLayout* KeywordEntryDlg::pLayOut() {
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
    grid->addWidget(AddCaption(this, search_ids::keywordsCaption, LangText(search_keys::keywords)), 0, 2,
                    Qt::AlignLeft | Qt::AlignVCenter);
    grid->addWidget(keywordList, 1, 2, 3, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(2, 1);
    return grid;
}

void KeywordEntryDlg::vLoadPickerBitmaps() {
    const int side = keywordEdit->sizeHint().height();
    const QPalette colours = palette();
    const QColor text = colours.color(QPalette::Active, QPalette::ButtonText);
    QColor hover = colours.color(QPalette::Active, QPalette::Highlight);
    const QPixmap normal = pickerPicture(side, devicePixelRatioF(), text, Qt::transparent);
    const QPixmap pressed = pickerPicture(side, devicePixelRatioF(),
                                          colours.color(QPalette::Active, QPalette::HighlightedText), hover);
    hover.setAlpha(70);
    pickerButton->LoadBitmaps(normal, pressed, pickerPicture(side, devicePixelRatioF(), text, hover), normal);
    pickerButton->SizeToContent();
}

void KeywordEntryDlg::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && pickerButton != nullptr)
        vLoadPickerBitmaps();
}
