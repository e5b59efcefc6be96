// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What taking a file in costs, from its first byte to the commit. of_plain: the rate as a share of that of
// bare inserts of the same rows into the same tables and index, in one transaction.
#include "backend/import/import_job.h"
#include "backend/import/mapping.h"
#include "backend/import/source_reader.h"
#include "backend/store/store_writer.h"
#include "bench/backend/plain_inserts.h"
#include "bench/backend/search_store.h"
#include "bench/backend/store_timing.h"
#include "bench/support/run_benchmarks.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <benchmark/benchmark.h>
#include <map>

using namespace Qt::StringLiterals;

namespace wirepane::bench {

namespace {

enum class Format { Rss, Ninjs, Table };

struct Sample {
    QString identity;
    QString title;
    QStringList paragraphs;  // 2 kB, two of three in English
    QDateTime time;
};

Sample sampleOf(int number) {
    const QString text = englishStory(number) +
                         (number % 3 == 2 ? chineseStory(number) : englishStory(number + 1'000'000)) +
                         u" end"_s;
    return {u"urn:bench:%1"_s.arg(number), text.left(60).replace("@@@@"_L1, " "_L1), text.split(u"@@@@"_s),
            QDateTime::fromSecsSinceEpoch(1'772'400'000 + 30 * number, Qt::UTC)};
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

// A file of news, and how it is read.
struct NewsFile {
    QTemporaryDir folder;
    QString path = folder.filePath(u"news"_s);
    ReadOptions options;

    NewsFile(Format format, int count) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            throw std::runtime_error("the file of news was not made");
        if (format == Format::Rss)
            file.write("<rss version=\"2.0\"><channel><title>Bench</title>\n");
        if (format == Format::Table)
            file.write("id,time,title,text\n");
        for (int i = 0; i < count; ++i)
            file.write(entryOf(format, sampleOf(i)));
        if (format == Format::Rss)
            file.write("</channel></rss>\n");
        if (format == Format::Table)
            options.mapping = std::make_shared<const Mapping>(
                Mapping::parse(R"({"identity": "id", "title": "title", "story": "text", "lines": "kept",
                                   "time": {"date": "time"}})")
                    .value());
    }

    std::vector<NewsItem> items() const {
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
};

void importFile(benchmark::State& state, Format format) {
    const int count = int(state.range(0));
    const NewsFile file(format, count);
    const PlainInserts plain(file.items());
    std::vector<double> own;
    std::vector<double> bare;
    for (auto unused : state) {
        QTemporaryDir folder;
        const auto store = opened(folder.filePath(u"own.db"_s));
        StoreWriter writer(*store);
        ImportJob job({file.path}, writer, file.options);
        own.push_back(secondsOf([&] {
            if (job.run().totals.takenIn != count)
                throw std::runtime_error("the file was not taken in whole");
        }));
        state.SetIterationTime(own.back());
        const auto other = opened(folder.filePath(u"plain.db"_s));
        bare.push_back(secondsOf([&] { plain.run(*other); }));
    }
    state.counters["items_per_s"] = double(count) / median(own);
    state.counters["of_plain"] = median(bare) / median(own);
}

}  // namespace

}  // namespace wirepane::bench

namespace wirepane {

using bench::Format;
using bench::importFile;

BENCHMARK_CAPTURE(importFile, rss, Format::Rss)
    ->Arg(1000)
    ->Arg(20'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(importFile, ninjs, Format::Ninjs)
    ->Arg(1000)
    ->Arg(20'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(importFile, table, Format::Table)
    ->Arg(1000)
    ->Arg(20'000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<QCoreApplication>(argc, argv);
}
