// SPDX-License-Identifier: GPL-3.0-or-later
// Full states of Peng/Robinson n-butane: phase volumes and all caloric functions, with the ambient state
// known and with it evaluated anew; a saturation line and an isobar of 300 points.
#include <benchmark/benchmark.h>

#include "thermo/caloric_fixture.h"
#include "thermo/caloric_state.h"
#include "thermo/saturation.h"

namespace orva {
namespace {

struct Point {
    const char* name;
    double T, p;
};

constexpr Point points[] = {{"gas", 350, 500}, {"liquid", 300, 2000}, {"supercritical", 600, 5000}};

SubstanceModel Model() {
    SubstanceModel model = caloric::ModelOf(eosPengRobinson);
    model.selection.cpModel = 1;
    return model;
}

CaloricResult FullState(SubstanceModel& model, double T, double p, const AmbientState& ambient) {
    PhaseVolumes phases;
    EosPhaseVolumes(model, T, p, phases);
    return CaloricState(model, T, p, phases.hasV ? phases.vV : phases.vL, ambient);
}

void FullStateOf(benchmark::State& state, Point at) {
    SubstanceModel model = Model();
    const AmbientState ambient = EvaluateAmbientState(model);
    for (auto _ : state)
        benchmark::DoNotOptimize(FullState(model, at.T, at.p, ambient));
}

void FullStateWithAmbientOf(benchmark::State& state, Point at) {
    SubstanceModel model = Model();
    for (auto _ : state)
        benchmark::DoNotOptimize(FullState(model, at.T, at.p, EvaluateAmbientState(model)));
}

void SaturationCaloricAt350(benchmark::State& state) {
    SubstanceModel model = Model();
    const AmbientState ambient = EvaluateAmbientState(model);
    for (auto _ : state)
        benchmark::DoNotOptimize(SaturationCaloric(model, 350, ambient));
}

void IsobarOf300Points(benchmark::State& state) {
    SubstanceModel model = Model();
    for (auto _ : state) {
        const AmbientState ambient = EvaluateAmbientState(model);
        double sum = 0;
        for (int i = 0; i < 300; ++i)
            sum += FullState(model, 250 + i, 1000, ambient).values.h;
        benchmark::DoNotOptimize(sum);
    }
}

void SaturationLineOf300Points(benchmark::State& state) {
    SubstanceModel model = Model();
    for (auto _ : state) {
        const AmbientState ambient = EvaluateAmbientState(model);
        double sum = 0;
        for (int i = 0; i < 300; ++i)
            sum += SaturationCaloric(model, 240 + 0.6 * i, ambient).vapour.h;
        benchmark::DoNotOptimize(sum);
    }
}

BENCHMARK_CAPTURE(FullStateOf, gas, points[0]);
BENCHMARK_CAPTURE(FullStateOf, liquid, points[1]);
BENCHMARK_CAPTURE(FullStateOf, supercritical, points[2]);
BENCHMARK_CAPTURE(FullStateWithAmbientOf, gas, points[0]);
BENCHMARK(SaturationCaloricAt350);
BENCHMARK(IsobarOf300Points)->Unit(benchmark::kMicrosecond);
BENCHMARK(SaturationLineOf300Points)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace orva
