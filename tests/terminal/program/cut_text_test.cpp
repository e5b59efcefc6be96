// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// In no size of type and in no language is a text cut that a reader needs, and every window fits a small
// screen. Run again at other scale factors of the screen.
#include "host/controls/my_rich_edit.h"
#include "host/controls/row_look.h"
#include "terminal/frame/status_line.h"
#include "tests/support/painted_texts.h"
#include "tests/terminal/program/every_window.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMetaProperty>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

constexpr QSize screen(1366, 768);
constexpr QChar dots = u'\u2026';

// The area in which the widget is scrolled to and fro, or whose contents it paints; null: none.
const QAbstractScrollArea* scrollAreaOf(const QWidget& widget) {
    for (const QWidget* at = &widget; at != nullptr && !at->isWindow(); at = at->parentWidget()) {
        const auto* area = qobject_cast<const QAbstractScrollArea*>(at->parentWidget());
        if (area != nullptr && area->viewport() == at)
            return area;
    }
    return nullptr;
}

// Whether the widget has the text with its dots, and has not put them in place of what it left out.
bool hasText(const QWidget& widget, const QString& text) {
    const auto isIn = [&text](QString whole) { return whole.remove(u'&').contains(text); };
    const QMetaObject& type = *widget.metaObject();
    for (int i = 0; i < type.propertyCount(); ++i) {
        if (isIn(type.property(i).read(&widget).toString()))
            return true;
    }
    const auto* tabs = qobject_cast<const QTabBar*>(&widget);
    for (int tab = 0; tabs != nullptr && tab < tabs->count(); ++tab) {
        if (isIn(tabs->tabText(tab)))
            return true;
    }
    return false;
}

class CutTextTest : public EveryWindow {
protected:
    void complain(const QWidget& widget, const QString& what, const QString& text) {
        ADD_FAILURE() << qPrintable(session->language()) << ", " << session->settings().fontSize()
                      << " points, " << widget.devicePixelRatioF() << ": " << qPrintable(what) << " in "
                      << widget.metaObject()->className() << " " << windowId(&widget) << " of "
                      << widget.window()->metaObject()->className() << ": " << qPrintable(text);
    }

    // Titles, and names beside quotes, may end in dots.
    void checkCells(const CSuperSheetWnd& sheet) {
        const QAbstractItemModel& cells = *sheet.model();
        const QFontMetricsF metrics(sheet.font());
        const int last = std::min(sheet.firstVisibleRow() + sheet.rowsPerPage(), sheet.rowCount());
        for (int column = 0; column < cells.columnCount(); ++column) {
            const int gutter = column == 0 ? sheet.look().gutter : 0;
            if (sheet.colWidth(column) == 0 || column == mayBeCut(sheet))
                continue;
            for (int row = sheet.firstVisibleRow(); row < last; ++row) {
                const QString text = cells.data(cells.index(row, column)).toString();
                ++texts;
                if (metrics.horizontalAdvance(text) > sheet.colWidth(column) - gutter + 1)
                    complain(sheet, u"cut at column %1"_s.arg(column), text);
            }
        }
    }
    static int mayBeCut(const CSuperSheetWnd& sheet) {
        const int title = sheet.column(u"title"_s);
        return title >= 0 ? title : 1;
    }

    // Whatever is typed has room by scrolling; that of a box with choices, and what an empty line asks for,
    // has it from the start.
    void checkLine(QLineEdit& line) {
        const QString typed = line.text();
        if (typed.isEmpty() || qobject_cast<const QComboBox*>(line.parentWidget()) != nullptr) {
            checkTexts(line);
            return;
        }
        const QSignalBlocker quiet(line);
        line.clear();
        checkTexts(line);
        line.setText(typed);
    }
    void checkWidget(QWidget& widget) {
        if (auto* line = qobject_cast<QLineEdit*>(&widget))
            checkLine(*line);
        else
            checkTexts(widget);
    }
    void checkTexts(QWidget& widget) {
        const QAbstractScrollArea* area = scrollAreaOf(widget);
        const bool sideways = area != nullptr && area->horizontalScrollBar()->maximum() > 0;
        const qreal ratio = widget.devicePixelRatioF();
        const QRectF seen(widget.visibleRegion().boundingRect());
        if (area != nullptr && seen.isEmpty())
            return;  // scrolled out of sight
        const QRectF inSight(seen.topLeft() * ratio, seen.size() * ratio);
        for (const PaintedText& painted : paintedTexts(widget)) {
            ++texts;
            // Rows hold texts of any length, as titles are.
            const bool isRow = qobject_cast<const QAbstractItemView*>(area) != nullptr &&
                               qobject_cast<const QHeaderView*>(area) == nullptr;
            if (!isRow && painted.text.contains(dots) && !hasText(widget, painted.text))
                complain(widget, u"dots"_s, painted.text);
            const QRectF room = (painted.room & inSight).adjusted(-ratio, -ratio, ratio, ratio);
            const bool wide =
                !sideways && (painted.place.left() < room.left() || painted.place.right() > room.right());
            const bool high = area == nullptr &&
                              (painted.place.top() < room.top() || painted.place.bottom() > room.bottom());
            if (wide || high)
                complain(widget, wide ? u"cut at a side"_s : u"cut above or below"_s, painted.text);
        }
    }

    void look(QWidget& window) override {
        QCoreApplication::processEvents();
        // A timer may just have set a text: as ever, windows are laid out before they are painted.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        ++windows;
        if (window.isWindow() && (window.width() > screen.width() || window.height() > screen.height()))
            complain(window, u"too large"_s, u"%1 x %2"_s.arg(window.width()).arg(window.height()));
        checkWidget(window);
        for (auto* child : window.findChildren<QWidget*>()) {
            if (!child->isVisible() || child->window() != &window)
                continue;
            if (const auto* sheet = qobject_cast<const CSuperSheetWnd*>(child))
                checkCells(*sheet);
            else if (qobject_cast<const CSuperSheetWnd*>(child->parentWidget()) == nullptr ||
                     qobject_cast<const QHeaderView*>(child) != nullptr)
                checkWidget(*child);
        }
    }
    void lookAtMenu(const QList<QAction*>&, const QString&) override {}

    int windows = 0;
    int texts = 0;
};

TEST_F(CutTextTest, NothingIsCutAndEveryWindowFits) {
    ASSERT_EQ(session->frame().screen()->size(), screen) << "this is a test for a screen of that size";
    session->frame().resize(screen);
    for (const QString& code : Languages::codes()) {
        ASSERT_TRUE(session->setLanguage(code));
        for (const int points : {9, 14, 20}) {
            session->setFontSize(points);
            lookAtAll();
        }
        session->frame().resize(screen * 4 / 5);
        look(*session->frame().findChild<StatusLine*>());
        session->frame().resize(screen);
    }
    EXPECT_GT(windows, 200);
    EXPECT_GT(texts, 1000);
}

}  // namespace

}  // namespace wirepane
