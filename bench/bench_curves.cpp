// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include "diagrams/curve_generator.h"
#include "diagrams/diagram_fixture.h"

namespace orva {
namespace {

// One isotherm of 300 grid points, above and below the critical temperature. Aim: below 1 ms.
void IsothermOf300Points(benchmark::State& state) {
    test::MethaneDiagram d;
    CurvePoints curve;
    CurveOutcome outcome;
    const auto T = static_cast<double>(state.range(0));
    for (auto _ : state) {
        GenerateCurve(d.model, d.options, {}, d.spec, curve, T, d.request.curveP, d.request.curveV, outcome);
        benchmark::DoNotOptimize(curve.Count());
    }
    state.counters["points"] = curve.Count();
}
BENCHMARK(IsothermOf300Points)->Arg(160)->Arg(250)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace orva
