// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "search/dialog_controls.h"

#include "host/contract/lang_text.h"
#include "host/controls/screen_room.h"
#include "host/controls/window_id.h"
#include "search/search_ids.h"
#include "search/search_keys.h"

#include <QButtonGroup>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace wirepane {

QPushButton* makeButton(QDialog* dialog, int id, const QString& text) {
    auto* button = new QPushButton(text, dialog);
    setWindowId(button, id);
    button->setAutoDefault(false);
    button->installEventFilter(dialog);
    return button;
}

QLabel* addCaption(QDialog* dialog, int id, const QString& text) {
    auto* caption = new QLabel(dialog);
    setWindowId(caption, id);
    caption->setTextFormat(Qt::PlainText);
    caption->setText(text);
    QFont bold = caption->font();
    bold.setBold(true);
    caption->setFont(bold);
    return caption;
}

QButtonGroup* addChoices(QDialog* dialog, QGridLayout& grid, int row, QLabel* caption,
                         std::span<const Choice> choices) {
    auto* group = new QButtonGroup(dialog);
    grid.addWidget(caption, row, 0);
    int column = 1;
    for (const Choice& choice : choices) {
        auto* button = new QRadioButton(langText(choice.key), dialog);
        setWindowId(button, choice.id);
        button->installEventFilter(dialog);
        grid.addWidget(button, row, column++);
        group->addButton(button, choice.value);
    }
    return group;
}

QLayout* addEnd(QDialog* dialog, QPushButton* ok) {
    QPushButton* cancel = makeButton(dialog, search_ids::cancel, langText(search_keys::cancel));
    QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    if (QWidget* last = cancel->previousInFocusChain(); last != ok)
        QWidget::setTabOrder(last, ok);
    QWidget::setTabOrder(ok, cancel);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(cancel);
    return row;
}

void fitToScreen(QDialog* dialog, int characters, std::vector<RowsInSight> lists) {
    constexpr int fewestRows = 1;
    const QSize room =
        withinScreen(*dialog, {dialog->fontMetrics().averageCharWidth() * characters, QWIDGETSIZE_MAX});
    const auto mostRows = [](const RowsInSight& a, const RowsInSight& b) { return a.rows < b.rows; };
    if (dialog->minimumSizeHint().height() > room.height())
        dialog->layout()->setSpacing(dialog->fontMetrics().height() / 4);
    while (dialog->minimumSizeHint().height() > room.height()) {
        const auto longest = std::max_element(lists.begin(), lists.end(), mostRows);
        if (longest == lists.end() || longest->rows <= fewestRows)
            break;
        --longest->rows;
        longest->list->setMinimumHeight(longest->list->minimumHeight() - longest->rowHeight);
    }
    dialog->resize(room.width(), std::min(dialog->sizeHint().height(), room.height()));
}

int runOver(QWidget* below, QDialog* child) {
    const QPointer<QWidget> alive(below);
    const int result = child->exec();
    if (below == nullptr)
        return result;
    if (alive.isNull())
        return QDialog::Rejected;
    // Not every window system gives the keyboard back by itself.
    below->activateWindow();
    return result;
}

int runModally(QDialog* dialog) {
    return runOver(dialog->parentWidget(), dialog) == QDialog::Accepted ? search_ids::ok : search_ids::cancel;
}

namespace {

QMessageBox* boxOver(QWidget* below, QMessageBox::Icon icon, const QString& text,
                     QMessageBox::StandardButtons buttons) {
    auto* box = new QMessageBox(icon, {}, text, buttons, below);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    return box;
}

}  // namespace

bool askYesNo(QWidget* below, const QString& question) {
    QMessageBox* box = boxOver(below, QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No);
    return runOver(below, box) == QMessageBox::Yes;
}

void tellError(QWidget* below, const QString& text) {
    runOver(below, boxOver(below, QMessageBox::Warning, text, QMessageBox::Ok));
}

}  // namespace wirepane
