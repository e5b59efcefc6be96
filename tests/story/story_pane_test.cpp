// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/cfg_io.h"
#include "host/contract/sync_info.h"
#include "host/controls/my_rich_edit.h"
#include "host/controls/quote_static_ex.h"
#include "host/controls/window_id.h"
#include "story/news_story_view.h"
#include "story/story_ids.h"
#include "story/story_setting.h"
#include "tests/story/entry_list.h"
#include "tests/support/fake_back_end.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int list = static_cast<int>(EntryList::number);

class Scheme : public CSyncInfo {
public:
    Scheme() { setSettingCFG(this); }
    QColor SYS_crGetOtherColor(const QString& name) override { return colours.value(name); }
    QFont SYS_fntGetViewFont() override { return font; }

    QHash<QString, QColor> colours;
    QFont font;
};

// A pane in a window, over a list of two headlines.
class StoryPaneTest : public testing::Test {
protected:
    StoryPaneTest() {
        backEnd.texts = {{u"IDS_NEWSCTRLVIEW_STRING_RECOVER"_s, u"Fetching"_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_PS"_s, u"End."_s},
                         {u"IDS_NEWSCTRLVIEW_STRING_WAIT_FOR_UPDATE"_s, u"<b>Wait</b>"_s}};
        owner.entries = {first, second};
        window.resize(420, 300);
        pane = new NewsStoryView(&window);
        pane->setGeometry(0, 0, 400, 240);
        other->setGeometry(0, 260, 400, 24);
        pane->vSetNewsParent(&owner);
        pane->OnInitialUpdate();
        pane->InitialViewInfo(&settings, u"Layout"_s, 0, 0, {});
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        other->setFocus();
    }

    void give(const CHeadlineTable& entry, const QString& title, const QString& story) {
        backEnd.add(entry.service, entry.time, entry.sequence, title);
        backEnd.addStory({entry.time, story, entry});
    }
    MyRichEdit* edit(int id) const { return static_cast<MyRichEdit*>(dlgItem(pane, id)); }
    QString title() const { return edit(story_ids::title)->literalText(); }
    QString story() const { return edit(story_ids::storyText)->literalText(); }
    QTextCursor selection() const { return edit(story_ids::storyText)->textCursor(); }
    CQuoteStaticEx* notice() const {
        return static_cast<CQuoteStaticEx*>(dlgItem(pane, story_ids::updateNotice));
    }

    const CHeadlineTable first{localTime(2026, 3, 2, 9, 30), 7, 1, 0, 0};
    const CHeadlineTable second{localTime(2026, 3, 2, 9, 0), 3, 2, 0, 0};
    FakeBackEnd backEnd;
    Scheme scheme;
    MemoryCfgIO settings;
    EntryList owner;
    QWidget window;
    QLineEdit* other = new QLineEdit(&window);
    NewsStoryView* pane = nullptr;
};

CSearch search(std::vector<QString> keywords, bool keywordSearch = true) {
    CSearch condition;
    condition.keywords = std::move(keywords);
    condition.keywordSearch = keywordSearch;
    return condition;
}

}  // namespace

TEST_F(StoryPaneTest, SetsStoriesUnderTheirHeadlines) {
    pane->setStorySetting({true});
    give(first, u"Rates  up"_s, u"One@@@@Two"_s);
    backEnd.storyAtHand = false;
    pane->vSetStoryData(list, 0);
    EXPECT_EQ(edit(story_ids::storyText)->toPlainText(),
              u"Rates up\nService 1  \u00B7  2026/03/02 09:30:00\nFetching"_s);
    const QRect place = edit(story_ids::storyText)->geometry();
    pane->vStoryUpdateNotify(nullptr);
    EXPECT_TRUE(notice()->isVisible());
    EXPECT_EQ(edit(story_ids::storyText)->geometry(), place) << "what is read stays where it is";
    backEnd.storyAtHand = true;
    pane->RespStory(first);
    EXPECT_TRUE(edit(story_ids::storyText)->toPlainText().endsWith(u"\nOne\nTwo \n\nEnd."_s));
    EXPECT_EQ(story(), u"2026/03/02 09:30:00 \r\nOne\r\nTwo \r\n\r\nEnd."_s) << "the text is as ever";
    EXPECT_TRUE(edit(story_ids::title)->isHidden());
    pane->OnClearStory();
    EXPECT_EQ(edit(story_ids::storyText)->toPlainText(), QString());
}

TEST(StorySetting, StepsSizesWithinBoundsAndFindsSymbolsOfLinks) {
    EXPECT_EQ(steppedStorySize(100, 1), 110);
    EXPECT_EQ(steppedStorySize(60, -1), 60);
    EXPECT_EQ(steppedStorySize(300, 1), 300);
    EXPECT_EQ(steppedStorySize(170, 0), 100);
    const TextLead lead = leadOf({u"H"_s, u"S"_s, {}, u"T"_s, {{{3, u"12:3"_s}, u"A B"_s}}});
    EXPECT_EQ(lead.particulars.size(), 5U);
    EXPECT_EQ(symbolOfLink(lead.particulars.back().target), (CSymbolInfo{3, u"12:3"_s}));
    for (const QString& link : {QString(), u"12"_s, u"x:1"_s, u"300:1"_s})
        EXPECT_FALSE(symbolOfLink(link)) << link.toStdString();
}

TEST_F(StoryPaneTest, DrawsTitlesAndStoriesAsTheyStand) {
    give(first, u"<b>Rates</b> &amp; yields"_s, u"<img src=x>@@@@a < b"_s);
    backEnd.storyAtHand = false;
    pane->vSetStoryData(list, 0);
    EXPECT_EQ(title(), u"2026/03/02 09:30:00 \r\n<b>Rates</b> &amp; yields"_s);
    EXPECT_EQ(story(), u"Fetching"_s);
    backEnd.storyAtHand = true;
    pane->RespStory(first);
    EXPECT_EQ(edit(story_ids::storyText)->toPlainText(),
              u"2026/03/02 09:30:00 \n<img src=x>\na < b \n\nEnd."_s);
    EXPECT_EQ(edit(story_ids::title)->toPlainText(), u"2026/03/02 09:30:00 \n<b>Rates</b> &amp; yields"_s);
    pane->RespStory(second);
    pane->RespHeadLine({second});
    EXPECT_EQ(story(), u"2026/03/02 09:30:00 \r\n<img src=x>\r\na < b \r\n\r\nEnd."_s);

    owner.entries.clear();
    pane->vShowData();
    EXPECT_EQ(title(), u"2026/03/02 09:30:00 \r\n<b>Rates</b> &amp; yields"_s)
        << "an empty list shows nothing";
    pane->OnClearStory();
    EXPECT_EQ(title() + story(), QString());
    owner.entries = {first};
    pane->RespHeadLine({first});
    pane->RespStory(first);
    EXPECT_EQ(title() + story(), QString());
    pane->vShowData();
    EXPECT_TRUE(title().endsWith(u"yields"_s)) << "a list of one headline shows it";
    const CHeadline pushed;
    pane->RecvNewHeadLine(&pushed, {}, {});
    EXPECT_EQ(pane->GetHeadLinePos(), 1) << "one lower";
}

TEST_F(StoryPaneTest, SelectsTheLastMatchOfTheKeywords) {
    give(first, u"Rates"_s, u"Rates 😀\u00A0rise@@@@RATES fall@@@@@@@@at last rates end"_s);
    const struct {
        const char* what;
        CSearch condition;
        QString selected;
        int start;
    } cases[] = {
        {"three times, over line breaks", search({u"rates"_s}), u"rates"_s, 55},
        {"beside characters of two units and no-break blanks", search({u"\u00A0RISE"_s}), u"\u00A0rise"_s,
         29},
        {"not found by keywords", search({u"rates"_s}, false), {}, 0},
    };
    for (const auto& c : cases) {
        pane->vSetStoryData(list, 0, c.condition);
        EXPECT_EQ(selection().selectedText(), c.selected) << c.what;
        EXPECT_EQ(selection().selectionStart(), c.start) << c.what;
        EXPECT_TRUE(edit(story_ids::storyText)->isReadOnly());
    }
    pane->vSetStoryData(list, 0, search({u"fall"_s}));
    pane->RespStory(first);
    EXPECT_EQ(selection().selectedText(), u"fall"_s) << "marked again in the answer";
    pane->vSetStoryData(list, 0);
    EXPECT_FALSE(selection().hasSelection()) << "the last condition is forgotten";
}

TEST_F(StoryPaneTest, TheMarkIsInSightWithoutTheKeyboard) {
    QString wire;
    for (int line = 0; line < 400; ++line)
        wire += u"A line of a long story that is wider than the pane and breaks more than once@@@@"_s;
    give(first, u"Long"_s, wire + u"The zebra@@@@"_s + wire);
    pane->vSetStoryData(list, 0, search({u"ZEBRA"_s}));
    EXPECT_EQ(selection().selectedText(), u"zebra"_s);
    EXPECT_TRUE(other->hasFocus());
    MyRichEdit* edit = this->edit(story_ids::storyText);
    EXPECT_TRUE(edit->viewport()->rect().contains(edit->cursorRect()));
    EXPECT_GT(edit->verticalScrollBar()->value(), 0);
    const QImage picture = edit->viewport()->grab().toImage();
    const QColor highlight = QApplication::palette().color(QPalette::Active, QPalette::Highlight);
    int marked = 0;
    for (int x = 0; x < picture.width(); ++x)
        marked += picture.pixelColor(x, edit->cursorRect().top() + 1) == highlight ? 1 : 0;
    EXPECT_GT(marked, 20);

    pane->vSetStoryData(list, 0);
    EXPECT_EQ(edit->verticalScrollBar()->value(), 0) << "a story is shown from its top";
}

TEST_F(StoryPaneTest, ThePartsShareThePane) {
    const int line = g_iGetFontHeight(pane->GetViewFont());
    const auto places = [this] {
        return QList<QRect>{edit(story_ids::title)->geometry(), edit(story_ids::storyText)->geometry()};
    };
    const QList<QRect> ordinary{QRect(10, 0, 380, 3 * line), QRect(10, 3 * line, 380, 240 - 3 * line)};
    EXPECT_EQ(places(), ordinary);
    EXPECT_TRUE(notice()->isHidden());

    pane->vStoryUpdateNotify(nullptr);
    EXPECT_EQ(notice()->text(), u"<b>Wait</b>"_s);
    EXPECT_EQ(notice()->textFormat(), Qt::PlainText);
    EXPECT_EQ(notice()->geometry(), QRect(0, 0, 400, line));
    EXPECT_EQ(places(), (QList<QRect>{ordinary[0].translated(0, line), ordinary[1].adjusted(0, line, 0, 0)}));
    give(first, u"Rates"_s, u"Body"_s);
    pane->RespStory(first);
    EXPECT_FALSE(notice()->isHidden()) << "the answer is for a headline that is not shown";
    const auto goes = [&](const char* when) {
        EXPECT_TRUE(notice()->isHidden() && notice()->text().isEmpty()) << when;
        EXPECT_EQ(places(), ordinary) << when;
        pane->vStoryUpdateNotify(&second);
        EXPECT_TRUE(notice()->isVisible());
    };
    pane->vSetStoryData(list, 0);
    goes("a show");
    pane->RespStory(first);
    goes("the story");
    pane->OnClearStory();
    goes("cleared");

    pane->vSetStoryData(list, 0);
    pane->HideHeadLine(1);
    EXPECT_EQ(places(), ordinary) << "not before the next layout";
    pane->resize(300, 200);
    EXPECT_EQ(edit(story_ids::storyText)->geometry(), QRect(0, 0, 300, 200));
    EXPECT_TRUE(edit(story_ids::title)->isHidden());
    pane->HideHeadLine(0);
    pane->vSetComponentPos();
    EXPECT_EQ(edit(story_ids::title)->geometry(), QRect(10, 0, 280, 3 * line));
    EXPECT_TRUE(edit(story_ids::title)->isVisible());
}

TEST_F(StoryPaneTest, TakesANewSchemeAndFont) {
    give(first, u"Rates"_s, u"Body"_s);
    pane->vSetStoryData(list, 0, search({u"body"_s}));
    scheme.colours = {{u"COLOR_LISTCTL_NORMALTEXT"_s, QColor(200, 10, 20)},
                      {u"COLOR_LISTCTL_BACKGROUND"_s, QColor(10, 20, 30)}};
    scheme.font.setPixelSize(23);
    pane->vChangeCast();
    for (const int id : {story_ids::title, story_ids::storyText}) {
        EXPECT_EQ(edit(id)->palette().color(QPalette::Text), QColor(200, 10, 20));
        EXPECT_EQ(edit(id)->palette().color(QPalette::Base), QColor(10, 20, 30));
        EXPECT_EQ(edit(id)->font().pixelSize(), 23);
    }
    pane->vStoryUpdateNotify(nullptr);
    EXPECT_EQ(notice()->palette().color(QPalette::WindowText), QColor(200, 10, 20));
    EXPECT_EQ(notice()->palette().color(QPalette::Window), QColor(10, 20, 30));
    EXPECT_EQ(edit(story_ids::title)->height(), 3 * QFontMetrics(scheme.font).height());
    EXPECT_EQ(pane->grab().toImage().pixelColor(4, 100), QColor(10, 20, 30)) << "beside the texts";
    EXPECT_EQ(selection().selectedText(), u"Body"_s);

    QFont larger = scheme.font;
    larger.setPixelSize(31);
    pane->vSetFont(larger);
    EXPECT_EQ(edit(story_ids::title)->height(), 3 * QFontMetrics(larger).height());
    EXPECT_EQ(edit(story_ids::storyText)->font().pixelSize(), 31);

    backEnd.texts[u"IDS_NEWSCTRLVIEW_STRING_TITLE"_s] = u"標題"_s;
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(pane, &change);
    EXPECT_EQ(edit(story_ids::title)->accessibleName(), u"標題"_s);
}

TEST_F(StoryPaneTest, BeginsInTheSchemeAlsoInAWindowThatIsShown) {
    scheme.colours = {{u"COLOR_LISTCTL_BACKGROUND"_s, QColor(10, 20, 30)}};
    NewsStoryView another(&window);
    another.show();
    another.OnInitialUpdate();
    another.InitialViewInfo(&settings, u"Layout"_s, 0, 0, {});
    for (const int id : {story_ids::title, story_ids::storyText}) {
        const auto* part = static_cast<MyRichEdit*>(dlgItem(&another, id));
        EXPECT_TRUE(part->isVisible());
        EXPECT_EQ(part->palette().color(QPalette::Base), QColor(10, 20, 30));
    }
}

}  // namespace wirepane
