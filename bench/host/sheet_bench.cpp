// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What a sheet costs at 1,000, 100,000 and 1,000,000 rows: showing its rows, scrolling, reading the
// selection, memory per row. "vs_1000" is a case's time as a multiple of the smallest one's.
#include "bench/support/run_benchmarks.h"
#include "host/controls/row_look.h"
#include "host/controls/sheet_builder.h"
#include "host/controls/sheet_cells.h"
#include "host/controls/super_sheet_wnd.h"

#include <QApplication>
#include <QHeaderView>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QStyledItemDelegate>
#include <QTest>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <ctime>
#include <functional>
#include <malloc.h>
#include <map>
#include <random>
#include <string>
#include <vector>

using namespace wirepane;

namespace {
std::size_t allocations = 0;
}

// All that is allocated in this program passes here.
extern "C" {
void* __libc_malloc(std::size_t size);
void* malloc(std::size_t size) {
    ++allocations;
    return __libc_malloc(size);
}
}

namespace {

class Headlines : public SheetCells {
public:
    QString text(int row, int column) const override {
        if (column == 0)
            return QString::number(row);
        return column == 1 ? category : title;
    }

private:
    const QString category = QStringLiteral("Tech");
    const QString title = QStringLiteral("Shares of shipping lines firm as freight rates recover");
};

// As a list of news has them: each title another one, in two scripts, some with a chip, all with a tag.
class News : public SheetCells {
public:
    QString text(int row, int column) const override {
        if (column == 0)
            return times[row % times.size()];
        if (column == 1)
            return topics[row % topics.size()];
        return titles[row % titles.size()];
    }
    QColor textColour(int, int column) const override {
        return column == 1 ? QColor(25, 100, 183) : QColor();
    }
    SheetChip chip(const QString& cellText, int) const override {
        return cellText.startsWith(u'F') ? SheetChip{7, 0, 5, true} : SheetChip{};
    }
    QString tag(int, int column) const override { return column == 2 ? service : QString(); }
    int arrival(int row) const override { return row % 10 == 0 ? row % fullArrival : 0; }
    bool holdsFigures(int column) const override { return column == 0; }

private:
    static QStringList made(int count, const QStringList& forms) {
        QStringList texts;
        for (int i = 0; i < count; ++i)
            texts << forms[i % forms.size()].arg(i);
        return texts;
    }
    const QStringList times = made(1440, {QStringLiteral("10:%1")});
    const QStringList topics = made(45, {QStringLiteral("Topic %1"), QStringLiteral("財報%1")});
    const QStringList titles = made(
        100'003,
        {QStringLiteral("Shares of shipping line %1 firm as freight rates recover on orders from abroad"),
         QStringLiteral("旻蘅化工電池添加劑打進%1供應鏈 明年起分三年出貨"),
         QStringLiteral("FLASH: Export orders rise %1 percent on year, above the forecast of analysts")});
    const QString service = QStringLiteral("General");
};

// A sheet 800 x 700 on screen, without rows.
struct Fixture {
    Fixture() : sheet(new CSheetBuilder, nullptr) {
        sheet.bCreateSheet();
        sheet.setSmoothHorizontalScroll(true);
        sheet.setHeaderRowHeight(16);
        sheet.setHeightOfRows(16);
        for (const int width : {100, 50, 300})
            sheet.insertColumn(width);
        sheet.setCells(&cells);
        sheet.resize(800, 700);
        sheet.show();
        QApplication::processEvents();
    }

    Headlines cells;
    CSuperSheetWnd sheet;
};

// A sheet of 60 rows on screen, finished or plain, with a million rows behind it.
struct NewsFixture {
    explicit NewsFixture(bool finished) : sheet(new CSheetBuilder, nullptr) {
        sheet.bCreateSheet();
        if (finished)
            sheet.setLook({true, 16, 6});
        for (const int width : {64, 90, 700})
            sheet.insertColumn(width);
        sheet.setCells(&cells);
        const int row = sheet.verticalHeader()->defaultSectionSize();
        sheet.resize(900, 60 * row + sheet.horizontalHeader()->height() + 2 * sheet.frameWidth());
        sheet.show();
        sheet.addRows(1'000'000);
        QApplication::processEvents();
    }

    News cells;
    CSuperSheetWnd sheet;
};

// Times `operation` and says how its mean compares with that at 1,000 rows.
template <class Operation>
void measure(benchmark::State& state, const std::string& name, const Operation& operation) {
    static std::map<std::string, double> smallest;
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    for (auto unused : state)
        operation();
    const double mean =
        std::chrono::duration<double>(Clock::now() - begin).count() / static_cast<double>(state.iterations());
    if (state.range(0) == 1000)
        smallest[name] = mean;
    if (smallest[name] > 0)
        state.counters["vs_1000"] = mean / smallest[name];
}

// A list rebuilt with as many rows as it had.
void replaceRowsAndPaint(benchmark::State& state) {
    Fixture fixture;
    auto& builder = static_cast<CSheetBuilder&>(*fixture.sheet.model());
    measure(state, "replace", [&] {
        builder.setRowCount(static_cast<int>(state.range(0)));
        fixture.sheet.viewport()->repaint();
    });
}

// A list filled from nothing.
void clearAddAndPaint(benchmark::State& state) {
    Fixture fixture;
    measure(state, "clear", [&] {
        fixture.sheet.clearRows();
        fixture.sheet.addRows(static_cast<int>(state.range(0)));
        fixture.sheet.viewport()->repaint();
    });
}

void scrollToMiddleAndPaint(benchmark::State& state) {
    Fixture fixture;
    const auto rows = static_cast<int>(state.range(0));
    fixture.sheet.addRows(rows);
    QApplication::processEvents();
    int offset = 0;
    measure(state, "scroll", [&] {
        offset = offset == 0 ? 200 : 0;
        fixture.sheet.vAutoVerScrolling(rows / 2 + offset);
        fixture.sheet.viewport()->repaint();
    });
}

void rewriteVisibleRows(benchmark::State& state) {
    Fixture fixture;
    fixture.sheet.addRows(static_cast<int>(state.range(0)));
    QApplication::processEvents();
    measure(state, "rewrite", [&] {
        const int first = fixture.sheet.firstVisibleRow();
        for (int row = first; row <= first + fixture.sheet.rowsPerPage(); ++row)
            fixture.sheet.invalidateRow(row);
        QApplication::processEvents();
    });
}

struct Taken {
    double clock;      // ms by the wall clock
    double processor;  // ms of the processor: what a machine does beside it is not in it
};

Taken millisecondsOf(const std::function<void()>& operation) {
    const auto begin = std::chrono::steady_clock::now();
    const std::clock_t used = std::clock();
    operation();
    return {std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count(),
            1000.0 * static_cast<double>(std::clock() - used) / CLOCKS_PER_SEC};
}

// That which 99 of 100 do not exceed.
double p99(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() * 99 / 100];
}

// Every row on screen painted anew, with a row under the pointer; the argument: finished or plain.
void paintSixtyRows(benchmark::State& state) {
    NewsFixture fixture(state.range(0) != 0);
    QTest::mouseMove(fixture.sheet.viewport(), {300, 300});
    fixture.sheet.viewport()->repaint();
    for (auto unused : state)
        fixture.sheet.viewport()->repaint();
}

// Steps of a scroll, each painted: by a row, by a page, to any place. "p99": of 100 steps 99 take no longer,
// "p99_cpu": of the processor.
void scrollSteps(benchmark::State& state) {
    NewsFixture fixture(state.range(0) != 0);
    std::mt19937 random(1);
    std::vector<double> clock;
    std::vector<double> processor;
    int row = 500'000;
    for (auto unused : state) {
        for (const int next : {row + 1, row + 61, static_cast<int>(random() % 999'000)}) {
            row = next;
            const Taken taken = millisecondsOf([&] {
                fixture.sheet.setFirstVisibleRow(row);
                fixture.sheet.viewport()->repaint();
            });
            clock.push_back(taken.clock);
            processor.push_back(taken.processor);
        }
    }
    state.counters["p99"] = p99(clock);
    state.counters["p99_cpu"] = p99(processor);
    state.counters["longest"] = *std::max_element(clock.begin(), clock.end());
}

// Allocations of drawing the cells of a row that was drawn before.
void allocationsOfARow(benchmark::State& state) {
    NewsFixture fixture(state.range(0) != 0);
    QImage image(900, 100, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.font = fixture.sheet.font();
    option.fontMetrics = QFontMetrics(option.font);
    const auto paint = [&] {
        for (int column = 0; column < 3; ++column) {
            option.rect = QRect(column * 100, 0, column == 2 ? 700 : 90, 24);
            fixture.sheet.itemDelegate()->paint(&painter, option, fixture.sheet.model()->index(2, column));
        }
    };
    paint();
    std::size_t most = 0;
    for (auto unused : state) {
        const std::size_t before = allocations;
        paint();
        most = std::max(most, allocations - before);
    }
    state.counters["allocations"] = static_cast<double>(most);
}

void readSelectionOfAll(benchmark::State& state) {
    Fixture fixture;
    fixture.sheet.addRows(static_cast<int>(state.range(0)));
    fixture.sheet.selectAll();
    std::vector<int> rows;
    measure(state, "selection", [&] { fixture.sheet.vGetAllSelectionNdx(rows); });
}

void memoryPerRow(benchmark::State& state) {
    const auto used = [] {
        malloc_trim(0);
        const auto info = mallinfo2();
        return static_cast<double>(info.uordblks + info.hblkhd);
    };
    for (auto unused : state) {
        Fixture fixture;
        fixture.sheet.grab();
        const double before = used();
        fixture.sheet.addRows(static_cast<int>(state.range(0)));
        fixture.sheet.grab();
        QApplication::processEvents();
        state.counters["bytes"] = (used() - before) / static_cast<double>(state.range(0));
    }
}

}  // namespace

namespace wirepane {

BENCHMARK(replaceRowsAndPaint)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(clearAddAndPaint)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(scrollToMiddleAndPaint)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(rewriteVisibleRows)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(paintSixtyRows)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(scrollSteps)->Arg(0)->Arg(1)->Iterations(300)->Unit(benchmark::kMillisecond);
BENCHMARK(allocationsOfARow)->Arg(0)->Arg(1)->Iterations(1000);
BENCHMARK(readSelectionOfAll)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(memoryPerRow)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Iterations(1);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<QApplication>(argc, argv);
}
