// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/backend/import/format_samples.h"

namespace wirepane {

using namespace Qt::StringLiterals;

const std::vector<FormatSample>& formatSamples() {
    static const QByteArray lines =
        "{\"uri\": \"urn:1\", \"versioncreated\": \"2004\", \"headline\": \"\\u00e9\\ud83d\\ude00\"}\n"
        "{\"uri\": \"urn:2\", \"versioncreated\": \"2004\", \"body_xhtml\": \"<p>é</p>\"}\n";
    static const std::vector<FormatSample> samples{
        {u"ninjs", lines, u"urn:1|é😀|\nurn:2|é|é"_s, true},
        {u"ninjs", "[" + lines.chopped(1).replace('\n', ',') + "]", u"urn:1|é😀|\nurn:2|é|é"_s},
        {u"RSS",
         "<?xml version=\"1.0\" encoding=\"UTF-8\"?><rss><channel><pubDate>2004</pubDate>"
         "<item><guid>urn:1</guid><title>é</title></item>"
         "<item><guid>urn:2</guid><description><![CDATA[<p>x</p>]]></description></item></channel></rss>",
         u"urn:1|é|\nurn:2|x|x"_s},
        {u"RSS",
         "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\" "
         "xmlns:d=\"http://purl.org/dc/terms/\">"
         "<item rdf:about=\"urn:1\"><title>é</title><d:created>2004</d:created></item>"
         "<item rdf:about=\"urn:2\"><title>x</title><d:created>2004</d:created></item></rdf:RDF>",
         u"urn:1|é|\nurn:2|x|"_s},
        {u"Atom",
         "<feed xmlns=\"http://www.w3.org/2005/Atom\"><updated>2004</updated>"
         "<entry><id>urn:1</id><title>é</title></entry><entry><id>urn:2</id>"
         "<content type=\"html\">&lt;p>x&lt;/p></content></entry></feed>",
         u"urn:1|é|\nurn:2|x|x"_s},
        {u"NewsML-G2",
         "<newsMessage><itemSet>"
         "<newsItem guid=\"urn:1\"><itemMeta><versionCreated>2004</versionCreated></itemMeta>"
         "<contentMeta><headline>é</headline></contentMeta></newsItem>"
         "<newsItem guid=\"urn:2\"><itemMeta><versionCreated>2004</versionCreated></itemMeta>"
         "<contentSet><inlineXML><nitf><body><body.content><p>x</p></body.content></body></nitf></"
         "inlineXML></"
         "contentSet>"
         "</newsItem></itemSet></newsMessage>",
         u"urn:1|é|\nurn:2|x|x"_s},
        {u"CSV", "market,code,name\r\n16,2330,\"台\"\"積電\"\r\n1,NA,\"N\nA\"\r\n",
         u"16/2330|台\"積電\n1/NA|N A"_s, true},
    };
    return samples;
}

}  // namespace wirepane
