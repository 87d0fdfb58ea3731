// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include "bench/floor_kernel.h"
#include "thermo/eos_temperature.h"
#include "thermo/fluids.h"
#include "thermo/phase_volumes.h"
#include "thermo/saturation.h"
#include "thermo/vapour_pressure.h"

namespace orva {
namespace {

// State points of n-butane, moved a little from call to call so that nothing is computed ahead.
struct StatePoint {
    double T, p;
};
constexpr StatePoint gas{350, 500}, liquid{300, 2000}, supercritical{600, 5000};

double Moved(double value, int i) {
    return value * (1 + 1e-6 * (i & 63));
}

bench::FloorKernel ButaneKernel() {
    const SubstanceData s = fluids::NButane();
    return {s.Tc, s.pc, s.omega, s.molarMass};
}

void PhaseVolumesOf(benchmark::State& state, StatePoint point) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson);
    PhaseVolumes result;
    int i = 0;
    for (auto _ : state) {
        EosPhaseVolumes(model, Moved(point.T, ++i), point.p, result);
        benchmark::DoNotOptimize(result.rhoV + result.rhoL);
    }
}

void FloorPhaseVolumes(benchmark::State& state, StatePoint point) {
    bench::FloorKernel kernel = ButaneKernel();
    int i = 0;
    for (auto _ : state) {
        const auto result = kernel.PhaseVolumes(Moved(point.T, ++i), point.p);
        benchmark::DoNotOptimize(result.rhoV + result.rhoL);
    }
}

// Argument: T / T(cr) in per mille.
void SaturationPressure(benchmark::State& state) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson, vpWagner);
    const double T = model.substance.Tc * static_cast<double>(state.range(0)) / 1000;
    int i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(EosSaturationPressure(model, Moved(T, ++i)).value);
}

void FloorSaturationPressure(benchmark::State& state) {
    bench::FloorKernel kernel = ButaneKernel();
    const SubstanceData substance = fluids::NButane();
    const double Tr = static_cast<double>(state.range(0)) / 1000;
    int i = 0;
    for (auto _ : state) {
        const double T = Moved(substance.Tc * Tr, ++i);
        benchmark::DoNotOptimize(kernel.SaturationPressure(T, VapourPressure(substance, T, vpWagner).value));
    }
}

void WagnerPressure(benchmark::State& state) {
    const SubstanceData substance = fluids::NButane();
    int i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(VapourPressure(substance, Moved(350, ++i), vpWagner).value);
}

// Argument: p in kPa.
void SaturationTemperature(benchmark::State& state) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson, vpWagner);
    int i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            EosSaturationTemperature(model, Moved(static_cast<double>(state.range(0)), ++i)).value);
}

// Argument: rho in kg/m^3 at 500 kPa.
void TemperatureOf(benchmark::State& state) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson, vpWagner);
    int i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            EosTemperature(model, 500, Moved(static_cast<double>(state.range(0)), ++i), false));
}

BENCHMARK_CAPTURE(PhaseVolumesOf, gas, gas);
BENCHMARK_CAPTURE(FloorPhaseVolumes, gas, gas);
BENCHMARK_CAPTURE(PhaseVolumesOf, liquid, liquid);
BENCHMARK_CAPTURE(FloorPhaseVolumes, liquid, liquid);
BENCHMARK_CAPTURE(PhaseVolumesOf, supercritical, supercritical);
BENCHMARK_CAPTURE(FloorPhaseVolumes, supercritical, supercritical);
BENCHMARK(SaturationPressure)->Arg(500)->Arg(700)->Arg(900)->Arg(990);
BENCHMARK(FloorSaturationPressure)->Arg(500)->Arg(700)->Arg(900)->Arg(990);
BENCHMARK(WagnerPressure);
BENCHMARK(SaturationTemperature)->Arg(50)->Arg(500)->Arg(3000);
BENCHMARK(TemperatureOf)->Arg(10)->Arg(100)->Arg(580);

} // namespace
} // namespace orva
