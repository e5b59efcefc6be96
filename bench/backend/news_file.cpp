// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "bench/backend/news_file.h"

#include "backend/import/mapping.h"
#include "backend/import/source_reader.h"
#include "bench/backend/search_store.h"

#include <QDateTime>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace wirepane::bench {

namespace {

struct Sample {
    QString identity;
    QString title;
    QStringList paragraphs;  // 2 kB, two of three in English
    QDateTime time;
};

Sample sampleOf(int number, std::int64_t from) {
    const QString text = englishStory(number) +
                         (number % 3 == 2 ? chineseStory(number) : englishStory(number + 1'000'000)) +
                         u" end"_s;
    return {u"urn:bench:%1"_s.arg(number), text.left(60).replace("@@@@"_L1, " "_L1), text.split(u"@@@@"_s),
            QDateTime::fromSecsSinceEpoch(from + 30 * number, Qt::UTC)};
}

QByteArray entryOf(Format format, const Sample& sample) {
    const QString time = sample.time.toString(Qt::ISODate);
    if (format == Format::Rss)
        return u"<item><guid>%1</guid><title>%2</title><pubDate>%3</pubDate><description>%4</description></item>\n"_s
            .arg(sample.identity, sample.title, sample.time.toString(Qt::RFC2822Date),
                 u"<p>%1</p>"_s.arg(sample.paragraphs.join(u"</p><p>"_s)).toHtmlEscaped())
            .toUtf8();
    const QJsonObject record{{u"uri"_s, sample.identity},
                             {u"versioncreated"_s, time},
                             {u"headline"_s, sample.title},
                             {u"body_text"_s, sample.paragraphs.join(u"\n\n"_s)}};
    if (format == Format::Ninjs)
        return QJsonDocument(record).toJson(QJsonDocument::Compact) + '\n';
    return u"%1,%2,\"%3\",\"%4\"\n"_s
        .arg(sample.identity, time, sample.title, sample.paragraphs.join(u"\n\n"_s))
        .toUtf8();
}

}  // namespace

NewsFile::NewsFile(Format format, int count, std::int64_t from) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error("the file of news was not made");
    if (format == Format::Rss)
        file.write("<rss version=\"2.0\"><channel><title>Bench</title>\n");
    if (format == Format::Table)
        file.write("id,time,title,text\n");
    for (int i = 0; i < count; ++i)
        file.write(entryOf(format, sampleOf(i, from)));
    if (format == Format::Rss)
        file.write("</channel></rss>\n");
    if (format == Format::Table)
        options.mapping = std::make_shared<const Mapping>(
            Mapping::parse(R"({"identity": "id", "title": "title", "story": "text", "lines": "kept",
                               "time": {"date": "time"}})")
                .value());
}

std::vector<NewsItem> NewsFile::items() const {
    std::vector<NewsItem> read;
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const Done done = readSource(file, options, [&read](SourceItem&& item) {
        read.push_back(std::get<NewsItem>(item.content.value()));
        return true;
    });
    if (!done)
        throw std::runtime_error(sentence(done.error()).toStdString());
    return read;
}

}  // namespace wirepane::bench
