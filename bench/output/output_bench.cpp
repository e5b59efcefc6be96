// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What it costs to print stories into a PDF: of 1,000 characters to 4 MB, in English, in Chinese and without
// a blank. "InBackground": as the terminal does it; "wait_ms" is the longest time that a key had to wait.
#include "bench/support/run_benchmarks.h"
#include "bench/support/watched_application.h"
#include "output/page_printing.h"
#include "output/page_view.h"
#include "output/print_preview.h"
#include "output/trv_news_print.h"
#include "story/story_text.h"
#include "terminal/session/background_painter.h"
#include "tests/support/fake_back_end.h"

#include <QTemporaryDir>
#include <QWidget>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

OutputItem newsOf(const QString& paragraph, std::int64_t characters) {
    OutputItem item;
    item.title = u"Freight rates recover"_s;
    item.story = paragraph.repeated(characters / paragraph.size() + 1);
    item.hasTitle = item.hasStory = true;
    vConvertStoryContent(item.story);
    return item;
}

void print(benchmark::State& state, const QString& paragraph) {
    FakeBackEnd backEnd;
    backEnd.texts.insert(u"IDS_SINGLETON-STRING_FONTNAME"_s, u"Noto Sans Mono CJK TC"_s);
    const OutputItems items{newsOf(paragraph, state.range(0))};
    const QTemporaryDir folder;
    int pages = 0;
    for (auto unused : state)
        pages = printItemsToPdf({folder.filePath(u"news.pdf"_s), {}, {}}, backEnd, items).count;
    state.counters["pages"] = pages;
}

void printEnglish(benchmark::State& state) {
    print(state, u"Shares of shipping lines firm as freight rates recover. "_s.repeated(11) + u"@@@@"_s);
}

void printChinese(benchmark::State& state) {
    print(state, u"航運股因運價回升走強，市場人士表示後市看好。"_s.repeated(20) + u"@@@@"_s);
}

void printWithoutBlanks(benchmark::State& state) {
    print(state, QString(1000, u'x'));
}

void printInBackground(benchmark::State& state) {
    auto& application = static_cast<WatchedApplication&>(*QApplication::instance());
    FakeBackEnd backEnd;
    backEnd.texts.insert(u"IDS_SINGLETON-STRING_FONTNAME"_s, u"Noto Sans Mono CJK TC"_s);
    const CHeadlineTable entry{1'770'000'000, 1, 1, 0, 0};
    const QString paragraph =
        u"Shares of shipping lines firm as freight rates recover. "_s.repeated(11) + u"@@@@"_s;
    backEnd.add(1, entry.time, 1, u"Freight rates recover"_s);
    backEnd.addStory({entry.time, paragraph.repeated(state.range(0) / paragraph.size() + 1), entry});
    const QTemporaryDir folder;
    OutputDialogs dialogs;
    QWidget window;
    BackgroundPainter painter;
    PagePainter::install(&painter);
    double call = 0;
    application.longest = 0;
    for (auto unused : state) {
        TRVNewsPrint printer(backEnd, dialogs, window);
        NewsOutcome outcome;
        OutputTarget target;
        target.file = folder.filePath(u"news.pdf"_s);
        target.told = [&](const NewsOutcome& told) { outcome = told; };
        const auto from = BenchClock::now();
        printer.putOut(printer.gather({entry}, {1}), nullptr, target);
        call = std::max(call, secondsSince(from));
        while (outcome.count == 0 && !outcome.failed)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        state.counters["pages"] = outcome.count;
    }
    state.counters["wait_ms"] = 1000 * std::max(call, application.longest);
}

// Until the pages are shown; then a look at some of them, in both sizes.
void preview(benchmark::State& state, const QString& paragraph) {
    auto& application = static_cast<WatchedApplication&>(*QApplication::instance());
    FakeBackEnd backEnd;
    backEnd.texts.insert(u"IDS_SINGLETON-STRING_FONTNAME"_s, u"Noto Sans Mono CJK TC"_s);
    backEnd.texts.insert(u"IDS_NEWSCTRLVIEW_PREVIEW_PAGE"_s, u"Page %1 of %2"_s);
    const OutputItems items{newsOf(paragraph, state.range(0))};
    double opened = 0;
    application.longest = 0;
    for (auto unused : state) {
        const auto from = BenchClock::now();
        PrintPreview window(backEnd, items, nullptr);
        window.show();
        QApplication::processEvents();
        opened = std::max(opened, secondsSince(from));
        auto& view = *window.findChild<PageView*>();
        while (view.pageCount() == 0)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        state.counters["pages"] = view.pageCount();
        state.PauseTiming();
        for (const auto fit : {PageView::Fit::Width, PageView::Fit::WholePage}) {
            view.setFit(fit);
            for (int page = 1; page <= 20; ++page) {
                QApplication::processEvents();
                view.showPage(page * view.pageCount() / 20);
            }
        }
        state.ResumeTiming();
    }
    state.counters["open_ms"] = 1000 * opened;
    state.counters["wait_ms"] = 1000 * application.longest;
}

void previewEnglish(benchmark::State& state) {
    preview(state, u"Shares of shipping lines firm as freight rates recover. "_s.repeated(11) + u"@@@@"_s);
}

void previewChinese(benchmark::State& state) {
    preview(state, u"航運股因運價回升走強，市場人士表示後市看好。"_s.repeated(20) + u"@@@@"_s);
}

}  // namespace

BENCHMARK(previewEnglish)->Arg(1000)->Arg(4 << 20)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(previewChinese)->Arg(1000)->Arg(4 << 20)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(printInBackground)
    ->Arg(1000)
    ->Arg(100'000)
    ->Arg(4 << 20)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(printEnglish)->Arg(1000)->Arg(100'000)->Arg(4 << 20)->Unit(benchmark::kMillisecond);
BENCHMARK(printWithoutBlanks)->Arg(1000)->Arg(100'000)->Arg(4 << 20)->Unit(benchmark::kMillisecond);
BENCHMARK(printChinese)->Arg(1000)->Arg(100'000)->Arg(4 << 20)->Unit(benchmark::kMillisecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<wirepane::WatchedApplication>(argc, argv);
}
