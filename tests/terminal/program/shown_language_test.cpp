// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What windows, menus and tips show in Chinese is Chinese, and of its kind.
#include "host/contract/fixed_services.h"
#include "host/controls/my_rich_edit.h"
#include "terminal/frame/symbol_box.h"
#include "terminal/session/category_display.h"
#include "tests/support/chinese_text.h"
#include "tests/terminal/program/every_window.h"

#include <QComboBox>
#include <QFileDialog>
#include <QMetaProperty>
#include <QTextBrowser>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

class ShownLanguageTest : public EveryWindow {
protected:
    // Names that come with the news.
    void learnNews() {
        for (const CategoryName& category : categoryNames(session->backEnd()))
            news.insert(category.name);
        for (const unsigned char market : {stockExchangeService, emergingBoardService, hongKongService}) {
            std::vector<QString> codes;
            std::vector<QString> names;
            SymbolTable& symbols = session->backEnd().symbols();
            symbols.GetSymbolsByService(market, codes, names, 0);
            for (const QString& code : codes) {
                const SymbolItem& symbol = *symbols.find(market, code);
                for (const QString& name : {symbol.name, symbol.englishName})
                    news.unite({name, code + u' ' + name});
            }
        }
        ASSERT_GT(news.size(), 20);
    }

    void check(const QString& text, const QObject& of, const char* where) {
        if (news.contains(text) || text.isEmpty())
            return;
        ++texts;
        const QString read =
            Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
        const QStringList strange = strangeParts(read, session->language());
        EXPECT_TRUE(strange.isEmpty())
            << session->language().toStdString() << ", " << where << " of " << of.metaObject()->className()
            << ": " << text.toStdString() << " (" << strange.join(u" | "_s).toStdString() << ")";
    }

    // Every text among the properties, but those that nobody sees.
    void checkProperties(const QObject& of) {
        static const QSet<QByteArray> unseen{
            "objectName", "styleSheet",     "displayFormat",  "inputMask",     "html",          "markdown",
            "windowRole", "windowIconText", "windowFilePath", "defaultSuffix", "documentTitle", "iconText"};
        const QMetaObject& type = *of.metaObject();
        for (int i = 0; i < type.propertyCount(); ++i) {
            const QMetaProperty property = type.property(i);
            if (property.typeId() == QMetaType::QString && !unseen.contains(property.name()))
                check(property.read(&of).toString(), of, property.name());
        }
    }
    void checkModel(const QAbstractItemModel& model, const QObject& of) {
        for (int column = 0; column < model.columnCount(); ++column)
            check(model.headerData(column, Qt::Horizontal).toString(), of, "a heading");
    }
    void checkWidget(const QWidget& widget) {
        // The texts in which news is read, and where symbols are chosen.
        if (qobject_cast<const MyRichEdit*>(&widget) != nullptr ||
            qobject_cast<const QTextBrowser*>(&widget) != nullptr || windowId(&widget) == ids::symbolCombo)
            return;
        // Where a file is named after its news.
        if (qobject_cast<const QLineEdit*>(&widget) != nullptr &&
            qobject_cast<const QFileDialog*>(widget.window()) != nullptr)
            return;
        checkProperties(widget);
        for (const QAction* action : widget.actions())
            checkProperties(*action);
        if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
            for (int i = 0; i < combo->count(); ++i)
                check(combo->itemText(i), widget, "an entry");
        }
        if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
            for (int i = 0; i < tabs->count(); ++i) {
                check(tabs->tabText(i), widget, "a tab");
                check(tabs->tabToolTip(i), widget, "the tip of a tab");
            }
        }
        if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
            view != nullptr && view->model())
            checkModel(*view->model(), widget);
        if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
            const std::unique_ptr<QMenu> menu(const_cast<QLineEdit*>(line)->createStandardContextMenu());
            lookAtMenu(menu->actions(), u"a line to type in"_s);
        }
    }

    void look(QWidget& window) override {
        checkWidget(window);
        for (const auto* child : window.findChildren<QWidget*>()) {
            if (child->isVisibleTo(&window) && child->window() == &window)
                checkWidget(*child);
        }
    }
    void lookAtMenu(const QList<QAction*>& actions, const QString& where) override {
        for (const QAction* action : actions) {
            checkProperties(*action);
            if (action->menu() != nullptr)
                lookAtMenu(action->menu()->actions(), where);
        }
    }

    void visitStandardDialogs() {
        for (const FrameCommand id : {FrameCommand::ImportNews, FrameCommand::Print,
                                      FrameCommand::PrintPreview, FrameCommand::SaveAs})
            inDialog([this, id] { command(id); });
    }
    void visitOthers() {
        command(FrameCommand::Guide);
        command(FrameCommand::BreakingNews);
        session->frame().symbolBox().begin();
        for (auto* window : QApplication::topLevelWidgets()) {
            if (window->isVisible())
                look(*window);
        }
    }

    QSet<QString> news{QString()};
    int texts = 0;
};

TEST_F(ShownLanguageTest, IsThatOfTheTerminal) {
    learnNews();
    for (const QString& code : {u"zh-TW"_s, u"zh-CN"_s}) {
        ASSERT_TRUE(session->setLanguage(code));
        lookAtAll();
        visitStandardDialogs();
        visitOthers();
    }
    EXPECT_GT(texts, 1000);
}

}  // namespace

}  // namespace wirepane
