// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/plain_text.h"

#include "backend/import/wire_form.h"
#include "tests/support/qt_printers.h"

#include <gtest/gtest.h>

namespace wirepane {
namespace {

struct Row {
    QStringView text;
    QStringView expected;
};

TEST(PlainText, TagsGoAndParagraphsStay) {
    const std::vector<Row> rows{
        {u"", u""},
        {u"plain", u"plain"},
        {u"<p>one</p><p>two<br>three<br/>four</p>", u"one@@@@two@@@@three@@@@four"},
        {u"<P CLASS='x'>one</P>\n\n  <div><div>two</div></div>", u"one@@@@two"},
        {u"a <b>bold</b>\n  and <i>thin</i>  word", u"a bold and thin word"},
        {u"mid<b>dle</b>", u"middle"},
        {u"<ul><li>one</li><li>two</li></ul>", u"one@@@@two"},
        {u"<table><tr><td>1</td><td>2</td></tr><tr><td>3</td></tr></table>", u"1 2@@@@3"},
        {u"<pre>first\nsecond</pre>\nthird", u"first@@@@second@@@@third"},
        // Figures stay under their labels.
        {u"<p>Sales</p> <pre>\n         Jan    Feb\nNet      1,200  <b>980</b>  \nCost&nbsp;&nbsp;\t <i> "
         u"30</i></pre>  "
         u"<p>a  b</p>",
         u"Sales@@@@         Jan    Feb@@@@Net      1,200  980@@@@Cost      30@@@@a b"},
        {u"<pre>  prose  <br>  <![CDATA[ of  lines ]]></pre> x", u"prose@@@@of  lines@@@@x"},
        {u"<script>if (a<b) alert('</p>')</script>x<style>p{}</style><title>t</title>y", u"xy"},
        {u"<!-- <p>hidden</p> -->shown<!DOCTYPE html><?php echo 1 ?>", u"shown"},
        {u"<![CDATA[a <b> c]]>d", u"a <b> cd"},
        {u"<a title=\"1 > 0\" href='x>y'>link</a>", u"link"},
        {u"<a href=http://example.com/\">example</a>", u"example"},
        {u"<unknown:tag>text</unknown:tag><block>body</block>", u"textbody"},
        // Entities.
        {u"AT&amp;T &lt;b&gt; &quot;x&quot; &#39;y&#39; &nbsp;z", u"AT&T <b> \"x\" 'y' z"},
        {u"&eacute;&Eacute;&hellip;&#x4e2d;&#25991;&#128512;", u"éÉ…中文\U0001F600"},
        {u"&#146;&#150;&#128;", u"’–€"},
        {u"&#0;&#xd800;&#x110000;&#99999999999;", u"\ufffd\ufffd\ufffd&#99999999999;"},
        {u"&amp;lt;", u"&lt;"},
        {u"&unknown; & &; &#; &#x; &amp", u"&unknown; & &; &#; &#x; &amp"},
        // Broken markup.
        {u"1 < 2 > 0, a<b", u"1 < 2 > 0, a<b"},
        {u"a <b", u"a <b"},
        {u"<", u"<"},
        {u"</", u"</"},
        {u"<!", u"<!"},
        {u"<!--", u""},
        {u"<a href=\"x>text</a> rest", u"text rest"},
        {u"<script>never closed <p>", u""},
        {u"<p><p></p></div>text</p>", u"text"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(wireForm(plainText(row.text)), row.expected.toString()) << qPrintable(row.text.toString());
}

TEST(PlainText, TextOfUnknownFormLosesOnlyWhatIsSurelyMarkup) {
    const std::vector<Row> rows{
        {u"STANDARD OIL <SRD> TO FORM UNIT", u"STANDARD OIL <SRD> TO FORM UNIT"},
        {u"<b>Bold</b> on <IBM.N> &amp; more", u"Bold on <IBM.N> & more"},
        {u"1 < 2 &amp;&amp; 3 > 2", u"1 < 2 && 3 > 2"},
        {u"lines\n\nstay", u"lines\n\nstay"},
        {u"<p>lines</p>\n<p>do\nnot</p>", u"lines\n\ndo not"},
        {u"AT&T", u"AT&T"},
        // Names that plain text has in brackets too count when they cannot be meant so.
        {u"<VIDEO> and <data>", u"<VIDEO> and <data>"},
        {u"<video src='x'>seen</video>", u"seen"},
        {u"<iframe src='x'>no</iframe>left <svg width=\"1\"><path/></svg>over", u"left over"},
        {u"&#65;&#+65;&# 65;&#x 41;&#x41;", u"A&#+65;&# 65;&#x 41;A"},
        {QStringView(u"&#65\0&#66;", 10), QStringView(u"&#65\0B", 6)},
    };
    for (const Row& row : rows)
        EXPECT_EQ(textOfUnknownForm(row.text), row.expected.toString()) << qPrintable(row.text.toString());
}

// The patterns are those that make a stripper quadratic: then these would take minutes, and be ended.
TEST(PlainText, StaysLinearOnHostileMarkup) {
    for (const char* pattern :
         {"<", "<a ", "<x ", "<x", "<!", "<?", "<a b=\"", "<a b='\" c=\"", "<!--", "<script>", "</script",
          "&", "&#", "<b>", "<![CDATA[", "<a b=\">\"><i c='>'"}) {
        for (const char* end : {"", ">", "\">", "'>", "-->"}) {
            const QString markup = QString::fromLatin1(QByteArray(pattern).repeated(100'000) + end);
            EXPECT_LE(plainText(markup).size(), markup.size() * 2);
            EXPECT_LE(textOfUnknownForm(markup).size(), markup.size() * 2);
        }
    }
}

}  // namespace
}  // namespace wirepane
