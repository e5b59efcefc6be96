// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/keys_window.h"

#include "terminal/frame/window_room.h"
#include "terminal/translations/terminal_text.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::size_t mostColumns = 3;
constexpr int betweenColumns = 32;

struct KeyRow {
    QString keys;  // empty: what stands above those that follow
    QString does;
};

// Without the letter for Alt, and the brackets in which it stands where the text has no such letter.
QString plainText(QString text) {
    static const QRegularExpression bracketed(u"\\(&.\\)"_s);
    text.remove(bracketed);
    text.remove(u'…');
    return text.remove(u'&');
}

QString shownKeys(const QList<QKeySequence>& keys) {
    QStringList all;
    for (const QKeySequence& key : keys)
        all.append(key.toString(QKeySequence::NativeText));
    return all.join(u", "_s);
}

void addMenu(std::vector<KeyRow>& rows, const QMenu& menu) {
    const QList<QAction*> actions = menu.actions();
    for (const QAction* action : actions) {
        if (action->menu() != nullptr) {
            addMenu(rows, *action->menu());
            continue;
        }
        // What the view itself has the shortcut of tells it behind a tab.
        const QString told = action->text().section(u'\t', 1);
        const QString keys = told.isEmpty() ? shownKeys(action->shortcuts()) : told;
        if (!keys.isEmpty())
            rows.push_back({keys, plainText(action->text().section(u'\t', 0, 0))});
    }
}

std::vector<KeyRow> rowsOf(const QMenuBar& menus, const QWidget* view, const QString& title) {
    std::vector<KeyRow> rows;
    const QList<QAction*> titles = menus.actions();
    for (const QAction* entry : titles) {
        if (entry->menu() == nullptr)
            continue;
        rows.push_back({{}, plainText(entry->text())});
        const std::size_t before = rows.size();
        addMenu(rows, *entry->menu());
        if (rows.size() == before)
            rows.pop_back();
    }
    if (view == nullptr)
        return rows;
    rows.push_back({{}, title});
    const auto shortcuts = view->findChildren<QShortcut*>();
    for (const QShortcut* shortcut : shortcuts) {
        const QString keys = shownKeys({shortcut->key()});
        const bool inMenu =
            std::any_of(rows.begin(), rows.end(), [&keys](const KeyRow& row) { return row.keys == keys; });
        if (!shortcut->whatsThis().isEmpty() && !inMenu)
            rows.push_back({keys, plainText(shortcut->whatsThis())});
    }
    return rows;
}

QLabel* label(const QString& text, bool strong) {
    auto* made = new QLabel(text);
    made->setTextFormat(Qt::PlainText);
    QFont font = made->font();
    font.setBold(strong);
    made->setFont(font);
    return made;
}

std::unique_ptr<QWidget> pageOf(const std::vector<KeyRow>& rows, std::size_t columns) {
    // Headings that go over to the next column leave a row free for each.
    const std::size_t perColumn = (rows.size() + 2 * (columns - 1)) / columns;
    auto made = std::make_unique<QWidget>();
    auto* page = new QHBoxLayout(made.get());
    page->setSpacing(betweenColumns);
    page->setContentsMargins(24, 16, 24, 16);
    for (std::size_t first = 0; first < rows.size();) {
        std::size_t end = std::min(first + perColumn, rows.size());
        // What stands above keys does not end a column.
        while (end < rows.size() && end > first + 1 && rows[end - 1].keys.isEmpty())
            --end;
        auto* column = new QGridLayout;
        column->setHorizontalSpacing(16);
        column->setVerticalSpacing(4);
        int line = 0;
        for (std::size_t row = first; row < end; ++row, ++line) {
            if (rows[row].keys.isEmpty()) {
                column->addWidget(label(rows[row].does, true), line, 0, 1, 2);
                continue;
            }
            column->addWidget(label(rows[row].keys, false), line, 0);
            column->addWidget(label(rows[row].does, false), line, 1);
        }
        column->setRowStretch(line, 1);
        column->setColumnStretch(1, 1);
        page->addLayout(column);
        first = end;
    }
    return made;
}

}  // namespace

KeysWindow::KeysWindow(const QMenuBar& menus, const QWidget* view, const QString& viewTitle, QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(terminalText(TextId::KeysTitle));
    const std::vector<KeyRow> rows = rowsOf(menus, view, viewTitle);
    auto* area = new QScrollArea(this);
    const int bar = area->verticalScrollBar()->sizeHint().width();
    const QSize room = windowRoom(*this);
    std::size_t columns = mostColumns;
    std::unique_ptr<QWidget> page = pageOf(rows, columns);
    // What is too wide for the screen goes on below, where one can scroll.
    while (page->sizeHint().width() + bar > room.width() && columns > 1)
        page = pageOf(rows, --columns);
    const QSize wanted = page->sizeHint();
    area->setAccessibleName(windowTitle());
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(page.release());
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(area);
    resize((wanted.height() > room.height() ? wanted + QSize(bar, 0) : wanted).boundedTo(room));
}

}  // namespace wirepane
