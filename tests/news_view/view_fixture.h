// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/list_index.h"
#include "host/contract/clock.h"
#include "host/controls/super_sheet_wnd.h"
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "news_view/trv_news_ctrl_view.h"
#include "tests/support/fake_back_end.h"
#include "tests/support/grid_cells.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <utility>

namespace wirepane {

// A terminal in small: one frame, one view over a fake back end, on the morning of 2 March 2026.
class NewsViewTest : public testing::Test {
protected:
    NewsViewTest() {
        host_clock::startAt(localTime(2026, 3, 2, 9, 30));
        backEnd.sysPath = folder.path();
        writeFile(QStringLiteral("NewsService.ini"), "[CONFIG]\nCatId=1,2\nSHORTNAME=Markets,Economy\n");
        for (const unsigned char service : backEnd.services)
            backEnd.categories[service] = {{QStringLiteral("1"), QStringLiteral("Markets")},
                                           {QStringLiteral("2"), QStringLiteral("Economy")}};
        backEnd.symbols[16] = {{QStringLiteral("#001"), QStringLiteral("Index")},
                               {QStringLiteral("2330"), QStringLiteral("Aster Chips")},
                               {QStringLiteral("6214"), QStringLiteral("Lantern Foods")}};
        backEnd.symbols[122] = {{QStringLiteral("4001"), QStringLiteral("Young Board")}};
        backEnd.symbols[22] = {{QStringLiteral("00700"), QStringLiteral("Harbour Holdings")}};
        backEnd.categories[52] = {{QStringLiteral("1"), QStringLiteral("Issue")}};
    }

    void writeFile(const QString& name, const QByteArray& bytes) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    // A news item of 2 March; its title tells its service and time.
    void addNews(unsigned char service, int hour, int minute, std::int32_t sequence,
                 std::int32_t category = 1, const QString& symbol = {}) {
        backEnd.add(service, localTime(2026, 3, 2, hour, minute), sequence,
                    QStringLiteral("s%1 %2:%3").arg(service).arg(hour).arg(minute, 2, 10, QLatin1Char('0')),
                    category, symbol);
    }

    // `prepare` has the view before it reads its settings.
    TRVNewsCtrlView& open(const QMap<QString, QVariant>& stored = {}, int newsType = 0,
                          const std::function<void(TRVNewsCtrlView&)>& prepare = {}) {
        settings.values = stored;
        frame.resize(1000, 700);
        view = std::make_unique<TRVNewsCtrlView>(&frame);
        view->resize(1000, 700);
        view->OnInitialUpdate();
        view->vSetNewsType(newsType);
        if (prepare)
            prepare(*view);
        view->InitialViewInfo(&settings, QStringLiteral("Layout"), 0, 0, {});
        frame.show();
        return *view;
    }

    // The same in the front and at rest, in a mode. What was asked until then is forgotten.
    void openActive(const QMap<QString, QVariant>& stored = {}, std::optional<int> mode = {}) {
        open(stored);
        frame.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&frame));
        if (mode)
            view->SwitchFunction(*mode);
        settle();
        backEnd.asked.clear();
    }
    // Until no refresh is on its way any more.
    void settle() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return view->runningTimers().empty(); }));
    }
    // What was asked of the back end since this was called last, as far as it has this in it.
    QStringList asked(const QString& kind) { return std::exchange(backEnd.asked, {}).filter(kind); }
    void quickSearch(const QString& text) {
        auto* edit = qobject_cast<QLineEdit*>(dlgItem(view.get(), ids::searchEdit));
        ASSERT_NE(edit, nullptr);
        edit->setText(text);
        QTest::keyClick(edit, Qt::Key_Return);
    }

    // A headline of 2 March as the back end pushes it.
    void push(unsigned char service, int hour, int minute, std::int32_t sequence,
              const QString& symbol = {}) {
        CHeadline headline;
        headline.service = service;
        headline.time = localTime(2026, 3, 2, hour, minute);
        headline.sequence = sequence;
        headline.title = QStringLiteral("pushed %1").arg(sequence);
        headline.categoryId = 1;
        view->RecvNewHeadLine(&headline, QStringLiteral("1"), symbol);
    }

    QVariant state(const QString& name) const { return view->state()[name]; }
    // The text of the tip, empty while none is shown.
    QString tip() const {
        const QVariantMap shown = state(QStringLiteral("tip")).toMap();
        return shown[QStringLiteral("visible")].toBool() ? shown[QStringLiteral("text")].toString()
                                                         : QString();
    }

    QStringList titles(int list) const {
        QStringList result;
        CSuperSheetWnd* sheet = view->sheetOf(list);
        for (int row = 0; sheet != nullptr && row < sheet->rowCount(); ++row)
            result.append(
                sheet->model()->index(row, sheet->column(QStringLiteral("title"))).data().toString());
        return result;
    }

    QList<int> tabModes() const {
        QList<int> modes;
        const QVariantList tabs = view->state()[QStringLiteral("tabs")].toList();
        for (const QVariant& tab : tabs)
            modes.append(tab.toMap()[QStringLiteral("mode")].toInt());
        return modes;
    }

    // As a user picks an entry of the drop-down.
    static void pick(QComboBox& combo, int entry) {
        combo.showPopup();
        combo.view()->setCurrentIndex(combo.model()->index(entry, 0));
        QTest::keyClick(combo.view(), Qt::Key_Return);
    }

    // The window comes to the front, the current grid gets the keyboard.
    void focusGrid() {
        frame.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&frame));
        view->pGetCurrSheetView()->setFocus();
    }

    // Runs the dialog of a button: `work` has it in front of the user and ends it.
    template <class Dialog>
    void runDialog(int button, const std::function<void(Dialog&)>& work) {
        bool shown = false;
        QTimer::singleShot(0, view.get(), [&] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            shown = dialog != nullptr;
            if (shown)
                work(*dialog);
        });
        view->onCommand(button);
        EXPECT_TRUE(shown);
    }
    static void press(const QWidget& dialog, int id) {
        qobject_cast<QAbstractButton*>(dlgItem(&dialog, id))->click();
    }

    bool isShown(int id) const {
        const QWidget* control = dlgItem(view.get(), id);
        return control != nullptr && !control->isHidden();
    }

    QTemporaryDir folder;
    FakeBackEnd backEnd;
    MemoryCfgIO settings;
    QWidget frame;
    std::unique_ptr<TRVNewsCtrlView> view;
};

}  // namespace wirepane
