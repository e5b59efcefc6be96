// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/controls/window_id.h"
#include "tests/support/answering.h"
#include "tests/support/fake_back_end.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace wirepane {

// A search dialog in front of the user, worked with mouse and keys; its controls are known by their numbers.
class DialogTest : public testing::Test {
protected:
    void show(QDialog& dialog) {
        window = &dialog;
        result = -1;
        QObject::connect(window, &QDialog::finished, window, [this](int end) { result = end; });
        window->setModal(true);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        expectRoomForEach();
    }
    // What is to be seen stands inside the window, and beside all else; columns fill their table, and
    // captions show texts as they stand.
    void expectRoomForEach() const {
        QRegion taken;
        for (const QWidget* part : window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (!part->isVisible() || part->isWindow())
                continue;
            EXPECT_TRUE(window->rect().contains(part->geometry()) && !taken.intersects(part->geometry()))
                << part->metaObject()->className() << ' ' << windowId(part);
            taken += part->geometry();
            const auto* caption = qobject_cast<const QLabel*>(part);
            EXPECT_TRUE(caption == nullptr || caption->textFormat() == Qt::PlainText);
            const auto* table = qobject_cast<const QTableWidget*>(part);
            EXPECT_TRUE(table == nullptr ||
                        table->horizontalHeader()->length() >= table->viewport()->width());
        }
    }

    template <class Control>
    Control& at(int id) const {
        auto* control = qobject_cast<Control*>(dlgItem(window, id));
        EXPECT_NE(control, nullptr) << id;
        return *control;
    }
    void type(int id, const QString& text) const { QTest::keyClicks(&at<QLineEdit>(id), text); }
    void press(int id, Qt::Key key) const { QTest::keyClick(dlgItem(window, id), key); }
    void click(int id) const { QTest::mouseClick(dlgItem(window, id), Qt::LeftButton); }
    // Near the right edge of the row's first cell: beside a check box.
    void clickRow(int id, int row, bool twice = false, Qt::MouseButton button = Qt::LeftButton) const {
        auto& view = at<QAbstractItemView>(id);
        const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
        QTest::mouseClick(view.viewport(), button, {}, place);
        if (twice)
            QTest::mouseDClick(view.viewport(), button, {}, place);
    }
    // Does `work`, which opens a window over the dialog, and `answer`s that window.
    template <class Window>
    void answer(const std::function<void(Window&)>& reply, const std::function<void()>& work) const {
        answering<Window>(work, reply);
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeModalWidget() == window; }));
        EXPECT_TRUE(QTest::qWaitForWindowActive(window)) << "it gets the keyboard back";
    }
    void answerBox(const QString& text, QMessageBox::StandardButton button,
                   const std::function<void()>& work) const {
        answer<QMessageBox>(
            [&](QMessageBox& box) {
                EXPECT_EQ(box.text(), text);
                EXPECT_EQ(box.windowTitle(), QString());
                box.button(button)->click();
            },
            work);
    }

    QStringList texts(int id) const {
        QStringList shown;
        for (int row = 0; row < at<QListWidget>(id).count(); ++row)
            shown.append(at<QListWidget>(id).item(row)->text());
        return shown;
    }
    QStringList selected(int id) const {
        QStringList chosen;
        for (int row = 0; row < at<QListWidget>(id).count(); ++row) {
            if (at<QListWidget>(id).item(row)->isSelected())
                chosen.append(at<QListWidget>(id).item(row)->text());
        }
        return chosen;
    }
    // The cells of a table, joined by "|".
    QStringList rows(int id) const {
        QStringList shown;
        const QAbstractItemModel& model = *at<QAbstractItemView>(id).model();
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column)
                cells.append(model.index(row, column).data().toString());
            shown.append(cells.join(u'|'));
        }
        return shown;
    }
    QList<int> ticked(int id) const {
        QList<int> found;
        const QAbstractItemModel& model = *at<QAbstractItemView>(id).model();
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked)
                found.append(row);
        }
        return found;
    }
    int focus() const {
        return QApplication::focusWidget() != nullptr ? windowId(QApplication::focusWidget()) : 0;
    }
    int defaultButton() const {
        for (const auto* button : window->findChildren<QPushButton*>()) {
            if (button->isDefault())
                return windowId(button);
        }
        return 0;
    }

    FakeBackEnd backEnd;
    QDialog* window = nullptr;
    int result = -1;
};

}  // namespace wirepane
