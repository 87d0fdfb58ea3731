// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include "diagrams/butane_diagram.h"

namespace orva {
namespace {

// One curve of 300 grid points of each family in its default window. Aim: below 1 ms.
void CurveOf300Points(benchmark::State& state) {
    test::ButaneDiagram d;
    d.mode.limitLow = 200;
    d.mode.limitHigh = 3000;
    const int type = static_cast<int>(state.range(0));
    const auto T = static_cast<double>(state.range(1));
    d.Draw(type, T, 500);
    const DiagramSpec spec = d.spec;
    for (auto _ : state) {
        d.spec = spec;
        benchmark::DoNotOptimize(d.DrawAgain(T, 500).Count());
    }
    state.counters["points"] = d.curve.Count();
}
BENCHMARK(CurveOf300Points)
    ->ArgsProduct({{1,  2,  26, 3,  4,  5,  6,  7,  8,  9,   10,  11,  13,  15,  19,  30,
                    34, 40, 70, 80, 89, 90, 96, 98, 27, 105, 190, 107, 150, 156, 185, 307},
                   {380}})
    ->ArgsProduct({{1, 2, 26, 40, 107, 150, 156}, {500}})
    ->Unit(benchmark::kMicrosecond);

// The part inside the two-phase region, found in up to 50000 steps. Aim: below 40 ms.
void SCurve(benchmark::State& state) {
    test::ButaneDiagram d;
    d.mode.sCurveMode = true;
    for (auto _ : state)
        benchmark::DoNotOptimize(d.Draw(static_cast<int>(state.range(0)), 380, 1000).Count());
    state.counters["points"] = d.curve.Count();
}
BENCHMARK(SCurve)->Arg(1)->Arg(2)->Arg(26)->Arg(3)->Arg(15)->Arg(150)->Arg(156)->Unit(
    benchmark::kMillisecond);

// Every type of the catalogue once. Aim: below 500 ms.
void WholeCatalogue(benchmark::State& state) {
    test::ButaneDiagram d;
    d.mode.limitLow = 200;
    d.mode.limitHigh = 3000;
    for (auto _ : state)
        for (const DiagramRow& row : Catalogue())
            benchmark::DoNotOptimize(d.Draw(row.type, 380, 500).Count());
}
BENCHMARK(WholeCatalogue)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace orva
