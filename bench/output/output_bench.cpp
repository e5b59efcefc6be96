// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What it costs to print stories into a PDF: of 1,000 characters to 4 MB, in English and in Chinese.
#include "output/page_printing.h"
#include "story/story_text.h"
#include "tests/support/fake_back_end.h"

#include <QApplication>
#include <QTemporaryDir>

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

}  // namespace

BENCHMARK(printEnglish)->Arg(1000)->Arg(100'000)->Arg(4 << 20)->Unit(benchmark::kMillisecond);
BENCHMARK(printWithoutBlanks)->Arg(1000)->Arg(100'000)->Arg(4 << 20)->Unit(benchmark::kMillisecond);
BENCHMARK(printChinese)->Arg(1000)->Arg(100'000)->Arg(4 << 20)->Unit(benchmark::kMillisecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
