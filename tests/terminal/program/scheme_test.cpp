// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/window_id.h"
#include "host/views/news_control_ids.h"
#include "tests/support/painted_texts.h"
#include "tests/terminal/program/frame_fixture.h"

#include <QLineEdit>

#include <map>

using namespace Qt::StringLiterals;
using namespace wirepane::test;

namespace wirepane {

namespace {

class SchemeTest : public FrameFixture {
protected:
    SchemeTest() : FrameFixture(1200) {}

    std::map<const QWidget*, QRect> places() {
        QCoreApplication::processEvents();
        std::map<const QWidget*, QRect> found;
        for (const QWidget* widget : session->frame().findChildren<QWidget*>()) {
            if (widget->isVisible())
                found[widget] = widget->geometry();
        }
        return found;
    }
};

TEST_F(SchemeTest, SchemesDifferInColourAloneAndControlsKeepTheirEdges) {
    session->showStatus();
    const auto light = places();
    const QImage before = session->frame().grab().toImage();
    for (const ColourScheme scheme : {ColourScheme::Dark, ColourScheme::HighContrast}) {
        session->setScheme(scheme);
        EXPECT_EQ(places(), light) << schemeName(scheme).toStdString();
        EXPECT_NE(session->frame().grab().toImage(), before);
    }
    QWidget* view = session->workspace().active()->view;
    const auto edge = [view](int id) { return dlgItem(view, id)->geometry().right(); };
    EXPECT_EQ(edge(ids::printButton), edge(ids::showTypeButton));
    EXPECT_EQ(dlgItem(view, ids::serviceButton)->x(), 8);
}

// Chinese has higher lines than most Latin fonts, which must not push what is typed out of the middle.
TEST_F(SchemeTest, TypedTextStandsAsLowBesideChinese) {
    QLineEdit line;
    line.resize(300, line.sizeHint().height() + 8);
    const auto lowestDigit = [&line](const QString& text) {
        line.setText(text);
        qreal low = 0;
        for (const PaintedText& painted : paintedTexts(line)) {
            if (painted.text.startsWith(u'6'))
                low = std::max(low, painted.place.bottom());
        }
        return low;
    };
    const qreal alone = lowestDigit(u"6214"_s);
    ASSERT_GT(alone, 0);
    EXPECT_NEAR(lowestDigit(u"6214 \u5e02\u5834"_s), alone, 1.0);
}

}  // namespace

}  // namespace wirepane
