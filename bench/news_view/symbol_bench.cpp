// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// The symbol combo of symbol news: filling it from the symbol search, finding a code in it, and what a typed
// key costs. Filling is to be linear, finding constant.
#include "bench/headline_list/list_bench.h"
#include "bench/support/run_benchmarks.h"
#include "host/contract/search_control.h"
#include "host/contract/view_options.h"
#include "host/controls/quote_combo_box_auto.h"
#include "host/views/news_control_ids.h"
#include "host/views/virtual_base_view.h"
#include "news_view/control_set.h"
#include "news_view/symbol_binding.h"

#include <QApplication>
#include <QLineEdit>

#include <benchmark/benchmark.h>

using namespace wirepane;

namespace {

constexpr unsigned char market = 16;

QString codeOf(int number) {
    return QStringLiteral("%1").arg(number, 6, 10, QLatin1Char('0'));
}

class Symbols : public SearchControl {
public:
    explicit Symbols(int count) {
        setSearchObjInterface(this);
        for (int i = 0; i < count; ++i) {
            allCodes.push_back(codeOf(i));
            allNames.push_back(QStringLiteral("Company %1").arg(i));
        }
    }
    bool GetSymbolsByService(unsigned char, std::vector<QString>& codes, std::vector<QString>& names,
                             int) override {
        codes = allCodes;
        names = allNames;
        return true;
    }

private:
    std::vector<QString> allCodes;
    std::vector<QString> allNames;
};

struct SymbolRow {
    explicit SymbolRow(int count) : search(count) {
        view.resize(800, 600);
        controls.CreateControls(ListIndex::Symbol, QRect(0, 0, 200, 25), view.font());
        binding.setCurrent({market, codeOf(count / 2)});
        view.show();
    }

    ArrayBackEnd backEnd{1};
    Symbols search;
    TRVVirtualBaseView view;
    ControlSet controls{view, backEnd};
    ViewOptions options;
    SymbolBinding binding{backEnd, controls, options};
};

void fillCombo(benchmark::State& state) {
    SymbolRow row(static_cast<int>(state.range(0)));
    for (auto unused : state) {
        if (row.binding.iInitSymbolComboBox(market) < 0)
            throw std::runtime_error("the combo is empty");
    }
    state.counters["per_million"] =
        benchmark::Counter(static_cast<double>(state.range(0)) / 1e6,
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void findCode(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    SymbolRow row(count);
    row.binding.iInitSymbolComboBox(market);
    const QString code = codeOf(count - 1);
    for (auto unused : state)
        benchmark::DoNotOptimize(row.binding.symbolIndex(code));
}

// A key typed into the box, until the offers below it are there.
void typeKey(benchmark::State& state) {
    SymbolRow row(static_cast<int>(state.range(0)));
    row.binding.iInitSymbolComboBox(market);
    auto* combo = row.controls.find<CQuoteComboBoxAuto>(ids::symbolCombo);
    for (auto unused : state) {
        combo->lineEdit()->selectAll();
        combo->lineEdit()->insert(QStringLiteral("9"));
        emit combo->lineEdit()->textEdited(combo->lineEdit()->text());
    }
}

}  // namespace

namespace wirepane {

BENCHMARK(fillCombo)->Arg(1000)->Arg(30'000)->Arg(300'000)->Unit(benchmark::kMillisecond);
BENCHMARK(findCode)->Arg(1000)->Arg(30'000)->Arg(300'000);
BENCHMARK(typeKey)->Arg(1000)->Arg(30'000)->Unit(benchmark::kMillisecond);

}  // namespace wirepane

int main(int argc, char** argv) {
    return wirepane::runBenchmarks<QApplication>(argc, argv);
}
