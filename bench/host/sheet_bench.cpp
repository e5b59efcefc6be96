// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// What a sheet costs at 1,000, 100,000 and 1,000,000 rows: showing its rows, scrolling, reading the
// selection, memory per row. "vs_1000" is a case's time as a multiple of the smallest one's.
#include "bench/support/run_benchmarks.h"
#include "host/controls/sheet_builder.h"
#include "host/controls/sheet_cells.h"
#include "host/controls/super_sheet_wnd.h"

#include <QApplication>
#include <QPixmap>

#include <benchmark/benchmark.h>
#include <chrono>
#include <malloc.h>
#include <map>
#include <string>

using namespace wirepane;

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
BENCHMARK(readSelectionOfAll)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(memoryPerRow)->Arg(1000)->Arg(100'000)->Arg(1'000'000)->Iterations(1);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<QApplication>(argc, argv);
}
