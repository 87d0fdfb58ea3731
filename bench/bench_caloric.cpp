// SPDX-License-Identifier: GPL-3.0-or-later
// Full states of Peng/Robinson n-butane: phase volumes and all caloric functions, with the ambient state
// known and with it evaluated anew; a saturation line and an isobar of 300 points. The floor is the same work
// without rows, records and failures.
#include <benchmark/benchmark.h>

#include "bench/floor_caloric.h"
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

void FullStateOf(benchmark::State& state, Point at, int cpModel) {
    SubstanceModel model = Model();
    model.selection.cpModel = static_cast<std::int16_t>(cpModel);
    const AmbientState ambient = EvaluateAmbientState(model);
    for (auto _ : state)
        benchmark::DoNotOptimize(FullState(model, at.T, at.p, ambient));
}

bench::FloorCaloric FloorOf(bench::FloorKernel& kernel, const SubstanceModel& model, const AmbientPhase& a) {
    const HeatCapacityPolynomial& q = model.substance.cpPolynomial;
    const ReferencePoint& r = model.reference;
    return {kernel, q.C0, q.C1, q.C2, q.C3, q.C4, r.T0, r.p0, r.Tenv, r.penv, a.h, a.u, a.s, a.v};
}

bench::FloorCaloric::Values FloorFullState(const bench::FloorCaloric& floor, double T, double p) {
    const auto phases = floor.kernel.PhaseVolumes(T, p);
    return floor.At(T, p, phases.vV > 0 ? phases.vV : phases.vL);
}

bool Near(double a, double b) {
    return std::abs(a - b) < 1e-9 * (std::abs(a) + 1);
}

void FloorFullStateOf(benchmark::State& state, Point at) {
    SubstanceModel model = Model();
    const SubstanceData& s = model.substance;
    const AmbientState ambient = EvaluateAmbientState(model);
    bench::FloorKernel kernel(s.Tc, s.pc, s.omega, s.molarMass);
    const bench::FloorCaloric floor = FloorOf(kernel, model, ambient.Single());
    const CaloricValues full = FullState(model, at.T, at.p, ambient).values;
    const auto values = FloorFullState(floor, at.T, at.p);
    if (!Near(values.exergyU, full.exergyU) || !Near(values.cv, full.cv)
        || !Near(values.soundSpeed, full.soundSpeed))
        state.SkipWithError("the floor computes something else");
    for (auto _ : state)
        benchmark::DoNotOptimize(FloorFullState(floor, at.T, at.p));
}

void FloorIsobarOf300Points(benchmark::State& state) {
    SubstanceModel model = Model();
    const SubstanceData& s = model.substance;
    bench::FloorKernel kernel(s.Tc, s.pc, s.omega, s.molarMass);
    const bench::FloorCaloric floor = FloorOf(kernel, model, EvaluateAmbientState(model).Single());
    for (auto _ : state) {
        double sum = 0;
        for (int i = 0; i < 300; ++i) {
            const auto values = FloorFullState(floor, 250 + i, 1000);
            benchmark::DoNotOptimize(values);
            sum += values.h;
        }
        benchmark::DoNotOptimize(sum);
    }
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

BENCHMARK_CAPTURE(FullStateOf, gas, points[0], 1);
BENCHMARK_CAPTURE(FullStateOf, liquid, points[1], 1);
BENCHMARK_CAPTURE(FullStateOf, supercritical, points[2], 1);
BENCHMARK_CAPTURE(FullStateOf, gas_sinh_cosh, points[0], 2);
BENCHMARK_CAPTURE(FloorFullStateOf, gas, points[0]);
BENCHMARK_CAPTURE(FloorFullStateOf, liquid, points[1]);
BENCHMARK_CAPTURE(FloorFullStateOf, supercritical, points[2]);
BENCHMARK_CAPTURE(FullStateWithAmbientOf, gas, points[0]);
BENCHMARK(SaturationCaloricAt350);
BENCHMARK(IsobarOf300Points)->Unit(benchmark::kMicrosecond);
BENCHMARK(FloorIsobarOf300Points)->Unit(benchmark::kMicrosecond);
BENCHMARK(SaturationLineOf300Points)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace orva
