// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/registered_message.h"
#include "host/controls/window_id.h"
#include "host/views/news_module.h"
#include "host/views/quote_base_view.h"
#include "tests/support/fake_back_end.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace wirepane {

namespace {

class View : public TRVQuoteBaseView {
public:
    std::vector<int> fired;
    std::vector<quintptr> heard;

protected:
    void OnTimer(int id) override {
        fired.push_back(id);
        if (id == 1)
            endTimer(1);
    }
    bool onRegisteredMessage(const RegisteredMessageEvent& message) override {
        if (message.type() != registerMessage(QStringLiteral("WIREPANE_TEST")))
            return TRVQuoteBaseView::onRegisteredMessage(message);
        heard = {message.firstParameter, message.secondParameter};
        return true;
    }
};

}  // namespace

TEST(BaseView, TimersGoByNumber) {
    View view;
    view.setTimer(1, 5);
    view.setTimer(2, 5);
    view.setTimer(2, 10'000);
    view.endTimer(99);
    EXPECT_EQ(view.runningTimers(), (std::vector<int>{1, 2}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !view.fired.empty(); }));
    QTest::qWait(30);
    EXPECT_EQ(view.fired, std::vector<int>{1})
        << "killed while it was told; the other runs with its new period";
    EXPECT_EQ(view.runningTimers(), std::vector<int>{2});
}

TEST(BaseView, MessagesGoByName) {
    View view;
    EXPECT_EQ(registerMessage(QStringLiteral("A")), registerMessage(QStringLiteral("A")));
    EXPECT_NE(registerMessage(QStringLiteral("A")), registerMessage(QStringLiteral("B")));
    sendRegisteredMessage(&view, registerMessage(QStringLiteral("A")), 1, 2);
    EXPECT_TRUE(view.heard.empty());
    sendRegisteredMessage(&view, registerMessage(QStringLiteral("WIREPANE_TEST")), 1, 2);
    EXPECT_EQ(view.heard, (std::vector<quintptr>{1, 2}));
    sendRegisteredMessage(nullptr, registerMessage(QStringLiteral("A")), 1);
}

TEST(BaseView, ControlsAreFoundByNumberInTheirOwnWindow) {
    QWidget window;
    auto* child = new QWidget(&window);
    auto* grandchild = new QWidget(child);
    setWindowId(child, 3010);
    setWindowId(grandchild, 3011);
    EXPECT_EQ(dlgItem(&window, 3010), child);
    EXPECT_EQ(dlgItem(&window, 3011), nullptr);
    EXPECT_EQ(dlgItem(child, 3011), grandchild);
    EXPECT_EQ(windowId(&window), 0);
}

TEST(BaseView, LeavesTheBackEndWhenItGoes) {
    FakeBackEnd backEnd;
    {
        View view;
        view.OnInitialUpdate();
        C_RegisterSymbol(&view, {{16, {}}}, {});
        EXPECT_EQ(backEnd.registrations[&view].size(), 1U);
    }
    EXPECT_TRUE(backEnd.registrations.empty());
}

TEST(NewsModuleLoading, SaysWhyItFailed) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("no_module.so"));
    QString error;
    EXPECT_EQ(loadNewsModule(path, error), nullptr);
    EXPECT_TRUE(error.contains(path)) << error.toStdString();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a library");
    file.close();
    error.clear();
    EXPECT_EQ(loadNewsModule(path, error), nullptr);
    EXPECT_TRUE(error.contains(path)) << error.toStdString();
}

}  // namespace wirepane
